"""vorn-inspect columns"""

import json

from vorn_inspect import InspectTest, answer, answer_lines, main, run


class Columns(InspectTest):
    def test_are_a_table_for_people(self) -> None:
        result = run("columns", "MATCH p = (n)-[rel]->() RETURN n, rel, p AS path, n.age + 1")
        self.assertEqual(
            result.output,
            "Column     Type\n"
            "─────────  ────────────\n"
            "n          Node\n"
            "rel        Relationship\n"
            "path       Path\n"
            "n.age + 1  Unknown\n",
        )

    def test_are_one_object_as_json(self) -> None:
        self.assertEqual(
            run("columns", "--json", "MATCH (`é\"`)-[r]->() RETURN `é\"`, r").output,
            '{"status":0,"columns":[{"name":"é\\"","type":"Node"},{"name":"r","type":"Relationship"}]}\n',
        )

    def test_have_the_types_of_the_header(self) -> None:
        query = (
            "MATCH p = (n)-[r]->() RETURN n AS a, r AS b, p AS c, n AS d, 1 AS e "
            "UNION MATCH p = (n)-[r]->() RETURN n AS a, r AS b, p AS c, r AS d, n AS e"
        )
        self.assertEqual(
            [column["type"] for column in answer("columns", "--json", query)["columns"]],
            ["Node", "Relationship", "Path", "NodeOrRelationship", "Unknown"],
        )

    def test_that_are_missing_get_a_sentence(self) -> None:
        self.assertEqual(run("columns", "CREATE (n)").output, "The query returns no columns.\n")
        self.assertEqual(run("columns", "--json", "CREATE (n)").output, '{"status":0,"columns":[]}\n')

    def test_of_something_else_than_a_query(self) -> None:
        result = run("columns", "MATCH (n)\nRETRUN n")
        self.assertEqual((result.status, result.output), (1, ""))
        self.assertEqual(
            result.error.split("\n")[:3],
            ["line 2:0 no viable alternative at input 'MATCH (n)\\nRETRUN'", "  RETRUN n", "  ^"],
        )

    def test_of_something_else_than_a_query_as_json(self) -> None:
        result = run("columns", "--json", "MATCH (n)\nRETRUN n")
        self.assertEqual(
            (result.status, result.output),
            (
                1,
                '{"status":1,"error":{"kind":"syntax","line":2,"column":0,'
                '"message":"line 2:0 no viable alternative at input \'MATCH (n)\\\\nRETRUN\'"}}\n',
            ),
        )

    def test_by_json_lines(self) -> None:
        answers = answer_lines(
            "columns", {"query": "MATCH (n) RETURN n"}, {"query": "MATCH"}, {"query": ""}
        )
        self.assertEqual(answers[0], {"status": 0, "columns": [{"name": "n", "type": "Node"}]})
        self.assertEqual([answer["status"] for answer in answers[1:]], [1, 1])
        self.assertEqual([answer["error"]["kind"] for answer in answers[1:]], ["syntax", "empty"])

    def test_are_the_same_by_json_and_by_json_lines(self) -> None:
        for query in ["MATCH (n) RETURN *", "RETURN 'ü', \"\\u0041\"", "CREATE ()", "CREATE"]:
            line = run("columns", "--jsonl", given=json.dumps({"query": query})).output
            self.assertEqual(run("columns", "--json", query).output, line)


if __name__ == "__main__":
    main()
