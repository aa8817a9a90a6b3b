"""A refused text comes with a hint where it is plain what to write instead."""

import os
import sys
import tempfile
from pathlib import Path

from vorn_inspect import InspectTest, main, run

SOURCE = Path(os.environ["VORN_EXAMPLES"]).parent
sys.path.insert(0, str(SOURCE / "tests" / "documents"))

from markdown import Document, spans  # noqa: E402

# A command, a text that is refused, words of the hint, and a similar text that is accepted.
HINTS = [
    ("columns", "RETURN(1)", "White space must stand behind RETURN.", "RETURN (1)"),
    ("columns", "MATCH (n) where(n.a) RETURN n", "behind WHERE.", "MATCH (n) where (n.a) RETURN n"),
    ("columns", "RETURN (1)OR (2)", "White space must stand before OR.", "RETURN (1) OR (2)"),
    ("columns", "RETURN (1) AND(2)", "behind AND.", "RETURN (1) AND (2)"),
    ("columns", "RETURN 'OR('OR (2)", "before OR.", "RETURN 'OR(' OR (2)"),
    ("columns", "RETURN ('a')STARTS WITH 'a'", "before STARTS.", "RETURN ('a') STARTS WITH'a'"),
    ("usages", " n.a", "Nothing may stand before a filter", "n.a "),
    ("usages", "/* b */n.a", "Nothing may stand before a filter", "n.a/* b */"),
    ("columns", "RETURN 1 AS a, 2 AS b ORDER BY a , b", "commas of ORDER BY", "RETURN 1 , 2"),
    ("columns", "MATCH (n) REMOVE n :A", "REMOVE n:A", "MATCH (n) SET n :A"),
    ("columns", "MATCH ( (a)-->(b) ) RETURN a", "inside the parentheses", "MATCH ((a)-->(b)) RETURN a"),
    ("columns", "MATCH ((a)-->(b) ) RETURN a", "inside the parentheses", "MATCH ( a ) RETURN a"),
    ("usages", "n[ 0]", "inside the brackets", "n [0]"),
    ("usages", "n[0 ]", "inside the brackets", "[ 0 ]"),
    ("usages", "n[0.. 1]", "inside the brackets", "n[0..1]"),
    ("columns", "RETURN a. b(1)", "in a qualified name", "RETURN a. b"),
    ("usages", "n.a = $ p", "behind the $", "n.a = $p"),
    ("usages", "n.a =~ 'a.*'", "STARTS WITH, ENDS WITH and CONTAINS", "n.a = '=~'"),
    ("usages", "exists(n.a)", "n.a IS NOT NULL", "n.exists = f(n.a)"),
    ("columns", "RETURN 1e+3", "no plus sign", "RETURN 1e3+3"),
    ("columns", "RETURN 0X1F", "lower case", "RETURN 0x1F"),
    ("columns", "RETURN 0O17", "lower case", "RETURN 0o17"),
    ("columns", "RETURN 017", "leading zeros", "RETURN 0.017"),
    ("columns", "RETURN 1.", "behind a decimal point", "RETURN 1.0"),
    ("usages", "--n.a", "-(-2)", "-(-n.a)"),
    ("columns", "RETURN 1 — 2", "hyphen", "MATCH (a)—[r]—>(b) RETURN r"),
    ("columns", "RETURN 1 ＜ 2", "Only < and >", "MATCH (a)＜——(b) RETURN a"),
    ("columns", "RETURN 1 ＞ 2", "Only < and >", "MATCH (a)——＞(b) RETURN a"),
    ("usages", "n.a == 1", "one equals sign", "n.a = '=='"),
    ("usages", "n.a != 1", "<>", "n.a <> 1"),
    ("usages", "n.a && n.b", "Write AND", "n.a AND n.b"),
    ("columns", "RETURN a || b", "Write OR", "RETURN a OR b"),
    ("columns", "CREATE INDEX FOR (n:A) ON (n.a)", "schemas", "CREATE (index)"),
    ("columns", "CALL a.b YIELD c RETURN c", "CALL a.b() YIELD c", "CALL a.b YIELD c"),
    ("columns", "CALL a.b() YIELD * RETURN 1", "YIELD *", "CALL a.b() YIELD *"),
    ("columns", "CALL a.b(DISTINCT 1)", "Only functions", "RETURN a.b(DISTINCT 1)"),
    ("columns", "MATCH (n {a: 1}:A) RETURN n", "(n:A {a: 1})", "MATCH (n:A {a: 1}) RETURN n"),
    ("columns", "MATCH ()-[r*1..2:B]->() RETURN r", "[r:B*1..2]", "MATCH ()-[r:B*1..2]->() RETURN r"),
    ("columns", "MATCH ()-[r:A:B]->() RETURN r", "[r:A|B]", "MATCH ()-[r:A|:B]->() RETURN r"),
    ("columns", "MATCH (a) SET $a = 1", "begin with $", "MATCH (a$) SET a$ = 1"),
    ("usages", r"n.a = 'a\x'", "escapes", r"n.a = 'a\\x'"),
    ("usages", r"n.a = 'a\u12'", "escapes", r"n.a = 'a\u0012'"),
    ("columns", "RETURN 1 /***/", "one star", "RETURN 1 /****/"),
    ("columns", "RETURN 1 /* a **/", "one star", "RETURN 1 /* a */"),
    ("usages", "n.a = 'b", "not closed", "n.a = 'b'"),
    ("usages", "n.`a = 1", "not closed", "n.`a` = 1"),
    ("columns", "MATCH (n)", "ends in RETURN", "CREATE (n)"),
    ("columns", "RETURN 1; RETURN 2", "one statement", "RETURN 1;"),
    ("columns", "RETURN 1;;", "one statement", "RETURN 1 ;"),
    ("columns", "MATCH (n) RETRUN n", "Did you mean RETURN?", "MATCH (retrun) RETURN retrun"),
    ("columns", "MTCH (n) RETURN n", "Did you mean MATCH?", "MATCH (mtch) RETURN mtch"),
    ("columns", "MATCHH (n) RETURN n", "Did you mean MATCH?", "MATCH (matchh) RETURN matchh"),
    ("columns", "RETURN 1 LIMIX 1", "Did you mean LIMIT?", "RETURN 1 LIMIT 1"),
    ("columns", "MATCH (order) RETURN order", "`order`", "MATCH (`order`) RETURN `order`"),
    ("usages", "order.id = 1", "`order`", "n.order = 1"),
    ("columns", "RETURN n.call", "`call`", "RETURN n.`call`"),
]


def hints(command: str, text: str) -> list[str]:
    result = run(command, "-", given=text)
    assert result.status == 1, text
    return [row.removeprefix("Hint: ") for row in result.error.split("\n") if row.startswith("Hint: ")]


class Hints(InspectTest):
    def test_say_what_to_write_instead(self) -> None:
        for command, refused, words, _ in HINTS:
            with self.subTest(refused):
                (hint,) = hints(command, refused)
                self.assertIn(words, hint)

    def test_are_not_given_for_what_is_accepted(self) -> None:
        for command, _, _, accepted in HINTS:
            with self.subTest(accepted):
                result = run(command, "-", given=accepted)
                self.assertEqual((result.status, result.error), (0, ""))

    def test_are_not_given_for_what_is_wrong_otherwise(self) -> None:
        for command, _, _, accepted in HINTS:
            if command == "columns" and "CALL" not in accepted:
                # The wrong end makes sure that nothing before it is to blame.
                with self.subTest(accepted):
                    text = accepted.removesuffix(";") + " RETURN 1 (("
                    for hint in hints(command, text):
                        self.fail(hint)

    def test_are_given_for_the_irregularities_of_the_language(self) -> None:
        rows = Document(SOURCE / "docs" / "language.md").rows()
        refused = [text for row in rows for text in spans(row.cells.get("Refused query", ""))]
        self.assertGreater(len(refused), 40)
        for text in refused:
            with self.subTest(text):
                self.assertEqual(len(hints("columns", text)), 1)

    def test_are_not_given_for_what_would_only_be_dropped(self) -> None:
        for text in ["n.a = 1 AND", "n.a = 1 OR", "n.a IN"]:
            self.assertEqual(hints("usages", text), [])

    def test_are_one_for_each_command(self) -> None:
        result = run("rename", "--map", "n=m", "n.a == 1")
        self.assertEqual(result.error.count("Hint: Equality"), 1)

    def test_are_found_in_long_texts(self) -> None:
        before = "MATCH (n) WHERE\n" + "(n.a) AND\n" * 100
        self.assertIn("behind RETURN", hints("columns", "/* " + "x " * 1000 + "*/ MATCH (n)\nRETURN(1)")[0])
        self.assertIn("behind RETURN", hints("columns", f"{before} (n.b)\nRETURN(1)")[0])
        self.assertEqual(hints("columns", "/* " + "x" * 100_000 + "*/ RETURN(1)"), [])

    def test_are_no_part_of_json(self) -> None:
        self.assertNotIn("stand behind", run("columns", "--json", "RETURN(1)").output)


class FileNames(InspectTest):
    def test_in_place_of_a_text_get_the_advice_to_read_the_file(self) -> None:
        for text in [
            "queries/a.cypher",
            "./a",
            "/tmp/a",
            "~/a.cypher",
            "/home/käthe/a-1_b.txt",
        ]:
            with self.subTest(text):
                self.assertEqual(hints("columns", text), [f"To read a file, write --file {text}"])

    def test_that_are_no_plain_argument_are_shown_between_quotation_marks(self) -> None:
        for text in ["../a b/c.cql", "a b.cyp", "C:\\Users\\a.txt", "\\\\server\\a", "/tmp/a&b"]:
            with self.subTest(text):
                self.assertEqual(hints("columns", text), [f'To read a file, write --file "{text}"'])

    def test_of_files_that_are_there_get_it_whatever_they_look_like(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "a (1)")
            Path(path).write_text("RETURN 1")
            self.assertIn(f'--file "{path}"', run("columns", path).error)
            result = run("usages", "n.cypher", cwd=folder)
            self.assertEqual((result.status, result.error), (0, ""))
            Path(folder, "n.cypher").write_text("n.a")
            result = run("usages", "n.cypher", cwd=folder)
            self.assertEqual(result.status, 0)
            self.assertEqual(result.error, "Note: To read a file, write --file n.cypher\n")

    def test_do_not_stand_in_the_way_of_other_hints(self) -> None:
        self.assertEqual(hints("columns", "RETRUN n.txt"), hints("columns", "RETRUN n"))
        self.assertEqual(len(hints("columns", "RETRUN n.txt")), 1)

    def test_are_not_seen_in_other_texts(self) -> None:
        for text in ["a/b", "RETURN 1 / 2 /", "MATCH (a.txt", "n.a", "/ 2", "/RETURN 1", "/"]:
            for hint in hints("columns", text):
                self.assertNotIn("--file", hint)


if __name__ == "__main__":
    main()
