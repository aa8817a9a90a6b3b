"""vorn-inspect usages"""

import json

from vorn_inspect import InspectTest, answer, answer_lines, main, run

FORBIDDEN = (
    "The openCypher element '' of type 'OC_Quantifier' is forbidden in a property filter expression."
)


class Usages(InspectTest):
    def test_are_a_table_for_people(self) -> None:
        result = run("usages", "n.age > 30 AND `n`:Person:Adult AND m OR n.address.city:`Big City`")
        self.assertEqual(
            result.output,
            "Variable  Written as  Reads\n"
            "────────  ──────────  ─────────────────────────\n"
            "m         m           m\n"
            "n         `n`, n      n:Adult:Person\n"
            "                      n.address.city:`Big City`\n"
            "                      n.age\n",
        )

    def test_quote_names_for_people_only_where_they_must(self) -> None:
        output = run("usages", "`größe`.`a b`.`c``d`.`1st` = `_x1`.`映画` AND ``.``").output
        reads = [line.split()[-1] for line in output.replace("a b", "a_b").splitlines()[2:]]
        self.assertEqual(reads, ["_x1.映画", "``.``", "größe.`a_b`.`c``d`.`1st`"])

    def test_are_one_object_as_json(self) -> None:
        self.assertEqual(
            run("usages", "--json", "n.age > 30").output,
            '{"usages":[{"name":"`n`","writtenForms":["n"],'
            '"accesses":[{"propertyPath":["`age`"],"labels":[]}]}]}\n',
        )

    def test_come_in_the_order_of_the_sets(self) -> None:
        self.assertEqual(
            answer("usages", "--json", "n.b.a:Z:Y AND n.b AND `n`:X AND n AND m"),
            {
                "usages": [
                    {
                        "name": "`m`",
                        "writtenForms": ["m"],
                        "accesses": [{"propertyPath": [], "labels": []}],
                    },
                    {
                        "name": "`n`",
                        "writtenForms": ["`n`", "n"],
                        "accesses": [
                            {"propertyPath": [], "labels": []},
                            {"propertyPath": [], "labels": ["`X`"]},
                            {"propertyPath": ["`b`"], "labels": []},
                            {"propertyPath": ["`b`", "`a`"], "labels": ["`Y`", "`Z`"]},
                        ],
                    },
                ]
            },
        )

    def test_of_no_variable_get_a_sentence(self) -> None:
        self.assertEqual(run("usages", "1 < $top").output, "The filter uses no variables.\n")
        self.assertEqual(run("usages", "--json", "1 < $top").output, '{"usages":[]}\n')

    def test_of_a_forbidden_element(self) -> None:
        text = "any(x IN n.list WHERE x)"
        result = run("usages", text)
        self.assertEqual((result.status, result.output, result.error), (1, "", FORBIDDEN + "\n"))
        result = run("usages", "--json", text)
        self.assertEqual(result.status, 1)
        self.assertEqual(
            result.output, f'{{"error":{{"kind":"forbidden","message":"{FORBIDDEN}"}}}}\n'
        )

    def test_of_a_text_that_nests_too_deeply_fail_in_a_kind_of_its_own(self) -> None:
        shallow, deep = answer_lines("usages", {"expression": "(n)"}, {"expression": "(" * 200_000})
        self.assertEqual(len(shallow["usages"]), 1)
        self.assertEqual(deep["error"]["kind"], "too deep")

    def test_of_a_syntax_error_as_json(self) -> None:
        result = run("usages", "--json", "n.age\n> )")
        self.assertEqual(result.status, 1)
        error = json.loads(result.output)["error"]
        self.assertEqual(list(error), ["kind", "line", "column", "message"])
        self.assertEqual((error["kind"], error["line"], error["column"]), ("syntax", 2, 2))
        self.assertTrue(error["message"].startswith("line 2:2 "), error["message"])

    def test_by_json_lines(self) -> None:
        answers = answer_lines(
            "usages",
            {"expression": "n"},
            {"expression": "n +"},
            {"expression": "any(x IN n WHERE x)"},
            {"expression": "$p"},
        )
        usage = {"name": "`n`", "writtenForms": ["n"], "accesses": [{"propertyPath": [], "labels": []}]}
        self.assertEqual(answers[0], {"usages": [usage]})
        self.assertEqual(answers[1]["error"]["kind"], "syntax")
        self.assertEqual(answers[2], {"error": {"kind": "forbidden", "message": FORBIDDEN}})
        self.assertEqual(answers[3], {"usages": []})

    def test_tell_what_was_dropped(self) -> None:
        for text, dropped in [("n.a = 1 RETURN n", "RETURN n"), ("n.a)", ")"), ("n)'\x1b'", ")'\\u001b'")]:
            result = run("usages", text)
            self.assertEqual(result.status, 0, result.error)
            self.assertIn("n ", result.output)
            self.assertEqual(result.error, f"Note: The end of the filter was dropped: {dropped}\n")
        self.assertEqual(
            run("usages", "--json", "1 RETURN n").output, '{"usages":[],"dropped":" RETURN n"}\n'
        )
        self.assertEqual(answer_lines("usages", {"expression": "\ufeff1é)"})[0]["dropped"], "é)")

    def test_show_the_beginning_of_what_was_dropped(self) -> None:
        result = run("usages", "-", given="n )\n" + "é" * 100)
        self.assertEqual(
            result.error, r"Note: The end of the filter was dropped: )\n" + "é" * 58 + "...\n"
        )

    def test_tell_nothing_of_white_space_and_comments_at_the_end(self) -> None:
        for text in ["n.a ", "n.a\n\n", "n.a /* b */ // c"]:
            self.assertEqual(run("usages", text).error, "")
            self.assertEqual(list(answer("usages", "--json", text)), ["usages"])


if __name__ == "__main__":
    main()
