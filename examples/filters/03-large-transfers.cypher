transfer.amount > 10000 AND NOT source:Trusted AND (target:Flagged OR target.risk / 100.0 > 0.8)
