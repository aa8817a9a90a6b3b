"""Reads grammar/Cypher.g4 into expressions that can be walked to derive text.

An expression is a tuple whose first member is its kind:

    ("sequence", [expression...])   ("choice", [expression...])
    ("optional", expression)        ("star", expression)         ("plus", expression)
    ("rule", name)                  ("token", name, expression)
    ("set", [(first, last)...])     ("text", string)

Parser rules refer to rules and tokens. Inside a token there are characters only. A set holds the
code points from each `first` to its `last`.
"""

import re
from pathlib import Path

LAST_CODE_POINT = 0x10FFFF
SURROGATES = (0xD800, 0xDFFF)

TOKEN = re.compile(
    r"""
    (?P<space>\s+|//[^\n]*)
  | (?P<action>@[\w:]+\s*\{)
  | (?P<literal>'(?:\\u\{[0-9A-Fa-f]+\}|\\u[0-9A-Fa-f]{4}|\\.|[^'\\])+')
  | (?P<set>\[(?:\\.|[^\]\\])+\])
  | (?P<name>\w+)
  | (?P<sign>\.\.|[:;|()?*+~])
    """,
    re.VERBOSE,
)
ESCAPE = re.compile(r"\\u\{([0-9A-Fa-f]+)\}|\\u([0-9A-Fa-f]{4})|\\(.)")
NAMED_ESCAPES = {"n": "\n", "r": "\r", "t": "\t", "f": "\f", "b": "\b"}


def unescaped(text: str) -> str:
    def character(match: re.Match) -> str:
        code = match[1] or match[2]
        return chr(int(code, 16)) if code else NAMED_ESCAPES.get(match[3], match[3])

    return ESCAPE.sub(character, text)


def end_of_action(text: str, at: int) -> int:
    """The place behind the C++ of an action, from the place behind its opening brace."""
    depth = 1
    while depth > 0:
        depth += {"{": 1, "}": -1}.get(text[at], 0)
        at += 1
    return at


def merged(ranges: list) -> list:
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


def ranges_of(expression: tuple) -> list:
    """The characters that an expression stands for, or None if it is more than a single one."""
    if expression[0] == "set":
        return expression[1]
    if expression[0] == "text" and len(expression[1]) == 1:
        return [(ord(expression[1]), ord(expression[1]))]
    return None


def choice_of(alternatives: list) -> tuple:
    if len(alternatives) == 1:
        return alternatives[0]
    ranges = [ranges_of(alternative) for alternative in alternatives]
    if all(ranges):
        return ("set", merged([one for some in ranges for one in some]))
    return ("choice", alternatives)


class CypherGrammar:
    """The rules of the grammar by name, and the names of the tokens in the order of their types."""

    def __init__(self, path: str) -> None:
        self.rules = {}
        self.literals = []
        self._lexer_rules = {}
        self._fragments = set()
        self._tokens = self._tokens_of(Path(path).read_text(encoding="utf-8"))
        self._read()
        self.rules = {name: self._resolved(expression) for name, expression in self.rules.items()}
        # Literals of the parser rules come first, then the rules of the lexer.
        self.token_names = [*self.literals, *self._token_rules()]

    def keywords(self) -> list:
        """The tokens that are one word whatever its case."""
        found = []
        for name in self._token_rules():
            expression = self._lexer_rules[name]
            letters = expression[1] if expression[0] == "sequence" else []
            pairs = [ranges_of(letter) or [] for letter in letters]
            if letters and all(len(pair) == 2 for pair in pairs):
                found.append("".join(chr(pair[0][0]) for pair in pairs))
        return found

    def _token_rules(self) -> list:
        return [name for name in self._lexer_rules if name not in self._fragments]

    @staticmethod
    def _tokens_of(text: str) -> list:
        tokens = []
        at = 0
        while at < len(text):
            match = TOKEN.match(text, at)
            if match is None:
                raise ValueError(f"cannot read the grammar at {text[at:at + 20]!r}")
            at = match.end()
            if match.lastgroup == "action":
                at = end_of_action(text, at)
            elif match.lastgroup != "space":
                tokens.append((match.lastgroup, match.group()))
        return tokens

    def _peek(self) -> str:
        return self._tokens[self._at][1]

    def _next(self) -> tuple:
        self._at += 1
        return self._tokens[self._at - 1]

    def _take(self, sign: str) -> bool:
        if self._peek() != sign:
            return False
        self._at += 1
        return True

    def _read(self) -> None:
        self._at = 0
        while self._next()[1] != ";":
            pass  # the grammar's own name
        while self._at < len(self._tokens):
            fragment = self._take("fragment")
            name = self._next()[1]
            self._in_lexer = name[0].isupper()
            assert self._take(":"), name
            (self._lexer_rules if self._in_lexer else self.rules)[name] = self._alternatives()
            assert self._take(";"), name
            if fragment:
                self._fragments.add(name)

    def _alternatives(self) -> tuple:
        alternatives = [self._sequence()]
        while self._take("|"):
            alternatives.append(self._sequence())
        # A token that ends with the text cannot be written before more text.
        return choice_of([one for one in alternatives if one != ("end",)])

    def _sequence(self) -> tuple:
        elements = []
        while self._peek() not in ("|", ")", ";"):
            elements.append(self._repeated(self._element()))
        return elements[0] if len(elements) == 1 else ("sequence", elements)

    def _repeated(self, element: tuple) -> tuple:
        for sign, kind in (("?", "optional"), ("*", "star"), ("+", "plus")):
            if self._take(sign):
                return (kind, element)
        return element

    def _element(self) -> tuple:
        kind, text = self._next()
        if text == "(":
            inner = self._alternatives()
            assert self._take(")")
            return inner
        if text == "~":
            return ("set", complement(ranges_of(self._element())))
        if text == "EOF":
            return ("end",) if self._in_lexer else ("sequence", [])
        if kind == "name":
            return ("reference", text)
        if kind == "set":
            return ("set", [(ord(c), ord(c)) for c in unescaped(text[1:-1])])
        return self._literal(unescaped(text[1:-1]))

    def _literal(self, text: str) -> tuple:
        if self._take(".."):
            return ("set", [(ord(text), ord(unescaped(self._next()[1][1:-1])))])
        if self._in_lexer:
            return ("text", text)
        if text not in self.literals:
            self.literals.append(text)
        return ("token", text, ("text", text))

    def _resolved(self, expression: tuple) -> tuple:
        """The expression with references replaced: by tokens in parser rules."""
        kind = expression[0]
        if kind in ("sequence", "choice"):
            return (kind, [self._resolved(part) for part in expression[1]])
        if kind in ("optional", "star", "plus"):
            return (kind, self._resolved(expression[1]))
        if kind != "reference":
            return expression
        name = expression[1]
        if name in self.rules:
            return ("rule", name)
        return ("token", name, self._characters(("reference", name)))

    def _characters(self, expression: tuple) -> tuple:
        """The expression of a token with the lexer rules that it refers to put in."""
        kind = expression[0]
        if kind == "reference":
            return self._characters(self._lexer_rules[expression[1]])
        if kind == "sequence":
            return (kind, [self._characters(part) for part in expression[1]])
        if kind == "choice":
            return choice_of([self._characters(part) for part in expression[1]])
        if kind in ("optional", "star", "plus"):
            return (kind, self._characters(expression[1]))
        return expression
