person.address.city STARTS WITH 'B' OR person.address.country IN ['DE', 'FR'] AND person.address IS NOT NULL
