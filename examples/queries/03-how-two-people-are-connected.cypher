// The shortest chain of films between two people
MATCH (one:Person {name: 'Ada'}), (other:Person {name: 'Grace'}),
      chain = shortestPath((one)-[:ACTED_IN|DIRECTED*..8]-(other))
RETURN chain, length(chain) AS steps
