#!/bin/sh
# Runs a program for 64-bit Windows under Wine, without a screen and without the user's own Wine settings.
#
#   tools/run-under-wine.sh PROGRAM.exe [ARGUMENT...]
#
# Wine keeps its files in build/wine/. Its server runs on for some seconds after the last program.
set -eu

. "$(dirname "$0")/fail.sh"

wine=/usr/lib/wine/wine64
[ -x "$wine" ] || fail "$wine is missing; tools/install-packages.sh windows installs it."
# Wine would start a program for Linux too, but would not return its exit status.
case "${1-}" in
    *.exe) ;;
    *) fail "name a program for Windows, as in run-under-wine.sh build/windows/vorn-inspect.exe." ;;
esac

root=$(cd "$(dirname "$0")/.." && pwd)
export WINEPREFIX=$root/build/wine
# The folder of the DLLs that do not lie beside the program.
export WINEPATH="${WINEPATH:-$root/build/windows}"
# Wine's own messages are off. Without these two DLLs it does not ask to fetch Mono and Gecko.
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
# File names and arguments are UTF-8.
export LC_ALL=C.UTF-8
unset DISPLAY WAYLAND_DISPLAY

mkdir -p "$WINEPREFIX"
exec "$wine" "$@"
