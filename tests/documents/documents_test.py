#!/usr/bin/env python3
"""All code and all examples in the documents work as they are written.

    documents_test.py SOURCE_FOLDER BUILD_FOLDER COMPILER [--recipes]

The blocks of a document are run in order. Each document has its own copy of the sources:

    cpp      a program: written into the file that its first line names, or else compiled and run
    cmake    written into the file that its first line names
    diff     applied to the copy
    sh       run, in one shell; `make` and `ctest` only show what they would do
    text     after a block of commands, their output; elsewhere a picture
    console  commands behind a $, each with its output

Tables of examples are checked too. The class Examples recognises them by the titles of their columns.

The commands of docs/recipes.md change the sources and build them again. They run only with --recipes,
and then `make` and `ctest` really run.
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from typing import Any, Callable

from markdown import Block, Document, spans

RECIPES = "--recipes" in sys.argv
SOURCE, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
COMPILER = sys.argv[3]
RECIPE_DOCUMENT = SOURCE / "docs" / "recipes.md"
DOCUMENTS = sorted([*SOURCE.glob("*.md"), *SOURCE.glob("docs/*.md")])
# Blocks that are tested elsewhere, or are no commands.
OTHER_LANGUAGES = {"exports", "mermaid"}

# Commands that run all tests only show what they would run, since this test is one of them.
SHOW_ONLY = f"""
make() {{ command make -C '{SOURCE}' -n "$@" >/dev/null; }}
ctest() {{ command ctest -N "$@" | grep -q '^  Test *#'; }}
"""

INSPECT = BUILD / "vorn-inspect"


def copy_sources(folder: pathlib.Path) -> None:
    shutil.copytree(SOURCE, folder, ignore=shutil.ignore_patterns("build", ".git", "__pycache__"))
    (folder / "build").mkdir()


class Scratch:
    """A copy of the sources in which the blocks of one document run."""

    def __init__(self, folder: pathlib.Path) -> None:
        self.folder = folder / "VornLib"
        copy_sources(self.folder)
        for downloaded in (SOURCE / "build").glob("antlr*"):
            (self.folder / "build" / downloaded.name).symlink_to(downloaded)
        if not RECIPES:
            (self.folder / "build" / "release").symlink_to(BUILD)
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", CXX=COMPILER)

    def run(self, commands: str) -> str:
        prelude = "" if RECIPES else SHOW_ONLY
        result = subprocess.run(
            ["sh", "-e", "-c", prelude + commands],
            cwd=self.folder,
            env=self.environment,
            stdin=subprocess.DEVNULL,
            capture_output=True,
            text=True,
            encoding="utf-8",
        )
        # Like a terminal, except that the order of the two may differ.
        output = result.stdout + result.stderr
        assert result.returncode == 0, f"{commands}\n{output}"
        return output

    def write(self, name: str, text: str) -> None:
        file = self.folder / name
        file.parent.mkdir(exist_ok=True)
        file.write_text(text, encoding="utf-8")

    def write_program(self, text: str) -> None:
        name = re.match(r"// (\S+\.(?:cpp|h))\n", text)
        if name:
            self.write(name[1], text)
        else:
            self.run_fragment(text)

    def write_project(self, text: str) -> None:
        self.write(re.match(r"# (\S+)\n", text)[1], text)

    def run_fragment(self, text: str) -> None:
        """Compiles statements to a program and runs it."""
        includes = "".join(re.findall(r"(?m)^#include.*\n", text))
        statements = re.sub(r"(?m)^#include.*\n", "", text)
        (self.folder / "fragment.cpp").write_text(
            f"{includes}#include <vorn/vorn.h>\nint main() {{\n{statements}}}\n", encoding="utf-8"
        )
        self.run(
            f"'{COMPILER}' -std=c++17 -Wall -Wextra -Wno-unused-variable -Werror -Iinclude fragment.cpp"
            " -Lbuild/release -lVornLib -Wl,-rpath,build/release -o fragment && ./fragment"
        )

    def apply(self, patch: str) -> None:
        (self.folder / "recipe.diff").write_text(patch, encoding="utf-8")
        self.run("patch --batch --fuzz=0 -p1 <recipe.diff")


def sessions(text: str) -> list[tuple[str, str]]:
    """The commands of a console block, each with its output. A command may go on after a backslash."""
    pieces = re.split(r"(?m)^\$ ", text)[1:]
    split = [re.match(r"((?:.*\\\n)*.*\n)((?:.|\n)*)", piece) for piece in pieces]
    return [(match[1], match[2]) for match in split if match]


class Blocks(unittest.TestCase):
    maxDiff = None

    def work_off(self, document: Document) -> None:
        with tempfile.TemporaryDirectory() as folder:
            scratch = Scratch(pathlib.Path(folder))
            output = None
            for block in document.blocks():
                with self.subTest(document=document.path.name, line=block.line):
                    output = self.work_off_block(block, scratch, output)

    def work_off_block(self, block: Block, scratch: Scratch, output: Any) -> Any:
        """Runs the block. Returns its output if the expected output follows in the next block."""
        if block.language == "sh":
            return scratch.run(block.text)
        if block.language == "console":
            for command, shown in sessions(block.text):
                self.assertEqual(scratch.run(command), shown)
        elif block.language == "text":
            if output is not None:
                self.assertEqual(output, block.text)
        elif block.language == "cpp":
            scratch.write_program(block.text)
        elif block.language == "cmake":
            scratch.write_project(block.text)
        elif block.language == "diff":
            scratch.apply(block.text)
        else:
            self.assertIn(block.language, OTHER_LANGUAGES)
        return None

    def test_work_as_they_stand_there(self) -> None:
        for path in DOCUMENTS:
            if path != RECIPE_DOCUMENT:
                self.work_off(Document(path))

    def test_the_patches_of_the_recipes_apply(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            scratch = Scratch(pathlib.Path(folder))
            patches = [block for block in Document(RECIPE_DOCUMENT).blocks() if block.language == "diff"]
            self.assertTrue(patches)
            for block in patches:
                with self.subTest(line=block.line):
                    scratch.apply(block.text)


class Recipes(unittest.TestCase):
    def test_lead_where_they_say(self) -> None:
        Blocks.work_off(self, Document(RECIPE_DOCUMENT))

    work_off_block = Blocks.work_off_block


class Prose(unittest.TestCase):
    def test_names_the_make_targets_that_exist(self) -> None:
        makefile = (SOURCE / "Makefile").read_text(encoding="utf-8")
        for path in DOCUMENTS:
            for target in re.findall(r"(?:`|^)make ([a-z0-9-]+)", path.read_text(encoding="utf-8"), re.MULTILINE):
                with self.subTest(document=path.name, target=target):
                    self.assertRegex(makefile, rf"(?m)^{target}:")

    def test_links_to_files_and_headings_that_exist(self) -> None:
        for path in DOCUMENTS:
            for link in Document(path).links():
                if not link.startswith("https:"):
                    with self.subTest(document=path.name, link=link):
                        name, _, anchor = link.partition("#")
                        target = path.parent / name if name else path
                        self.assertTrue(target.exists())
                        self.assertTrue(not anchor or anchor in Document(target).anchors())

    def test_of_the_architecture_has_a_room_for_every_folder(self) -> None:
        rooms = Document(SOURCE / "docs" / "architecture.md").rows()
        named = {spans(row.cells["Folder"])[0].split("/")[0] for row in rooms if "Folder" in row.cells}
        folders = {folder.name for folder in SOURCE.iterdir() if folder.is_dir()}
        self.assertEqual({name for name in folders if not name.startswith(".")} - {"build"}, named)

    def test_of_the_architecture_names_every_header_inside(self) -> None:
        text = "".join((SOURCE / "docs" / name).read_text(encoding="utf-8") for name in ["architecture.md", "strings.md"])
        for header in [*SOURCE.glob("src/*.h"), *SOURCE.glob("platform/*.h"), *SOURCE.glob("strings/*.h")]:
            with self.subTest(header=header.name):
                self.assertTrue(re.search(rf"\b{header.stem}\b", text))

    def test_has_no_code_that_nobody_runs(self) -> None:
        for path in DOCUMENTS:
            with self.subTest(document=path.name):
                self.assertEqual(Document(path).indented_code(), [])


def answers(command: str, requests: list[dict[str, Any]]) -> list[dict[str, Any]]:
    lines = "".join(json.dumps(request) + "\n" for request in requests)
    result = subprocess.run(
        [INSPECT, command, "--jsonl"], input=lines.encode(), capture_output=True, check=True
    )
    return [json.loads(line) for line in result.stdout.decode().splitlines()]


def columns_of(query: str) -> list[str]:
    (answer,) = answers("columns", [{"query": query}])
    return [f"{column['name']}: {column['type']}" for column in answer["columns"]]


def unquoted(name: str) -> str:
    return name.strip("`")


def usages_of(expression: str) -> list[str]:
    """Each access, written as in the text of a filter."""
    (answer,) = answers("usages", [{"expression": expression}])
    return [
        ".".join(map(unquoted, [usage["name"], *access["propertyPath"]]))
        + "".join(f":{unquoted(label)}" for label in access["labels"])
        for usage in answer["usages"]
        for access in usage["accesses"]
    ]


def renamed(expression: str) -> list[str]:
    (answer,) = answers("rename", [{"expression": expression, "renames": {"n": "m"}}])
    return [answer["expression"]]


class Examples(unittest.TestCase):
    """The tables of examples."""

    def check_all(self, command: str, member: str, title: str, accepted: bool) -> None:
        rows = [row for path in DOCUMENTS for row in Document(path).rows() if title in row.cells]
        self.assertTrue(rows)
        for row in rows:
            for example in spans(row.cells[title]):
                with self.subTest(line=row.line, example=example):
                    (answer,) = answers(command, [{member: example}])
                    self.assertEqual("error" not in answer and answer.get("status", 0) == 0, accepted, answer)

    def test_of_queries_that_are_accepted(self) -> None:
        self.check_all("columns", "query", "Accepted query", True)

    def test_of_queries_that_are_refused(self) -> None:
        self.check_all("columns", "query", "Refused query", False)

    def test_of_filters_that_are_accepted(self) -> None:
        self.check_all("usages", "expression", "Accepted filter", True)

    def test_of_filters_that_are_refused(self) -> None:
        self.check_all("usages", "expression", "Refused filter", False)

    def check_answers(self, question: str, title: str, ask: Callable[[str], list[str]]) -> None:
        rows = [row for path in DOCUMENTS for row in Document(path).rows() if title in row.cells]
        self.assertTrue(rows)
        for row in rows:
            with self.subTest(line=row.line):
                (text,) = spans(row.cells[question])
                self.assertEqual(ask(text), spans(row.cells[title]))

    def test_of_columns(self) -> None:
        self.check_answers("Query", "Columns", columns_of)

    def test_of_usages(self) -> None:
        self.check_answers("Filter", "Usages", usages_of)

    def test_of_renaming(self) -> None:
        self.check_answers("Filter", "Renamed from n to m", renamed)


if __name__ == "__main__":
    tests = "Recipes" if RECIPES else ["Blocks", "Prose", "Examples"]
    unittest.main(argv=sys.argv[:1], defaultTest=tests)
