import copy
import pickle
import resource
import subprocess
import sys
from typing import Any, Callable

import pytest

import vornlib

QUESTIONS: list[Callable[[str], Any]] = [
    vornlib.columns,
    vornlib.usages,
    lambda text: vornlib.rename(text, {"n": "m"}),
    vornlib.expression_end,
]
every_question = pytest.mark.parametrize("ask", QUESTIONS)
DEEP = "(" * 200_000 + "1" + ")" * 200_000
AMBIGUOUS = "[x IN " + "(a) + " * 3000 + "?"


def refusal(ask: Callable[[str], Any], text: str) -> vornlib.CypherError:
    with pytest.raises(vornlib.CypherError) as raised:
        ask(text)
    return raised.value


@pytest.mark.parametrize(
    ("query", "line", "column", "offset"),
    [
        ("MATCH (n) RETRUN n", 1, 10, 10),
        ("MATCH (n)\nRETURN n ORDER n", 2, 15, 25),
        ("MATCH (n) RETURN", 1, 16, 16),
        ("RETURN '𝕏', 'é' AS", 1, 18, 18),
        ("\ufeffRETURN '𝕏' AS", 1, 13, 14),
        ("\ufeffRETURN '𝕏' AS\n\nx y", 3, 2, 18),
        ("", 1, 0, 0),
    ],
)
def test_a_wrong_query_is_wrong_at_a_place(query: str, line: int, column: int, offset: int) -> None:
    error = refusal(vornlib.columns, query)
    assert isinstance(error, vornlib.CypherSyntaxError)
    assert (error.line, error.column, error.offset) == (line, column, offset)
    assert str(error) == f"line {line}:{column} {error.message}"


def test_a_message_is_that_of_the_library() -> None:
    error = refusal(vornlib.columns, "MATCH (n) RETURN n ORDER n")
    assert str(error) == "line 1:25 mismatched input 'n' expecting BY"
    assert error.message == "mismatched input 'n' expecting BY"


@pytest.mark.parametrize("ask", QUESTIONS[1:])
def test_a_wrong_filter_is_wrong_at_a_place(ask: Callable[[str], Any]) -> None:
    error = refusal(ask, "\ufeffn.𝕏 = '𝕏'\nAND")
    assert isinstance(error, vornlib.CypherSyntaxError)
    assert (error.line, error.column, error.offset) == (2, 3, 14)


def test_the_place_of_an_error_that_is_not_searched_for_is_not_known() -> None:
    error = refusal(vornlib.columns, "RETURN " + "(" * 3_000 + "1" + ")" * 2_999)
    assert isinstance(error, vornlib.CypherSyntaxError)
    assert (error.line, error.column, error.offset) == (0, 0, 0)
    assert str(error) == error.message


@pytest.mark.parametrize(
    ("expression", "element"),
    [
        ("[x IN n.list WHERE x]", "OC_ListComprehension"),
        ("[(n)-->() | 1]", "OC_PatternComprehension"),
        ("all(x IN n.list WHERE x)", "OC_Quantifier"),
        ("(n)-->()", "OC_PatternPredicate"),
        ("EXISTS { (n)-->() }", "OC_ExistentialSubquery"),
    ],
)
def test_a_forbidden_element_has_a_type(expression: str, element: str) -> None:
    error = refusal(vornlib.usages, expression)
    assert isinstance(error, vornlib.ForbiddenElementError)
    assert error.element == element
    assert element in str(error)
    assert vornlib.rename(expression, {}) == expression


@every_question
def test_a_deep_text_is_refused(ask: Callable[[str], Any]) -> None:
    text = f"RETURN {DEEP}" if ask is vornlib.columns else DEEP
    assert type(refusal(ask, text)) is vornlib.NestingError


@pytest.mark.parametrize("ask", QUESTIONS[1:])
def test_a_filter_that_takes_too_much_work_is_refused(ask: Callable[[str], Any]) -> None:
    assert type(refusal(ask, AMBIGUOUS)) is vornlib.TooLargeError


@every_question
@pytest.mark.parametrize("half", ["\ud835", "\udd4f"])
def test_half_a_surrogate_pair_is_refused(ask: Callable[[str], Any], half: str) -> None:
    error = refusal(ask, f"RETURN '{half}'")
    assert type(error) is vornlib.NotWellFormedError
    assert "surrogate" in str(error)


@pytest.mark.parametrize("names", [{"\ud835": "m"}, {"n": "\udd4f"}])
def test_half_a_surrogate_pair_in_a_name_is_refused(names: dict[str, str]) -> None:
    with pytest.raises(vornlib.NotWellFormedError):
        vornlib.rename("x", names)


@every_question
@pytest.mark.parametrize("text", [None, 1, b"n", ["n"]])
def test_what_is_no_text_is_a_wrong_type(ask: Callable[[Any], Any], text: Any) -> None:
    with pytest.raises(TypeError):
        ask(text)


@pytest.mark.parametrize("names", [None, "nm", [("n", "m")], {"n": 1}, {1: "m"}, {"n": None}])
def test_what_is_no_mapping_of_names_is_a_wrong_type(names: Any) -> None:
    with pytest.raises(TypeError, match="the names must be"):
        vornlib.rename("n", names)


ERRORS = [
    refusal(vornlib.columns, "MATCH (n) RETRUN n"),
    refusal(vornlib.usages, "(n)-->()"),
    refusal(vornlib.usages, DEEP),
    refusal(vornlib.usages, "\ud800"),
    refusal(vornlib.usages, AMBIGUOUS),
]


@pytest.mark.parametrize("error", ERRORS, ids=lambda error: type(error).__name__)
@pytest.mark.parametrize("again", [copy.copy, lambda error: pickle.loads(pickle.dumps(error))])
def test_an_error_can_be_pickled_and_copied(error: Exception, again: Any) -> None:
    other = again(error)
    assert type(other) is type(error)
    assert other.__dict__ == error.__dict__
    assert str(other) == str(error)


def test_every_error_of_a_text_is_a_value_error() -> None:
    assert len({type(error) for error in ERRORS}) == 5
    for error in ERRORS:
        assert isinstance(error, vornlib.CypherError)
        assert isinstance(error, ValueError)


OUT_OF_MEMORY = """
import resource, vornlib
text = "RETURN " + "1+" * 5_000_000 + "1"
with open("/proc/self/statm") as file:
    in_use = int(file.read().split()[0]) * resource.getpagesize()
resource.setrlimit(resource.RLIMIT_AS, (in_use + 100_000_000, resource.RLIM_INFINITY))
try:
    vornlib.columns(text)
except MemoryError as error:
    print(error)
"""


@pytest.mark.skipif(not hasattr(resource, "RLIMIT_AS"), reason="memory cannot be limited")
def test_no_memory_is_a_memory_error() -> None:
    said = subprocess.run(
        [sys.executable, "-c", OUT_OF_MEMORY], stdout=subprocess.PIPE, text=True, check=True
    ).stdout
    assert said == "memory ran out\n"
