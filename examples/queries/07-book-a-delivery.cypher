// Enters a delivery and the stock it brings
MATCH (warehouse:Warehouse {code: $warehouse})
UNWIND $items AS item
MERGE (part:Part {number: item.number})
  ON CREATE SET part.stock = 0, part.since = timestamp()
  ON MATCH SET part.touched = timestamp()
CREATE (warehouse)-[stored:STORES {quantity: item.quantity}]->(part)
SET part.stock = part.stock + item.quantity
RETURN *
