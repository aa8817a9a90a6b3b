"""vorn-inspect rename"""

from vorn_inspect import InspectTest, answer, answer_lines, main, run


class Renaming(InspectTest):
    def test_prints_the_text_for_people(self) -> None:
        result = run("rename", "--map", "n=m", "n.n  >  30 AND /* n */ `n`:n")
        self.assertEqual(result.output, "`m`.n  >  30 AND /* n */ `m`:n\n")

    def test_takes_several_variables(self) -> None:
        result = run("rename", "--map", "n=m", "--map", "m=n", "n.a = m.a")
        self.assertEqual(result.output, "`m`.a = `n`.a\n")

    def test_takes_one_name_with_each_map(self) -> None:
        self.assertEqual(run("rename", "--map", "n=m", "n").output, "`m`\n")
        self.assertEqual(run("rename", "n", "--map", "n=m").output, "`m`\n")
        self.assertEqual(run("rename", "--map=n=m", "n").output, "`m`\n")

    def test_answers_with_one_object_as_json(self) -> None:
        result = run("rename", "--map", "n=größe", "--json", "n.a = '\"'")
        self.assertEqual(result.output, '{"expression":"`größe`.a = \'\\"\'"}\n')

    def test_splits_at_the_first_equals_sign_outside_back_quotes(self) -> None:
        for argument, text, expected in [
            ("`a=b`=c", "`a=b`.x", "`c`.x"),
            ("`a``=b`=c", "`a``=b`.x", "`c`.x"),
            ("a=b=c", "a.x", "`b=c`.x"),
            ("a=`b=c`", "a.x", "`b=c`.x"),
            ("``=x", "``", "`x`"),
            ("[a]=x", "`[a]`", "`x`"),
            ("a,b=x,y", "`a,b`", "`x,y`"),
        ]:
            result = answer("rename", "--json", "--map", argument, text)
            self.assertEqual(result, {"expression": expected}, argument)

    def test_takes_names_in_brackets_as_they_are(self) -> None:
        # "[" and "]" around a whole argument could be taken for a list of arguments.
        self.assertEqual(run("rename", "--map", "[a=b,c]", "`[a`").output, "`b,c]`\n")

    def test_needs_an_old_and_a_new_name(self) -> None:
        for argument in ["n", "=m", "n=", "=", "", "`n=m", "`n=m`"]:
            result = run("rename", "--map", argument, "n")
            self.assert_wrong_usage(result, "--map old=new", f"'{argument}'")
        self.assert_wrong_usage(run("rename", "n"), "--map old=new")

    def test_takes_one_variable_with_each_map(self) -> None:
        for argument in ["n=m,k=l", "n=m,k=", "`n`=m, `k`=`l`"]:
            result = run("rename", "--map", argument, "n")
            self.assert_wrong_usage(result, "--map a=b --map c=d", f"'{argument}'", "back quotes")
        for argument, expected in [("n=`m,k=l`", "`m,k=l`\n"), ("n=m,k", "`m,k`\n")]:
            self.assertEqual(run("rename", "--map", argument, "n").output, expected)

    def test_needs_one_new_name_for_each_variable(self) -> None:
        self.assert_wrong_usage(run("rename", "--map", "n=a", "--map", "n=b", "n"), "'n'")

    def test_reports_a_syntax_error(self) -> None:
        result = run("rename", "--map", "n=m", "n +")
        self.assertEqual((result.status, result.output), (1, ""))
        self.assertTrue(result.error.startswith("line 1:3 "), result.error)

    def test_tells_what_was_dropped(self) -> None:
        result = run("rename", "--map", "n=m", "n.a RETURN n")
        self.assertEqual((result.status, result.output), (0, "`m`.a\n"))
        self.assertEqual(result.error, "Note: The end of the filter was dropped: RETURN n\n")
        self.assertEqual(
            run("rename", "--map", "n=m", "--json", "n.a RETURN n").output,
            '{"expression":"`m`.a","dropped":" RETURN n"}\n',
        )

    def test_does_not_mind_what_usages_forbids(self) -> None:
        result = run("rename", "--map", "n=m", "any(x IN n WHERE x)")
        self.assertEqual(result.output, "any(x IN `m` WHERE x)\n")

    def test_by_json_lines(self) -> None:
        answers = answer_lines(
            "rename",
            {"expression": "n.a = k", "renames": {"n": "m", "`k`": "`l`"}},
            {"expression": "n", "renames": {}},
            {"expression": "n", "renames": {"": "", "n": ""}},
            {"expression": "n +", "renames": {}},
        )
        self.assertEqual(
            answers[:3], [{"expression": "`m`.a = `l`"}, {"expression": "n"}, {"expression": "``"}]
        )
        self.assertEqual(answers[3]["error"]["kind"], "syntax")

    def test_by_json_lines_needs_names_that_are_strings(self) -> None:
        for renames in [None, [], "n=m", {"n": 1}, {"n": None}, {"n": "m", "k": ["l"]}]:
            (result,) = answer_lines("rename", {"expression": "n", "renames": renames})
            self.assertEqual(result["error"]["kind"], "input", renames)
        (result,) = answer_lines("rename", {"expression": "n"})
        self.assertEqual(result["error"]["kind"], "input")

    def test_refuses_what_looks_like_several_renamings(self) -> None:
        for arguments, words in [
            (["--map", "n=a", "--map", "`n`=b", "n"], "'`n`' has two"),
            (["--map", "n=m k=l", "n"], "and not 'n=m k=l'"),
            (["--map", "n=m", "k=l", "n.a = 1"], "and not 'k=l' alone"),
        ]:
            result = run("rename", *arguments)
            self.assertEqual((result.status, result.output), (2, ""))
            self.assertIn(words, result.error)


if __name__ == "__main__":
    main()
