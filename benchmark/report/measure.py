#!/usr/bin/env python3
"""Takes the measurements and leaves them in BUILD/data.

    measure.py BUILD [--all] [--quick]

BUILD holds the library and the programs that measure it. Without --all, only times are measured. --quick shows that
everything works; the numbers of such a run mean little.
"""

import argparse
import pathlib
import subprocess
import sys

CORPUS = pathlib.Path(__file__).parents[1] / 'corpus'
PROCESSES = 11


class Measurement:
    def __init__(self, build, quick):
        self.build = build
        self.quick = quick
        self.data = build / 'data'
        self.data.mkdir(exist_ok=True)
        self.library = build / 'libVornLib.so'
        self.subjects = ['bare', self.library]
        self.texts = self.write('corpus.jsonl', self.run(CORPUS / 'corpus.py'))

    def run(self, *command):
        run = subprocess.run(command, stdout=subprocess.PIPE, text=True, encoding='utf-8')
        if run.returncode != 0:
            sys.exit(f'measure: {pathlib.Path(command[0]).name} failed with status {run.returncode}.')
        return run.stdout

    def bench(self, command):
        return self.build / 'benchmark/vorn-bench', command

    def write(self, name, text):
        file = self.data / name
        file.write_text(text, encoding='utf-8')
        return file

    def times(self):
        self.run(*self.bench('times'), self.texts, *self.subjects,
                 '--benchmark_enable_random_interleaving=true',
                 f'--benchmark_repetitions={3 if self.quick else 9}',
                 f'--benchmark_min_time={0.01 if self.quick else 0.3}',
                 '--benchmark_out_format=json', f'--benchmark_out={self.data / "times.json"}')

    def growth(self):
        shapes = self.write('shapes.jsonl', self.run(CORPUS / 'shapes.py'))
        self.write('growth.csv', self.run(*self.bench('growth'), shapes, *self.subjects))
        self.write('growth-memory.csv', self.run(self.build / 'benchmark/memory/vorn-memory', shapes, *self.subjects))

    def memory(self):
        self.write('memory.csv', self.run(self.build / 'benchmark/memory/vorn-memory', self.texts, *self.subjects))

    def first_calls(self):
        lines = ['subject,load,first,second\n']
        for _ in range(PROCESSES):
            for subject in self.subjects:
                lines.append(self.run(*self.bench('first-call'), subject))
        self.write('first-calls.csv', ''.join(lines))

    def sizes(self):
        stripped = self.data / 'stripped.so'
        self.run('strip', '-o', stripped, self.library)
        self.write('sizes.csv', f'file,stripped\n{self.library.stat().st_size},{stripped.stat().st_size}\n')


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('build', type=pathlib.Path)
    parser.add_argument('--all', action='store_true')
    parser.add_argument('--quick', action='store_true')
    arguments = parser.parse_args()
    measurement = Measurement(arguments.build.resolve(), arguments.quick)
    measurement.times()
    if arguments.all:
        for part in ('sizes', 'first_calls', 'memory', 'growth'):
            print(f'Measuring {part.replace("_", " ")}', file=sys.stderr)
            getattr(measurement, part)()


if __name__ == '__main__':
    main()
