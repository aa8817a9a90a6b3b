"""Writes openCypher texts at random, in the mix of constructs that applications send."""

import vocabulary


class Writer:
    def __init__(self, random):
        self.random = random

    # Expressions

    def one_of(self, *choices):
        return self.random.choice(choices)()

    def variable(self):
        return self.random.choice(vocabulary.VARIABLES)

    def key(self):
        return self.random.choice(vocabulary.KEYS)

    def label(self):
        return self.random.choice(vocabulary.LABELS)

    def property(self, variable=None):
        path = ''.join('.' + self.key() for _ in range(self.random.choice((1, 1, 1, 2))))
        return (variable or self.variable()) + path

    def number(self):
        return self.random.choice((str(self.random.randrange(100000)), f'{self.random.randrange(1, 99)}.5', '0x1F', '1e-3'))

    def string(self):
        return self.random.choice(vocabulary.STRINGS)

    def parameter(self):
        return '$' + self.random.choice(vocabulary.PARAMETERS)

    def literal(self):
        return self.one_of(self.number, self.number, self.string, self.string, lambda: 'true', lambda: 'NULL')

    def list_of(self, count, item):
        return '[' + ', '.join(item() for _ in range(count)) + ']'

    def map_of(self, count):
        return '{' + ', '.join(f'{self.key()}: {self.value()}' for _ in range(count)) + '}'

    def call(self):
        arguments = ', '.join(self.value() for _ in range(self.random.choice((1, 1, 2, 3))))
        return f'{self.random.choice(vocabulary.FUNCTIONS)}({arguments})'

    def sum(self):
        operator = self.random.choice((' + ', ' * ', '/', ' % '))
        return f'{self.property()}{operator}{self.number()}'

    def case(self):
        return f'CASE WHEN {self.comparison()} THEN {self.literal()} ELSE {self.property()} END'

    def value(self):
        return self.one_of(self.property, self.property, self.literal, self.literal, self.parameter)

    def expression(self):
        return self.one_of(self.property, self.property, self.value, self.call, self.call, self.sum, self.case,
                           lambda: f'{self.variable()}.{self.key()}[0]', lambda: f'count(*)')

    def comparison(self):
        operator = self.random.choice((' = ', ' = ', ' <> ', ' < ', '>', ' >= ', ' <= '))
        return self.property() + operator + self.value()

    def condition(self):
        """One operand of a filter, which brings no variables or patterns of its own."""
        return self.one_of(
            self.comparison, self.comparison, self.comparison,
            lambda: f'{self.property()} IS {self.random.choice(("NULL", "NOT NULL"))}',
            lambda: f'{self.property()} {self.random.choice(("STARTS WITH", "ends with", "CONTAINS"))} {self.string()}',
            lambda: f'{self.property()} IN {self.list_of(self.random.randrange(1, 8), self.literal)}',
            lambda: f'{self.variable()}:{self.label()}',
            lambda: f'NOT {self.variable()}:{self.label()}:{self.label()}',
            lambda: f'{self.call()} = {self.value()}',
            lambda: f'({self.comparison()} OR {self.comparison()})',
            lambda: f'NOT ({self.comparison()} AND ({self.comparison()} XOR {self.comparison()}))',
            lambda: f'{self.sum()} > {self.case()}')

    def filter_of(self, size):
        text = self.condition()
        while len(text) < size:
            separator = self.random.choice((' AND ', ' AND ', ' OR ', '\n  AND '))
            text += separator + self.condition()
        return text

    def element_with_own_variables(self):
        """An element that a query may hold and a filter must not."""
        inner = self.random.choice(('x', 'y', 'item'))
        return self.one_of(
            lambda: f'[{inner} IN {self.property()} WHERE {inner}.{self.key()} > {self.number()} | {inner}.{self.key()}]',
            lambda: f'[({self.variable()})-[:{self.type()}]->({inner}) | {inner}.{self.key()}]',
            lambda: f'{self.random.choice(("all", "any", "none", "single"))}({inner} IN {self.property()} WHERE {inner} > {self.number()})',
            lambda: f'({self.variable()})-[:{self.type()}]->()',
            lambda: f'EXISTS {{ MATCH ({self.variable()})--({inner}:{self.label()}) WHERE {self.comparison()} RETURN {inner} }}')

    # Patterns

    def type(self):
        return self.random.choice(vocabulary.TYPES)

    def node(self):
        return self.one_of(
            lambda: f'({self.variable()})', lambda: f'({self.variable()}:{self.label()})', lambda: f'(:{self.label()})',
            lambda: f'({self.variable()}:{self.label()} {self.map_of(1)})', lambda: '()')

    def relationship(self):
        variable = self.random.choice(('', '', self.variable()))
        detail = self.random.choice((f'[{variable}:{self.type()}]', f'[{variable}:{self.type()}|{self.type()}]',
                                     f'[{variable}:{self.type()}*1..{self.random.randrange(2, 9)}]', ''))
        return self.random.choice((f'-{detail}->', f'<-{detail}-', f'-{detail}-'))

    def path(self):
        text = self.node()
        for _ in range(self.random.choice((0, 1, 1, 1, 2, 3))):
            text += self.relationship() + self.node()
        return text

    def pattern(self):
        text = self.random.choice(('', '', '', f'{self.variable()} = ')) + self.path()
        return text + self.random.choice(('', '', f', {self.path()}'))

    # Clauses

    def where(self):
        condition = self.filter_of(self.random.choice((10, 10, 60)))
        if self.random.random() < 0.2:
            condition += ' AND ' + self.element_with_own_variables()
        return f'WHERE {condition}'

    def match(self):
        optional = self.random.choice(('', '', '', 'OPTIONAL '))
        return f'{optional}MATCH {self.pattern()}' + self.random.choice(('', f' {self.where()}', f'\n{self.where()}'))

    def unwind(self):
        source = self.one_of(self.parameter, self.property, lambda: self.list_of(4, lambda: self.map_of(3)))
        return f'UNWIND {source} AS {self.variable()}'

    def in_query_call(self):
        return f'CALL {self.random.choice(vocabulary.PROCEDURES)}({self.value()}) YIELD {self.variable()}'

    def create(self):
        return f'CREATE ({self.variable()}:{self.label()} {self.map_of(3)})-[:{self.type()}]->({self.variable()})'

    def merge(self):
        return (f'MERGE ({self.variable()}:{self.label()} {self.map_of(1)})\n'
                f'  ON CREATE SET {self.property()} = {self.value()}\n  ON MATCH SET {self.property()} = {self.value()}')

    def set(self):
        return f'SET {self.property()} = {self.expression()}, {self.variable()} += {self.map_of(2)}, {self.variable()}:{self.label()}'

    def remove(self):
        return f'REMOVE {self.property()}, {self.variable()}:{self.label()}'

    def delete(self):
        return self.random.choice(('', 'DETACH ')) + f'DELETE {self.variable()}'

    def items(self, count):
        return ', '.join(
            self.one_of(self.variable, self.variable, self.property, lambda: f'{self.expression()} AS {self.variable()}')
            for _ in range(count))

    def with_(self):
        distinct = self.random.choice(('', '', '', 'DISTINCT '))
        return f'WITH {distinct}{self.items(self.random.randrange(1, 5))}' + self.random.choice(('', f' {self.where()}'))

    def return_(self):
        body = self.random.choice((self.items(self.random.randrange(1, 7)), self.items(2), '*'))
        order = self.random.choice(('', '', f'\nORDER BY {self.property()} DESC, {self.property()}'))
        return f'RETURN {body}{order}' + self.random.choice(('', '', f' SKIP {self.number()} LIMIT {self.parameter()}'))

    def remark(self):
        return self.random.choice(('', '', '', f'// {self.random.choice(vocabulary.REMARKS)}\n'))

    def reading(self):
        return self.one_of(self.match, self.match, self.match, self.match, self.unwind, self.in_query_call)

    def updating(self):
        return self.one_of(self.create, self.merge, self.set, self.remove, self.delete)

    def part(self):
        separator = self.random.choice((' ', '\n'))
        clauses = [self.reading() for _ in range(self.random.choice((1, 1, 2)))]
        if self.random.random() < 0.15:
            clauses.append(self.updating())
        return separator.join(clauses)

    def query_of(self, size):
        if size < 60:
            return f'MATCH {self.node()} RETURN {self.items(1)}'
        text = self.remark() + self.part()
        while len(text) + 40 < size:
            if self.random.random() < 0.1:
                text += f'\n{self.return_()}\nUNION {self.part()}'
            else:
                text += f'\n{self.with_()}\n{self.part()}'
        return f'{text}\n{self.return_()}'

    def data_import_of(self, size):
        rows = self.map_of(4)
        while len(rows) < size:
            rows += ', ' + self.map_of(4)
        return f'UNWIND [{rows}] AS {self.variable()}\n{self.merge()}\n{self.return_()}'

    def clauses(self):
        """One text for each kind of clause."""
        one = self.variable()
        return {
            'match': f'{self.match()} RETURN {self.items(2)}',
            'optional match': f'OPTIONAL MATCH {self.pattern()} RETURN *',
            'shortest path': f'MATCH {one} = shortestPath({self.node()}-[*..8]-{self.node()}) RETURN {one}',
            'where': f'MATCH {self.pattern()} WHERE {self.filter_of(80)} RETURN {self.items(1)}',
            'unwind': f'{self.unwind()} RETURN {self.items(1)}',
            'call': f'MATCH {self.pattern()} {self.in_query_call()} RETURN {self.items(2)}',
            'standalone call': f'CALL {self.random.choice(vocabulary.PROCEDURES)} YIELD {one}',
            'create': self.create(),
            'merge': self.merge(),
            'set': f'MATCH {self.pattern()} {self.set()}',
            'remove': f'MATCH {self.pattern()} {self.remove()}',
            'delete': f'MATCH {self.pattern()} {self.delete()}',
            'with': f'MATCH {self.pattern()} WITH {self.items(3)} ORDER BY {self.property()} LIMIT 10 {self.where()} RETURN *',
            'return': f'MATCH {self.pattern()} RETURN DISTINCT {self.items(4)} ORDER BY {self.property()} SKIP 5 LIMIT 10',
            'union': f'MATCH {self.pattern()} RETURN {one} UNION ALL MATCH {self.pattern()} RETURN {one}',
            'comprehensions': f'MATCH {self.pattern()} RETURN [x IN {self.property()} WHERE x > 1 | x], '
                              f'[({one})-->(y) WHERE y.{self.key()} = 1 | y.{self.key()}]',
            'quantifier': f'MATCH {self.pattern()} WHERE all(x IN {self.property()} WHERE x > {self.number()}) RETURN {one}',
            'subquery': f'MATCH {self.pattern()} WHERE EXISTS {{ ({one})-[:{self.type()}]->() }} RETURN {one}',
            'case': f'MATCH {self.pattern()} RETURN {self.case()} AS {one}',
        }

    def damaged_query(self, text):
        """The text with one token too many or too few, at its start, in its middle or at its end."""
        before, after = self.halves(text)
        return self.random.choice((') ' + text, text + ' ,', f'{before} ) {after}', f'{before} = .. {after}'))

    def damaged_filter(self, text):
        """The same for a filter, with damage that cannot look like the end of the filter."""
        before, after = self.halves(text)
        return self.random.choice((') ' + text, text + ' AND', f'({text}', f'{before} = .. {after}'))

    def halves(self, text):
        """The text before and behind a blank that stands in no quoted name and no string."""
        blanks = [i for i, character in enumerate(text)
                  if character == ' ' and all(text.count(quote, 0, i) % 2 == 0 for quote in '`\'"')]
        middle = blanks[len(blanks) // 2] if blanks else len(text)
        return text[:middle], text[middle + 1:]
