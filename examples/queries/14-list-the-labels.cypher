// A procedure called by itself: without RETURN there are no columns
CALL db.labels() YIELD label AS name
