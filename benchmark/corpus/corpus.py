#!/usr/bin/env python3
"""Writes the texts to measure with, one JSON object in each line. Every run writes the same texts.

Each object has `group`, `entry` ("query" or "filter"), `text` and, for a filter, `renames`. The samples under examples/
are among them.
"""

import json
import math
import pathlib
import random
import sys

import vocabulary
from writer import Writer

EXAMPLES = pathlib.Path(__file__).parents[2] / 'examples'


def sizes(rng, count, smallest, largest):
    """Random lengths, evenly spread on a logarithmic scale."""
    return [int(math.exp(rng.uniform(math.log(smallest), math.log(largest)))) for _ in range(count)]


def size_class(text):
    size = len(text.encode())
    return 'under 100 B' if size < 100 else '100 to 1,000 B' if size < 1000 else 'over 1,000 B'


def query(group, text):
    return {'group': group, 'entry': 'query', 'text': text}


def filter_(group, text, writer):
    # Usually half of the names are in the text, so renaming finds some and misses some.
    names = writer.random.sample(vocabulary.VARIABLES, 5)
    return {'group': group, 'entry': 'filter', 'text': text,
            'renames': {name: f'renamed_{i}' for i, name in enumerate(names)}}


def generated(writer):
    rng = writer.random
    for size in sizes(rng, 80, 20, 1500) + sizes(rng, 12, 1500, 20000):
        text = writer.query_of(size)
        yield query(f'queries {size_class(text)}', text)
    for size in sizes(rng, 4, 500, 20000):
        text = writer.data_import_of(size)
        yield query(f'queries {size_class(text)}', text)
    for size in sizes(rng, 80, 20, 1000) + sizes(rng, 8, 1000, 20000):
        text = writer.filter_of(size)
        yield filter_(f'filters {size_class(text)}', text, writer)
    for _ in range(2):
        for text in writer.clauses().values():
            yield query('each clause', text)
    for _ in range(16):
        yield filter_('filters refused', f'{writer.condition()} AND {writer.element_with_own_variables()}', writer)
        yield query('queries with an error', writer.damaged_query(writer.query_of(rng.choice((40, 150, 600)))))
        yield filter_('filters with an error', writer.damaged_filter(writer.filter_of(rng.choice((30, 200)))), writer)


def samples(writer):
    for path in sorted((EXAMPLES / 'queries').glob('*.cypher')):
        yield query('sample queries', path.read_text(encoding='utf-8'))
    for path in sorted((EXAMPLES / 'filters').glob('*.cypher')):
        yield filter_('sample filters', path.read_text(encoding='utf-8').strip(), writer)


def main():
    writer = Writer(random.Random(20261121))
    sys.stdout.reconfigure(encoding='utf-8', newline='\n')
    for record in (*samples(writer), *generated(writer)):
        print(json.dumps(record, ensure_ascii=False))


if __name__ == '__main__':
    main()
