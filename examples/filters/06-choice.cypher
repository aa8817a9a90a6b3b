part.stock < CASE WHEN part:Critical THEN part.minimum * 2 ELSE part.minimum END
