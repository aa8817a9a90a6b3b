#!/bin/sh
# Runs the tests of build/windows under Wine, and ends all of Wine afterwards.
#
#   tools/test-under-wine.sh [CTEST_ARGUMENT...]
set -eu

cd "$(dirname "$0")/.."
run=tools/run-under-wine.sh
prefix=$PWD/build/wine
work=$(mktemp -d build/wine-tests.XXXXXX)

finish() {
    exec 3>&-
    WINEPREFIX=$prefix /usr/lib/wine/wineserver64 -k || true
    wait
    rm -rf "$work"
}
trap finish EXIT
trap 'exit 1' HUP INT TERM

# Wine's services stay as long as one program runs, and starting them takes seconds. So this program runs
# until its input ends, after the last test.
mkfifo "$work/input"
"$run" cmd.exe <"$work/input" >"$work/log" 2>&1 &
exec 3>"$work/input"
# The services keep the output of the program open that started them. If that were a test, CTest would
# wait for the end of the output for ever. So the services must be up before the first test.
"$run" cmd.exe /c exit </dev/null >"$work/started" 2>&1

# A program has ended with status 1 under Wine once in thousands of starts, and nobody found out why. So
# each test gets a second chance; the output of the first stays in sight.
ctest --preset windows --repeat until-pass:2 "$@"
