"""Takes a Markdown document apart: its blocks of code, its tables, its links."""

import pathlib
import re
from typing import NamedTuple

FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.DOTALL | re.MULTILINE)
# Code between one or two back quotes; with two, it may hold single ones.
SPAN = re.compile(r"`` ?(.+?) ?``(?!`)|`([^`]+)`")
LINK = re.compile(r"\]\(([^)\s]+)\)")


class Block(NamedTuple):
    line: int
    language: str
    text: str


class Row(NamedTuple):
    line: int
    cells: dict[str, str]


class Document:
    def __init__(self, path: pathlib.Path) -> None:
        self.path = path
        self.text = path.read_text(encoding="utf-8")
        # The same lines, with the blocks empty.
        self.prose = FENCE.sub(lambda match: "\n" * match[0].count("\n"), self.text)

    def blocks(self) -> list[Block]:
        return [
            Block(self.text.count("\n", 0, match.start()) + 1, match[1], match[2])
            for match in FENCE.finditer(self.text)
        ]

    def rows(self) -> list[Row]:
        """The rows of all tables, as cells by the title of the column."""
        rows = []
        titles: list[str] = []
        for number, line in enumerate(self.prose.splitlines(), 1):
            cells = [cell.strip().replace("\\|", "|") for cell in re.split(r"(?<!\\)\|", line)[1:-1]]
            if not line.startswith("|"):
                titles = []
            elif not titles:
                titles = cells
            elif set(line) - set("|-: "):
                rows.append(Row(number, dict(zip(titles, cells))))
        return rows

    def indented_code(self) -> list[str]:
        return re.findall(r"(?m)(?<=\n\n)    (?! *[-*\d]).*$", self.prose)

    def links(self) -> list[str]:
        return LINK.findall(self.prose)

    def anchors(self) -> set[str]:
        """The ends of links to the headings of this document."""
        titles = re.findall(r"(?m)^#+ (.*)$", self.prose)
        return {re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-") for title in titles}


def spans(cell: str) -> list[str]:
    return [match[1] or match[2] for match in SPAN.finditer(cell)]
