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

# As long as one program runs, Wine's services stay; starting them for every program takes seconds.
# This one waits for its input to end.
mkfifo "$work/input"
"$run" cmd.exe <"$work/input" >"$work/log" 2>&1 &
exec 3>"$work/input"
# The services keep the output of the program that started them open. Were that a test, CTest would wait
# for its end for ever; so here they are up when the first test begins.
"$run" cmd.exe /c exit </dev/null >"$work/started" 2>&1

ctest --preset windows "$@"
