"""Fetching the ANTLR runtime fails with one sentence and leaves nothing half done.

    fetch_antlr_runtime_test.py SOURCE_FOLDER

The mirror is a folder of the test's own, so no network is needed.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(sys.argv[1]) / "tools"
SCRIPT = "fetch-antlr-runtime.sh"
ARCHIVE = "pool/main/a/antlr4-cpp-runtime/antlr4-cpp-runtime_4.10+dfsg.orig.tar.xz"


@unittest.skipUnless(pathlib.Path("/usr/lib/apt/apt-helper").exists(), "needs apt")
class FetchAntlrRuntime(unittest.TestCase):
    def setUp(self) -> None:
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        self.build = self.folder / "build"
        (self.folder / "tools").mkdir()
        for script in [SCRIPT, "fetch-from-pool.sh", "fail.sh"]:
            shutil.copy(TOOLS / script, self.folder / "tools")
        self.mirror = self.folder / "mirror"
        (self.mirror / ARCHIVE).parent.mkdir(parents=True)
        (self.folder / "state" / "lists" / "partial").mkdir(parents=True)
        (self.folder / "apt.conf").write_text(
            f'Dir::Etc::sourcelist "{self.folder}/sources.list";\n'
            'Dir::Etc::sourceparts "/dev/null";\n'
            f'Dir::State "{self.folder}/state/";\n',
            encoding="utf-8",
        )
        codename = re.search(r"^VERSION_CODENAME=(\w+)", pathlib.Path("/etc/os-release").read_text(), re.M)
        self.assertIsNotNone(codename)
        self.use_sources(f"deb [trusted=yes] file:{self.mirror} {codename[1]} main\n")

    def use_sources(self, text: str) -> None:
        (self.folder / "sources.list").write_text(text, encoding="utf-8")

    def fetch(self) -> subprocess.CompletedProcess:
        return subprocess.run(
            ["sh", self.folder / "tools" / SCRIPT],
            env={**os.environ, "APT_CONFIG": str(self.folder / "apt.conf")},
            capture_output=True,
            text=True,
        )

    def assert_fails_in_one_sentence(self, words: str) -> None:
        result = self.fetch()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(result.stderr.splitlines()), 1, result.stderr)
        self.assertIn("fetch-from-pool: ", result.stderr)
        self.assertIn(words, result.stderr)
        self.assertEqual(list(self.build.glob("*")), [])

    def test_refuses_an_archive_with_the_wrong_hash(self) -> None:
        (self.mirror / ARCHIVE).write_bytes(b"something else")
        self.assert_fails_in_one_sentence("Hash Sum mismatch")

    def test_says_what_it_cannot_fetch(self) -> None:
        self.assert_fails_in_one_sentence("cannot fetch antlr4-cpp-runtime_4.10+dfsg.orig.tar.xz")

    def test_says_when_there_is_no_mirror(self) -> None:
        self.use_sources("")
        self.assert_fails_in_one_sentence("knows no mirror")

    def test_does_nothing_when_the_runtime_is_there(self) -> None:
        self.use_sources("")
        (self.build / "antlr4-runtime-4.10").mkdir(parents=True)
        result = self.fetch()
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
