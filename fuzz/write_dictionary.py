#!/usr/bin/env python3
"""Writes what a fuzzer should know of the language, in libFuzzer's format.

write_dictionary.py OUTPUT
"""

import sys
from pathlib import Path

from derivable_grammar import DerivableGrammar

# What the grammar has no literal for and yet changes the meaning of what follows.
DELIMITERS = ["`", "'", '"', "\\", "/*", "*/", "//", "\n", "0x", "0o", "1e-", ".5", "`a``b`", "\\u0041"]


def entry(text: str) -> str:
    return '"' + "".join(f"\\x{byte:02X}" for byte in text.encode("utf-8")) + '"\n'


if __name__ == "__main__":
    grammar = DerivableGrammar()
    words = [*grammar.keywords(), *grammar.literals, *DELIMITERS]
    Path(sys.argv[1]).write_text("".join(entry(word) for word in words), encoding="ascii")
