#!/usr/bin/env python3
"""Takes the measurements and leaves them in BUILD/data.

    measure.py BUILD [--all] [--quick]

BUILD holds the plainly built library and the programs that measure. build/optimized/libVornLib.so is
measured beside it if it is there. Without --all only times are measured. A quick run shows that
everything works; its numbers mean little.
"""

import argparse
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).parents[2]
CORPUS = ROOT / 'benchmark/corpus'
PROCESSES = 11


class Measurement:
    def __init__(self, build, quick):
        self.build = build
        self.quick = quick
        self.data = build / 'data'
        self.data.mkdir(exist_ok=True)
        optimized = ROOT / 'build/optimized/libVornLib.so'
        self.libraries = [build / 'libVornLib.so', *([optimized] if optimized.exists() else [])]
        self.subjects = ['bare', *self.libraries]
        self.texts = self.write('corpus.jsonl', self.run(CORPUS / 'corpus.py'))

    def run(self, *command):
        run = subprocess.run(command, stdout=subprocess.PIPE, text=True, encoding='utf-8')
        if run.returncode != 0:
            sys.exit(f'measure: {pathlib.Path(command[0]).name} failed with status {run.returncode}.')
        return run.stdout

    def program(self, name):
        return self.build / 'benchmark' / name

    def write(self, name, text):
        file = self.data / name
        file.write_text(text, encoding='utf-8')
        return file

    def times(self):
        self.run(self.program('times/vorn-bench'), self.texts, *self.subjects,
                 '--benchmark_enable_random_interleaving=true',
                 f'--benchmark_repetitions={3 if self.quick else 9}',
                 f'--benchmark_min_time={0.01 if self.quick else 0.3}',
                 '--benchmark_out_format=json', f'--benchmark_out={self.data / "times.json"}')

    def growth(self):
        shapes = self.write('shapes.jsonl', self.run(CORPUS / 'shapes.py'))
        self.write('growth.csv', self.run(self.program('growth/vorn-growth'), shapes, *self.subjects))
        self.write('growth-memory.csv', self.run(self.program('memory/vorn-memory'), 'calls', shapes, *self.subjects))

    def memory(self):
        self.write('memory.csv', self.run(self.program('memory/vorn-memory'), 'calls', self.texts, *self.subjects))

    def caches(self):
        count = 10000 if self.quick else 1000000
        with subprocess.Popen([CORPUS / 'corpus.py', '--many', str(count)], stdout=subprocess.PIPE) as texts:
            run = subprocess.run([self.program('memory/vorn-memory'), 'caches', self.libraries[-1]],
                                 stdin=texts.stdout, stdout=subprocess.PIPE, text=True, check=True)
        self.write('caches.csv', run.stdout)

    def first_calls(self):
        lines = ['subject,load,first,second,cold,warm\n']
        for _ in range(PROCESSES):
            for subject in self.subjects:
                name = subject if subject == 'bare' else subject.parent.name
                lines.append(f'{name},{self.run(self.program("first_call/vorn-first-call"), self.texts, subject)}')
        self.write('first-calls.csv', ''.join(lines))

    def sizes(self):
        lines = ['subject,file,stripped\n']
        for library in self.libraries:
            stripped = self.data / 'stripped.so'
            self.run('strip', '-o', stripped, library)
            lines.append(f'{library.parent.name},{library.stat().st_size},{stripped.stat().st_size}\n')
            stripped.unlink()
        self.write('sizes.csv', ''.join(lines))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('build', type=pathlib.Path)
    parser.add_argument('--all', action='store_true')
    parser.add_argument('--quick', action='store_true')
    arguments = parser.parse_args()
    measurement = Measurement(arguments.build.resolve(), arguments.quick)
    measurement.times()
    if arguments.all:
        for part in ('sizes', 'first_calls', 'memory', 'growth', 'caches'):
            print(f'Measuring {part.replace("_", " ")}', file=sys.stderr)
            getattr(measurement, part)()


if __name__ == '__main__':
    main()
