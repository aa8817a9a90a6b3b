person.age >= 18 AND person:Person
