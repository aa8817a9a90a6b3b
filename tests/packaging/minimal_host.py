"""The minimal host of the README, and ways to build it in a folder of its own."""

import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

TESTS = pathlib.Path(__file__).resolve().parent
README = (TESTS.parent.parent / "README.md").read_text(encoding="utf-8")


C_HOST = TESTS.parent.parent / "examples" / "hosts" / "c" / "columns.c"
C_QUERY = "MATCH (n)-[r]-() RETURN n, r, 1 AS one"
C_ANSWER = "n: a node\nr: a relationship\none: something else\n"


def block(language: str, first_words: str) -> str:
    """The only block of the README in this language that begins with these words."""
    (text,) = re.findall(rf"^```{language}\n({re.escape(first_words)}.*?)^```$", README, re.DOTALL | re.MULTILINE)
    return text


class HostTest(unittest.TestCase):
    compiler = "c++"

    def setUp(self) -> None:
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        (self.folder / "host.cpp").write_text(block("cpp", "// host.cpp"), encoding="utf-8")

    def run_command(self, *command: object, **options: object) -> str:
        result = subprocess.run(
            [str(word) for word in command],
            cwd=self.folder,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
            **options,
        )
        self.assertEqual(result.returncode, 0, result.stdout)
        return result.stdout

    def configure(self, project: str, *settings: str) -> None:
        shutil.copy(TESTS / project / "CMakeLists.txt", self.folder)
        self.run_command(
            "cmake", "-S", ".", "-B", "build", "-G", "Ninja", f"-DCMAKE_CXX_COMPILER={self.compiler}", *settings
        )

    def put_c_host(self) -> None:
        shutil.copy(C_HOST, self.folder)

    def check_c_host(self, program: str) -> None:
        self.assertEqual(self.run_command(self.folder / program, C_QUERY), C_ANSWER)

    def build(self) -> None:
        self.run_command("cmake", "--build", "build", "-j", "2")

    def check_host(self, program: str, **options: object) -> None:
        self.assertEqual(self.run_command(self.folder / program, **options), block("text", "n: a node"))
