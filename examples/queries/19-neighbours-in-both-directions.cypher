// Everything around a switch: devices, cables and the ways there
MATCH way = (switch:Switch {serial: $serial})-[cable:CABLE]-(device)
RETURN switch AS element
UNION
MATCH (:Switch {serial: $serial})-[cable:CABLE]-()
RETURN cable AS element
UNION
MATCH way = (:Switch {serial: $serial})-[:CABLE]-()
RETURN way AS element
