"""Runs vorn-inspect for the tests. Each of them is called as

    SOMETHING_test.py VORN_INSPECT
"""

import json
import os
import pty
import subprocess
import sys
import termios
import unittest
from typing import Any, Union

VORN_INSPECT = sys.argv[1]
ON_WINDOWS = os.environ.get("VORN_SYSTEM") == "Windows"


class Result:
    def __init__(self, completed: "subprocess.CompletedProcess[bytes]") -> None:
        self.status = completed.returncode
        self.output = completed.stdout.decode()
        self.error = completed.stderr.decode(errors="replace")


def run(*arguments: Union[str, bytes], given: Union[str, bytes] = b"", **options: Any) -> Result:
    """Runs vorn-inspect to its end; `given` is its standard input."""
    if isinstance(given, str):
        given = given.encode()
    options.setdefault("stdout", subprocess.PIPE)
    if "stdin" not in options:
        options["input"] = given
    return Result(
        subprocess.run([VORN_INSPECT, *arguments], stderr=subprocess.PIPE, check=False, **options)
    )


def run_on_terminal(*arguments: str, given: bytes = b"", errors_only: bool = False) -> str:
    """What vorn-inspect writes to a terminal, each line end as it was written."""
    terminal, end = pty.openpty()
    attributes = termios.tcgetattr(end)
    attributes[1] &= ~termios.OPOST
    termios.tcsetattr(end, termios.TCSANOW, attributes)
    with subprocess.Popen(
        [VORN_INSPECT, *arguments],
        stdin=subprocess.PIPE,
        stdout=subprocess.DEVNULL if errors_only else end,
        stderr=end,
    ) as process:
        os.close(end)
        process.communicate(given)
    written = b""
    try:
        while chunk := os.read(terminal, 65536):
            written += chunk
    except OSError:
        pass  # The other end is closed.
    os.close(terminal)
    return written.decode()


def answer(*arguments: str) -> Any:
    """The JSON answer of a command that is to succeed."""
    result = run(*arguments)
    assert result.status == 0, result.error
    return json.loads(result.output)


def answer_lines(command: str, *requests: Any) -> list[Any]:
    """The answers to a batch, each read as JSON. A request of type bytes is a line as it is."""
    lines = [r if isinstance(r, bytes) else json.dumps(r).encode() for r in requests]
    result = run(command, "--jsonl", given=b"".join(line + b"\n" for line in lines))
    assert result.status == 0, (result.status, result.error)
    # Not splitlines(), which also splits at separators that a JSON string may hold as they are.
    *answers, end = result.output.split("\n")
    assert end == "", end
    return [json.loads(line) for line in answers]


class InspectTest(unittest.TestCase):
    maxDiff = None

    def assert_wrong_usage(self, result: Result, *hints: str) -> None:
        """Nothing on standard output, one sentence on standard error."""
        self.assertEqual((result.status, result.output), (2, ""))
        self.assertRegex(result.error, r"\Avorn-inspect: [^\n]+\.\n\Z")
        for hint in hints:
            self.assertIn(hint, result.error)


def main() -> None:
    unittest.main(argv=sys.argv[:1])
