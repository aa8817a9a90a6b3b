// Transfers that come back to the account they started from
MATCH ring = (account:Account)-[transfers:TRANSFERRED*3..6]->(account)
WHERE all(transfer IN transfers WHERE transfer.amount > 9000)
WITH ring, account, transfers,
     reduce_amounts(transfers) AS total // a function of the database's own
WHERE total > 50000
RETURN ring, account, transfers, total
