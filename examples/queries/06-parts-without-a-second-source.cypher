// Parts that only one supplier makes
/* Such a part is at risk: when that supplier fails, nobody else can deliver,
   and finding a second one takes at least the lead time. */
MATCH (part:Part)<-[:MAKES]-(supplier:Supplier)
WITH part, collect(DISTINCT supplier) AS suppliers
WHERE size(suppliers) = 1
RETURN part, suppliers[0] AS `only source`, part.`lead time (days)`
