"""The host and the commands that the README shows work as they stand there.

    readme_test.py SOURCE_FOLDER LIBRARY_FOLDER COMPILER
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

SOURCE, LIBRARY_FOLDER, COMPILER = sys.argv[1:4]
README = (pathlib.Path(SOURCE) / "README.md").read_text(encoding="utf-8")


def blocks(language: str) -> list[str]:
    return re.findall(rf"^```{language}\n(.*?)^```$", README, re.DOTALL | re.MULTILINE)


def commands(first_word: str) -> str:
    """The one block of commands that begins with this word."""
    (block,) = [block for block in blocks("sh") if block.startswith(first_word)]
    return block


class Readme(unittest.TestCase):
    def setUp(self) -> None:
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        (self.folder / "include").symlink_to(pathlib.Path(SOURCE) / "include")
        (self.folder / "build").mkdir()
        (self.folder / "build" / "release").symlink_to(LIBRARY_FOLDER)

    def run_commands(self, text: str) -> str:
        result = subprocess.run(
            ["sh", "-e", "-c", text], cwd=self.folder, capture_output=True, text=True, encoding="utf-8"
        )
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout

    def test_host_prints_what_is_shown(self) -> None:
        (host,) = blocks("cpp")
        (self.folder / "host.cpp").write_text(host, encoding="utf-8")
        shown = blocks("text")[0]
        self.assertEqual(self.run_commands(commands("g++").replace("g++", COMPILER)), shown)

    def test_vorn_inspect_answers_the_commands_shown(self) -> None:
        for command in commands("build/release/vorn-inspect").splitlines():
            self.assertIn("n", self.run_commands(command))

    def test_names_the_make_targets_that_exist(self) -> None:
        makefile = (pathlib.Path(SOURCE) / "Makefile").read_text(encoding="utf-8")
        for target in re.findall(r"\bmake (\w+)", README):
            self.assertRegex(makefile, rf"(?m)^{target}:")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
