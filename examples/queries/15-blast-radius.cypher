// What stops working when a server goes down
MATCH (server:Server {host: $host})<-[:RUNS_ON]-(service:Service)
WITH server, service
MATCH outage = (service)<-[:DEPENDS_ON*0..4]-(affected:Service)
WITH *, length(outage) AS hops
RETURN *
