#!/usr/bin/env python3
"""Writes the words of the language as a dictionary in libFuzzer's format.

write_dictionary.py OUTPUT
"""

import sys
from pathlib import Path

from derivable_grammar import DerivableGrammar

# The grammar has no literals for these, but they change the meaning of the text behind them.
DELIMITERS = ["`", "'", '"', "\\", "/*", "*/", "//", "\n", "0x", "0o", "1e-", ".5", "`a``b`", "\\u0041"]


def entry(text: str) -> str:
    return '"' + "".join(f"\\x{byte:02X}" for byte in text.encode("utf-8")) + '"\n'


if __name__ == "__main__":
    grammar = DerivableGrammar()
    words = [*grammar.keywords(), *grammar.literals, *DELIMITERS]
    Path(sys.argv[1]).write_text("".join(entry(word) for word in words), encoding="ascii")
