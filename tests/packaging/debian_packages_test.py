#!/usr/bin/env python3
"""The packages under build/packages hold what a user needs, built with all hardening.

The tests install them, with a compiler, in a new Debian system and use them there. Making that system
needs root or sudo.
"""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

from minimal_host import C_ANSWER, C_HOST, C_QUERY, TESTS, block

ROOT = TESTS.parent.parent
PACKAGES = sorted(path for path in (ROOT / "build" / "packages").glob("*.deb") if "dbgsym" not in path.name)
AS_ROOT = [] if os.geteuid() == 0 else ["sudo"]
TOOLS = "bash-completion,cmake,g++,man-db,ninja-build,pkg-config"


def run(*command: object) -> str:
    result = subprocess.run(
        [str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True
    )
    assert result.returncode == 0, f"{command}\n{result.stdout}"
    return result.stdout


def codename() -> str:
    return run("sh", "-c", ". /etc/os-release; echo $VERSION_CODENAME").strip()


class Packages(unittest.TestCase):
    @classmethod
    def setUpClass(cls) -> None:
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(lambda: run(*AS_ROOT, "rm", "-rf", cls.folder))
        cls.root = cls.folder / "root"
        host = cls.folder / "host"
        host.mkdir()
        shutil.copy(TESTS / "find_package" / "CMakeLists.txt", host)
        (host / "host.cpp").write_text(block("cpp", "// host.cpp"), encoding="utf-8")
        (host / "c").mkdir()
        shutil.copy(TESTS / "c_host" / "CMakeLists.txt", host / "c")
        shutil.copy(C_HOST, host / "c")
        upload = " ".join(f"'{path}'" for path in PACKAGES)
        run(
            *AS_ROOT, "mmdebstrap", "--variant=apt", f"--include={TOOLS}",
            f"--customize-hook=mkdir \"$1/packages\"; cp {upload} \"$1/packages\"",
            f"--customize-hook=cp -R '{host}' \"$1/host\"",
            "--customize-hook=chroot \"$1\" sh -c 'apt-get install --yes /packages/*.deb'",
            codename(), cls.root,
        )  # fmt: skip

    def inside(self, commands: str) -> str:
        # This machine's environment does not fit that system: it may name a compiler cache, for example.
        environment = ["env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL=C.UTF-8"]
        return run(*AS_ROOT, *environment, "chroot", self.root, "bash", "-ec", f"cd /host; {commands}")

    def test_are_four(self) -> None:
        names = [path.name.split("_")[0] for path in PACKAGES]
        self.assertEqual(names, ["libvorn-c1", "libvornlib-dev", "libvornlib1", "vorn-inspect"])

    def test_let_a_host_be_built_by_cmake(self) -> None:
        self.inside("cmake -G Ninja -DWANTED_VERSION=1 -B build . && cmake --build build")
        self.assertEqual(self.inside("build/host"), block("text", "n: a node"))

    def test_let_a_host_be_built_by_pkg_config(self) -> None:
        self.inside("g++ -std=c++17 host.cpp $(pkg-config --cflags --libs VornLib) -o host")
        self.assertEqual(self.inside("./host"), block("text", "n: a node"))

    def test_let_a_host_in_c_be_built(self) -> None:
        self.inside("cmake -G Ninja -S c -B build-c && cmake --build build-c")
        self.inside("cc -std=c99 c/columns.c $(pkg-config --cflags --libs vorn_c) -o columns")
        for program in ["build-c/columns", "./columns"]:
            self.assertEqual(self.inside(f"{program} '{C_QUERY}'"), C_ANSWER)

    def test_have_vorn_inspect_with_its_manual(self) -> None:
        self.assertIn("Node", self.inside("vorn-inspect columns 'MATCH (n) RETURN n'"))
        # So small a system has no manuals: dpkg leaves them out.
        (package,) = [path for path in PACKAGES if path.name.startswith("vorn-inspect")]
        run("dpkg-deb", "-x", package, self.folder / "unpacked")
        manual = self.folder / "unpacked/usr/share/man/man1/vorn-inspect.1.gz"
        shown = run("man", "--warnings", "-l", manual)
        for option in ["--file", "--map", "--json", "--jsonl", "--strict", "--help", "--version"]:
            self.assertIn(option, shown)
        self.assertNotIn("warning", shown)

    def test_complete_the_commands_and_options_of_vorn_inspect(self) -> None:
        complete = "/usr/share/bash-completion/completions/vorn-inspect"
        for words, completed in [
            ("us", "usages"),
            ("columns --f", "--file"),
            ("rename --m", "--map"),
            ("columns --s", "--strict"),
            ("columns --m", ""),
        ]:
            line = f"vorn-inspect {words}"
            self.assertEqual(
                self.inside(
                    f". /usr/share/bash-completion/bash_completion; . {complete};"
                    f" COMP_WORDS=({line}); COMP_CWORD={len(words.split())};"
                    f" COMP_LINE='{line}'; COMP_POINT={len(line)}; _vorn_inspect || true; echo ${{COMPREPLY[*]}}"
                ),
                completed + "\n",
            )

    def test_are_hardened(self) -> None:
        # Debian 12 does not build with control-flow protection.
        common = ["hardening-check", "--nocfprotection"]
        run(*common, self.root / "usr/bin/vorn-inspect")
        for name in ["libVornLib.so.1.*", "libvorn_c.so.1.*"]:
            (library,) = self.root.glob(f"usr/lib/*/{name}")
            # Fortifying finds nothing there: the copies go to buffers whose size no compiler knows.
            run(*common, "--nopie", "--nofortify", library)


if __name__ == "__main__":
    unittest.main()
