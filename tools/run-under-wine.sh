#!/bin/sh
# Runs a program for 64-bit Windows under Wine, without a screen and apart from the user's own Wine.
#
#   tools/run-under-wine.sh PROGRAM.exe [ARGUMENT...]
#
# Wine keeps its files in build/wine/, and its server goes on for some seconds after the last program.
set -eu

fail() {
    echo "run-under-wine: $1" >&2
    exit 1
}

wine=/usr/lib/wine/wine64
[ -x "$wine" ] || fail "$wine is missing; tools/install-packages.sh windows installs it."
# Given a program for Linux, Wine would start it and not tell how it ends.
case "${1-}" in
    *.exe) ;;
    *) fail "name a program for Windows, as in run-under-wine.sh build/windows/vorn-inspect.exe." ;;
esac

root=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX=$root/build/wine
# Where DLLs are looked for that do not lie beside the program.
export WINEPATH="${WINEPATH:-$root/build/windows}"
# Nobody reads what Wine has to say of itself; without these two it asks to fetch what is not needed.
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
# File names and arguments are UTF-8.
export LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY

mkdir -p "$WINEPREFIX"
exec "$wine" "$@"
