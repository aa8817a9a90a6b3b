"""Reads Cypher.g4 into expressions, for all scripts that need the grammar.

An expression is a tuple whose first member is its kind:

    ("sequence", (expression, ...))   ("choice", (expression, ...))
    ("optional", expression)          ("star", expression)          ("plus", expression)
    ("name", name)                    a rule, or a token by its name; EOF is the end of the text
    ("literal", text)                 a quoted text
    ("range", first, last)            one character, by code points
    ("set", text)                     one of the characters between square brackets
    ("not", expression)               one character that the expression does not stand for
"""

import re
from pathlib import Path

GRAMMAR = Path(__file__).resolve().parent / "Cypher.g4"

LAST_CODE_POINT = 0x10FFFF
SURROGATES = (0xD800, 0xDFFF)

LEXEME = re.compile(
    r"""
    (?P<space>\s+|//[^\n]*)
  | (?P<action>@[\w:]+\s*\{.*?^\})
  | (?P<literal>'(?:\\u\{[0-9A-Fa-f]+\}|\\u[0-9A-Fa-f]{4}|\\.|[^'\\])+')
  | (?P<set>\[(?:\\.|[^\]\\])+\])
  | (?P<name>\w+)
  | (?P<sign>\.\.|[:;|()?*+~])
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)
ESCAPE = re.compile(r"\\u(?:\{([0-9A-Fa-f]+)\}|([0-9A-Fa-f]{4}))|\\(.)")
NAMED_ESCAPES = {"n": "\n", "r": "\r", "t": "\t", "f": "\f", "b": "\b"}
SUFFIXES = {"?": "optional", "*": "star", "+": "plus"}


def unescaped(text: str) -> str:
    def character(match: re.Match) -> str:
        code = match[1] or match[2]
        return chr(int(code, 16)) if code else NAMED_ESCAPES.get(match[3], match[3])

    return ESCAPE.sub(character, text)


class Grammar:
    """The rules by name, in the order of the grammar, and what follows from them."""

    def __init__(self, path: Path = GRAMMAR) -> None:
        self.parser_rules = {}
        self.lexer_rules = {}
        self.fragments = set()
        self.literals = []  # of the parser rules, in the order of their first occurrence
        self._lexemes = self._split(path.read_text(encoding="utf-8"))
        self._at = 0
        self._read()
        self.token_rules = [name for name in self.lexer_rules if name not in self.fragments]
        # Literals of the parser rules come first. The type of a token is its place, counted from 1.
        self.token_names = [*(f"'{literal}'" for literal in self.literals), *self.token_rules]
        self.token_types = {name: place for place, name in enumerate(self.token_names, start=1)}

    def characters(self, expression: tuple) -> list:
        """The ranges of code points of an expression that stands for one character."""
        kind = expression[0]
        if kind == "range":
            return [expression[1:]]
        if kind == "set" or (kind == "literal" and len(expression[1]) == 1):
            return merged([(ord(character), ord(character)) for character in expression[1]])
        if kind == "not":
            return complement(self.characters(expression[1]))
        if kind == "choice":
            return merged([one for part in expression[1] for one in self.characters(part)])
        if kind == "name":
            return self.characters(self.lexer_rules[expression[1]])
        raise ValueError(f"{expression} is no single character")

    def keyword(self, name: str) -> str:
        """The word that a token rule matches in upper and lower case, or "" if it matches something else."""
        body = self.lexer_rules[name]
        word = ""
        for letter in body[1] if body[0] == "sequence" else ():
            pair = letter[1] if letter[0] == "choice" else ()
            if len(pair) != 2 or any(one[0] != "literal" or len(one[1]) != 1 for one in pair):
                return ""
            upper, lower = (one[1] for one in pair)
            if upper.lower() != lower:
                return ""
            word += upper
        return word

    @staticmethod
    def _split(text: str) -> list:
        lexemes = []
        at = 0
        while at < len(text):
            match = LEXEME.match(text, at)
            if match is None:
                raise SystemExit(f"cypher_grammar.py: cannot read Cypher.g4 at {text[at:at + 20]!r}")
            at = match.end()
            if match.lastgroup not in ("space", "action"):
                lexemes.append((match.lastgroup, match[0]))
        return lexemes

    def _next(self) -> tuple:
        self._at += 1
        return self._lexemes[self._at - 1]

    def _peek(self) -> str:
        return self._lexemes[self._at][1] if self._at < len(self._lexemes) else ""

    def _skip(self, text: str) -> bool:
        found = self._peek() == text
        self._at += found
        return found

    def _expect(self, text: str) -> None:
        if not self._skip(text):
            raise SystemExit(f"cypher_grammar.py: Cypher.g4 lacks {text!r} before {self._peek()!r}")

    def parsed(self, text: str) -> tuple:
        """The expression of a rule's right side."""
        self._lexemes, self._at = [*self._split(text), ("sign", ";")], 0
        self._in_parser_rule = True
        return self._choice()

    def _read(self) -> None:
        self._expect("grammar")
        self._next()
        self._expect(";")
        while self._at < len(self._lexemes):
            is_fragment = self._skip("fragment")
            name = self._next()[1]
            rules = self.lexer_rules if name[0].isupper() else self.parser_rules
            self._in_parser_rule = rules is self.parser_rules
            self._expect(":")
            rules[name] = self._choice()
            self._expect(";")
            if is_fragment:
                self.fragments.add(name)

    def _choice(self) -> tuple:
        alternatives = [self._sequence()]
        while self._skip("|"):
            alternatives.append(self._sequence())
        return alternatives[0] if len(alternatives) == 1 else ("choice", tuple(alternatives))

    def _sequence(self) -> tuple:
        elements = []
        while self._peek() not in ("|", ")", ";"):
            element = self._element()
            for suffix, kind in SUFFIXES.items():
                if self._skip(suffix):
                    element = (kind, element)
            elements.append(element)
        return elements[0] if len(elements) == 1 else ("sequence", tuple(elements))

    def _element(self) -> tuple:
        kind, text = self._next()
        if text == "(":
            inner = self._choice()
            self._expect(")")
            return inner
        if text == "~":
            return ("not", self._element())
        if kind == "name":
            return ("name", text)
        content = unescaped(text[1:-1])
        if kind == "set":
            return ("set", content)
        if self._skip(".."):
            return ("range", ord(content), ord(unescaped(self._next()[1][1:-1])))
        if self._in_parser_rule and content not in self.literals:
            self.literals.append(content)
        return ("literal", content)


def merged(ranges: list) -> list:
    """The same code points in as few ranges as possible, in ascending order."""
    result = []
    for first, last in sorted(ranges):
        if result and first <= result[-1][1] + 1:
            result[-1] = (result[-1][0], max(last, result[-1][1]))
        else:
            result.append((first, last))
    return result


def complement(ranges: list) -> list:
    result = []
    next_first = 0
    for first, last in merged([*ranges, SURROGATES]):
        if next_first < first:
            result.append((next_first, first - 1))
        next_first = last + 1
    if next_first <= LAST_CODE_POINT:
        result.append((next_first, LAST_CODE_POINT))
    return result
