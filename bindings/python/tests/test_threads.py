import sys
import threading
from collections.abc import Iterator
from concurrent.futures import ThreadPoolExecutor

import pytest

import vornlib

from sources import samples


@pytest.fixture
def no_switches() -> Iterator[None]:
    """No thread takes the interpreter from another one that does not let it go."""
    interval = sys.getswitchinterval()
    sys.setswitchinterval(1_000)
    yield
    sys.setswitchinterval(interval)


LONG_LIST = "n IN [" + "1, " * 200_000 + "1]"


@pytest.mark.parametrize(
    "ask",
    [
        lambda: vornlib.columns("RETURN " + LONG_LIST),
        lambda: vornlib.usages(LONG_LIST),
        lambda: vornlib.rename(LONG_LIST, {"n": "m"}),
    ],
    ids=["columns", "usages", "rename"],
)
def test_other_threads_run_during_a_call(no_switches: None, ask: object) -> None:
    assert callable(ask)
    state = "before"

    def work() -> None:
        nonlocal state
        state = "during"
        ask()
        state = "after"

    # The answer of one call may be there before this thread wakes up; that of many is not.
    for _ in range(100):
        state = "before"
        thread = threading.Thread(target=work)
        thread.start()
        seen = state
        thread.join()
        if seen == "during":
            return
    pytest.fail("no other thread has run during a call")


def test_many_threads_get_the_same_answers() -> None:
    queries = samples("queries") * 20
    filters = samples("filters")[:-1] * 20
    with ThreadPoolExecutor(8) as threads:
        assert list(threads.map(vornlib.columns, queries)) == [*map(vornlib.columns, queries)]
        assert list(threads.map(vornlib.usages, filters)) == [*map(vornlib.usages, filters)]
