"""vorn-inspect says the same of samples, and of samples that are no longer valid."""

import json
import random
import subprocess
from typing import Any, Callable

import vornlib

from sources import VORN_INSPECT, samples


def damaged(texts: list[str]) -> list[str]:
    """The texts, and many of them with something missing, added or in another place."""
    chance = random.Random(1)
    result = list(texts)
    for text in texts:
        for _ in range(30):
            start, end = sorted(chance.choices(range(len(text)), k=2))
            result += [
                text[:start],
                text[:start] + text[start + 1 :],
                text[:start] + chance.choice("𝕏é`'(]}\n:.") + text[start:],
                text[:start] + text[end:] + text[start:end],
            ]
    return result


def inspect(command: str, requests: list[dict[str, Any]]) -> list[dict[str, Any]]:
    said = subprocess.run(
        [VORN_INSPECT, command, "--jsonl"],
        input="".join(json.dumps(request) + "\n" for request in requests).encode(),
        capture_output=True,
    )
    return [json.loads(line) for line in said.stdout.decode().splitlines()]


def compare(
    command: str, requests: list[dict[str, Any]], ask: Callable[[dict[str, Any]], dict[str, Any]]
) -> None:
    answers = inspect(command, requests)
    assert len(answers) == len(requests)
    refused = 0
    for request, answer in zip(requests, answers):
        dropped = answer.pop("dropped", "")
        try:
            assert ask(request) == answer
            if "expression" in request:
                text = request["expression"]
                assert text[vornlib.expression_end(text) :] == dropped
        except vornlib.CypherError as error:
            refused += 1
            assert str(error) == answer["error"]["message"]
            if isinstance(error, vornlib.CypherSyntaxError):
                assert (error.line, error.column) == (answer["error"]["line"], answer["error"]["column"])
            assert isinstance(error, vornlib.ForbiddenElementError) == (answer["error"]["kind"] == "forbidden")
    assert 0 < refused < len(requests)


def test_columns() -> None:
    names = {
        "NODE": "Node",
        "RELATIONSHIP": "Relationship",
        "PATH": "Path",
        "NODE_OR_RELATIONSHIP": "NodeOrRelationship",
        "UNKNOWN": "Unknown",
    }

    def ask(request: dict[str, Any]) -> dict[str, Any]:
        return {
            "status": 0,
            "columns": [
                {"name": column.name, "type": names[column.type.name]}
                for column in vornlib.columns(request["query"])
            ],
        }

    compare("columns", [{"query": query} for query in damaged(samples("queries"))], ask)


def utf16(name: str) -> bytes:
    return name.encode("utf-16-be")


def test_usages() -> None:
    def ask(request: dict[str, Any]) -> dict[str, Any]:
        return {
            "usages": [
                {
                    "name": name,
                    "writtenForms": sorted(usage.written_forms, key=utf16),
                    "accesses": sorted(
                        (
                            {
                                "propertyPath": list(access.property_path),
                                "labels": sorted(access.labels, key=utf16),
                            }
                            for access in usage.accesses
                        ),
                        key=lambda access: [[*map(utf16, names)] for names in access.values()],
                    ),
                }
                for name, usage in vornlib.usages(request["expression"]).items()
            ]
        }

    compare("usages", [{"expression": text} for text in damaged(samples("filters"))], ask)


def test_renaming() -> None:
    def ask(request: dict[str, Any]) -> dict[str, Any]:
        return {"expression": vornlib.rename(request["expression"], request["renames"])}

    renames = {"n": "m", "a": "b`c", "person": "𝒑"}
    requests = [{"expression": text, "renames": renames} for text in damaged(samples("filters"))]
    compare("rename", requests, ask)
