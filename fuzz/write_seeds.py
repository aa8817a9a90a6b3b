#!/usr/bin/env python3
"""Writes the inputs from which fuzzing starts: one folder for each target.

write_seeds.py EXAMPLES OUTPUT

Queries and filters come from the examples and are derived from the grammar; what the other targets
read is drawn. The same seed gives the same files.
"""

import random
import shutil
import sys
from pathlib import Path

from derivable_grammar import DerivableGrammar

SEED = 20261121
DEEPEST = 18
LONGEST = 300
SLACK = 3  # lets literals and variables end an expression, not count(*) alone
COUNT = 150  # of the inputs that are made for each target
SEPARATOR = b"\xff"  # between a filter and the names to rename, as the renaming target reads it
RENAMINGS = [(b"n", b"m"), (b"`n`", b"`m"), (b"a", b"a`b"), (b"COUNT", b""), (b"person", b"\xed")]


class Writer:
    """Derives text at random, with short words and blanks so that most of it can be read again."""

    def __init__(self, grammar: DerivableGrammar, chance: random.Random) -> None:
        self.grammar = grammar
        self.chance = chance
        self.heights = {}

    def text(self, rule: str) -> str:
        return self._walk(("rule", rule), 0)

    def _walk(self, expression: tuple, depth: int) -> str:
        kind = expression[0]
        if kind == "rule":
            return self._walk(self.grammar.rules[expression[1]], depth + 1)
        if kind == "sequence":
            return "".join(self._walk(part, depth) for part in expression[1])
        if kind == "choice":
            return self._walk(self._alternative(expression[1], depth), depth)
        if kind == "token":
            return self._token(expression)
        repetitions = (self.chance.randrange(6) == 0) if depth < DEEPEST else 0
        if kind == "optional" and self._is_blank(expression[1]):
            repetitions = 1
        return "".join(self._walk(expression[1], depth) for _ in range(repetitions + (kind == "plus")))

    @staticmethod
    def _is_blank(expression: tuple) -> bool:
        return expression[:2] == ("token", "SP")

    def _alternative(self, alternatives: list, depth: int) -> tuple:
        if depth < DEEPEST:
            return self.chance.choice(alternatives)
        heights = [self._height(one, frozenset()) for one in alternatives]
        short = [one for one, height in zip(alternatives, heights) if height <= min(heights) + SLACK]
        return self.chance.choice(short)

    def _height(self, expression: tuple, open_rules: frozenset) -> int:
        kind = expression[0]
        if kind == "rule":
            name = expression[1]
            if name in open_rules:
                return 10**6
            if name not in self.heights:
                height = 1 + self._height(self.grammar.rules[name], open_rules | {name})
                if open_rules:
                    return height
                self.heights[name] = height
            return self.heights[name]
        if kind in ("sequence", "choice"):
            heights = [self._height(part, open_rules) for part in expression[1]]
            return (max if kind == "sequence" else min)(heights, default=0)
        return self._height(expression[1], open_rules) if kind == "plus" else 0

    def _token(self, token: tuple) -> str:
        name = token[1]
        if name == "SP":
            return " "
        if name in ("UnescapedSymbolicName", "HexLetter"):
            return self.chance.choice(("n", "m", "a", "name", "映画"))
        return self._characters(token[2])

    def _characters(self, expression: tuple) -> str:
        kind = expression[0]
        if kind == "text":
            return expression[1]
        if kind == "set":
            first, last = self.chance.choice(expression[1])
            return chr(first if last > 0xFF else self.chance.randint(first, last))
        if kind == "sequence":
            return "".join(self._characters(part) for part in expression[1])
        if kind == "choice":
            return self._characters(self.chance.choice(expression[1]))
        repetitions = self.chance.randrange(3) + (kind == "plus")
        repetitions = min(repetitions, 1) if kind == "optional" else repetitions
        return "".join(self._characters(expression[1]) for _ in range(repetitions))


def examples(folder: Path) -> list:
    return [file.read_bytes().strip() for file in sorted(folder.glob("*.cypher"))]


def derived(writer: Writer, rule: str) -> list:
    texts = []
    while len(texts) < COUNT:
        text = writer.text(rule).encode()
        if len(text) <= LONGEST:
            texts.append(text)
    return texts


def store(folder: Path, inputs: list) -> None:
    folder.mkdir(parents=True)
    for number, content in enumerate(inputs):
        (folder / f"{number:04}").write_bytes(content)


if __name__ == "__main__":
    examples_folder, output_folder = sys.argv[1:]
    output = Path(output_folder)
    shutil.rmtree(output, ignore_errors=True)
    drawing = random.Random(SEED)
    writer = Writer(DerivableGrammar(), drawing)
    filters = examples(Path(examples_folder) / "filters") + derived(writer, "oC_Expression")
    queries = examples(Path(examples_folder) / "queries") + derived(writer, "oC_Cypher")
    store(output / "columns", queries)
    store(output / "usages", filters)
    store(output / "parser", queries + filters)
    store(output / "c_interface", queries + filters)
    names = [SEPARATOR + SEPARATOR.join(RENAMINGS[i % len(RENAMINGS)]) for i in range(len(filters))]
    store(output / "renaming", [one + other for one, other in zip(filters, names)])
    for target, size in (("grammar", 200), ("strings", 80)):
        store(output / target, [drawing.randbytes(size) for _ in range(COUNT)])
