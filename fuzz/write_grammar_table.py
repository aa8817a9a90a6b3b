#!/usr/bin/env python3
"""Writes the C++ table that the grammar fuzzer derives text from.

write_grammar_table.py OUTPUT
"""

import sys
from pathlib import Path

from derivable_grammar import DerivableGrammar

ENDLESS = 10**6


class Table:
    def __init__(self, grammar: DerivableGrammar) -> None:
        self.grammar = grammar
        self.rule_index = {name: index for index, name in enumerate(grammar.rules)}
        self.heights = self._heights_of_rules()
        self.elements = []
        self.links = []
        self.ranges = []
        self._known = {}
        # A rule that contains itself needs a place before its body is written.
        for name in grammar.rules:
            self._known[repr(("rule", name))] = len(self.elements)
            self.elements.append(None)
        for name, expression in grammar.rules.items():
            self.elements[self.element(("rule", name))] = (
                "rule", self._add_links([expression]), 1, self.rule_index[name], self.heights[name]
            )

    def _height(self, expression: tuple, heights: dict) -> int:
        kind = expression[0]
        if kind == "rule":
            return heights[expression[1]]
        if kind == "sequence":
            return max([self._height(part, heights) for part in expression[1]], default=0)
        if kind == "choice":
            return min(self._height(part, heights) for part in expression[1])
        if kind == "plus":
            return self._height(expression[1], heights)
        return 0

    def _heights_of_rules(self) -> dict:
        rules = self.grammar.rules
        heights = {name: ENDLESS for name in rules}
        while True:
            better = {name: 1 + self._height(body, heights) for name, body in rules.items()}
            if better == heights:
                return heights
            heights = better

    def _add_links(self, expressions: list) -> int:
        indices = [self.element(expression) for expression in expressions]
        self.links += indices
        return len(self.links) - len(indices)

    def _add_ranges(self, ranges: list) -> int:
        self.ranges += ranges
        return len(self.ranges) - len(ranges)

    def element(self, expression: tuple) -> int:
        key = repr(expression)
        if key not in self._known:
            row = self._row(expression)
            self._known[key] = len(self.elements)
            self.elements.append(row)
        return self._known[key]

    def _row(self, expression: tuple) -> tuple:
        kind, height = expression[0], self._height(expression, self.heights)
        if kind in ("sequence", "choice"):
            return (kind, self._add_links(expression[1]), len(expression[1]), 0, height)
        if kind == "set":
            return (kind, self._add_ranges(expression[1]), len(expression[1]), 0, 0)
        if kind == "text":
            characters = [(ord(character), ord(character)) for character in expression[1]]
            return (kind, self._add_ranges(characters), len(characters), 0, 0)
        if kind == "token":
            return (kind, self._add_links([expression[2]]), 1, self.grammar.token_types[expression[1]], 0)
        return (kind, self._add_links([expression[1]]), 1, 0, height)

    def cpp(self) -> str:
        elements = "\n".join(f"    {{ElementKind::{row[0]}, {row[1]}, {row[2]}, {row[3]}, {row[4]}}}," for row in self.elements)
        links = ", ".join(str(link) for link in self.links)
        ranges = ", ".join(f"{{{first}, {last}}}" for first, last in self.ranges)
        query, expression = (self.element(("rule", name)) for name in ("oC_Cypher", "oC_Expression"))
        return (
            '#include "GrammarTable.h"\n\nnamespace {\n\n'
            f"constexpr Element elements[] = {{\n{elements}\n}};\n\n"
            f"constexpr std::uint32_t links[] = {{{links}}};\n\n"
            f"constexpr CharacterRange ranges[] = {{{ranges}}};\n\n"
            "}  // namespace\n\n"
            f"const GrammarTable cypherGrammar{{elements, links, ranges, {query}, {expression}}};\n"
        )


if __name__ == "__main__":
    Path(sys.argv[1]).write_text(Table(DerivableGrammar()).cpp(), encoding="utf-8")
