from types import MappingProxyType

import pytest

import vornlib
from vornlib import Column, CypherType, VariableAccess, VariableUsage


def test_columns_have_names_and_types_in_their_order() -> None:
    assert vornlib.columns("MATCH p = (n)-[r]->() RETURN r, p, n, n.age AS age, count(*)") == [
        Column("r", CypherType.RELATIONSHIP),
        Column("p", CypherType.PATH),
        Column("n", CypherType.NODE),
        Column("age", CypherType.UNKNOWN),
        Column("count(*)", CypherType.UNKNOWN),
    ]


def test_columns_of_a_union_are_merged() -> None:
    query = "MATCH (n) RETURN n UNION MATCH ()-[n]->() RETURN n"
    assert vornlib.columns(query) == [Column("n", CypherType.NODE_OR_RELATIONSHIP)]


def test_a_query_without_a_projection_has_no_columns() -> None:
    assert vornlib.columns("CREATE (n)") == []


def test_a_column_prints_as_it_is_written_in_python() -> None:
    (column,) = vornlib.columns("MATCH (n) RETURN n")
    assert repr(column) == "Column(name='n', type=CypherType.NODE)"


def test_types_are_the_numbers_of_the_library() -> None:
    assert {type.name: int(type) for type in CypherType} == {
        "UNKNOWN": 0,
        "NODE": 4,
        "RELATIONSHIP": 5,
        "PATH": 6,
        "NODE_OR_RELATIONSHIP": 9,
    }


def test_usages_hold_forms_paths_and_labels() -> None:
    assert vornlib.usages("n.address.city = `n`.age AND n:Person:Adult AND m") == {
        "`m`": VariableUsage(frozenset({"m"}), frozenset({VariableAccess((), frozenset())})),
        "`n`": VariableUsage(
            frozenset({"n", "`n`"}),
            frozenset(
                {
                    VariableAccess(("`address`", "`city`"), frozenset()),
                    VariableAccess(("`age`",), frozenset()),
                    VariableAccess((), frozenset({"`Adult`", "`Person`"})),
                }
            ),
        ),
    }


def test_variables_stand_in_the_order_of_their_names() -> None:
    assert list(vornlib.usages("c = b AND a = b")) == ["`a`", "`b`", "`c`"]


def test_only_variables_are_renamed() -> None:
    assert vornlib.rename("n.n = 'n' AND n:n", {"n": "m"}) == "`m`.n = 'n' AND `m`:n"


@pytest.mark.parametrize(
    ("new", "written"), [("m", "`m`"), ("", "``"), ("a`b", "`a``b`"), ("`a", "`a"), ("𝒎", "`𝒎`")]
)
def test_a_new_name_is_quoted_unless_it_begins_with_a_quote(new: str, written: str) -> None:
    assert vornlib.rename("n", {"n": new}) == written


def test_of_two_names_of_one_variable_the_later_one_wins() -> None:
    assert vornlib.rename("n", {"n": "a", "`n`": "b"}) == "`b`"
    assert vornlib.rename("n", {"`n`": "b", "n": "a"}) == "`a`"


def test_any_mapping_tells_new_names() -> None:
    assert vornlib.rename("n", MappingProxyType({"n": "m"})) == "`m`"


def test_text_may_hold_zeros() -> None:
    assert vornlib.columns("RETURN '\0' AS `a\0b`") == [Column("a\0b", CypherType.UNKNOWN)]
    assert vornlib.rename("n = '\0'", {"n": "\0"}) == "`\0` = '\0'"


def test_a_byte_order_mark_is_no_part_of_an_answer() -> None:
    assert vornlib.columns("\ufeffMATCH (n) RETURN n") == [Column("n", CypherType.NODE)]
    assert vornlib.rename("\ufeffn", {}) == "n"


@pytest.mark.parametrize(
    ("text", "end"),
    [
        ("n.a = 1", 7),
        ("n.a = 1  // done", 16),
        ("n.a = 1 RETURN n", 7),
        ("n.a = '𝕏' RETURN n", 9),
        ("\ufeffn.a = '𝕏' RETURN n", 10),
        ("all(x IN n.list WHERE x) RETURN n", 24),
    ],
)
def test_the_end_of_an_expression_is_an_index_of_the_text(text: str, end: int) -> None:
    assert vornlib.expression_end(text) == end
