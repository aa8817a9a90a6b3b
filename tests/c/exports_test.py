"""The library of the C interface exports what the header declares and nothing else, and needs nothing
that its hosts may lack.

    exports_test.py NM_OR_OBJDUMP LIBRARY SOURCES
"""

import re
import subprocess
import sys
import unittest
from pathlib import Path

TOOL, LIBRARY, SOURCES = sys.argv[1:4]
IS_DLL = LIBRARY.endswith(".dll")
SYSTEM_LIBRARIES = {"kernel32.dll", "msvcrt.dll"}


def output_of(*options: str) -> str:
    return subprocess.run([TOOL, *options, LIBRARY], check=True, capture_output=True, text=True).stdout


def declared() -> "set[str]":
    header = Path(SOURCES, "include/vorn/vorn_c.h").read_text("utf-8")
    return set(re.findall(r"^VORN_C_API [^;]*?\b(vorn_\w+)\(", header, re.MULTILINE))


class Exports(unittest.TestCase):
    maxDiff = None

    def test_are_declared(self) -> None:
        self.assertGreater(len(declared()), 30)
        if IS_DLL:
            table = output_of("--private-headers").split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
            exported = re.findall(r"^\s*\[\s*\d+\].* (\S+)$", table, re.MULTILINE)
        else:
            exported = re.findall(r"^[0-9a-f]+ T (\S+)$", output_of("--dynamic", "--defined-only"), re.MULTILINE)
            self.assertEqual(len(exported), len(output_of("--dynamic", "--defined-only").splitlines()))
        self.assertEqual(sorted(exported), sorted(declared()))

    def test_are_listed_for_windows(self) -> None:
        listed = Path(SOURCES, "src/vorn_c.def").read_text("utf-8").split("EXPORTS\n")[1].split()
        self.assertEqual(listed, sorted(declared()))

    @unittest.skipUnless(IS_DLL, "for DLLs")
    def test_come_without_the_runtime_of_a_compiler(self) -> None:
        needed = {name.lower() for name in re.findall(r"DLL Name: (\S+)", output_of("--private-headers"))}
        self.assertEqual(needed, SYSTEM_LIBRARIES)

    @unittest.skipUnless(IS_DLL, "for DLLs")
    def test_are_loaded_at_random_addresses_and_data_is_not_executed(self) -> None:
        for property in ["DYNAMIC_BASE", "HIGH_ENTROPY_VA", "NX_COMPAT"]:
            self.assertRegex(output_of("--private-headers"), rf"(?m)^\s+{property}$")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
