// The films that somebody played in, newest first
MATCH (actor:Person {name: $name})-[role:ACTED_IN]->(film:Film)
RETURN film, role, film.released AS year
ORDER BY year DESC, film.title
LIMIT 25
