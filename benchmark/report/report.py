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
# Their calls end by an exception, or leave the path of valid texts.
NOT_ANSWERED = ('refused', 'with an error')


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
        on which other programs ran too. Times differ from machine to machine, ratios less.''')


def paragraph(words):
    return textwrap.fill(' '.join(words.split()), 125)


class Speed:
    """The times of both, by group: those of texts that are answered first."""

    def __init__(self, times, library):
        self.times, self.library = times, library
        self.groups = sorted(times.groups, key=lambda group: (not self.answers(group), group))
        self.ratios = {group: times.value(group, library, 'ratio')[0] for group in self.groups}
        self.fastest = {group: times.value(group, library, 'fastest ratio')[0] for group in self.groups}

    @staticmethod
    def answers(group):
        return not any(words in group for words in NOT_ANSWERED)

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
        return paragraph(f'''In the median of the groups the library takes {statistics.median(self.ratios.values()):.3f} of
            the time of the bare parser, {statistics.median(self.fastest.values()):.3f} by the fastest calls. Of the groups with an answer the slowest is "{slowest}", {self.ratios[slowest]:.3f};
            of all groups it is "{worst}", {self.ratios[worst]:.3f}.''')


def by_shape(rows, value):
    """For each shape and subject the points (bytes, value)."""
    shapes = defaultdict(list)
    for row in rows:
        shape = row['group'].rsplit(' ', 1)[0]
        shapes[f'{shape}: {row["function"]}', row['subject']].append((int(row['bytes']), value(row)))
    return shapes


def exponents(shapes, library):
    """How each shape grows from an eighth of the largest size on: 1 is linear, 2 is quadratic."""
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
    words = paragraph(f'''Each line is one shape of text that can be repeated (`benchmark/corpus/shapes.py`), in sizes 1 to
        1,024. Over the last three doublings the library's time grows with the exponent {statistics.median(found.values()):.2f}
        in the median, {found[lowest]:.2f} at least ("{lowest}") and {found[highest]:.2f} at most ("{highest}"); 1 is linear,
        2 quadratic.''')
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

{table(('texts: function', 'bare, µs', 'spread', 'library, µs', 'spread', 'ratio', 'fastest'), speed.rows())}

**bare** is the parser that the ANTLR tool generates, without the library: input stream, lexer, token stream, parser and a
walk with an empty listener, over text that is UTF-8 already. Both are built with `-O2 -DNDEBUG`, run in one program and take
turns call by call. A time is processor time of the calling thread for one text on average: the median of nine repetitions,
with half the distance between the quartiles as spread. *fastest* is the ratio of the fastest calls of each text, which other
programs on the machine disturb least. `benchmark/corpus/corpus.py` writes the texts, always the same ones.

{machine()}

`make bench-report` measures and writes this page, `make bench` prints the times in more detail. `make check-instructions`
compares the instructions of each call, which no other program disturbs.

## First call

In microseconds, medians over new processes: loading the library, the first call (`RETURN 1 AS one`) and the same call again.

{table(('subject', 'load', 'first call', 'second call'), first_call_rows(rows_of(data / 'first-calls.csv'), library))}

## Threads

Calls with all texts in each thread, by the time of day, and how many times those of one thread they are. What other programs
take of the processors shows here most.

{table(('subject', 'calls/s, 1 thread', '2 threads', '4 threads'),
       (('library' if row[0] == library else row[0], *row[1:]) for row in times.thread_rows()))}

## Memory

Bytes of text, allocations of a call and the memory that it holds at most, on average.

{table(('texts: function', 'bytes', 'bare, allocations', 'library', 'bare, peak in bytes', 'library'),
       memory_rows(memory, speed))}

The library itself has {number(int(size['file']))} bytes, {number(int(size['stripped']))} without symbols.

## Growth

{growth(data, library)}

## Decisions

A decision is a place where a text may go on in several ways. The compiler of the grammar finds the tokens that tell these
ways apart, three at most. This counts how many it takes:

```sh
grammar/count_decisions.py
```

```text
{decisions()}```

- Where alternatives begin alike, the beginning is taken once and the decision comes behind it. Fewer decisions remain, and
  fewer of them take more than three tokens.
- `oC_SingleQuery` is compiled from an equivalent form: a part of a query shows only at its end, by a `WITH`, that another
  part follows.
- What three tokens do not tell is tried in order: `oC_Query` at `CALL`, `oC_StandaloneCall` at its arguments, `oC_Atom` at
  brackets, names and the words of quantifiers, and the loop of `oC_RelationshipsPattern`. Each place is tried once.
- The parser that the ANTLR tool generates decides by one token itself, but for some places where it asks the runtime to
  predict. In the fallback `Lookahead.cpp` answers there first. It looks at three tokens, at seven where few of them leave
  it open, as in names with dots.
'''


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    (DOCS / 'performance.md').write_text(document(build), encoding='utf-8')


if __name__ == '__main__':
    main()
