"""VornLib.dll exports what is documented, needs only what every Windows has, and allows a random layout.

    dll_properties_test.py OBJDUMP CXXFILT LIBRARY DOCUMENT COMPILER_RUNTIME

The document lists the exported members of the string classes. The runtime is a list of file names
with semicolons between them.
"""

import re
import subprocess
import sys
import unittest
from pathlib import Path

OBJDUMP, CXXFILT, LIBRARY, DOCUMENT, COMPILER_RUNTIME = sys.argv[1:6]

EXPORTED_FUNCTIONS = {
    "vorn::GetOutputNamesAndTypes",
    "vorn::GetVariableUsagesInPropertyFilterOCExpression",
    "vorn::ReplaceVariableNamesInPropertyFilterOCExpression",
}
SYSTEM_LIBRARIES = {"kernel32.dll", "msvcrt.dll", "oleaut32.dll", "user32.dll"}


def output_of(*command: str, given: str = "") -> str:
    return subprocess.run(command, input=given, check=True, capture_output=True, text=True).stdout


HEADERS = output_of(OBJDUMP, "--private-headers", LIBRARY)


def exported_names() -> set[str]:
    """The exported names, demangled. A constructor or destructor has two symbols with the same name."""
    table = HEADERS.split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
    mangled = re.findall(r"^\s*\[\s*\d+\].* (\S+)$", table, re.MULTILINE)
    return set(output_of(CXXFILT, given="\n".join(mangled)).splitlines())


def documented_members() -> set[str]:
    text = Path(DOCUMENT).read_text("utf-8")
    blocks = re.findall(r"^```exports\n(.*?)^```", text, re.MULTILINE | re.DOTALL)
    # The document shows the wide character of Linux.
    return set("".join(blocks).replace("char16_t", "wchar_t").splitlines())


class Dll(unittest.TestCase):
    maxDiff = None

    def test_exports_the_documented_functions(self) -> None:
        names = {name.partition("(")[0] for name in exported_names() if name.startswith("vorn::")}
        self.assertEqual(names, EXPORTED_FUNCTIONS)

    def test_exports_the_documented_members_besides(self) -> None:
        members = {name for name in exported_names() if not name.startswith("vorn::")}
        self.assertEqual(sorted(members), sorted(documented_members()))

    def test_needs_libraries_of_the_system_and_the_compiler_only(self) -> None:
        needed = {name.lower() for name in re.findall(r"DLL Name: (\S+)", HEADERS)}
        brought = {name.lower() for name in COMPILER_RUNTIME.split(";")}
        self.assertEqual(needed - SYSTEM_LIBRARIES - brought, set())
        self.assertIn("oleaut32.dll", needed)

    def test_is_loaded_at_random_addresses_and_does_not_execute_data(self) -> None:
        for property in ["DYNAMIC_BASE", "HIGH_ENTROPY_VA", "NX_COMPAT"]:
            self.assertRegex(HEADERS, rf"(?m)^\s+{property}$")
        # Without relocations the DLL could not be moved.
        self.assertNotRegex(HEADERS, r"(?m)^\s+relocations stripped$")
        self.assertRegex(HEADERS, r"(?m)^Entry 5 [0-9a-f]+ (?!00000000)\S+ Base Relocation")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
