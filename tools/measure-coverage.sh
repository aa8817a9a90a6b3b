#!/bin/sh
# Runs the tests of the preset `coverage` and writes build/coverage/report/index.html: the lines and the
# branches of our own code that they ran. Fails below 95 % of the lines.
set -eu

cd "$(dirname "$0")/.."
build=build/coverage
report=$build/report

find $build -name '*.gcda' -delete
ctest --preset coverage
mkdir -p $report
# Branches that only an exception takes are not counted: nearly every call has one.
gcovr --root . --filter '(src|strings|platform|include/vorn|examples/vorn-inspect)/' \
    --exclude-throw-branches --exclude-unreachable-branches \
    --html-details $report/index.html --html-title VornLib --txt $report/lines.txt --print-summary \
    --fail-under-line 95 -j "$(nproc)" $build ||
    { echo "measure-coverage: no test runs the lines in the last column of $report/lines.txt." >&2; exit 1; }
