"""Hosts that have only the installed files can be built and run, even after the installation was moved.

    installed_test.py BUILD_FOLDER INSTALLED_FOLDER COMPILER VERSION
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

from minimal_host import HostTest

BUILD, INSTALLED = (pathlib.Path(argument) for argument in sys.argv[1:3])
HostTest.compiler, VERSION = sys.argv[3:5]


def install_and_move() -> None:
    first = INSTALLED.with_name(INSTALLED.name + ".first")
    for folder in [first, INSTALLED]:
        shutil.rmtree(folder, ignore_errors=True)
    subprocess.run(["cmake", "--install", BUILD, "--prefix", first], check=True, stdout=subprocess.DEVNULL)
    first.rename(INSTALLED)


def next_of(place: int) -> str:
    """The version with this number raised by one."""
    numbers = [int(number) for number in VERSION.split(".")]
    return ".".join(str(number) for number in [*numbers[:place], numbers[place] + 1])


class Installed(HostTest):
    def find_package(self, version: str) -> None:
        self.configure("find_package", f"-DCMAKE_PREFIX_PATH={INSTALLED}", f"-DWANTED_VERSION={version}")

    def test_is_a_cmake_package(self) -> None:
        self.find_package(VERSION.split(".")[0])
        self.build()
        self.check_host("build/host")

    def test_is_refused_where_another_version_is_wanted(self) -> None:
        for version in [next_of(0), next_of(1)]:
            with self.assertRaises(AssertionError) as refused:
                self.find_package(version)
            self.assertIn("version", str(refused.exception))

    def pkg_config(self, *options: str, package: str = "VornLib") -> list[str]:
        folder = next(INSTALLED.rglob("VornLib.pc")).parent
        return self.run_command(
            "pkg-config", *options, package, env={**os.environ, "PKG_CONFIG_PATH": str(folder)}
        ).split()

    def test_serves_c_as_a_cmake_package(self) -> None:
        self.put_c_host()
        self.configure("c_host", f"-DCMAKE_PREFIX_PATH={INSTALLED}")
        self.build()
        self.check_c_host("build/columns")

    def test_serves_c_as_a_pkg_config_package(self) -> None:
        self.put_c_host()
        flags = self.pkg_config("--cflags", "--libs", package="vorn_c")
        (libraries,) = self.pkg_config("--variable=libdir", package="vorn_c")
        own = os.environ.get("CFLAGS", "").split()
        self.run_command("cc", "-std=c99", *own, "columns.c", *flags, f"-Wl,-rpath,{libraries}", "-o", "columns")
        self.check_c_host("columns")
        self.assertEqual(self.pkg_config("--modversion", package="vorn_c"), [VERSION])

    def test_is_a_pkg_config_package(self) -> None:
        flags = self.pkg_config("--cflags", "--libs")
        libraries = self.pkg_config("--variable=libdir")[0]
        own = os.environ.get("CXXFLAGS", "").split()
        self.run_command(
            HostTest.compiler, "-std=c++17", *own, "host.cpp", *flags, f"-Wl,-rpath,{libraries}", "-o", "host"
        )
        self.check_host("host")
        self.assertEqual(self.pkg_config("--modversion"), [VERSION])

    def test_has_one_version(self) -> None:
        macros = self.run_command(
            HostTest.compiler, "-std=c++17", "-E", "-dM", "-include", "vorn/vorn.h", "-xc++", "/dev/null",
            *self.pkg_config("--cflags"),
        )  # fmt: skip
        numbers = [re.search(rf"(?m)^#define VORN_VERSION_{part} (\d+)$", macros)[1] for part in ["MAJOR", "MINOR", "PATCH"]]
        self.assertEqual(".".join(numbers), VERSION)
        for library in INSTALLED.rglob("libVornLib.so"):
            self.assertIn(f"[libVornLib.so.{numbers[0]}]", self.run_command("readelf", "-d", library))

    def test_has_a_vorn_inspect_that_finds_the_library(self) -> None:
        if not (BUILD / "vorn-inspect").exists():
            self.skipTest("This build has no vorn-inspect.")
        self.assertIn(VERSION, self.run_command(INSTALLED / "bin" / "vorn-inspect", "--version"))
        self.assertIn("vorn-inspect", (INSTALLED / "share" / "man" / "man1" / "vorn-inspect.1").read_text())
        completion = INSTALLED / "share" / "bash-completion" / "completions" / "vorn-inspect"
        self.run_command("bash", "-n", completion)

    def test_holds_the_notices_of_what_is_inside(self) -> None:
        notices = (INSTALLED / "share" / "doc" / "VornLib" / "THIRD-PARTY.md").read_text()
        self.assertIn("ANTLR", notices)


if __name__ == "__main__":
    install_and_move()
    unittest.main(argv=sys.argv[:1])
