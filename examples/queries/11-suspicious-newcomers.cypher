// New accounts that moved money to a flagged one and were never checked
MATCH (account:Account)-[transfer:TRANSFERRED]->(flagged:Account:Flagged)
WHERE account.opened > $since
  AND EXISTS { (account)-[:USES]->(:Device)<-[:USES]-(flagged) }
  AND NOT EXISTS { MATCH (account)<-[:OF]-(check:Check) WHERE check.passed RETURN check }
RETURN account, transfer, flagged.name
