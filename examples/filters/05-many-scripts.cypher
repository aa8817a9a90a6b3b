映画.題名 CONTAINS '東京' AND 映画:作品 AND `l'acteur`.prénom <> 映画.`titre original`
