#!/usr/bin/env python3
"""Writes docs/performance.md and its pictures from BUILD/data.

    report.py BUILD

What stands between the two marks about the levers is written by hand and stays.
"""

import csv
import math
import pathlib
import platform
import re
import statistics
import sys

import pictures
from times import HEADS, THREAD_HEADS, Times

DOCS = pathlib.Path(__file__).parents[2] / 'docs'
PICTURES = DOCS / 'performance'
LEVERS = re.compile('<!-- levers -->.*<!-- end of levers -->', re.DOTALL)
NO_LEVERS = '<!-- levers -->\nNothing is noted here yet.\n<!-- end of levers -->'


def table(heads, rows):
    lines = ['| ' + ' | '.join(heads) + ' |', '|---|' + '---:|' * (len(heads) - 1)]
    return '\n'.join(lines + ['| ' + ' | '.join(map(str, row)) + ' |' for row in rows])


def rows_of(file):
    with file.open(encoding='utf-8', newline='') as lines:
        return list(csv.DictReader(lines))


def number(value):
    return f'{value:,.0f}'


def draw(name, svg):
    PICTURES.mkdir(exist_ok=True)
    (PICTURES / f'{name}.svg').write_text(svg, encoding='utf-8')
    return f'![](performance/{name}.svg)'


def processor():
    for row in pathlib.Path('/proc/cpuinfo').read_text().splitlines():
        if row.startswith('model name'):
            return row.split(': ', 1)[1]
    return platform.machine()


def shapes_of(rows, value):
    """For each shape and function the points (size, value) by subject."""
    panels = {}
    for row in rows:
        shape, size = row['group'].rsplit(' ', 1)
        title = shape if row['function'] == 'columns' else f'{shape}, {row["function"]}'
        panels.setdefault(title, {}).setdefault(row['subject'], []).append((int(size), value(row)))
    return panels


def exponent(points):
    """How the value grows from an eighth of the largest size on: 1 is linear, 2 is quadratic."""
    (x0, y0), (x1, y1) = points[-4], points[-1]
    return math.log(y1 / y0) / math.log(x1 / x0)


def growth_rows(panels):
    for title, series in panels.items():
        bare = series['bare']
        for name, points in series.items():
            if name != 'bare':
                ratios = [one / other for (_, one), (_, other) in zip(points, bare)]
                yield (title, name, f'{exponent(bare):.2f}', f'{exponent(points):.2f}',
                       f'{ratios[0]:.2f}', f'{ratios[len(ratios) // 2]:.2f}', f'{ratios[-1]:.2f}')


def memory_rows(rows):
    groups = {}
    for row in rows:
        groups.setdefault((f'{row["group"]}: {row["function"]}', row['subject']), []).append(row)
    for (group, subject), some in sorted(groups.items()):
        yield (group, subject, *(number(statistics.mean(int(row[key]) for row in some))
                                 for key in ('bytes', 'allocations', 'allocated', 'peak')))


def peak_panels(rows):
    series = {}
    for row in rows:
        if row['function'] != 'renaming':
            series.setdefault(row['subject'], []).append((int(row['bytes']), int(row['peak'])))
    return {'all texts': {name: sorted(points) for name, points in series.items()}}


def first_call_rows(rows):
    for subject in dict.fromkeys(row['subject'] for row in rows):
        some = [row for row in rows if row['subject'] == subject]
        yield (subject, *(number(statistics.median(float(row[key]) for row in some))
                          for key in ('load', 'first', 'second', 'cold', 'warm')))


def document(data, levers):
    times = Times(data / 'times.json')
    ratios = {group: {subject: times.value(group, subject, 'fastest ratio')[0] for subject in times.subjects}
              for group in times.groups}
    memory = rows_of(data / 'memory.csv')
    growth = shapes_of(rows_of(data / 'growth.csv'), lambda row: float(row['fastest']) * 1e6)
    growth_memory = shapes_of(rows_of(data / 'growth-memory.csv'), lambda row: int(row['peak']))
    caches = rows_of(data / 'caches.csv')
    cache_points = [(int(row['texts']), int(row['bytes'])) for row in caches]
    return f'''# Performance

`make bench-report` measures and writes this page, and `make bench` prints its first table. Written on {processor()},
{platform.system()} {platform.machine()}. The numbers differ from machine to machine, the ratios less.

## What is compared

**bare** is the parser without the library: input stream, lexer, token stream, parser and a walk with an empty listener,
over text that is UTF-8 already, built with `-O2 -DNDEBUG`. **bench** is the library built with the same flags,
**optimized** the one that `make release` leaves in `build/optimized/`. All are in one program and take turns call by call.
Times are processor time of the calling thread, in medians over the repetitions, with half the distance between the
quartiles as spread. *fastest* compares the fastest call of each text, which other programs on the machine disturb least;
*worst text* is the largest such ratio in the group. `benchmark/corpus/corpus.py` writes the texts, always the same ones.

## Time

{draw('ratios', pictures.bars(ratios, times.subjects))}

{table(HEADS, times.rows())}

## Threads

All texts in each thread, by the time of day. Two processors give two at best; four threads show what waiting costs.

{table(THREAD_HEADS, times.thread_rows())}

## First call, and tables that are still empty

In microseconds, medians over new processes: loading the library, the first call (`RETURN 1 AS one`), the same call again,
then all texts of the corpus for the first time and once more.

{table(('subject', 'load', 'first call', 'second call', 'all texts, cold', 'all texts, warm'),
       first_call_rows(rows_of(data / 'first-calls.csv')))}

## Size of the library

In bytes, as built and without symbols.

{table(('library', 'file', 'stripped'),
       ((row['subject'], number(int(row['file'])), number(int(row['stripped']))) for row in rows_of(data / 'sizes.csv')))}

## Memory of a call

What `operator new` gives out in a warm call, on average over the group; the peak is what one call holds at most.

{table(('group: function', 'subject', 'bytes of text', 'allocations', 'bytes allocated', 'peak'), memory_rows(memory))}

{draw('memory', pictures.log_log(peak_panels(memory), 'bytes of text', 'peak, bytes'))}

## What stays in the parser's tables

The tables grow with new shapes of text and stay. Measured with `corpus.py --many` and the library `{caches[0]["subject"]}`:

{table(('texts so far', 'bytes that stay'), ((number(x), number(y)) for x, y in cache_points))}

{draw('caches', pictures.log_log({'tables': {caches[0]["subject"]: cache_points}}, 'texts so far', 'bytes that stay'))}

## Growth

Each repeatable shape of the language (`benchmark/corpus/shapes.py`) in sizes 1 to 1,024. The exponent is that of the last
three doublings, 1 for linear growth; then the ratio to bare at the smallest, the middle and the largest size.

{table(('shape', 'subject', 'bare grows', 'grows', 'ratio, smallest', 'middle', 'largest'), growth_rows(growth))}

{draw('growth-time', pictures.log_log(growth, 'size', 'µs'))}

Peak memory of a call over the same shapes:

{draw('growth-memory', pictures.log_log(growth_memory, 'size', 'bytes'))}

## What makes the release build faster

{levers}
'''


def main():
    data = pathlib.Path(sys.argv[1]) / 'data'
    file = DOCS / 'performance.md'
    found = LEVERS.search(file.read_text(encoding='utf-8')) if file.exists() else None
    file.write_text(document(data, found[0] if found else NO_LEVERS), encoding='utf-8')


if __name__ == '__main__':
    main()
