"""The names and strings that the texts are made of."""

VARIABLES = ('n', 'm', 'person', 'friend', 'film', 'order_', 'account', 'supplier', 'a', 'x1', 'host',
    '`my node`', 'путь', '部品', 'shipment')
LABELS = ('Person', 'Film', 'Account', 'Supplier', 'Host', 'Order', 'City', '`Lead Time`', 'Город', 'Match')
TYPES = ('KNOWS', 'ACTED_IN', 'TRANSFERRED', 'SUPPLIES', 'RUNS_ON', 'LIVES_IN', '`works for`')
KEYS = ('name', 'age', 'since', 'amount', 'status', 'address', 'city', 'code', 'score', '`unit price`', 'limit')
PARAMETERS = ('wanted', 'from', '`a parameter`', '0')
FUNCTIONS = ('size', 'coalesce', 'toLower', 'collect', 'sum', 'apoc.text.join', 'labels', 'length')
PROCEDURES = ('db.labels', 'security.rolesOf', 'search.nodes')
STRINGS = ("'Berlin'", '"active"', "'it\\'s'", "'東京'", "'a longer piece of text, as users type it'", "''")
REMARKS = ('only those that matter', 'see the manual', 'newest first')
