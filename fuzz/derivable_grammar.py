"""The grammar in a form from which text can be derived.

An expression is a tuple whose first member is its kind:

    ("sequence", [expression...])   ("choice", [expression...])
    ("optional", expression)        ("star", expression)         ("plus", expression)
    ("rule", name)                  ("token", name, expression)
    ("set", [(first, last)...])     ("text", string)

Parser rules refer to rules and tokens. A token has characters only. A set holds the code points from
each `first` to its `last`.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "grammar"))

from cypher_grammar import Grammar, merged  # noqa: E402

END = ("name", "EOF")


class DerivableGrammar(Grammar):
    """Its `rules` are the parser rules, with references replaced by rules and tokens."""

    def __init__(self) -> None:
        super().__init__()
        self.rules = {name: self._derivable(body) for name, body in self.parser_rules.items()}

    def keywords(self) -> list:
        return [word for word in map(self.keyword, self.token_rules) if word]

    def _derivable(self, expression: tuple) -> tuple:
        kind = expression[0]
        if kind in ("sequence", "choice"):
            return (kind, [self._derivable(part) for part in expression[1]])
        if kind in ("optional", "star", "plus"):
            return (kind, self._derivable(expression[1]))
        if expression == END:
            return ("sequence", [])
        if expression[1] in self.parser_rules:
            return ("rule", expression[1])
        name = f"'{expression[1]}'" if kind == "literal" else expression[1]
        return ("token", name, self._characters(expression))

    def _characters(self, expression: tuple) -> tuple:
        """The expression with lexer rules in place of the references to them."""
        kind = expression[0]
        if kind == "name":
            return self._characters(self.lexer_rules[expression[1]])
        if kind == "literal":
            return ("text", expression[1])
        if kind == "sequence":
            return (kind, [self._characters(part) for part in expression[1]])
        if kind == "choice":
            # The alternative that ends with the text is left out: more text may follow.
            return choice_of([self._characters(part) for part in expression[1] if part != END])
        if kind in ("optional", "star", "plus"):
            return (kind, self._characters(expression[1]))
        return ("set", self.characters(expression))


def choice_of(alternatives: list) -> tuple:
    if len(alternatives) == 1:
        return alternatives[0]
    ranges = [ranges_of(alternative) for alternative in alternatives]
    return ("set", merged(sum(ranges, []))) if all(ranges) else ("choice", alternatives)


def ranges_of(expression: tuple) -> list:
    """The characters that an expression stands for, or none if it is not a single character."""
    if expression[0] == "text" and len(expression[1]) == 1:
        return [(ord(expression[1]), ord(expression[1]))]
    return expression[1] if expression[0] == "set" else []
