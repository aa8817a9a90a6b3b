#!/usr/bin/python3
"""Draws the rules of grammar/Cypher.g4 as railroad diagrams, in one SVG file for each group of rules.

The pictures stand in docs/language/, and docs/language.md shows them between two
marker lines, in the order of the grammar. Debian's package
python3-railroad-diagrams lays the diagrams out.

    docs/draw_rules.py           write the pictures and the list of them anew
    docs/draw_rules.py --check   fail if one of them is not what the grammar gives
"""

import argparse
import pathlib
import re
import sys
from typing import NamedTuple, Union

import railroad

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "grammar"))

from cypher_grammar import SUFFIXES, Grammar  # noqa: E402

DOCUMENT = ROOT / "docs" / "language.md"
DIAGRAMS = ROOT / "docs" / "language"

# Sets of Unicode: their many ranges would tell a reader less than their names do.
NOT_DRAWN = {"ID_Start", "ID_Continue", "Pc", "Sc"}
MEMBERS_IN_A_COLUMN = 9
NAMED = {"\n": "\\n", "\r": "\\r", "\t": "\\t"}

# The title of each group, and the rule that it begins with. A group goes on to the next one.
PARSER_GROUPS = {
    "Queries": "oC_Cypher",
    "Clauses that read": "oC_ReadingClause",
    "Clauses that write": "oC_Merge",
    "Procedure calls": "oC_InQueryCall",
    "Projections": "oC_With",
    "Patterns": "oC_Pattern",
    "Relationships and labels": "oC_RelationshipPattern",
    "Logic and comparisons": "oC_PropertyExpression",
    "Arithmetic and lists": "oC_AddOrSubtractExpression",
    "Atoms": "oC_Atom",
    "Functions and procedures": "oC_FunctionInvocation",
    "Literals": "oC_Variable",
    "Names": "oC_PropertyKeyName",
}
TOKEN_GROUPS = {
    "Numbers": "HexInteger",
    "Strings": "StringLiteral",
    "Names in the text": "UnescapedSymbolicName",
    "White space and comments": "SP",
}

# In pixels, above the name of a rule and between it and the diagram.
ABOVE_NAME = 30
BELOW_NAME = 6

STYLE = (
    "path,rect{fill:none;stroke:#57606a;stroke-width:2}"
    "rect{fill:#fff}"
    ".terminal{fill:#ddf4ff}"
    "text{font:14px monospace;text-anchor:middle;fill:#1f2328}"
    ".comment{font-size:12px;fill:#57606a}"
    ".rule{font-weight:bold;text-anchor:start}"
    "@media(prefers-color-scheme:dark){"
    "path,rect{stroke:#9198a1}"
    "rect{fill:#0d1117}"
    ".terminal{fill:#12304f}"
    "text{fill:#f0f6fc}"
    ".comment{fill:#9198a1}}"
)


class Name(NamedTuple):
    text: str


class Literal(NamedTuple):
    text: str


class Inversion(NamedTuple):
    item: "Node"


class Suffixed(NamedTuple):
    item: "Node"
    suffix: str


class Sequence(NamedTuple):
    items: tuple["Node", ...]


class Choice(NamedTuple):
    alternatives: tuple["Node", ...]


Node = Union[Name, Literal, Inversion, Suffixed, Sequence, Choice]


def node_of(expression: tuple) -> Node:
    kind = expression[0]
    if kind == "sequence":
        return Sequence(tuple(map(node_of, expression[1])))
    if kind == "choice":
        return Choice(tuple(map(node_of, expression[1])))
    if kind in SUFFIXES.values():
        return Suffixed(node_of(expression[1]), next(one for one, name in SUFFIXES.items() if name == kind))
    if kind == "not":
        return Inversion(node_of(expression[1]))
    if kind == "name":
        return Name(expression[1])
    if kind == "range":
        return Literal(f"{spelling(chr(expression[1]))} … {spelling(chr(expression[2]))}")
    return Literal(spelling(expression[1]))


def spelling(text: str) -> str:
    """What a text is shown as."""
    return "".join(NAMED.get(c, c if " " <= c <= "~" else f"U+{ord(c):04X}") for c in text)


class Draughtsman:
    def __init__(self, keywords: dict[str, str]) -> None:
        self.keywords = keywords

    def draw(self, node: Node) -> railroad.DiagramItem:
        if isinstance(node, Name):
            if node.text in self.keywords:
                return railroad.Terminal(self.keywords[node.text])
            return railroad.NonTerminal(node.text.removeprefix("oC_"))
        if isinstance(node, Literal):
            return railroad.Terminal(node.text)
        if isinstance(node, Inversion):
            return self.inversion(node.item)
        if isinstance(node, Suffixed):
            return self.suffixed(node)
        if isinstance(node, Sequence):
            return self.sequence(node.items)
        return self.choice(node.alternatives)

    def inversion(self, item: Node) -> railroad.DiagramItem:
        excluded = item.alternatives if isinstance(item, Choice) else (item,)
        names = [self.keywords.get(each.text, each.text) for each in excluded]
        return railroad.NonTerminal("any but " + " and ".join(names))

    def suffixed(self, node: Suffixed) -> railroad.DiagramItem:
        if node.suffix == "?" and node.item == Name("SP"):
            return railroad.Comment("SP?")
        if node.suffix == "?":
            return railroad.Optional(self.draw(node.item))
        loop = railroad.OneOrMore(self.draw(node.item))
        return loop if node.suffix == "+" else railroad.Optional(loop)

    def choice(self, alternatives: tuple[Node, ...]) -> railroad.DiagramItem:
        drawn = [self.draw(alternative) for alternative in alternatives]
        if len(drawn) <= 2 * MEMBERS_IN_A_COLUMN:
            return railroad.Choice(0, *drawn)
        columns = [
            railroad.Choice(0, *drawn[first : first + MEMBERS_IN_A_COLUMN])
            for first in range(0, len(drawn), MEMBERS_IN_A_COLUMN)
        ]
        return railroad.HorizontalChoice(*columns)

    def sequence(self, items: tuple[Node, ...]) -> railroad.DiagramItem:
        drawn = []
        for index, item in enumerate(items):
            separators = separators_of(item, items[index - 1]) if index > 0 else None
            if separators is None:
                drawn.append(self.draw(item))
            else:
                drawn[-1] = railroad.OneOrMore(drawn[-1], self.backwards(separators))
        return drawn[0] if len(drawn) == 1 else railroad.Sequence(*drawn)

    def backwards(self, separators: list[tuple[Node, ...]]) -> railroad.DiagramItem:
        """The way back in a loop, which is travelled from right to left."""
        ways = [railroad.Sequence(*(self.draw(item) for item in reversed(way))) for way in separators]
        return ways[0] if len(ways) == 1 else railroad.Choice(0, *ways)


def separators_of(loop: Node, item: Node) -> Union[list[tuple[Node, ...]], None]:
    """If `loop` after `item` has the form ( separator item )*, the separators of its alternatives."""
    if not isinstance(loop, Suffixed) or loop.suffix != "*":
        return None
    ways = loop.item.alternatives if isinstance(loop.item, Choice) else (loop.item,)
    if all(isinstance(way, Sequence) and way.items[-1] == item for way in ways):
        return [way.items[:-1] for way in ways]
    return None


class Drawn(NamedTuple):
    """The diagram of one rule."""

    width: float
    height: float
    content: str


def draw(item: railroad.DiagramItem) -> Drawn:
    pieces: list[str] = []
    diagram = railroad.Diagram(item, css="")
    diagram.format(paddingTop=10)
    diagram.writeSvg(pieces.append)
    text = smaller("".join(pieces))
    width, height = (float(number) for number in re.search(r'viewBox="0 0 ([\d.]+) ([\d.]+)"', text).groups())
    return Drawn(width, height, re.sub(r"<style>.*?</style>|^<svg[^>]*>|</svg>$", "", text, flags=re.DOTALL))


def picture(drawn: dict[str, Drawn]) -> str:
    """The diagrams of a group one below the other, each under the name of its rule."""
    parts = []
    bottom = 0.0
    for name, diagram in drawn.items():
        top = bottom + ABOVE_NAME + BELOW_NAME
        parts.append(f'<text class="rule" x="10" y="{bottom + ABOVE_NAME:g}">{name.removeprefix("oC_")}</text>')
        parts.append(f'<g transform="translate(0 {top:g})">{diagram.content}</g>')
        bottom = top + diagram.height
    width = max(diagram.width for diagram in drawn.values())
    size = f'height="{bottom:g}" viewBox="0 0 {width:g} {bottom:g}" width="{width:g}"'
    return f'<svg {size} xmlns="http://www.w3.org/2000/svg"><style>{STYLE}</style>{"".join(parts)}</svg>\n'


def smaller(text: str) -> str:
    """The same picture with one path in place of hundreds, and without groups."""
    path = "".join(re.findall(r'<path d="([^"]*)"', text))
    path = re.sub(r"\.0\b", "", path.replace("h0.0", ""))
    path = re.sub(r"M[\d.]+ [\d.]+(?=M)", "", path)
    text = re.sub(r"<path [^>]*></path>|<path [^>]*/>|\n", "", text)
    text = re.sub(r'<g class="terminal ">\s*<rect', '<rect class="terminal"', text)
    text = re.sub(r"</?g[^>]*>|</rect>|/\* (<!\[CDATA\[|\]\]>) \*/", "", text)
    text = re.sub(r"(<rect [^>]*)>", r"\1/>", text)
    text = re.sub(r' xmlns:xlink="[^"]*"| class="railroad-diagram"', "", text)
    return re.sub(r"(<svg[^>]*>)", rf'\1<path d="{path}"/>', text, count=1)


def diagrams() -> dict[str, Drawn]:
    """The diagrams by rule, in the order of the grammar."""
    grammar = Grammar()
    rules = {**grammar.parser_rules, **grammar.lexer_rules}
    keywords = {name: grammar.keyword(name) for name in grammar.lexer_rules if grammar.keyword(name)}
    draughtsman = Draughtsman(keywords)
    return {
        name: draw(draughtsman.draw(node_of(body)))
        for name, body in rules.items()
        if name not in keywords and name not in NOT_DRAWN
    }


def grouped(drawn: dict[str, Drawn], groups: dict[str, str]) -> dict[str, dict[str, Drawn]]:
    """The diagrams by the title of their group. The first rule of each group must be there."""
    titles = {first: title for title, first in groups.items()}
    missing = titles.keys() - drawn.keys()
    if missing or next(iter(drawn)) not in titles:
        raise SystemExit(f"draw_rules.py: the groups do not fit the rules: {', '.join(sorted(missing))}.")
    result: dict[str, dict[str, Drawn]] = {}
    for name, diagram in drawn.items():
        if name in titles:
            title = titles[name]
        result.setdefault(title, {})[name] = diagram
    return result


def file_name(title: str) -> str:
    return title.lower().replace(" ", "-") + ".svg"


def listing(groups: dict[str, dict[str, Drawn]]) -> str:
    """The part of the document that shows the pictures."""
    parts = []
    for title, drawn in groups.items():
        names = ", ".join(f"`{name.removeprefix('oC_')}`" for name in drawn)
        parts.append(f"#### {title}\n\n{names}\n\n![{title}](language/{file_name(title)})\n")
    return "\n".join(parts)


def with_listings(document: str, listings: dict[str, str]) -> str:
    for title, listed in listings.items():
        marked = re.compile(rf"(<!-- begin {title}: [^\n]*-->\n).*?(<!-- end {title} -->)", re.DOTALL)
        document, replaced = marked.subn(lambda match, text=listed: f"{match[1]}\n{text}\n{match[2]}", document)
        if replaced != 1:
            raise SystemExit(f"draw_rules.py: language.md needs one pair of marker lines for {title}.")
    return document


def main() -> int:
    parser = argparse.ArgumentParser(description="Draws the rules of the grammar as railroad diagrams.")
    parser.add_argument("--check", action="store_true", help="write nothing, fail if a diagram is out of date")
    arguments = parser.parse_args()
    drawn = diagrams()
    parser_rules = {name: diagram for name, diagram in drawn.items() if name.startswith("oC_")}
    tokens = {name: diagram for name, diagram in drawn.items() if name not in parser_rules}
    listings = {
        "parser rules": grouped(parser_rules, PARSER_GROUPS),
        "tokens": grouped(tokens, TOKEN_GROUPS),
    }
    wanted = {
        DIAGRAMS / file_name(title): picture(group)
        for groups in listings.values()
        for title, group in groups.items()
    }
    texts = {title: listing(groups) for title, groups in listings.items()}
    wanted[DOCUMENT] = with_listings(DOCUMENT.read_text(encoding="utf-8"), texts)
    present = {file: file.read_text(encoding="utf-8") for file in [*DIAGRAMS.glob("*.svg"), DOCUMENT]}
    if arguments.check:
        if present != wanted:
            print("draw_rules.py: docs/language is out of date; run make docs.", file=sys.stderr)
            return 1
        return 0
    DIAGRAMS.mkdir(exist_ok=True)
    for file in present.keys() - wanted.keys():
        file.unlink()
    for file, text in wanted.items():
        file.write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
