gateway.hosts[0] <> gateway.hosts[1] AND toLower(gateway.name) IN $names AND coalesce(gateway.port, 443) = 443 AND gateway <> self
