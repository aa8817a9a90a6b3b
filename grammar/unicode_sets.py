#!/usr/bin/env python3
"""Writes the Unicode sets of Cypher.g4 as explicit ranges.

The ANTLR tool's own property data is older than Unicode 15.0, so the grammar
cannot use \\p{ID_Start} and the like. Each set stands between two marker lines
of Cypher.g4. This script rewrites the lines between them from the data files of
Debian's package unicode-data.

    grammar/unicode_sets.py           rewrite the sets in grammar/Cypher.g4
    grammar/unicode_sets.py --check   fail if a set differs from the data
"""

import argparse
import pathlib
import re
import sys

UNICODE_VERSION = "15.0.0"
UNICODE_DATA = pathlib.Path("/usr/share/unicode")
GRAMMAR = pathlib.Path(__file__).resolve().parent / "Cypher.g4"
LINE_WIDTH = 100

# Fragment name: (data file, property in it, expected ranges, expected code points).
SETS = {
    "ID_Continue": ("DerivedCoreProperties.txt", "ID_Continue", 768, 139_482),
    "Sc": ("extracted/DerivedGeneralCategory.txt", "Sc", 21, 63),
    "Pc": ("extracted/DerivedGeneralCategory.txt", "Pc", 6, 10),
    "ID_Start": ("DerivedCoreProperties.txt", "ID_Start", 659, 136_345),
}


def read_ranges(file_name: str, prop: str) -> list[tuple[int, int]]:
    """The property's code points as maximal ranges in ascending order."""
    text = (UNICODE_DATA / file_name).read_text(encoding="utf-8")
    version = re.match(r"# \w+-([\d.]+)\.txt", text)
    if version is None or version[1] != UNICODE_VERSION:
        found = version[1] if version else "unknown"
        raise SystemExit(f"unicode_sets.py: {file_name} is of Unicode {found}, not {UNICODE_VERSION}.")
    line = re.compile(rf"^([0-9A-F]+)(?:\.\.([0-9A-F]+))?\s*;\s*{prop}\s", re.MULTILINE)
    ranges: list[tuple[int, int]] = []
    for first, last in sorted((int(a, 16), int(b or a, 16)) for a, b in line.findall(text)):
        if ranges and ranges[-1][1] + 1 == first:
            ranges[-1] = (ranges[-1][0], last)
        else:
            ranges.append((first, last))
    return ranges


def spell(code_point: int) -> str:
    return f"'\\u{code_point:04X}'" if code_point <= 0xFFFF else f"'\\u{{{code_point:X}}}'"


def fragment_rule(name: str) -> str:
    """The fragment rule of one set, checked against the counts above."""
    file_name, prop, range_count, code_point_count = SETS[name]
    ranges = read_ranges(file_name, prop)
    counts = (len(ranges), sum(last - first + 1 for first, last in ranges))
    if counts != (range_count, code_point_count):
        raise SystemExit(
            f"unicode_sets.py: {name} has {counts[0]} ranges and {counts[1]} code points, "
            f"not {range_count} and {code_point_count}."
        )
    lines = [f"fragment {name}", "    :"]
    for index, (first, last) in enumerate(ranges):
        item = spell(first) if first == last else f"{spell(first)}..{spell(last)}"
        item = f" {item}" if index == 0 else f" | {item}"
        if len(lines[-1]) + len(item) > LINE_WIDTH:
            lines.append("   ")
        lines[-1] += item
    return "\n".join([*lines, "    ;"])


def with_sets(grammar: str) -> str:
    """The text of the grammar with new sets between their marker lines."""
    for name in SETS:
        marked = re.compile(rf"(?<=^// begin {name}: )(.*?\n).*?(?=^// end {name}$)", re.DOTALL | re.MULTILINE)
        grammar, replaced = marked.subn(
            lambda match, rule=fragment_rule(name): f"{match[1]}{rule}\n", grammar
        )
        if replaced != 1:
            raise SystemExit(f"unicode_sets.py: Cypher.g4 needs one pair of marker lines for {name}.")
    return grammar


def main() -> int:
    parser = argparse.ArgumentParser(description="Writes the Unicode sets of Cypher.g4 as explicit ranges.")
    parser.add_argument("--check", action="store_true", help="write nothing, fail if a set differs from the data")
    arguments = parser.parse_args()
    if not UNICODE_DATA.is_dir():
        raise SystemExit(f"unicode_sets.py: {UNICODE_DATA} is missing; install Debian's package unicode-data.")
    before = GRAMMAR.read_text(encoding="utf-8")
    after = with_sets(before)
    if arguments.check:
        if after != before:
            print("unicode_sets.py: the Unicode sets of Cypher.g4 differ from the data.", file=sys.stderr)
            return 1
    elif after != before:
        GRAMMAR.write_text(after, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
