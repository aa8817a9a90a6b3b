#!/usr/bin/env python3
"""Writes what a fuzzer should know of the language, in libFuzzer's format.

write_dictionary.py GRAMMAR OUTPUT
"""

import sys
from pathlib import Path

from cypher_grammar import CypherGrammar

# What the grammar has no literal for and yet changes the meaning of what follows.
DELIMITERS = ["`", "'", '"', "\\", "/*", "*/", "//", "\n", "0x", "0o", "1e-", ".5", "`a``b`", "\\u0041"]


def entry(text: str) -> str:
    return '"' + "".join(f"\\x{byte:02X}" for byte in text.encode("utf-8")) + '"\n'


if __name__ == "__main__":
    grammar_file, output = sys.argv[1:]
    grammar = CypherGrammar(grammar_file)
    words = [*grammar.keywords(), *grammar.literals, *DELIMITERS]
    Path(output).write_text("".join(entry(word) for word in words), encoding="ascii")
