"""Syntax errors for people: the message, the line, and a caret under the place."""

import json
import re

from vorn_inspect import InspectTest, main, run


class SyntaxErrors(InspectTest):
    def assert_view(self, text: str, place: str, line: str, caret: str, command: str = "usages") -> None:
        arguments = ["--map", "n=m"] if command == "rename" else []
        result = run(command, *arguments, "-", given=text)
        self.assertEqual((result.status, result.output), (1, ""))
        message, *view = result.error.removesuffix("\n").split("\n")
        view = [row for row in view if not row.startswith("Hint: ")]
        self.assertRegex(message, rf"\Aline {re.escape(place)} ")
        self.assertEqual(view, ["  " + line, "  " + caret])

    def test_have_a_caret_under_the_place(self) -> None:
        self.assert_view("n.age > )", "1:8", "n.age > )", "        ^")
        self.assert_view(")", "1:0", ")", "^")

    def test_are_shown_by_rename_too(self) -> None:
        self.assert_view("n.age > )", "1:8", "n.age > )", "        ^", "rename")

    def test_may_be_one_past_the_end(self) -> None:
        self.assert_view("n.age >", "1:7", "n.age >", "       ^")
        self.assert_view("n.age >\n", "2:0", "", "^")
        self.assert_view("(n", "1:2", "(n", "  ^")

    def test_are_shown_by_columns_too(self) -> None:
        self.assert_view("MATCH (n)\r\nRETURN n n", "2:9", "RETURN n n", "         ^", "columns")

    def test_are_shown_with_their_line_alone(self) -> None:
        self.assert_view("n.a = 1 AND\nn.b = ) AND\nn.c", "2:6", "n.b = ) AND", "      ^")

    def test_in_a_long_line_are_shown_with_what_stands_around_them(self) -> None:
        fits = "n.a = " + "b" * 68 + "+)"
        self.assert_view(fits, "1:75", fits, " " * 75 + "^")
        self.assert_view(
            "n.a = " + "宽" * 30 + "+)" + "b" * 100,
            "1:37",
            "..." + "宽" * 19 + "+)" + "b" * 29 + "...",
            " " * 42 + "^",
        )
        self.assert_view("b" * 80 + "+\t)", "1:82", "..." + "b" * 37 + "+\t)", " " * 41 + "\t^")
        self.assert_view(") " + "é" * 100, "1:0", ") " + "é" * 28 + "...", "^")

    def test_quote_the_runtime_only_as_far_as_a_person_reads(self) -> None:
        long = "a" * 100
        for command, text, message in [
            ("columns", f"RETURN [x IN '{long}' )", "no viable alternative"),
            ("columns", f"RETURN CASE WHEN {long} END", "no viable alternative"),
            ("columns", f"'{long}'", "mismatched input"),
            ("usages", f"'{long}", "token recognition error"),
        ]:
            whole = json.loads(run(command, "--json", text).output)["error"]["message"]
            shown = run(command, text).error.split("\n")[0]
            self.assertIn(long, whole)
            self.assertNotIn("a" * 61, shown)
            self.assertIn("...", shown)
            self.assertIn("a" * 50, shown)
            self.assertIn(message, whole)
            self.assertIn(message, shown)

    def test_have_a_caret_aligned_under_wide_characters(self) -> None:
        self.assert_view("映画.題名 = )", "1:8", "映画.題名 = )", "            ^")

    def test_count_characters_beyond_the_basic_plane_once(self) -> None:
        self.assert_view("'🧭🧭' = )", "1:7", "'🧭🧭' = )", "         ^")

    def test_have_a_caret_aligned_under_combining_marks(self) -> None:
        self.assert_view("'e\u0301' = )", "1:7", "'e\u0301' = )", "      ^")

    def test_inside_a_character_of_several_code_points_are_under_it(self) -> None:
        self.assert_view("n = (\u0301", "1:5", "n = (\u0301", "    ^")

    def test_have_a_caret_aligned_after_tabs(self) -> None:
        self.assert_view("n\t=\t宽\t+\t)", "1:8", "n\t=\t宽\t+\t)", " \t \t  \t \t^")

    def test_have_a_caret_aligned_after_control_characters(self) -> None:
        self.assert_view("'\x1b' = )", "1:6", "'\\u001b' = )", "           ^")

    def test_do_not_count_a_byte_order_mark(self) -> None:
        self.assert_view("\ufeffn = )", "1:4", "n = )", "    ^")

    def test_do_not_show_the_carriage_return_of_a_line_end(self) -> None:
        self.assert_view("n =\r\n)\r\n", "2:0", ")", "^")
        self.assert_view("n = )\r\n", "1:4", "n = )", "    ^")

    def test_have_messages_as_they_are_in_json(self) -> None:
        text = '"' + "x" * 10_000
        error = json.loads(run("usages", "--json", "-", given=text).output)["error"]
        self.assertEqual(error["message"], f"line 1:0 token recognition error at: '{text}'")

    def test_name_few_of_the_tokens_that_are_expected(self) -> None:
        for command, text, message in [
            ("columns", "SELECT 1", "line 1:0 extraneous input 'SELECT' expecting a clause such as MATCH or RETURN"),
            ("columns", "RETURN 1,", "line 1:9 mismatched input '<EOF>' expecting an expression"),
            ("columns", "RETURN (1)(", "line 1:10 extraneous input '(' expecting the end, ';' or white space"),
            ("columns", "RETURN 1 LIMIT", "line 1:14 mismatched input '<EOF>' expecting white space"),
            ("columns", "RETURN 1 LIMIT(1)", "line 1:14 missing white space at '('"),
            ("usages", "' expecting {a}' = )", "line 1:19 mismatched input ')' expecting an expression"),
        ]:
            self.assertEqual(run(command, text).error.split("\n")[0], message)

    def test_name_all_of_them_in_json(self) -> None:
        for command, text in [("columns", "RETURN 1,"), ("usages", "n = )")]:
            message = json.loads(run(command, "--json", text).output)["error"]["message"]
            self.assertIn("HexInteger, DecimalInteger, OctalInteger, HexLetter", message)


class OtherRefusals(InspectTest):
    def test_of_empty_texts_say_so(self) -> None:
        for text in ["", " \n", "/* a */", "// RETURN 1", "\ufeff\u3000", "/****/"]:
            self.assertEqual(run("columns", "-", given=text).error, "The query is empty.\n")
            self.assertEqual(run("usages", "-", given=text).error, "The filter is empty.\n")
            error = json.loads(run("usages", "--json", "-", given=text).output)["error"]
            self.assertEqual((error["kind"], error["line"]), ("empty", 1))

    def test_of_texts_that_are_not_empty_do_not(self) -> None:
        for text in ["/***/", "\x1b", "a", "''", "/*", "\u200b"]:
            error = json.loads(run("columns", "--json", "-", given=text).output)["error"]
            self.assertEqual(error["kind"], "syntax", text)

    def test_of_texts_that_nest_too_deeply_say_so(self) -> None:
        for command, text in [("columns", "RETURN " + "(" * 200_000), ("usages", "(" * 200_000)]:
            result = run(command, "-", given=text)
            self.assertEqual((result.status, result.output), (1, ""))
            self.assertRegex(result.error, r"\A[^\n]*nests too deeply[^\n]*\n\Z")
            error = json.loads(run(command, "--json", "-", given=text).output)["error"]
            self.assertEqual(list(error), ["kind", "message"])
            self.assertEqual(error["kind"], "too deep")


if __name__ == "__main__":
    main()
