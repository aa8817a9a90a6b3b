#!/usr/bin/env python3
"""Writes docs/performance.md and its pictures from BUILD/data.

    report.py BUILD
"""

import csv
import math
import os
import pathlib
import platform
import statistics
import subprocess
import sys
import textwrap
from collections import defaultdict

import pictures
from times import Times

ROOT = pathlib.Path(__file__).parents[2]
DOCS = ROOT / 'docs'
PICTURES = DOCS / 'performance'
# Their calls end with an exception or enter the fallback.
NOT_ANSWERED = ('refused', 'with an error')
# The table at the top of the page shows these groups.
SELECTED = ('sample queries: columns', 'sample filters: usages', 'sample filters: renaming', 'filters refused: usages',
            'queries with an error: columns', 'filters with an error: usages')


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


def machine():
    return paragraph(f'''Measured on {os.cpu_count()} processors ({processor()}, {platform.system()} {platform.machine()}),
        on which other programs ran too. Times differ from machine to machine; ratios differ less.''')


def paragraph(words):
    return textwrap.fill(' '.join(words.split()), 125)


class Speed:
    """The times of both subjects by group. Groups of texts that get an answer come first."""

    def __init__(self, times, library):
        self.times, self.library = times, library
        self.groups = sorted(times.groups, key=lambda group: (not self.answers(group), group))
        self.ratios = {group: times.value(group, library, 'ratio')[0] for group in self.groups}
        self.fastest = {group: times.value(group, library, 'fastest ratio')[0] for group in self.groups}

    @staticmethod
    def answers(group):
        return not any(words in group for words in NOT_ANSWERED)

    def selected_rows(self):
        for group in SELECTED:
            times = (self.times.value(group, subject, 'us/text')[0] for subject in ('bare', self.library))
            yield (group, *(f'{time:,.1f}' for time in times), f'{self.ratios[group]:.3f}')

    def rows(self):
        for group in self.groups:
            cells = [group]
            for subject in ('bare', self.library):
                time, spread = self.times.value(group, subject, 'us/text')
                cells += [f'{time:,.1f}', f'± {spread:,.1f}']
            yield (*cells, f'{self.ratios[group]:.3f}', f'{self.fastest[group]:.3f}')

    def summary(self):
        answered = [group for group in self.groups if self.answers(group)]
        slowest = max(answered, key=self.ratios.get)
        worst = max(self.groups, key=self.ratios.get)
        return paragraph(f'''In the median of all groups of texts, the library takes {statistics.median(self.ratios.values()):.3f}
            of the time of the bare parser, or {statistics.median(self.fastest.values()):.3f} by the fastest calls. Among the
            groups that get an answer, "{slowest}" is the slowest with
            {self.ratios[slowest]:.3f}. Among all groups, "{worst}" is the slowest with {self.ratios[worst]:.3f}.''')


def by_shape(rows, value):
    """The points (bytes, value) for each shape and subject."""
    shapes = defaultdict(list)
    for row in rows:
        shape = row['group'].rsplit(' ', 1)[0]
        shapes[f'{shape}: {row["function"]}', row['subject']].append((int(row['bytes']), value(row)))
    return shapes


def exponents(shapes, library):
    """How the time of each shape grows over the last three doublings: 1 is linear, 2 is quadratic."""
    for (shape, subject), points in shapes.items():
        if subject == library:
            (x0, y0), (x1, y1) = points[-4], points[-1]
            yield shape, math.log(y1 / y0) / math.log(x1 / x0)


def lines(shapes):
    return [('bare' if subject == 'bare' else 'library', points)
            for (_, subject), points in sorted(shapes.items(), key=lambda entry: entry[0][1] != 'bare')]


def growth(data, library):
    times = by_shape(rows_of(data / 'growth.csv'), lambda row: float(row['fastest']) * 1e6)
    peaks = by_shape(rows_of(data / 'growth-memory.csv'), lambda row: int(row['peak']))
    image = draw('growth', pictures.log_log(
        {'Time of a call, µs': lines(times), 'Memory of a call at its peak, bytes': lines(peaks)}, 'bytes of text'))
    found = dict(exponents(times, library))
    lowest, highest = min(found, key=found.get), max(found, key=found.get)
    words = paragraph(f'''Each line is one shape of text, repeated up to 1,024 times (`benchmark/corpus/shapes.py`). Over the
        last three doublings, the library's time grows with an exponent of {statistics.median(found.values()):.2f} in the
        median. The exponent is {found[lowest]:.2f} at least ("{lowest}") and {found[highest]:.2f} at most ("{highest}"); 1 is linear,
        2 is quadratic.''')
    return f'{words}\n\n{image}'


def memory_rows(rows, speed):
    groups = defaultdict(list)
    for row in rows:
        groups[f'{row["group"]}: {row["function"]}', row['subject']].append(row)

    def mean(group, subject, key):
        return number(statistics.mean(int(row[key]) for row in groups[group, subject]))

    for group in speed.groups:
        yield (group, mean(group, 'bare', 'bytes'), *(mean(group, subject, key) for key in ('allocations', 'peak')
                                                      for subject in ('bare', speed.library)))


def first_call_rows(rows, library):
    for words, subject in (('bare', 'bare'), ('library', library)):
        some = [row for row in rows if row['subject'] == subject]
        yield (words, *(number(statistics.median(float(row[key]) for row in some)) for key in ('load', 'first', 'second')))


def decisions():
    return subprocess.run([sys.executable, '-B', ROOT / 'grammar/count_decisions.py'],
                          check=True, capture_output=True, text=True).stdout


def document(build):
    data, library = build / 'data', build.name
    times = Times(data / 'times.json')
    speed = Speed(times, library)
    memory = rows_of(data / 'memory.csv')
    size = rows_of(data / 'sizes.csv')[0]
    return f'''# Performance

{speed.summary()}

{draw('ratios', pictures.bars(speed.ratios))}

{table(('texts: function', 'bare, µs', 'library, µs', 'ratio'), speed.selected_rows())}

*bare* is the parser that the ANTLR tool generates, without the library: input stream, lexer, token stream, parser and a
walk with an empty listener. Its text is UTF-8 already.

{machine()}

`make bench-report` measures and writes this page. `make bench` prints the times in more detail. `make check-instructions`
compares the number of instructions of each call, which other programs do not disturb.

## All groups

{table(('texts: function', 'bare, µs', 'spread', 'library, µs', 'spread', 'ratio', 'fastest'), speed.rows())}

- The parser and the library are built with `-O2 -DNDEBUG`, run in one program and take turns call by call.
- A time is the processor time of the calling thread for one text on average. It is the median of nine repetitions. The
  spread is half the distance between the quartiles.
- *fastest* is the ratio of the fastest calls of each text. Other programs on the machine disturb these calls least.
- `benchmark/corpus/corpus.py` writes the texts, which are the same every time.

## First call

This table shows how long it takes to load the library, to make the first call (`RETURN 1 AS one`) and to make the same call
again. The times are in microseconds, medians over new processes.

{table(('subject', 'load', 'first call', 'second call'), first_call_rows(rows_of(data / 'first-calls.csv'), library))}

## Threads

Each thread makes calls with all texts. The calls of all threads are counted against the clock; the figure in parentheses
compares them with one thread. Here, other programs on the processors matter most.

{table(('subject', 'calls/s, 1 thread', '2 threads', '4 threads'),
       (('library' if row[0] == library else row[0], *row[1:]) for row in times.thread_rows()))}

## Memory

The table shows averages: the bytes of a text, the allocations of a call and the memory of the call at its peak.

{table(('texts: function', 'bytes', 'bare, allocations', 'library', 'bare, peak in bytes', 'library'),
       memory_rows(memory, speed))}

The file of the library has {number(int(size['file']))} bytes, and {number(int(size['stripped']))} without symbols.

## Growth

{growth(data, library)}

## Decisions

A decision is a place where a text may go on in several ways. The compiler of the grammar finds the tokens that tell these
ways apart, three at most. This command counts the tokens:

```sh
grammar/count_decisions.py
```

```text
{decisions()}```

- Where alternatives begin alike, the parser takes the beginning once and decides behind it. So there are fewer decisions,
  and fewer of them need more than three tokens.
- `oC_SingleQuery` is compiled from an equivalent form. In the original form, the parser could tell only from the `WITH` at
  the end of a part that another part follows.
- Where three tokens do not suffice, the parser tries the alternatives in order. It does so in `oC_Query` at `CALL`, in
  `oC_StandaloneCall` at its arguments, in `oC_Atom` at brackets, names and the words of quantifiers, and in the loop of
  `oC_RelationshipsPattern`. It tries each place once.
- The parser that the ANTLR tool generates decides most places by one token. At the other places it asks the runtime to
  predict. In the fallback, `Lookahead.cpp` answers first. It looks at three tokens, or at seven where only few sequences of
  tokens leave the decision open, as in names with dots.
'''


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    (DOCS / 'performance.md').write_text(document(build), encoding='utf-8')


if __name__ == '__main__':
    main()
