route.hops <= 5 // not too far
  AND route:Encrypted:Monitored
  /* either end may be new */
  AND (origin.since.year >= 2020 OR target.since.year >= 2020)
