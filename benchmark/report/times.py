#!/usr/bin/env python3
"""Prints the table of times from BUILD/data/times.json.

    times.py BUILD
"""

import json
import pathlib
import statistics
import sys


class Times:
    """Medians over the repetitions, and the spread: half the distance between the quartiles."""

    def __init__(self, file):
        self.runs = {}
        for run in json.loads(file.read_text())['benchmarks']:
            if run['run_type'] == 'iteration':
                self.runs.setdefault(run['run_name'], []).append(run)
        self.groups = sorted(name for name in self.runs if not name.startswith('threads '))
        some = self.runs[self.groups[0]][0]
        self.subjects = sorted((key[:-len(' ratio')] for key in some
                                if key.endswith(' ratio') and not key.endswith(' fastest ratio')),
                               key=lambda name: name != 'bare')

    def value(self, group, subject, counter):
        values = sorted(run[f'{subject} {counter}'] for run in self.runs[group])
        spread = (values[3 * len(values) // 4] - values[len(values) // 4]) / 2
        return statistics.median(values), spread

    def calls_per_second(self, subject, threads):
        runs = self.runs[f'threads {subject}/real_time/threads:{threads}']
        return statistics.median(run['items_per_second'] for run in runs)

    def rows(self):
        for group in self.groups:
            for subject in self.subjects:
                time, spread = self.value(group, subject, 'us/text')
                yield (group, subject, f'{time:.1f}', f'± {spread:.1f}',
                       f'{self.value(group, subject, "ns/token")[0]:.0f}',
                       f'{self.value(group, subject, "ratio")[0]:.3f}',
                       f'{self.value(group, subject, "fastest ratio")[0]:.3f}',
                       f'{self.value(group, subject, "worst text")[0]:.3f}')

    def thread_rows(self):
        for subject in self.subjects:
            one, *more = (self.calls_per_second(subject, threads) for threads in (1, 2, 4))
            yield (subject, f'{one:.0f}', *(f'{calls:.0f} ({calls / one:.2f})' for calls in more))


HEADS = ('group: function', 'subject', 'µs/text', 'spread', 'ns/token', 'ratio', 'fastest', 'worst text')
THREAD_HEADS = ('subject', 'calls/s, 1 thread', '2 threads', '4 threads')


def aligned(heads, rows):
    rows = [heads, *rows]
    widths = [max(len(row[i]) for row in rows) for i in range(len(heads))]
    return '\n'.join('  '.join(cell.ljust(width) if i < 1 else cell.rjust(width)
                               for i, (cell, width) in enumerate(zip(row, widths))) for row in rows)


def main():
    times = Times(pathlib.Path(sys.argv[1]) / 'data/times.json')
    print(aligned(HEADS, times.rows()))
    print()
    print(aligned(THREAD_HEADS, times.thread_rows()))


if __name__ == '__main__':
    main()
