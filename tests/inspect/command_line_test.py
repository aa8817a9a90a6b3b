"""The arguments, exit statuses and sentences of vorn-inspect."""

import json
import os
import subprocess
import tempfile
import unittest

from vorn_inspect import ON_WINDOWS, VORN_INSPECT, InspectTest, answer, main, run

COMMANDS = {"columns": "MATCH (n) RETURN n", "usages": "n.age > 3", "rename": "n.age > 3"}


def with_map(command: str) -> list[str]:
    return [command, "--map", "n=m"] if command == "rename" else [command]


class Help(InspectTest):
    def test_names_the_commands(self) -> None:
        result = run("--help")
        self.assertEqual((result.status, result.error), (0, ""))
        for command in COMMANDS:
            self.assertRegex(result.output, rf"(?m)^  {command} ")

    def test_of_a_command_names_its_options(self) -> None:
        for command in COMMANDS:
            result = run(command, "--help")
            self.assertEqual((result.status, result.error), (0, ""))
            for option in ["--file FILE", "--json", "--jsonl", "TEXT"]:
                self.assertIn(option, result.output)
            self.assertEqual("--map OLD=NEW" in result.output, command == "rename")

    def test_shows_a_line_and_its_answer_as_they_are(self) -> None:
        for command in COMMANDS:
            lines = run(command, "--help").output.splitlines()
            request, expected = (line.strip() for line in lines if line.startswith("    {"))
            self.assertEqual(run(command, "--jsonl", given=request).output, expected + "\n")

    def test_shows_examples_that_work(self) -> None:
        lines = run("--help").output.splitlines()
        examples = [line.split(maxsplit=1)[1] for line in lines if line.startswith("    vorn-inspect")]
        self.assertEqual(len(examples), len(COMMANDS))
        for example in examples:
            text = example.split('"')[1]
            words = example.split('"')[0].split()
            self.assertEqual(run(*words, text).status, 0, example)


class Version(InspectTest):
    def test_is_printed(self) -> None:
        result = run("--version")
        self.assertEqual((result.status, result.error), (0, ""))
        self.assertRegex(result.output, r"\Avorn-inspect \d+\.\d+\.\d+\n\Z")


class WrongUsage(InspectTest):
    def test_no_command(self) -> None:
        self.assert_wrong_usage(run(), "columns, usages or rename", "--help")

    def test_unknown_command(self) -> None:
        self.assert_wrong_usage(run("explain", "RETURN 1"), "'explain' is no command", "--help")
        self.assert_wrong_usage(run("--verbose", "explain"), "'explain' is no command")
        self.assert_wrong_usage(run("--verbose"), "columns, usages or rename")

    def test_unknown_option(self) -> None:
        for command in COMMANDS:
            result = run(command, "--yaml", "n")
            self.assert_wrong_usage(result, "unknown option '--yaml'", f"{command} --help")
            result = run(command, "--yaml", "n", "m", "-q")
            self.assert_wrong_usage(result, "unknown options '--yaml', '-q'")

    def test_an_option_before_the_command(self) -> None:
        for command, text in COMMANDS.items():
            self.assert_wrong_usage(run("--json", command, text), "'--json' behind the command")

    def test_unexpected_arguments(self) -> None:
        for command in COMMANDS:
            result = run(*with_map(command), "a", "b", "c", "d")
            self.assert_wrong_usage(result, "unexpected arguments 'b', 'c', 'd' (", "quotes")
            result = run(*with_map(command), "a", "--", "-b")
            self.assert_wrong_usage(result, "unexpected argument '-b' (", "quotes")

    def test_strict_without_json_lines(self) -> None:
        for command, text in COMMANDS.items():
            self.assert_wrong_usage(run(*with_map(command), "--strict", text), "--strict", "--jsonl")

    def test_no_text(self) -> None:
        for command in COMMANDS:
            for arguments in [[], ["--json"]]:
                result = run(*with_map(command), *arguments)
                self.assert_wrong_usage(result, "TEXT", "--file", f"{command} --help")

    def test_two_texts(self) -> None:
        for command in COMMANDS:
            self.assert_wrong_usage(run(*with_map(command), "n.a", "n.b"), "n.b", "quotes")
            self.assert_wrong_usage(run(*with_map(command), "-", "n.b"), "n.b")

    def test_a_text_and_a_file(self) -> None:
        for command, text in COMMANDS.items():
            for argument in [text, "-"]:
                result = run(*with_map(command), "--file", os.devnull, argument)
                self.assert_wrong_usage(result, "once")

    def test_two_files(self) -> None:
        for command in COMMANDS:
            result = run(*with_map(command), "--file", os.devnull, "--file", os.devnull)
            self.assert_wrong_usage(result, "--file")

    def test_json_lines_beside_anything_else(self) -> None:
        for command, text in COMMANDS.items():
            for others in [[text], ["-"], ["--json"]]:
                self.assert_wrong_usage(run(command, "--jsonl", *others), "--jsonl", "leave out")
        self.assert_wrong_usage(run("rename", "--jsonl", "--map", "n=m"), "--jsonl", "leave out")

    def test_a_flag_with_a_value(self) -> None:
        self.assert_wrong_usage(run("columns", "--json=false", "RETURN 1"))

    def test_an_option_without_its_value(self) -> None:
        self.assert_wrong_usage(run("columns", "--file"), "FILE")
        self.assert_wrong_usage(run("rename", "n", "--map"), "OLD=NEW")


class UnreadableText(InspectTest):
    def test_a_file_that_is_not_there(self) -> None:
        for command in COMMANDS:
            result = run(*with_map(command), "--file", "/no/such/file.cypher")
            self.assert_wrong_usage(result, "/no/such/file.cypher", os.strerror(2))

    def test_a_directory(self) -> None:
        self.assert_wrong_usage(run("columns", "--file", "/"), "'/'")
        directory = os.open("/", os.O_RDONLY)
        try:
            self.assert_wrong_usage(run("columns", "-", stdin=directory), "standard input")
            self.assert_wrong_usage(run("columns", "--jsonl", stdin=directory), "standard input")
            self.assert_wrong_usage(run("columns", "--jsonl", "--file", "/"), "'/'")
        finally:
            os.close(directory)

    def test_bytes_that_are_not_utf_8(self) -> None:
        for text in [b"RETURN '\xff'", b"RETURN '\xed\xa0\x80'", b"RETURN '\xc0\xaf'", b"RETURN '\xe2\x82"]:
            self.assert_wrong_usage(run("columns", "-", given=text), "UTF-8", "byte 9")
            self.assert_wrong_usage(run("columns", "--json", "-", given=text), "UTF-8")
            with tempfile.NamedTemporaryFile() as file:
                file.write(text)
                file.flush()
                self.assert_wrong_usage(run("columns", "--file", file.name), "UTF-8", file.name)

    @unittest.skipIf(ON_WINDOWS, "arguments are UTF-16")
    def test_arguments_that_are_not_utf_8(self) -> None:
        self.assert_wrong_usage(run("columns", b"RETURN '\xff'"), "UTF-8", "byte 9")
        self.assert_wrong_usage(run("rename", "--map", b"n=\xff", "n"), "UTF-8")


class UnwritableOutput(InspectTest):
    def test_is_told(self) -> None:
        with open("/dev/full", "wb") as full:
            for arguments in [
                ["--help"],
                ["--version"],
                ["columns", "RETURN 1"],
                ["columns", "--json", "RETURN 1"],
                ["usages", "n"],
                ["rename", "--map", "n=m", "n"],
            ]:
                result = subprocess.run(
                    [VORN_INSPECT, *arguments], stdout=full, stderr=subprocess.PIPE, check=False
                )
                self.assertEqual(result.returncode, 2, arguments)
                self.assertRegex(result.stderr, rb"\Avorn-inspect: standard output [^\n]+\.\n\Z")

    def test_ends_a_batch(self) -> None:
        with open("/dev/full", "wb") as full:
            result = subprocess.run(
                [VORN_INSPECT, "columns", "--jsonl"],
                input=b'{"query":"RETURN 1"}\n' * 1000,
                stdout=full,
                stderr=subprocess.PIPE,
                check=False,
            )
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"standard output", result.stderr)


class Text(InspectTest):
    def test_comes_from_an_argument_a_file_or_standard_input(self) -> None:
        query = "MATCH (größe)\r\nRETURN größe\n"
        expected = {"status": 0, "columns": [{"name": "größe", "type": "Node"}]}
        self.assertEqual(answer("columns", "--json", query), expected)
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "größe.cypher")
            with open(path, "wb") as file:
                file.write(query.encode())
            self.assertEqual(answer("columns", "--json", "--file", path), expected)
        result = run("columns", "--json", "-", given=query)
        self.assertEqual(json.loads(result.output), expected)

    def test_that_begins_with_a_dash_comes_after_two_dashes(self) -> None:
        self.assertEqual(run("rename", "--map", "n=m", "--", "-n.a").output, "-`m`.a\n")
        self.assert_wrong_usage(run("usages", "-n.a"), "-- before")

    def test_reaches_the_library_as_it_is(self) -> None:
        for text in [
            "[1]",
            "[n, m]",
            "[[n], [m]]",
            "[]",
            "{}",
            "{a: n, b: [m]}",
            "[n.a][0]",
            "'n'",
            '"n"',
            "'it\\'s \"n\"'",
            "`n`",
            "`a,b`",
            "n + ',' + m",
            "n % m",
            "/* slash */n",
            "(n)-->(m)",
            "(n)-[r]->(m)",
            "$n",
            "%n%",
            "columns",
            "usages",
            "rename",
            "-1",
            "--json",
            "--",
            "++",
        ]:
            # What follows an expression is dropped, so that texts which are none fail on either side.
            by_argument = run("rename", "--map", "x=y", "--json", "--", text)
            by_input = run("rename", "--map", "x=y", "--json", "-", given=text)
            self.assertEqual(
                (by_argument.output, by_argument.status), (by_input.output, by_input.status), text
            )
            self.assertIn(by_argument.status, (0, 1))

    def test_in_brackets_or_braces_needs_no_dashes_before_it(self) -> None:
        for text in ["[1]", "[n, m]", "{}", "(n)-->(m)", "'a', \"b\"", "usages", "columns", "/**/n"]:
            by_input = run("usages", "--json", "-", given=text)
            self.assertEqual(run("usages", "--json", text).output, by_input.output, text)
            self.assertNotEqual(by_input.output, "")

    def test_may_be_empty(self) -> None:
        for result in [run("columns", "--json", ""), run("columns", "--json", "--file", os.devnull)]:
            answer_of_nothing = json.loads(result.output)
            self.assertEqual(answer_of_nothing["status"], 1)
            self.assertEqual(answer_of_nothing["error"]["kind"], "empty")

    def test_may_be_a_megabyte(self) -> None:
        text = "'" + "x" * 1_000_000 + "'"
        result = run("columns", "--json", "-", given=f"RETURN {text}")
        self.assertEqual(json.loads(result.output)["columns"], [{"name": text, "type": "Unknown"}])


class ExitStatus(InspectTest):
    def test_is_0_for_a_text_that_was_analysed(self) -> None:
        for command, text in COMMANDS.items():
            for json_option in [[], ["--json"]]:
                result = run(*with_map(command), *json_option, text)
                self.assertEqual((result.status, result.error), (0, ""))

    def test_is_1_for_a_text_that_was_not(self) -> None:
        for command in COMMANDS:
            result = run(*with_map(command), "n +")
            self.assertEqual((result.status, result.output), (1, ""))
            self.assertNotEqual(result.error, "")
            result = run(*with_map(command), "--json", "n +")
            self.assertEqual((result.status, result.error), (1, ""))
            self.assertNotEqual(result.output, "")


if __name__ == "__main__":
    main()
