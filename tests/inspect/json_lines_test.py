"""Batches: vorn-inspect COMMAND --jsonl"""

import json
import os
import subprocess
import tempfile
import unittest

from vorn_inspect import ON_WINDOWS, VORN_INSPECT, InspectTest, answer_lines, main, run, run_on_terminal

GOOD = b'{"query":"RETURN 1"}'
GOOD_ANSWER = '{"status":0,"columns":[{"name":"1","type":"Unknown"}]}'


class Lines(InspectTest):
    def assert_input_error(self, result: object) -> None:
        self.assertIsInstance(result, dict)
        self.assertEqual(list(result), ["error"], result)
        self.assertEqual(list(result["error"]), ["kind", "message"])
        self.assertEqual(result["error"]["kind"], "input")
        self.assertRegex(result["error"]["message"], r"\A[^\n]{1,100}\.\Z")

    def test_are_answered_in_order(self) -> None:
        names = [f"n{i}" for i in range(50)]
        answers = answer_lines("columns", *({"query": f"RETURN {name}"} for name in names))
        self.assertEqual([answer["columns"][0]["name"] for answer in answers], names)

    def test_that_are_no_requests_do_not_stop_the_batch(self) -> None:
        for line in [
            b"",
            b"   ",
            b"RETURN 1",
            b"[]",
            b"1",
            b"null",
            b'"RETURN 1"',
            b"{}",
            b'{"query":1}',
            b'{"query":null}',
            b'{"query":["RETURN 1"]}',
            b'{"Query":"RETURN 1"}',
            b'{"expression":"n"}',
            b'{"query":"RETURN 1"',
            b'{"query":"RETURN 1"} {}',
            b"{'query':'RETURN 1'}",
            b'{"query":"RETURN 1","number":1e999}',
            b'{"query":"\\x"}',
            b"\xff\xfe",
            b'{"query":"RETURN \x00"}',
            b"\x00",
            b'{"query":' * 100_000,
            b"[" * 1_000_000 + b"]" * 1_000_000,
        ]:
            answers = answer_lines("columns", GOOD, line, GOOD)
            self.assertEqual(len(answers), 3, line[:40])
            self.assertEqual([answers[0], answers[2]], [json.loads(GOOD_ANSWER)] * 2)
            self.assert_input_error(answers[1])

    def test_that_are_not_well_formed_are_told_from_those_that_are_no_json(self) -> None:
        for line, kind, message in [
            (b'{"query":"RETURN \xff"}', "not well formed", "The line is not UTF-8: see byte 18."),
            (b'{"query":"\xed\xa0\x80"}', "not well formed", "The line is not UTF-8: see byte 11."),
            (b'{"query":"\xff', "input", "The line is not UTF-8: see byte 11."),
            (b'{"query":"RETURN"', "input", "The line is no JSON: see byte 18."),
            (
                b'{"query":"\\ud83e\\uddedx\\ud800"}',
                "not well formed",
                "The line holds half a surrogate pair: see byte 30.",
            ),
            (
                b'{"query":"\\uDC00"}',
                "not well formed",
                "The line holds half a surrogate pair: see byte 16.",
            ),
        ]:
            (answer,) = answer_lines("columns", line)
            self.assertEqual(answer, {"error": {"kind": kind, "message": message}}, line)

    def test_that_are_not_well_formed_keep_their_id(self) -> None:
        for broken in [b"\xff", b"\\ud800", b"\\\\\\udfff \\ud83e\\udded", b"\\udc00\\ud800"]:
            for line in [
                b'{"id":[1.50],"query":"' + broken + b'"}',
                b'{"query":"' + broken + b'","id":[1.50]}',
            ]:
                output = run("columns", "--jsonl", given=line).output
                self.assertTrue(output.startswith('{"id":[1.50],"error":{"kind":"not well'), output)

    def test_of_the_other_commands_may_be_no_requests_either(self) -> None:
        for command in ["usages", "rename"]:
            for line in [b"", b"{}", b'{"query":"n"}', b'{"expression":1,"renames":{}}']:
                (result,) = answer_lines(command, line)
                self.assert_input_error(result)

    def test_may_hold_further_members_however_deep(self) -> None:
        deep = b"[" * 100_000 + b"]" * 100_000
        (result,) = answer_lines("columns", b'{"number":7,"deep":' + deep + b',"query":"RETURN 1"}')
        self.assertEqual(result, json.loads(GOOD_ANSWER))

    def test_have_their_id_in_the_answer(self) -> None:
        for request_id in [
            "7",
            "-0.50e+1",
            "123456789012345678901234567890",
            "null",
            "false",
            '""',
            '"a \\"\\\\"',
            '"\\u00e4 ä"',
            "[]",
            '{"id":[1,{"b":"c, }"}]}',
            "[" * 100_000 + "]" * 100_000,
        ]:
            for line, expected in [
                (f'{{"id":{request_id},"query":"RETURN 1"}}', GOOD_ANSWER[1:]),
                (f' {{ "query" : "RETURN 1" , "id" : {request_id} }} ', GOOD_ANSWER[1:]),
                (f'{{"a":{{"id":1}},"id":{request_id},"query":"RETURN 1"}}', GOOD_ANSWER[1:]),
                (f'{{"id":0,"\\u0069d":{request_id},"query":"RETURN 1"}}', GOOD_ANSWER[1:]),
                (f'\ufeff{{"id":{request_id},"query":"RETURN 1"}}', GOOD_ANSWER[1:]),
            ]:
                output = run("columns", "--jsonl", given=line).output
                self.assertEqual(output, f'{{"id":{request_id},{expected}\n', line[:80])

    def test_have_their_id_without_white_space(self) -> None:
        output = run("columns", "--jsonl", given='{"id": [ 1 ,\t{"a b" :\r2 } ],"query":"RETURN 1"}').output
        self.assertEqual(output, '{"id":[1,{"a b":2}],' + GOOD_ANSWER[1:] + "\n")

    def test_have_their_id_in_a_refusal(self) -> None:
        for command, line in [
            ("columns", '{"id":"a","query":"MATCH"}'),
            ("columns", '{"id":"a"}'),
            ("usages", '{"id":"a","expression":")"}'),
            ("rename", '{"id":"a","expression":"n"}'),
        ]:
            output = run(command, "--jsonl", given=line).output
            self.assertTrue(output.startswith('{"id":"a",'), output)
            self.assertIn("error", json.loads(output))

    def test_may_hold_any_character(self) -> None:
        name = "zero \0 line\nfeed \u2028 quote \" back\\slash \x7f \U0001f9ed \uffff \ufeff é"
        (result,) = answer_lines("columns", {"query": f"MATCH (`{name}`) RETURN *"})
        self.assertEqual(result["columns"], [{"name": name, "type": "Node"}])

    def test_are_answered_in_utf_8_without_needless_escapes(self) -> None:
        request = '{"query":"MATCH (\\u5bbd), (`\\ud83e\\udded`) RETURN *"}'
        self.assertIn('"宽"', run("columns", "--jsonl", given=request).output)
        self.assertIn('"🧭"', run("columns", "--jsonl", given=request).output)

    def test_may_be_a_megabyte(self) -> None:
        text = "'" + "ü" * 1_000_000 + "'"
        (result,) = answer_lines("columns", {"query": f"RETURN {text}"})
        self.assertEqual(result["columns"], [{"name": text, "type": "Unknown"}])

    def test_may_end_with_carriage_return_and_line_feed(self) -> None:
        result = run("columns", "--jsonl", given=GOOD + b"\r\n" + GOOD + b"\r\n")
        self.assertEqual(result.output, (GOOD_ANSWER + "\n") * 2)

    def test_need_no_line_feed_at_the_end(self) -> None:
        result = run("columns", "--jsonl", given=GOOD + b"\n" + GOOD)
        self.assertEqual(result.output, (GOOD_ANSWER + "\n") * 2)

    def test_may_be_none(self) -> None:
        result = run("columns", "--jsonl", given=b"")
        self.assertEqual((result.status, result.output, result.error), (0, "", ""))

    def test_leave_the_status_at_0_whatever_they_say(self) -> None:
        self.assertEqual(run("columns", "--jsonl", given=b'\n{"query":"MATCH"}\n').status, 0)

    def test_that_are_refused_are_counted_at_the_end(self) -> None:
        lines = GOOD + b'\n{"query":"MATCH"}\n\n' + GOOD + b"\n"
        for options, status in [([], 0), (["--strict"], 1)]:
            result = run("columns", "--jsonl", *options, given=lines)
            self.assertEqual(result.error, "vorn-inspect: 2 of 4 requests were refused.\n")
            self.assertEqual(result.status, status)
        result = run("columns", "--jsonl", "--strict", given=GOOD)
        self.assertEqual((result.status, result.error), (0, ""))

    def test_may_come_from_a_file(self) -> None:
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "ü.jsonl")
            with open(path, "wb") as file:
                file.write(GOOD + b"\nno request\n" + GOOD)
            result = run("columns", "--jsonl", "--file", path)
        self.assertEqual(result.output.split("\n")[0::2], [GOOD_ANSWER, GOOD_ANSWER])
        self.assertEqual(result.error, "vorn-inspect: 1 of 3 requests were refused.\n")

    def test_may_be_too_long_without_a_loss_of_others(self) -> None:
        with tempfile.TemporaryFile() as file:
            file.write(GOOD + b'\n{"query":"RETURN \'')
            # A gigabyte of zeros that takes no space.
            file.seek(1 << 30, os.SEEK_CUR)
            file.write(b"'\"}\n" + GOOD + b"\n")
            file.seek(0)
            result = run("columns", "--jsonl", stdin=file)
        self.assertEqual(result.status, 0, result.error)
        first, refused, last, end = result.output.split("\n")
        self.assertEqual([first, last, end], [GOOD_ANSWER, GOOD_ANSWER, ""])
        self.assertEqual(json.loads(refused)["error"]["kind"], "too large")

    def test_are_split_at_line_feeds_however_they_fall_into_pieces(self) -> None:
        for size in [65533, 65534, 65535, 65536, 65537, 131070, 131071]:
            line = GOOD + b" " * (size - len(GOOD))
            result = run("columns", "--jsonl", given=line + b"\n\n" + line)
            first, refused, last, end = result.output.split("\n")
            self.assertEqual([first, last, end], [GOOD_ANSWER, GOOD_ANSWER, ""], size)
            self.assertIn('"input"', refused)

    def test_are_answered_one_by_one(self) -> None:
        with subprocess.Popen(
            [VORN_INSPECT, "columns", "--jsonl"], stdin=subprocess.PIPE, stdout=subprocess.PIPE
        ) as process:
            assert process.stdin and process.stdout
            for name in ["a", "b", "c"]:
                process.stdin.write(json.dumps({"query": f"RETURN {name}"}).encode() + b"\n")
                process.stdin.flush()
                # If each answer came only with the next one, this would wait for ever.
                self.assertEqual(json.loads(process.stdout.readline())["columns"][0]["name"], name)
            process.stdin.close()
            self.assertEqual(process.wait(), 0)


class Progress(InspectTest):
    def batch_with_terminal(self, lines: int) -> str:
        """What a batch of that many lines writes to a terminal that is its standard error."""
        return run_on_terminal("columns", "--jsonl", given=(GOOD + b"\n") * lines, errors_only=True)

    @unittest.skipIf(ON_WINDOWS, "a console draws what has changed, in steps of its own")
    def test_of_a_long_batch_is_shown_in_place_and_wiped_at_the_end(self) -> None:
        written = self.batch_with_terminal(350)
        self.assertNotIn("\n", written)
        *counters, blanks, rest = written.split("\r")[1:]
        self.assertEqual(counters, ["100 lines", "200 lines", "300 lines"])
        self.assertRegex(blanks, r"\A {9,}\Z")
        self.assertEqual(rest, "")

    def test_of_a_short_batch_is_not_shown(self) -> None:
        self.assertEqual(self.batch_with_terminal(20), "")

    def test_is_not_shown_elsewhere(self) -> None:
        self.assertEqual(run("columns", "--jsonl", given=(GOOD + b"\n") * 350).error, "")


if __name__ == "__main__":
    main()
