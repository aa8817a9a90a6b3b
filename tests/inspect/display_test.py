"""Tables stay aligned and whole, whatever names they hold."""

import json
import unittest

from vorn_inspect import ON_WINDOWS, InspectTest, main, run, run_on_terminal

HOSTILE = "a\x1b[31m\x07\x7f\x9b\u202e\u200b\U000e0041b"
HARMLESS = r"a\u001b[31m\u0007\u007f\u009b\u202e\u200b\U000e0041b"


def types_column(*names: str) -> list[str]:
    """The lines of the table for a query that returns columns of these names."""
    query = "RETURN " + ", ".join(f"1 AS `{name}`" for name in names)
    return run("columns", "-", given=query).output.splitlines()


class Display(InspectTest):
    def assert_blanks_before_type(self, name: str, width: int) -> None:
        """The name takes that many cells: the one below it, of twelve letters, shows it."""
        line = types_column(name, "twelve cells")[2]
        self.assertEqual(line, name + " " * (12 - width) + "  Unknown")

    def test_gives_wide_characters_two_cells(self) -> None:
        self.assert_blanks_before_type("宽", 2)
        self.assert_blanks_before_type("映画の題名", 10)
        self.assert_blanks_before_type("한국", 4)
        self.assert_blanks_before_type("\uff21", 2)
        self.assert_blanks_before_type("🧭", 2)

    def test_gives_combining_marks_no_cell(self) -> None:
        self.assert_blanks_before_type("e\u0301te\u0301", 3)
        self.assert_blanks_before_type("o\u0308\u0323", 1)

    def test_gives_joined_emoji_the_cells_of_one(self) -> None:
        self.assert_blanks_before_type("👩\u200d👩\u200d👧", 2)
        self.assert_blanks_before_type("👍🏽", 2)
        self.assert_blanks_before_type("🇫🇷", 2)

    def test_gives_a_syllable_of_several_letters_the_cells_of_one(self) -> None:
        self.assert_blanks_before_type("\u1112\u1161\u11ab", 2)

    def test_rules_off_the_heading_by_the_widest_name(self) -> None:
        self.assertEqual(types_column("宽宽宽宽")[1], "────────  ───────")
        self.assertEqual(types_column("n")[1], "──────  ───────")

    def test_escapes_what_would_break_the_table(self) -> None:
        for character, shown in [
            ("\n", "\\n"),
            ("\r", "\\r"),
            ("\t", "\\t"),
            ("\0", "\\u0000"),
            ("\x1b", "\\u001b"),
            ("\x7f", "\\u007f"),
            ("\x85", "\\u0085"),
            ("\u2028", "\\u2028"),
            ("\u2029", "\\u2029"),
            ("\u202e", "\\u202e"),
            ("\u2066", "\\u2066"),
            ("\xad", "\\u00ad"),
            ("\u200b", "\\u200b"),
            ("\ufeff", "\\ufeff"),
            ("\U000e0041", "\\U000e0041"),
        ]:
            lines = types_column(f"a{character}b", "twelve cells")
            self.assertEqual(lines[2], f"a{shown}b".ljust(12) + "  Unknown")

    def test_escapes_in_usages_too(self) -> None:
        result = run("usages", "-", given="`a\nb`.`c\td`:`e\x1bf`")
        self.assertEqual(
            result.output.splitlines()[2], r"`a\nb`    `a\nb`      `a\nb`.`c\td`:`e\u001bf`"
        )

    def test_leaves_no_blanks_at_the_ends_of_lines(self) -> None:
        for output in [run("columns", "MATCH (n) RETURN n, n.a").output, run("usages", "n.a + n.b").output]:
            for line in output.splitlines():
                self.assertEqual(line, line.rstrip())

    def test_escapes_in_what_json_shows_too(self) -> None:
        output = run("columns", "--json", f"RETURN 1 AS `{HOSTILE}`").output
        for character in HOSTILE[1:-1]:
            self.assertEqual(character in output, character in "[31m", repr(character))
        self.assertEqual(json.loads(output)["columns"][0]["name"], HOSTILE)

    def test_escapes_in_messages(self) -> None:
        for text in [f"n.a = '{HOSTILE}", f"'{HOSTILE}' = )", f"`{HOSTILE}` )`{HOSTILE}`("]:
            for command in [["columns"], ["usages"], ["rename", "--map", "n=m"]]:
                result = run(*command, "-", given=text)
                if result.status == 1:
                    self.assertNotRegex(result.error, "[\x1b\x07\x7f\x9b\u202e\u200b\U000e0041]")
        self.assertIn(HARMLESS, run("usages", "-", given=f"n.a = '{HOSTILE}").error.split("\n")[0])

    def test_escapes_arguments_that_it_repeats(self) -> None:
        hostile, harmless = HOSTILE, HARMLESS
        for arguments in [
            ["columns", "--" + hostile],
            ["columns", "RETURN 1", hostile],
            ["columns", "--file", "/no/" + hostile],
            ["rename", "--map", hostile, "n"],
            ["rename", "--map", f"{hostile}=b", "--map", f"{hostile}=c", "n"],
        ]:
            self.assert_wrong_usage(run(*arguments), harmless)

    @unittest.skipIf(ON_WINDOWS, "arguments are UTF-16")
    def test_escapes_arguments_that_are_not_utf_8(self) -> None:
        self.assert_wrong_usage(run("columns", "RETURN 1", b"a\xff\x1bb"), r"a\xff\u001bb")

    def test_gives_a_renamed_text_to_a_program_as_it_is(self) -> None:
        text = f"n.a =\r\n\t'{HOSTILE}'"
        result = run("rename", "--map", "x=y", "-", given=text)
        self.assertEqual(result.output, text + "\n")

    @unittest.skipIf(ON_WINDOWS, "a console draws what has changed, in steps of its own")
    def test_escapes_a_renamed_text_on_a_terminal(self) -> None:
        self.assertEqual(
            run_on_terminal("rename", "--map", "n=m", "-", given=f"n.a =\r\n\t'{HOSTILE}'".encode()),
            f"`m`.a =\r\n\t'{HARMLESS}'\n",
        )


if __name__ == "__main__":
    main()
