"""vorn-inspect for Windows gives byte for byte the same answers as vorn-inspect for Linux.

    same_answers_test.py LINUX_PROGRAM WINDOWS_PROGRAM EXAMPLES EMULATOR GENERATOR

The generator writes texts as JSON strings, one on a line.
"""

import json
import os
import random
import subprocess
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

LINUX_PROGRAM, WINDOWS_PROGRAM, EXAMPLES, EMULATOR, GENERATOR = sys.argv[1:6]
SEED = 20261121
HARD_TEXTS = [
    "",
    " ",
    "\ufeffRETURN 1",
    "RETURN '\u0000'",
    "RETURN 'a\r\nb\u001ac'",
    "MATCH (größe) RETURN größe.`模式 😀`",
    "n.`a``b` = '\\u0041' AND n:`ß`",
    "\U0010ffff",
    "(" * 1500 + "n" + ")" * 1500,
    "RETURN " + "[" * 1500 + "n" + "]" * 1500,
]


def samples(kind: str) -> list[str]:
    return [path.read_bytes().decode() for path in sorted(Path(EXAMPLES, kind).glob("*.cypher"))]


def generated(kind: str, count: int) -> list[str]:
    output = subprocess.run(
        [EMULATOR, GENERATOR, kind, str(count), str(SEED)], check=True, stdout=subprocess.PIPE
    ).stdout
    texts = [json.loads(line) for line in output.splitlines()]
    assert len(texts) == count, len(texts)
    return texts


def damaged(texts: list[str]) -> list[str]:
    """Each text with some characters removed, doubled or inserted."""
    draw = random.Random(SEED)
    results = []
    for text in texts:
        start = draw.randrange(len(text) + 1)
        end = min(len(text), start + draw.randrange(6))
        piece = draw.choice(["", text[start:end] * 2, "`", "'", "(", "\\", "?", "/*", "\ud800", "😀"])
        results.append(text[:start] + piece + text[end:])
    return results


def answers(program: str, command: str, requests: bytes) -> bytes:
    return subprocess.run(
        [program, command, "--jsonl"], input=requests, check=True, stdout=subprocess.PIPE
    ).stdout


class Answers(unittest.TestCase):
    def compare(self, command: str, requests: list[dict]) -> None:
        lines = "".join(json.dumps(request) + "\n" for request in requests).encode()
        with ThreadPoolExecutor() as pool:
            expected, actual = pool.map(
                lambda program: answers(program, command, lines), [LINUX_PROGRAM, WINDOWS_PROGRAM]
            )
        self.assertEqual(expected.count(b"\n"), len(requests))
        for request, left, right in zip(requests, expected.split(b"\n"), actual.split(b"\n")):
            self.assertEqual(left, right, request)
        self.assertEqual(expected, actual)

    def test_about_columns_are_the_same(self) -> None:
        texts = samples("queries") + HARD_TEXTS + generated("queries", 2000)
        self.compare("columns", [{"query": text} for text in texts + damaged(texts)])

    def test_about_filters_are_the_same(self) -> None:
        texts = samples("filters") + HARD_TEXTS + generated("filters", 1500)
        texts += generated("forbidden-filters", 500)
        texts += damaged(texts)
        self.compare("usages", [{"expression": text} for text in texts])
        renames = {"n": "m", "m": "`größe`", "a": "", "`x`": "😀"}
        self.compare("rename", [{"expression": text, "renames": renames} for text in texts])

    def test_to_arguments_are_the_same(self) -> None:
        for arguments in [
            ["columns", "MATCH (größe) RETURN größe, 'モデル😀' AS `模 式`"],
            ["columns", "--json", 'MATCH (n) RETURN "a\\\\b", n.`"`'],
            ["usages", "n.größe > 3 AND 模式:Ω"],
            ["usages", "n.größe >\t) 模式"],
            ["rename", "--map", "n=größe", "n.name = '😀'"],
        ]:
            linux, windows = (
                subprocess.run([program, *arguments], capture_output=True)
                for program in [LINUX_PROGRAM, WINDOWS_PROGRAM]
            )
            self.assertEqual(windows.returncode, linux.returncode)
            self.assertEqual(windows.stdout, linux.stdout)
            self.assertEqual(windows.stderr, linux.stderr)


if __name__ == "__main__":
    if not os.access(LINUX_PROGRAM, os.X_OK):
        sys.exit(f"{LINUX_PROGRAM} is missing; `make build` builds it.")
    unittest.main(argv=sys.argv[:1])
