// Brings in people from a list, and reports how many
UNWIND [{name: 'Ada', born: 1815}, {name: 'Grace', born: 1906}] AS row
MERGE (person:Person {name: row.name})
SET person += row
WITH count(person) AS imported
RETURN imported
