"""The installed package is whole and comes from the wheel."""

import importlib.metadata
import pathlib
import re
import subprocess
import sys

import vornlib

from sources import HEADER

FOLDER = pathlib.Path(vornlib.__file__).parent


def test_nothing_of_the_source_tree_is_used() -> None:
    assert FOLDER.is_relative_to(sys.prefix)


def test_the_version_is_that_of_the_library() -> None:
    parts = re.findall(r"#define VORN_VERSION_\w+ (\d+)", HEADER.read_text(encoding="utf-8"))
    assert vornlib.__version__ == ".".join(parts)
    assert importlib.metadata.version("vornlib") == vornlib.__version__


def test_nothing_else_is_needed() -> None:
    assert importlib.metadata.requires("vornlib") is None


def test_the_notices_of_what_is_inside_come_along() -> None:
    files = importlib.metadata.files("vornlib")
    assert files
    (notices,) = [file for file in files if file.name == "THIRD-PARTY.md"]
    text = notices.read_text(encoding="utf-8")
    for part in ["ANTLR", "UTF8-CPP", "nanobind"]:
        assert part in text


def test_of_the_module_only_its_entry_is_exported() -> None:
    (module,) = FOLDER.glob("_native.*.so")
    exported = subprocess.check_output(["nm", "-D", "--defined-only", module], text=True)
    assert [line.split()[-1] for line in exported.splitlines()] == ["PyInit__native"]


def test_types_are_told() -> None:
    assert (FOLDER / "py.typed").exists()
