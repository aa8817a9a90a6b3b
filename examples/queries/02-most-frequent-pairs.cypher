// Actors and directors who worked together at least three times
MATCH (actor:Person)-[:ACTED_IN]->(film:Film)<-[:DIRECTED]-(director:Person)
WHERE actor <> director
WITH actor, director, count(film) AS together, collect(film.title) AS titles
WHERE together >= 3
RETURN actor, director, together, titles[0..5]
ORDER BY together DESC
