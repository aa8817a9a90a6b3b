"""Understands openCypher text without running it.

- Which columns does a query return, and what does each hold? `columns`
- Which variables does a property filter use, and what does it read from each? `usages`
- What does a filter read like after some of its variables are renamed? `rename`
- How far does a filter reach in the text that was given? `expression_end`

Only the syntax is checked. Whether a label, a property or a function exists is not known here.

Each call stands alone, and other threads run while it works. A byte order mark at the start of a
text is skipped and is not part of any answer, but counts in every offset.

What cannot be answered is an error derived from `CypherError`, which is a `ValueError`. Each of the
four functions may also raise a `MemoryError`. Time and stack that a text takes are bounded by its
length, so bound the length of text that you did not write.
"""

import itertools
from collections.abc import Mapping
from enum import IntEnum
from typing import NamedTuple

from . import _native

__all__ = [
    "Column",
    "CypherError",
    "CypherSyntaxError",
    "CypherType",
    "ForbiddenElementError",
    "NestingError",
    "NotWellFormedError",
    "TooLargeError",
    "VariableAccess",
    "VariableUsage",
    "columns",
    "expression_end",
    "rename",
    "usages",
]

__version__ = _native.version()


class CypherType(IntEnum):
    """What a result column holds. The numbers stay as they are, so they may be stored."""

    UNKNOWN = 0
    """Anything but a bare variable of a known kind, such as a property or a computed expression;
    also kinds that conflict in a `UNION`."""
    NODE = 4
    """A variable bound in a node pattern: `n` of `MATCH (n)`."""
    RELATIONSHIP = 5
    """A variable bound in a relationship pattern: `r` of `()-[r]->()`."""
    PATH = 6
    """A path variable: `p` of `MATCH p = ()-->()`."""
    NODE_OR_RELATIONSHIP = 9
    """A node in one branch of a `UNION` and a relationship in another."""

    def __repr__(self) -> str:
        return f"CypherType.{self.name}"


class Column(NamedTuple):
    """A column that a query returns."""

    name: str
    """Its alias or else the text of its expression, without back quotes."""
    type: CypherType


class VariableAccess(NamedTuple):
    """One way in which a filter uses a variable. All names are between back quotes."""

    property_path: tuple[str, ...]
    """The property keys, in reading order. Empty if the variable is used without a property."""
    labels: frozenset[str]
    """The labels that are tested behind the path."""


class VariableUsage(NamedTuple):
    """How a filter uses one variable."""

    written_forms: frozenset[str]
    """The forms in which the text writes the name: with back quotes, without, or both."""
    accesses: frozenset[VariableAccess]
    """The distinct ways in which the variable is used."""


class CypherError(ValueError):
    """A text has no answer."""

    def __init__(self, message: str) -> None:
        super().__init__(message)
        self.message = message
        """What is wrong, in English and without the place."""

    def __str__(self) -> str:
        return self.message


class CypherSyntaxError(CypherError):
    """The text is no query, or does not begin with an expression.

    `line` is 0, as are the other two, if the text nests too deeply or takes too much work to be
    searched for the place of the error.
    """

    def __init__(self, message: str, line: int, column: int, offset: int) -> None:
        super().__init__(message)
        # By these an exception is copied and pickled.
        self.args = (message, line, column, offset)
        self.line = line
        """The line of the error, counted from 1. Lines end at a line feed."""
        self.column = column
        """The place in the line, counted from 0 in characters. A byte order mark is not counted."""
        self.offset = offset
        """The same place as an index of the text that was given, or its length."""

    def __str__(self) -> str:
        return f"line {self.line}:{self.column} {self.message}" if self.line else self.message


class ForbiddenElementError(CypherError):
    """A filter holds what has no place in one.

    This is a list comprehension, a pattern comprehension, a quantifier, a pattern predicate or an
    existential subquery.
    """

    def __init__(self, message: str, element: str) -> None:
        super().__init__(message)
        self.args = (message, element)
        self.element = element
        """The type of the first such element: `OC_ListComprehension`, `OC_PatternComprehension`,
        `OC_Quantifier`, `OC_PatternPredicate` or `OC_ExistentialSubquery`."""


class NestingError(CypherError):
    """The text nests too deeply for the stack that the calling thread has left."""


class NotWellFormedError(CypherError):
    """The text or a name holds an unpaired surrogate."""


class TooLargeError(CypherError):
    """A wrong filter takes too much work, or a text has more than 1 GiB in UTF-8."""


def columns(query: str) -> list[Column]:
    """Finds the columns that a query returns, in order.

    >>> columns("MATCH (n) RETURN n, n.age AS age")
    [Column(name='n', type=CypherType.NODE), Column(name='age', type=CypherType.UNKNOWN)]

    A query without a projection, such as a lone `CREATE`, has no columns. Of a `UNION`, names and
    number are those of the last branch; the types of the earlier ones are merged in by position.

    Raises any error but `ForbiddenElementError`.
    """
    return [Column(name, CypherType(number)) for name, number in _native.columns(query)]


def usages(expression: str) -> dict[str, VariableUsage]:
    """Finds the variables that a property filter, which is one expression, uses.

    >>> usages("n.age > 30")["`n`"].accesses
    frozenset({VariableAccess(property_path=('`age`',), labels=frozenset())})

    The variables stand by their names, between back quotes. The expression must begin with the first
    character. What stands behind a complete one is dropped if it cannot continue it;
    `expression_end` tells. A bare use of a variable is an access with neither properties nor labels.

    Raises any error.
    """
    return {
        name: VariableUsage(
            frozenset(forms),
            frozenset(VariableAccess(tuple(path), frozenset(labels)) for path, labels in accesses),
        )
        for name, forms, accesses in _native.usages(expression)
    }


def rename(expression: str, names: Mapping[str, str]) -> str:
    """Renames variables in a property filter and leaves every other character as it is written.

    >>> rename("n.age > 30 AND n.name = 'n'", {"n": "m"})
    "`m`.age > 30 AND `m`.name = 'n'"

    Every occurrence is renamed, also inside elements that `usages` refuses. What stands behind the
    expression is left out, white space and comments too. Back quotes make no difference, neither
    around an old name nor around a variable in the text. A new name that begins with a back quote is
    used as it is, unchecked; any other one is put between back quotes, those inside it doubled. If
    two old names mean one variable, the later one in `names` wins.

    Raises any error but `ForbiddenElementError`.
    """
    return _rename(expression, names)[0]


def expression_end(expression: str) -> int:
    """Tells where the filter ends in the text that was given, as an index.

    >>> expression_end("n.age > 30 RETURN n")
    10

    It is the length of the text if only white space and comments stand behind the filter. Otherwise
    the rest was not checked: refuse the text unless you store only `text[:expression_end(text)]`.

    Raises any error but `ForbiddenElementError`.
    """
    return _rename(expression, {})[1]


def _rename(expression: str, names: Mapping[str, str]) -> tuple[str, int]:
    if not isinstance(names, Mapping):
        raise TypeError(f"the names must be a mapping, not {type(names).__name__}")
    pairs = list(names.items())
    for name in itertools.chain.from_iterable(pairs):
        if not isinstance(name, str):
            raise TypeError(f"each of the names must be a str, not {type(name).__name__}")
    return _native.rename(expression, pairs)


def _error(
    kind: int, message: str, line: int, column: int, offset: int, element: str
) -> Exception:
    """What the native module raises. The kinds are those of the C interface."""
    if kind == 1:
        return CypherSyntaxError(message, line, column, offset)
    if kind == 2:
        return ForbiddenElementError(message, element)
    if kind == 4:
        return NotWellFormedError("the text or a name holds an unpaired surrogate")
    others: dict[int, type[Exception]] = {3: NestingError, 5: MemoryError, 6: TooLargeError}
    return others[kind](message)
