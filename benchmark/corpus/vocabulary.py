"""Two sets of names and strings without a word in common, so that texts made from them differ too."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Vocabulary:
    variables: tuple
    labels: tuple
    types: tuple
    keys: tuple
    parameters: tuple
    functions: tuple
    procedures: tuple
    strings: tuple
    remarks: tuple


MEASURED = Vocabulary(
    variables=('n', 'm', 'person', 'friend', 'film', 'order_', 'account', 'supplier', 'a', 'x1', 'host',
               '`my node`', 'путь', '部品', 'shipment'),
    labels=('Person', 'Film', 'Account', 'Supplier', 'Host', 'Order', 'City', '`Lead Time`', 'Город', 'Match'),
    types=('KNOWS', 'ACTED_IN', 'TRANSFERRED', 'SUPPLIES', 'RUNS_ON', 'LIVES_IN', '`works for`'),
    keys=('name', 'age', 'since', 'amount', 'status', 'address', 'city', 'code', 'score', '`unit price`', 'limit'),
    parameters=('wanted', 'from', '`a parameter`', '0'),
    functions=('size', 'coalesce', 'toLower', 'collect', 'sum', 'apoc.text.join', 'labels', 'length'),
    procedures=('db.labels', 'security.rolesOf', 'search.nodes'),
    strings=("'Berlin'", '"active"', "'it\\'s'", "'東京'", "'a longer piece of text, as users type it'", "''"),
    remarks=('only those that matter', 'see the manual', 'newest first'))

TRAINING = Vocabulary(
    variables=('s', 't', 'student', 'teacher', 'course', 'room_', 'book', 'author', 'u', 'v2', 'device',
               '`a place`', 'κόμβος', '書籍', 'invoice'),
    labels=('Student', 'Course', 'Book', 'Author', 'Device', 'Invoice', 'Town', '`Semester End`', 'Πόλη', 'Return'),
    types=('ATTENDS', 'WROTE', 'PAID', 'TEACHES', 'CONNECTS_TO', 'BORN_IN', '`is part of`'),
    keys=('title', 'year', 'grade', 'price', 'kind', 'place', 'street', 'isbn', 'weight', '`page count`', 'order'),
    parameters=('asked', 'until', '`one value`', '1'),
    functions=('count', 'exists_', 'toUpper', 'max', 'avg', 'util.map.join', 'keys', 'round'),
    procedures=('dbms.keys', 'graph.neighbours', 'text.query'),
    strings=("'Porto'", '"open"', "'one\\nbelow'", "'京都'", "'another text of some length that somebody wrote'", '""'),
    remarks=('what was left out', 'as agreed', 'oldest last'))
