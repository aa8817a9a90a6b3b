// Names from several languages, quoted where they are no plain words
MATCH (`l'acteur`:Personne)-[ρόλος:ΕΠΑΙΞΕ]->(映画:作品)
RETURN `l'acteur`, ρόλος, 映画, 映画.題名 AS タイトル, `l'acteur`.prénom AS `prénom de l'acteur`
