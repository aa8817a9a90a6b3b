"""The sample queries and filters are understood as their readers would."""

import glob
import json
import os
import subprocess
from typing import Optional

from vorn_inspect import VORN_INSPECT, InspectTest, main, run

EXAMPLES = os.environ["VORN_EXAMPLES"]

NODE, RELATIONSHIP, PATH, EITHER, UNKNOWN = (
    "Node",
    "Relationship",
    "Path",
    "NodeOrRelationship",
    "Unknown",
)

COLUMNS: dict[str, list[tuple[str, str]]] = {
    "01-films-of-an-actor": [("film", NODE), ("role", RELATIONSHIP), ("year", UNKNOWN)],
    "02-most-frequent-pairs": [
        ("actor", NODE),
        ("director", NODE),
        ("together", UNKNOWN),
        ("titles[0..5]", UNKNOWN),
    ],
    "03-how-two-people-are-connected": [("chain", PATH), ("steps", UNKNOWN)],
    "04-everybody-on-the-set": [("entry", EITHER), ("part", UNKNOWN)],
    "05-suppliers-of-suppliers": [
        ("route", PATH),
        ("supplier", NODE),
        ("deliveries", RELATIONSHIP),
        ("distance", UNKNOWN),
    ],
    "06-parts-without-a-second-source": [
        ("part", NODE),
        ("only source", UNKNOWN),
        ("part.lead time (days)", UNKNOWN),
    ],
    "07-book-a-delivery": [
        ("item", UNKNOWN),
        ("part", NODE),
        ("stored", RELATIONSHIP),
        ("warehouse", NODE),
    ],
    "08-retire-a-supplier": [],
    "09-money-in-circles": [
        ("ring", PATH),
        ("account", NODE),
        ("transfers", RELATIONSHIP),
        ("total", UNKNOWN),
    ],
    "10-shared-identities": [
        ("first", NODE),
        ("second", NODE),
        ("matches", UNKNOWN),
        ("kinds", UNKNOWN),
    ],
    "11-suspicious-newcomers": [
        ("account", NODE),
        ("transfer", RELATIONSHIP),
        ("flagged.name", UNKNOWN),
    ],
    "12-who-may-open-a-door": [("user", NODE), ("reason", EITHER), ("grant", RELATIONSHIP)],
    "13-procedures-and-rights": [("role", NODE), ("procedure", UNKNOWN), ("mode", UNKNOWN)],
    "14-list-the-labels": [],
    "15-blast-radius": [
        ("affected", NODE),
        ("hops", UNKNOWN),
        ("outage", PATH),
        ("server", NODE),
        ("service", NODE),
    ],
    "16-unpatched-routes": [
        ("path", PATH),
        ("hops", RELATIONSHIP),
        ("target", NODE),
        ("machines", UNKNOWN),
        ("risk", UNKNOWN),
    ],
    "17-names-in-many-scripts": [
        ("l'acteur", NODE),
        ("ρόλος", RELATIONSHIP),
        ("映画", NODE),
        ("タイトル", UNKNOWN),
        ("prénom de l'acteur", UNKNOWN),
    ],
    "18-import-people": [("imported", UNKNOWN)],
    "19-neighbours-in-both-directions": [("element", UNKNOWN)],
}

# By variable, the accesses as "path:labels". None for a filter that is refused.
USAGES: dict[str, Optional[dict[str, list[str]]]] = {
    "01-adults": {"person": [":Person", "age"]},
    "02-nested-address": {"person": ["address", "address.city", "address.country"]},
    "03-large-transfers": {
        "source": [":Trusted"],
        "target": [":Flagged", "risk"],
        "transfer": ["amount"],
    },
    "04-same-name-quoted": {"m": [""], "n": ["", "alias", "name"]},
    "05-many-scripts": {"l'acteur": ["prénom"], "映画": [":作品", "titre original", "題名"]},
    "06-choice": {"part": [":Critical", "minimum", "stock"]},
    "07-gateways": {"gateway": ["", "hosts", "name", "port"], "self": [""]},
    "08-several-lines": {
        "origin": ["since.year"],
        "route": [":Encrypted:Monitored", "hops"],
        "target": ["since.year"],
    },
    "09-refused-quantifier": None,
}


def files(folder: str) -> list[str]:
    return sorted(glob.glob(os.path.join(EXAMPLES, folder, "*.cypher")))


def name_of(path: str) -> str:
    return os.path.splitext(os.path.basename(path))[0]


def content(path: str) -> str:
    with open(path, encoding="utf-8") as file:
        return file.read()


def readable(usages: list) -> dict[str, list[str]]:
    def access_text(access: dict) -> str:
        path = ".".join(key.strip("`") for key in access["propertyPath"])
        return path + "".join(":" + label.strip("`") for label in access["labels"])

    return {u["name"].strip("`"): [access_text(a) for a in u["accesses"]] for u in usages}


class Queries(InspectTest):
    def test_are_all_tested(self) -> None:
        self.assertEqual([name_of(path) for path in files("queries")], sorted(COLUMNS))

    def test_begin_with_a_title(self) -> None:
        for path in files("queries"):
            self.assertRegex(content(path), r"\A// \S[^\n]+\n", path)

    def test_return_their_columns(self) -> None:
        for path in files("queries"):
            with self.subTest(path):
                result = run("columns", "--json", "--file", path)
                self.assertEqual(result.status, 0)
                columns = [{"name": name, "type": kind} for name, kind in COLUMNS[name_of(path)]]
                self.assertEqual(json.loads(result.output), {"status": 0, "columns": columns})


class Filters(InspectTest):
    def test_are_all_tested(self) -> None:
        self.assertEqual([name_of(path) for path in files("filters")], sorted(USAGES))

    def test_read_what_they_read(self) -> None:
        for path in files("filters"):
            with self.subTest(path):
                result = run("usages", "--json", "--file", path)
                expected = USAGES[name_of(path)]
                if expected is None:
                    self.assertEqual(result.status, 1)
                    self.assertEqual(json.loads(result.output)["error"]["kind"], "forbidden")
                else:
                    self.assertEqual(result.status, 0)
                    self.assertEqual(readable(json.loads(result.output)["usages"]), expected)

    def test_are_expressions_to_their_end(self) -> None:
        # What follows an expression is dropped, which a sample would not want to show.
        for path in files("filters"):
            with self.subTest(path):
                self.assertEqual(run("rename", "--map", "x=y", "--file", path).output, content(path))


class Showing(InspectTest):
    def show(self, program: str) -> "subprocess.CompletedProcess[str]":
        return subprocess.run(
            [os.path.join(EXAMPLES, "show-samples.sh"), program],
            check=False,
            capture_output=True,
            encoding="utf-8",
        )

    def test_names_every_sample(self) -> None:
        result = self.show(VORN_INSPECT)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        for path in files("queries"):
            title = content(path).split("\n")[0].removeprefix("// ")
            self.assertIn(f"\n{title}  ({os.path.basename(path)})\n", result.stdout)
        for path in files("filters"):
            self.assertIn(f"\n{name_of(path)}\n", result.stdout)

    def test_renames_in_every_filter(self) -> None:
        shown = self.show(VORN_INSPECT).stdout
        self.assertEqual(shown.count(" becomes x:\n\n    `x`"), len(USAGES))

    def test_fails_if_a_sample_does(self) -> None:
        self.assertEqual(self.show("/bin/false").returncode, 1)


if __name__ == "__main__":
    main()
