"""Hosts on Windows that share nothing with the DLL but the header get the answers of the one on Linux.

    foreign_runtime_test.py LINUX_HOST EMULATOR BUILD_FOLDER HEADERS COMPILER OTHER_COMPILER EXAMPLES GENERATOR

The first is built by another compiler than the DLL, without any C runtime, and linked by another linker by
way of the import library. The second looks the functions up in a DLL that it loads.
"""

import json
import random
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

LINUX_HOST, EMULATOR, BUILD, HEADERS, COMPILER, OTHER_COMPILER, EXAMPLES, GENERATOR = sys.argv[1:9]
SOURCES = Path(__file__).resolve().parent / "host"
SEED = 20261122
TARGET = "--target=x86_64-pc-windows-msvc"
KERNEL32 = "LIBRARY kernel32.dll\nEXPORTS\n  ExitProcess\n  GetStdHandle\n  ReadFile\n  WriteFile\n"
HARD_TEXTS = ["", "\ufeffRETURN 1", "RETURN '\0' ?", "n.`😀` = '\r\n\x1a", "(" * 90 + "n", "MATCH (n) RETRUN n"]


def run(*command: "str | Path", **options: object) -> bytes:
    result = subprocess.run(command, capture_output=True, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command}: {result.returncode}\n{result.stdout[:2000]!r}{result.stderr!r}")
    return result.stdout


def texts() -> "list[str]":
    found = [path.read_bytes().decode() for path in sorted(Path(EXAMPLES).glob("*/*.cypher"))]
    for kind, count in [("queries", 900), ("filters", 500), ("forbidden-filters", 100)]:
        lines = run(EMULATOR, GENERATOR, kind, str(count), str(SEED)).splitlines()
        found += [json.loads(line) for line in lines]
    draw = random.Random(SEED)
    for text in found[:]:
        place = draw.randrange(len(text) + 1)
        found.append(text[:place] + draw.choice(["`", "(", "?", " AND", "é"]) + text[place + draw.randrange(3) :])
    return found + HARD_TEXTS


def question(kind: str, text: str, encoding: str) -> bytes:
    data = text.encode("utf-8" if encoding == "utf8" else "utf-16-le")
    return f"{kind} {encoding} {len(data)}\n".encode() + data


class ForeignRuntime(unittest.TestCase):
    @classmethod
    def setUpClass(cls) -> None:
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        cls.folder = Path(scratch.name)

    def compiled(self, name: str) -> Path:
        output = self.folder / f"{name}.obj"
        run(
            OTHER_COMPILER, TARGET, "-std=c99", "-ffreestanding", "-O1", "-mno-stack-arg-probe", "-Wall", "-Wextra",
            "-Werror", "-pedantic", "-I", HEADERS, "-c", SOURCES / f"{name}.c", "-o", output,
        )  # fmt: skip
        return output

    def test_links_the_import_library(self) -> None:
        (self.folder / "kernel32.def").write_text(KERNEL32)
        system = self.folder / "kernel32.lib"
        run("llvm-dlltool", "-m", "i386:x86-64", "-d", self.folder / "kernel32.def", "-l", system)
        host = self.folder / "host.exe"
        run(
            "lld-link", "/nologo", "/entry:start", "/subsystem:console", "/nodefaultlib", f"/out:{host}",
            self.compiled("answer_all"), self.compiled("windows_io"), Path(BUILD, "vorn_c.lib"), system,
        )  # fmt: skip
        questions = b"".join(
            question(kind, text, encoding)
            for text in texts()
            for kind in ["columns", "usages", "rename"]
            for encoding in ["utf8", "utf16"]
        )
        expected = run(LINUX_HOST, input=questions).split(b"\n")
        actual = run(EMULATOR, host, input=questions).split(b"\n")
        self.assertGreater(len(expected), 50_000)
        for left, right in zip(expected, actual):
            self.assertEqual(left, right)
        self.assertEqual(len(expected), len(actual))

    def test_looks_functions_up_in_a_loaded_dll(self) -> None:
        host = self.folder / "loading.exe"
        run(COMPILER, "-std=c99", "-I", HEADERS, SOURCES / "loading.c", "-o", host)
        library = f"Z:{BUILD}/vorn_c.dll".replace("/", "\\")
        for query, output in [
            ("MATCH (n) RETURN n, 1 AS b", b"n\r\nb\r\n"),
            ("MATCH (n) RETRUN n", b"no viable alternative at input 'MATCH (n) RETRUN'\r\n"),
        ]:
            self.assertEqual(run(EMULATOR, host, library, query), output)


if __name__ == "__main__":
    if not Path(LINUX_HOST).exists():
        sys.exit(f"{LINUX_HOST} is missing; build `c_host` in build/release.")
    unittest.main(argv=sys.argv[:1])
