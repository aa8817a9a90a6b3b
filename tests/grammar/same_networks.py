#!/usr/bin/env python3
"""Fails unless two folders of generated recognisers have the same networks, rules and tokens.

    same_networks.py FOLDER OTHER_FOLDER

The layout of the code around them differs from one release of the ANTLR tool to the next.
"""

import pathlib
import re
import sys


def numbers_of_network(source: str) -> list[int]:
    (block,) = re.findall(r"serializedATNSegment\[\] = \{([^}]*)\}", source)
    return [int(number) for number in re.findall(r"-?\d+", block)]


def lists_of_names(source: str) -> list[list[str]]:
    """Rules, modes, literals and symbols, which stand in braces before the network."""
    tables = source[source.index("std::make_unique<") : source.index("serializedATNSegment[]")]
    return [re.findall(r'"(?:\\.|[^"\\])*"', block) for block in re.findall(r"std::vector<std::string>\{(.*?)\n? *\}", tables, re.DOTALL)]


def main() -> None:
    one, other = (pathlib.Path(folder) for folder in sys.argv[1:3])
    for name in ["CypherLexer.cpp", "CypherParser.cpp"]:
        sources = [(folder / name).read_text(encoding="utf-8") for folder in (one, other)]
        for what in [numbers_of_network, lists_of_names]:
            first, second = map(what, sources)
            if not first or first != second:
                sys.exit(f"{what.__name__} of {name} differ between {one} and {other}.")


if __name__ == "__main__":
    main()
