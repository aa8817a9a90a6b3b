#!/usr/bin/env python3
"""Writes each repeatable shape of the language in sizes 1, 2, 4 ... 1024, as corpus.py writes its texts.

The group of a text is its shape, a blank and its size.
"""

import json
import sys

SIZES = [2 ** power for power in range(11)]
# With more levels the parser might need more stack than a thread has.
DEEPEST = 512


def joined(separator, item, size):
    return separator.join(item(i) for i in range(size))


QUERIES = {
    'list': lambda n: f'RETURN [{joined(", ", str, n)}] AS l',
    'map': lambda n: 'RETURN {' + joined(', ', lambda i: f'k{i}: {i}', n) + '} AS m',
    'chain of WITH': lambda n: 'MATCH (n) ' + joined(' ', lambda i: f'WITH n, {i} AS x', n) + ' RETURN n',
    'UNION branches': lambda n: joined(' UNION ', lambda i: 'MATCH (n) RETURN n', n),
    'columns': lambda n: f'MATCH (n) RETURN {joined(", ", lambda i: f"n.p{i}", n)}',
    'RETURN *': lambda n: f'MATCH {joined(", ", lambda i: f"(n{i})", n)} RETURN *',
    'long path': lambda n: 'MATCH (a)' + joined('', lambda i: f'-[:R]->(n{i})', n) + ' RETURN a',
    'WHEN branches': lambda n: 'RETURN CASE ' + joined(' ', lambda i: f'WHEN x = {i} THEN {i}', n) + ' END AS c',
    'CREATE clauses': lambda n: joined(' ', lambda i: f'CREATE (:L {{i: {i}}})', n),
    'long name': lambda n: f'MATCH ({"a" * 10 * n}) RETURN {"a" * 10 * n}',
    'long comment': lambda n: f'/*{"remark    " * n}*/ RETURN 1 AS one',
    'long string': lambda n: f"RETURN '{'0123456789' * n}' AS s",
    'parentheses': lambda n: f'RETURN {"(" * n}1{")" * n} AS x' if n <= DEEPEST else None,
    'lists in lists': lambda n: f'RETURN {"[" * n}1{"]" * n} AS x' if n <= DEEPEST else None,
}
FILTERS = {
    'conjunction': lambda n: joined(' AND ', lambda i: f'n.p = {i}', n),
    'variables': lambda n: joined(' OR ', lambda i: f'n{i}.p', n),
    'property path': lambda n: 'n' + joined('', lambda i: f'.p{i}', n),
    'labels': lambda n: 'n' + joined('', lambda i: f':L{i}', n),
    'sum': lambda n: joined(' + ', lambda i: f'n.p{i}', n),
    'many renames': lambda n: joined(' + ', lambda i: f'n{i}', n),
}


def main():
    sys.stdout.reconfigure(encoding='utf-8', newline='\n')
    for shapes, entry in ((QUERIES, 'query'), (FILTERS, 'filter')):
        for name, shape in shapes.items():
            for size in SIZES:
                record = {'group': f'{name} {size}', 'entry': entry, 'text': shape(size)}
                if name == 'many renames':
                    record['renames'] = {f'n{i}': f'm{i}' for i in range(size)}
                if record['text'] is not None:
                    print(json.dumps(record))


if __name__ == '__main__':
    main()
