#!/usr/bin/env python3
"""Hosts can build the library as part of their own build, and link it statically.

Every test compiles the ANTLR runtime, so this takes minutes and has a make target of its own.
"""

import re
import subprocess
import sys
import unittest

from minimal_host import TESTS, HostTest

SOURCE = TESTS.parent.parent
HEADER = (SOURCE / "include" / "vorn" / "vorn.h").read_text(encoding="utf-8")
VERSION = ".".join(re.findall(r"(?m)^#define VORN_VERSION_\w+ (\d+)$", HEADER))
STRICT = "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror"


class Embedded(HostTest):
    def test_by_fetch_content(self) -> None:
        self.configure("fetch_content", f"-DVORN_SOURCE={SOURCE}", STRICT)
        self.build()
        self.check_host("build/host")

    def test_by_add_subdirectory_as_a_static_library_that_can_be_installed(self) -> None:
        self.configure("add_subdirectory", f"-DVORN_SOURCE={SOURCE}", STRICT)
        self.build()
        self.check_host("build/host")
        self.assertNotIn("VornLib", self.run_command("readelf", "-d", "build/host"))
        subprocess.run(
            [sys.executable, TESTS / "installed_test.py",
             self.folder / "build", self.folder / "installed", HostTest.compiler, VERSION],
            check=True,
        )  # fmt: skip


if __name__ == "__main__":
    unittest.main()
