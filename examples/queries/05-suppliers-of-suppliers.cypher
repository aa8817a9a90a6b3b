// Whom a factory depends on, directly or through up to five others
MATCH route = (factory:Factory)<-[deliveries:DELIVERS_TO*1..5]-(supplier:Supplier)
WHERE factory.code = $code
RETURN route, supplier, deliveries, size(deliveries) AS distance
