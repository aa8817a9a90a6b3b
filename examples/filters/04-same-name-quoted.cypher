`n`.name = n.alias XOR `n` = m
