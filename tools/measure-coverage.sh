#!/bin/sh
# Runs the tests of the preset `coverage` and writes the report build/coverage/report/index.html: which
# lines and branches of our own code they ran. Fails below 95 % of the lines, or if a file has lines that
# no test ran and CONTRIBUTING.md does not name it.
set -eu

cd "$(dirname "$0")/.."
build=build/coverage
report=$build/report

. tools/fail.sh

find $build -name '*.gcda' -delete
ctest --preset coverage
mkdir -p $report
# Branches for exceptions are not counted: nearly every call has one.
gcovr --root . --filter '(src|strings|platform|include/vorn|inspect)/' \
    --exclude-throw-branches --exclude-unreachable-branches \
    --html-details $report/index.html --html-title VornLib --txt $report/lines.txt --csv $report/lines.csv \
    --print-summary --fail-under-line 95 -j "$(nproc)" $build ||
    fail "no test runs the lines in the last column of $report/lines.txt."

for file in $(awk -F, 'NR > 1 && $3 < $2 { print $1 }' $report/lines.csv); do
    grep -qF "| \`$(basename "$file")\`" CONTRIBUTING.md ||
        fail "no test runs some lines of $file; see $report/lines.txt. Test them, or say in CONTRIBUTING.md why not."
done
