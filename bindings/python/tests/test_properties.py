"""What holds for every text."""

from typing import Any, Callable

import pytest
from hypothesis import example, given
from hypothesis import strategies as st

import vornlib

# Half surrogates too.
anything = st.text(st.characters(exclude_categories=[]))
pieces = st.lists(
    st.sampled_from(
        ["MATCH", "RETURN", "(n)", "-[r]->", "n", ".a", ":L", "'𝕏'", "`é`", "AND", "=", "\n", " ", "["]
    )
).map("".join)

bare_names = st.text("abcäßжשあ漢𝒙", min_size=1).map(lambda text: "v" + text)
quoted_names = st.text(st.characters(exclude_categories=["Cs"]), min_size=1).map(
    lambda text: "`" + text.replace("`", "``") + "`"
)
names = bare_names | quoted_names
reads = st.builds(
    lambda name, path, labels: "".join([name, *map(".{}".format, path), *map(":{}".format, labels)]),
    names,
    st.lists(names, max_size=3),
    st.lists(names, max_size=2),
)
literals = st.sampled_from(["1", "0x1F", "1.5e3", "'v'", '"𝕏"', "$v", "NULL", "TRUE", "[]", "{v: 1}"])
filters = st.recursive(
    reads | literals,
    lambda inner: st.builds("({})".format, inner)
    | st.builds("(NOT {})".format, inner)
    | st.builds("coalesce({}, {})".format, inner, inner)
    | st.builds(
        "{} {} {}".format, inner, st.sampled_from(["AND", "OR", "=", "<>", "+", "IN", "/*v*/ +"]), inner
    ),
)


@pytest.mark.parametrize("ask", [vornlib.columns, vornlib.usages, vornlib.expression_end])
@given(text=anything | pieces)
@example(text="\ufeff𝕏\n\n𝕏 =")
def test_a_text_has_an_answer_or_an_error(ask: Callable[[str], Any], text: str) -> None:
    try:
        ask(text)
    except vornlib.CypherSyntaxError as error:
        marked = text.startswith("\ufeff")
        before = text[:error.offset]
        assert len(before) == error.offset
        assert error.line == before.count("\n") + 1
        mark_is_counted = marked and error.line == 1
        assert error.column == len(before) - (before.rfind("\n") + 1) - mark_is_counted
    except vornlib.CypherError:
        pass


@given(filters)
def test_renaming_nothing_gives_the_text(text: str) -> None:
    assert vornlib.rename(text, {}) == text


@given(filters)
def test_what_stands_behind_a_filter_is_told(text: str) -> None:
    assert vornlib.expression_end(text) == len(text)
    more = text + " RETURN 1"
    assert vornlib.expression_end(more) == len(text)
    assert vornlib.rename(more, {}) == text
    assert vornlib.usages(more) == vornlib.usages(text)


@given(filters, names)
def test_what_is_used_can_be_renamed(text: str, name: str) -> None:
    used = vornlib.usages(text)
    fresh = "`new " + name.strip("`") + "`"
    for old in used:
        renamed = vornlib.usages(vornlib.rename(text, {old: fresh}))
        assert set(renamed) == set(used) - {old} | {fresh}
        assert renamed[fresh].accesses == used[old].accesses
        assert renamed[fresh].written_forms == {fresh}


@given(st.lists(reads, min_size=1))
def test_what_a_query_returns_is_a_column(expressions: list[str]) -> None:
    columns = vornlib.columns("RETURN " + ", ".join(expressions))
    assert len(columns) == len(expressions)
    for column, expression in zip(columns, expressions):
        assert column.name.replace("`", "") == expression.replace("`", "")
