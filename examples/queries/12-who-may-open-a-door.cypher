// Everyone with access to a room, by a role or by a personal grant
MATCH (user:User)-[:MEMBER_OF*0..]->(:Group)-[:HAS]->(role:Role)-[grant:MAY_ENTER]->(:Room {code: $room})
RETURN user, role AS reason, grant
UNION ALL
MATCH (user:User)-[grant:MAY_ENTER]->(:Room {code: $room})
RETURN user, grant AS reason, grant
