#!/usr/bin/env python3
"""Compares the instructions of each function with those of the bare pipeline, text by text.

    check_instructions.py BUILD               fails over a limit or over the committed figures
    check_instructions.py BUILD --commit      writes the committed figures anew
    check_instructions.py BUILD --json FILE   writes the ratio of every text too

The figures are ratios, which the compiler and the machine's libraries change less than counts.
"""

import argparse
import contextlib
import json
import pathlib
import re
import subprocess
import sys
import tempfile
from collections import defaultdict

HERE = pathlib.Path(__file__).parent
FIGURES = HERE / 'figures.json'
# A filter with an error may take more: its call fills a prediction cache of its own, while the calls of
# the bare pipeline share one that is already filled.
LIMIT = 1.25
SHAPE_SIZES = ('1', '64')
GROWTH = 1.02


def start(build, texts, subject, folder):
    return subprocess.Popen(
        ['valgrind', '--tool=callgrind', '--instr-atstart=no', '--dump-line=no', f'--callgrind-out-file={folder}/dump',
         build / 'benchmark/vorn-bench', 'instructions', texts, subject],
        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)


def counts_in(folder):
    """Pairs of (function, place of the text) and the instructions of that call."""
    for dump in pathlib.Path(folder).iterdir():
        with dump.open(encoding='utf-8', errors='replace') as lines:
            head = ''.join(line for _, line in zip(range(20), lines))
        if name := re.search(r'Client Request: \w+\t(\w+)\t(\d+)', head):
            total = re.search(r'^summary: (\d+)', head, re.MULTILINE)
            yield (name[1], int(name[2])), int(total[1])


def counts(build, texts, subjects):
    """The counts of each subject. Each has its own process: the heap of one would slow the next by some percent."""
    with contextlib.ExitStack() as folders:
        runs = []
        for subject in subjects:
            folder = folders.enter_context(tempfile.TemporaryDirectory())
            runs.append((start(build, texts, subject, folder), folder))
        found = []
        for run, folder in runs:
            _, errors = run.communicate()
            if run.returncode != 0:
                sys.exit(f'check-instructions: {errors.strip().splitlines()[-1]}')
            found.append(dict(counts_in(folder)))
        return found


def ratios_by_group(ours, bare, records):
    groups = defaultdict(list)
    for (function, place), count in ours.items():
        of_bare = bare[function, place]
        groups[f'{records[place]["group"]}: {function}'].append(
            {'place': place, 'count': count, 'bare': of_bare, 'ratio': count / of_bare})
    return dict(sorted(groups.items()))


def figures_of(groups):
    return {group: {'ratio': round(sum(c['count'] for c in calls) / sum(c['bare'] for c in calls), 4),
                    'worst': round(max(c['ratio'] for c in calls), 4)} for group, calls in groups.items()}


def texts_of(script):
    run = subprocess.run([HERE.parent / 'corpus' / script], check=True, capture_output=True, text=True, encoding='utf-8')
    return [json.loads(line) for line in run.stdout.splitlines()]


def shapes():
    for record in texts_of('shapes.py'):
        size = record['group'].rsplit(' ', 1)[1]
        if size in SHAPE_SIZES:
            yield {**record, 'group': f'shapes of size {size}'}


def complaints(figures, committed):
    for group, figure in figures.items():
        if figure['worst'] > LIMIT:
            yield f'{group}: a text takes {figure["worst"]} of the bare pipeline, more than {LIMIT}'
        if group in committed and figure['ratio'] > committed[group]['ratio'] * GROWTH:
            yield f'{group}: {figure["ratio"]} of the bare pipeline, committed are {committed[group]["ratio"]}'


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('build', type=pathlib.Path)
    parser.add_argument('--commit', action='store_true')
    parser.add_argument('--json', type=pathlib.Path)
    arguments = parser.parse_args()
    build = arguments.build.resolve()

    records = [*texts_of('corpus.py'), *shapes()]
    texts = build / 'corpus.jsonl'
    texts.write_text(''.join(json.dumps(record) + '\n' for record in records), encoding='utf-8')
    groups = ratios_by_group(*counts(build, texts, (build / 'libVornLib.so', 'bare')), records)
    figures = figures_of(groups)
    for group, figure in figures.items():
        print(f'{group:40} {figure["ratio"]:7.4f}   worst {figure["worst"]:7.4f}')
    if arguments.json:
        arguments.json.write_text(json.dumps(groups))
    if arguments.commit:
        FIGURES.write_text(json.dumps(figures, indent=2) + '\n')
        return
    found = list(complaints(figures, json.loads(FIGURES.read_text())))
    for complaint in found:
        print(f'check-instructions: {complaint}', file=sys.stderr)
    sys.exit(1 if found else 0)


if __name__ == '__main__':
    main()
