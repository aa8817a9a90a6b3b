// Ways from the internet to the database through unpatched machines
MATCH path = (:Zone {name: "internet"})-[hops:REACHES*1..6]->(target:Host {role: "database"})
WHERE any(machine IN nodes(path) WHERE machine.patched < $deadline)
RETURN path, hops, target, [machine IN nodes(path) | machine.name] AS machines,
       CASE WHEN target.encrypted THEN 'low' ELSE 'high' END AS risk
