"""A program of C99 that knows the header only gets the answers that vorn-inspect gives.

    host_test.py C_HOST VORN_INSPECT EXAMPLES
"""

import json
import subprocess
import sys
import unittest
from pathlib import Path

C_HOST, VORN_INSPECT, EXAMPLES = sys.argv[1:4]
TYPES = {0: "Unknown", 4: "Node", 5: "Relationship", 6: "Path", 9: "NodeOrRelationship"}
RENAMES = {"n": "m", "`x`": "😀"}  # as in host/answer_all.c
TEXTS = [path.read_bytes().decode() for path in sorted(Path(EXAMPLES).glob("*/*.cypher"))] + [
    "", "\ufeffn.a", "n.`😀`:`é` = 'x' RETURN", "MATCH (n) RETRUN n", "any(x IN n WHERE x)", "RETURN '\0'", "n AND",
]  # fmt: skip


def output_of(*command: str, given: bytes) -> str:
    return subprocess.run(command, input=given, check=True, stdout=subprocess.PIPE).stdout.decode()


def told_by_host(kind: str, encoding: str) -> "list[list[list[str]]]":
    """Of each answer the lines, and of each line the words. A string comes with the zero behind it."""
    codec = {"utf8": "utf-8", "utf16": "utf-16-le"}[encoding]
    given = b"".join(
        f"{kind} {encoding} {len(data)}\n".encode() + data for data in [text.encode(codec) for text in TEXTS]
    )
    *answers, version = output_of(C_HOST, given=given).split("\n\n")
    assert version.count(".") == 2, version
    return [[line.split() for line in answer.split("\n")] for answer in answers]


def string(word: str, encoding: str) -> str:
    units = bytes.fromhex(word)
    text = units[1::2].decode() if encoding == "utf8" else units.decode("utf-16-be")
    assert text[-1] == "\0", text
    return text[:-1]


def as_json(kind: str, text: str, answer: "list[list[str]]", encoding: str) -> object:
    """The answer as vorn-inspect puts it; for an error, its place and message."""
    error, line, column, _, end = (int(word) for word in answer[0][1:6])
    if error != 0:
        message = string(answer[0][answer[0].index("message") + 1], encoding)
        return {"line": line, "column": column, "message": f"line {line}:{column} {message}"} if line else {"message": message}
    codec, size = {"utf8": ("utf-8", 1), "utf16": ("utf-16-le", 2)}[encoding]
    behind = text.encode(codec)[end * size :].decode(codec)
    dropped = {"dropped": behind} if behind and kind != "columns" else {}
    found: "list[dict]" = []
    for line in answer[1:]:
        value = string(line[-1], encoding) if len(line) > 1 else ""
        if line[0].isdigit():
            found.append({"name": value, "type": TYPES[int(line[0])]})
        elif line[0] == "variable":
            found.append({"name": value, "writtenForms": [], "accesses": []})
        elif line[0] == "written":
            found[-1]["writtenForms"].append(value)
        elif line[0] == "access":
            found[-1]["accesses"].append({"propertyPath": [], "labels": []})
        elif line[0] in ("property", "label"):
            found[-1]["accesses"][-1]["propertyPath" if line[0] == "property" else "labels"].append(value)
        elif line[0] == "renamed":
            return {"expression": value, **dropped}
    return {"status": 0, "columns": found} if kind == "columns" else {"usages": found, **dropped}


def place_and_message(error: dict) -> dict:
    return {key: value for key, value in error.items() if key != "kind"}


class Host(unittest.TestCase):
    maxDiff = None

    def test_gets_the_answers_of_vorn_inspect(self) -> None:
        for kind, key in [("columns", "query"), ("usages", "expression"), ("rename", "expression")]:
            renames = {"renames": RENAMES} if kind == "rename" else {}
            requests = "".join(json.dumps({key: text, **renames}) + "\n" for text in TEXTS)
            lines = output_of(VORN_INSPECT, kind, "--jsonl", given=requests.encode()).split("\n")[:-1]
            expected = [json.loads(line) for line in lines]
            answers = [place_and_message(line["error"]) if "error" in line else line for line in expected]
            self.assertTrue(any("message" in answer for answer in answers))
            for encoding in ["utf8", "utf16"]:
                told = [as_json(kind, text, answer, encoding) for text, answer in zip(TEXTS, told_by_host(kind, encoding))]
                self.assertEqual(told, answers)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
