"""The library exports what is documented and nothing else, and can be unloaded.

    exported_symbols_test.py NM LIBRARY DOCUMENT

The document lists the exported members of the string classes.
"""

import ctypes
import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

NM, LIBRARY, DOCUMENT = sys.argv[1:4]

EXPORTED_FUNCTIONS = {
    "vorn::GetOutputNamesAndTypes",
    "vorn::GetVariableUsagesInPropertyFilterOCExpression",
    "vorn::ReplaceVariableNamesInPropertyFilterOCExpression",
}


def dynamic_symbols(*options: str) -> list[tuple[str, str]]:
    """Type letter and demangled name of each symbol in the dynamic symbol table."""
    output = subprocess.run(
        [NM, "--dynamic", "--demangle", *options, LIBRARY], check=True, capture_output=True, text=True
    ).stdout
    return re.findall(r"^[0-9a-f ]* (\w) (.*)$", output, re.MULTILINE)


def exported_names() -> list[str]:
    return [name for _, name in dynamic_symbols("--defined-only")]


def documented_members() -> list[str]:
    text = Path(DOCUMENT).read_text("utf-8")
    blocks = re.findall(r"^```exports\n(.*?)^```", text, re.MULTILINE | re.DOTALL)
    return "".join(blocks).splitlines()


class ExportedSymbols(unittest.TestCase):
    maxDiff = None

    def test_are_the_documented_functions(self) -> None:
        names = [name.partition("(")[0] for name in exported_names() if name.startswith("vorn::")]
        self.assertEqual(sorted(names), sorted(EXPORTED_FUNCTIONS))

    def test_are_the_documented_members_besides(self) -> None:
        # A constructor or destructor has two symbols with the same name.
        members = {name for name in exported_names() if not name.startswith("vorn::")}
        self.assertEqual(sorted(members), sorted(documented_members()))

    def test_are_ordinary_code(self) -> None:
        self.assertEqual({kind for kind, _ in dynamic_symbols("--defined-only")}, {"T"})

    def test_of_the_antlr_runtime_are_not_asked_for_elsewhere(self) -> None:
        self.assertEqual([name for _, name in dynamic_symbols() if "antlr" in name], [])

    @unittest.skipIf("VORN_CROSS" in os.environ, "the interpreter cannot load a library for another machine")
    def test_let_the_library_be_unloaded(self) -> None:
        def is_loaded() -> bool:
            with open("/proc/self/maps", encoding="ascii") as maps:
                return "libVornLib" in maps.read()

        library = ctypes.CDLL(LIBRARY)
        self.assertTrue(is_loaded())
        dlclose = ctypes.CDLL(None).dlclose
        dlclose.argtypes = [ctypes.c_void_p]
        self.assertEqual(dlclose(library._handle), 0)
        self.assertFalse(is_loaded())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
