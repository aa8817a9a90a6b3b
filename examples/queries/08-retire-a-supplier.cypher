// Takes a supplier out of the chain; nothing is returned
MATCH (supplier:Supplier {code: $code})
OPTIONAL MATCH (supplier)-[contract:HAS_CONTRACT]->()
DELETE contract
SET supplier:Retired
REMOVE supplier.rating, supplier:Preferred
