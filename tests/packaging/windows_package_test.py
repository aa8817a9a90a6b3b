"""The zip for Windows, unpacked into an empty folder, is all that a host needs.

    windows_package_test.py SOURCE_FOLDER TOOLCHAIN_FILE EMULATOR CXX_COMPILER

The host and the commands are those of the zip's own README.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

SOURCE, TOOLCHAIN_FILE, EMULATOR, COMPILER = sys.argv[1:5]


def run(*command: "str | Path", **options: object) -> str:
    result = subprocess.run(command, capture_output=True, text=True, encoding="utf-8", **options)
    if result.returncode != 0:
        raise AssertionError(f"{command}:\n{result.stdout}{result.stderr}")
    return result.stdout


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls) -> None:
        archive = run(f"{SOURCE}/tools/package-windows.sh").strip()
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        cls.scratch = Path(scratch.name)
        with zipfile.ZipFile(archive) as contents:
            contents.extractall(scratch.name)
        (cls.package,) = cls.scratch.iterdir()
        cls.readme = (cls.package / "README.md").read_text("utf-8")

    def block(self, language: str) -> str:
        (text,) = re.findall(rf"^```{language}\n(.*?)^```$", self.readme, re.DOTALL | re.MULTILINE)
        return text

    def folder_with_host(self, name: str) -> Path:
        folder = self.scratch / name
        folder.mkdir()
        (folder / "host.cpp").write_text(self.block("cpp"), encoding="utf-8")
        (folder / "CMakeLists.txt").write_text(self.block("cmake"), encoding="utf-8")
        return folder

    def output_of(self, program: Path, *arguments: str) -> str:
        # Wine must not find the DLLs of the build folder.
        environment = {**os.environ, "WINEPATH": str(self.package / "bin")}
        output = run(EMULATOR, program, *arguments, env=environment, cwd=self.scratch)
        return output.replace("\r\n", "\n")

    def test_has_one_folder_for_each_thing(self) -> None:
        files = {path.relative_to(self.package).as_posix() for path in self.package.rglob("*")}
        expected = {
            "bin/VornLib.dll",
            "bin/vorn-inspect.exe",
            "bin/libstdc++-6.dll",
            "bin/libgcc_s_seh-1.dll",
            "bin/libwinpthread-1.dll",
            "bin/vorn_c.dll",
            "include/vorn/vorn.h",
            "include/vorn/vorn_c.h",
            "lib/vorn_c.lib",
            "lib/vorn_c.def",
            "include/vorn/strings/String.h",
            "lib/libVornLib.dll.a",
            "lib/cmake/VornLib/VornLibConfig.cmake",
            "licenses/THIRD-PARTY.md",
            "licenses/gcc-mingw-w64-x86-64-posix-runtime.txt",
            "README.md",
        }
        self.assertEqual(expected - files, set())
        self.assertEqual(
            {file.partition("/")[0] for file in files},
            {"bin", "include", "lib", "licenses", "README.md"},
        )

    def test_names_no_folder_of_the_build(self) -> None:
        for file in self.package.rglob("*"):
            if file.suffix in {".cmake", ".h", ".md", ".pc"}:
                self.assertNotIn(SOURCE, file.read_text("utf-8"), file)

    def test_builds_a_host_by_cmake(self) -> None:
        folder = self.folder_with_host("by-cmake")
        build = folder / "build"
        run(
            "cmake", "-S", folder, "-B", build, "-G", "Ninja",
            f"-DCMAKE_TOOLCHAIN_FILE={TOOLCHAIN_FILE}",
            f"-DVornLib_DIR={self.package}/lib/cmake/VornLib",
        )  # fmt: skip
        run("cmake", "--build", build)
        self.assertEqual(self.output_of(build / "host.exe"), self.block("text"))

    def test_builds_a_host_by_the_compiler_alone(self) -> None:
        folder = self.folder_with_host("by-compiler")
        command = self.block("sh").replace("FOLDER", str(self.package)).split()
        run(COMPILER, *command[1:], cwd=folder)
        self.assertEqual(self.output_of(folder / "host.exe"), self.block("text"))

    def test_serves_a_host_in_c_with_the_dll_alone(self) -> None:
        folder = self.scratch / "c"
        folder.mkdir()
        host = folder / "columns.exe"
        run(
            COMPILER.replace("g++", "gcc"), "-std=c99", "-I", self.package / "include",
            Path(SOURCE, "examples/hosts/c/columns.c"), self.package / "lib/vorn_c.lib", "-o", host,
        )  # fmt: skip
        shutil.copy(self.package / "bin/vorn_c.dll", folder)
        output = run(EMULATOR, host, "MATCH (n) RETURN n", env={**os.environ, "WINEPATH": str(folder)}, cwd=folder)
        self.assertEqual(output, "n: a node\n")

    def test_has_a_program_to_try(self) -> None:
        output = self.output_of(self.package / "bin" / "vorn-inspect.exe", "columns", "MATCH (ö) RETURN ö")
        self.assertIn("ö       Node\n", output)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
