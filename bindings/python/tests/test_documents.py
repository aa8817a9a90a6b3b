"""What the documents show is what happens."""

import doctest
import re
import types

import pytest

import vornlib

from sources import README

BLOCKS = re.findall(r"^```pycon\n(.*?)^```$", README.read_text(encoding="utf-8"), re.DOTALL | re.MULTILINE)


def test_the_readme_shows_what_happens() -> None:
    assert BLOCKS
    names: dict[str, object] = {}
    runner = doctest.DocTestRunner()
    for block in BLOCKS:
        test = doctest.DocTestParser().get_doctest(block, names, README.name, None, None)
        runner.run(test, clear_globs=False)
        names = test.globs
    assert runner.failures == 0


def test_the_docstrings_show_what_happens() -> None:
    results = doctest.testmod(vornlib)
    assert results.attempted > 0
    assert results.failed == 0


@pytest.mark.parametrize("name", vornlib.__all__)
def test_everything_public_has_a_docstring(name: str) -> None:
    assert getattr(vornlib, name).__doc__


def test_the_readme_names_every_error() -> None:
    errors = {name for name in vornlib.__all__ if name.endswith("Error")}
    text = README.read_text(encoding="utf-8")
    assert errors <= set(re.findall(r"^\| `(\w+)`", text, re.MULTILINE))


def test_everything_public_is_named() -> None:
    public = {
        name
        for name, value in vars(vornlib).items()
        if not name.startswith("_")
        and not isinstance(value, types.ModuleType)
        and value.__module__ == "vornlib"
    }
    assert public == set(vornlib.__all__)
