"""The source tree, which the tests only read. The package is the installed one."""

import pathlib

ROOT = pathlib.Path(__file__).resolve().parents[3]
README = ROOT / "bindings" / "python" / "README.md"
HEADER = ROOT / "include" / "vorn" / "vorn.h"
VORN_INSPECT = ROOT / "build" / "release" / "vorn-inspect"


def samples(kind: str) -> list[str]:
    files = sorted((ROOT / "examples" / kind).glob("*.cypher"))
    assert files
    return [file.read_text(encoding="utf-8") for file in files]
