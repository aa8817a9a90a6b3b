// Which procedures a role may call, as the database reports it
MATCH (role:Role)
CALL security.proceduresOf(role.name) YIELD name AS procedure, mode WHERE mode <> 'READ'
RETURN role, procedure, mode
