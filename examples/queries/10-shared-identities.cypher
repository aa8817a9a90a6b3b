// Accounts that share a telephone, an address or a device
MATCH (first:Account)-[:USES]->(shared)<-[:USES]-(second:Account)
WHERE id(first) < id(second) AND (shared:Phone OR shared:Address OR shared:Device)
WITH first, second, count(*) AS matches, collect(labels(shared)[0]) AS kinds
RETURN DISTINCT first, second, matches, kinds
ORDER BY matches DESC
SKIP 0 LIMIT 100
