#!/usr/bin/env python3
"""Writes texts to measure or to train with, always the same ones, as one JSON object in each line.

    corpus.py               the texts that are measured, the samples under examples/ included
    corpus.py --training    other texts of the same kinds, for profile-guided optimisation
    corpus.py --many N      N queries and filters, to see what fills the parser's tables

Each object has `group`, `entry` ("query" or "filter"), `text` and, for a filter, `renames`.
"""

import argparse
import json
import math
import pathlib
import random
import sys

from vocabulary import MEASURED, TRAINING
from writer import Writer

EXAMPLES = pathlib.Path(__file__).parents[2] / 'examples'


def sizes(rng, count, smallest, largest):
    """As many short ones as long ones on a logarithmic scale."""
    return [int(math.exp(rng.uniform(math.log(smallest), math.log(largest)))) for _ in range(count)]


def size_class(text):
    size = len(text.encode())
    return 'under 100 B' if size < 100 else '100 to 1,000 B' if size < 1000 else 'over 1,000 B'


def query(group, text):
    return {'group': group, 'entry': 'query', 'text': text}


def filter_(group, text, writer):
    # Half of the names are in the text as a rule, so renaming finds some and misses some.
    names = writer.random.sample(writer.words.variables, 5)
    return {'group': group, 'entry': 'filter', 'text': text,
            'renames': {name: f'renamed_{i}' for i, name in enumerate(names)}}


def generated(writer, rounds):
    rng = writer.random
    for size in sizes(rng, 40 * rounds, 20, 1500) + sizes(rng, 6 * rounds, 1500, 20000):
        text = writer.query_of(size)
        yield query(f'queries {size_class(text)}', text)
    for size in sizes(rng, 2 * rounds, 500, 20000):
        text = writer.data_import_of(size)
        yield query(f'queries {size_class(text)}', text)
    for size in sizes(rng, 40 * rounds, 20, 1000) + sizes(rng, 4 * rounds, 1000, 20000):
        text = writer.filter_of(size)
        yield filter_(f'filters {size_class(text)}', text, writer)
    for _ in range(rounds):
        for text in writer.clauses().values():
            yield query('each clause', text)
    for _ in range(8 * rounds):
        yield filter_('filters refused', f'{writer.condition()} AND {writer.element_with_own_variables()}', writer)
        yield query('queries with an error', writer.damaged_query(writer.query_of(rng.choice((40, 150, 600)))))
        yield filter_('filters with an error', writer.damaged_filter(writer.filter_of(rng.choice((30, 200)))), writer)


def samples(writer):
    for path in sorted((EXAMPLES / 'queries').glob('*.cypher')):
        yield query('sample queries', path.read_text(encoding='utf-8'))
    for path in sorted((EXAMPLES / 'filters').glob('*.cypher')):
        yield filter_('sample filters', path.read_text(encoding='utf-8').strip(), writer)


def measured():
    writer = Writer(random.Random(20261121), MEASURED)
    return [*samples(writer), *generated(writer, rounds=2)]


def training():
    writer = Writer(random.Random(4711), TRAINING)
    shared = {record['text'] for record in measured()}
    return [record for record in generated(writer, rounds=4) if record['text'] not in shared]


def many(count):
    writer = Writer(random.Random(1), MEASURED)
    for i, size in enumerate(sizes(writer.random, count, 20, 400)):
        yield query('many', writer.query_of(size)) if i % 2 == 0 else filter_('many', writer.filter_of(size), writer)


def records(arguments):
    if arguments.many:
        return many(arguments.many)
    return training() if arguments.training else measured()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--training', action='store_true', help='texts that are not measured')
    parser.add_argument('--many', type=int, metavar='N', help='this many queries and filters')
    arguments = parser.parse_args()
    sys.stdout.reconfigure(encoding='utf-8', newline='\n')
    for record in records(arguments):
        print(json.dumps(record, ensure_ascii=False))


if __name__ == '__main__':
    main()
