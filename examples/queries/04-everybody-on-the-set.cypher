// Cast and crew of a film in one list; a person or a credit stands in each row
MATCH (film:Film {title: $title})<-[:ACTED_IN]-(person:Person)
RETURN person AS entry, 'cast' AS part
UNION
MATCH (film:Film {title: $title})<-[credit:WORKED_ON]-(:Person)
RETURN credit AS entry, 'crew' AS part
