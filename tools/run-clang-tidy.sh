#!/bin/sh
# Runs clang-tidy on sources, as many at a time as there are processors.
#
#   tools/run-clang-tidy.sh "BUILD_FOLDER..." SOURCE...
#
# The first build folder that compiles a source gives the options. Two kinds of sources are left out:
# those for Windows, which need the headers of another compiler, and a host that a test builds by itself.
# Code that an #ifdef keeps for Windows is not checked either.
set -eu

. "$(dirname "$0")/fail.sh"

command -v clang-tidy >/dev/null || fail "clang-tidy is missing; tools/install-packages.sh lint installs it."
builds=$1
shift

# build_of SOURCE: prints the build folder that compiles it.
build_of() {
    for build in $builds; do
        ! grep -qF "\"file\": \"$PWD/$1\"" "$build/compile_commands.json" || { echo "$build"; return; }
    done
    fail "none of $builds compiles $1; configure them again if it is new."
}

work=$(mktemp)
trap 'rm -f "$work"' EXIT
trap 'exit 1' HUP INT TERM

for source in "$@"; do
    case "$source" in
        */windows/* | tests/strings/host/*) continue ;;
    esac
    build=$(build_of "$source")
    printf '%s\0%s\0' "$build" "$source" >>"$work"
done
# Standard error is dropped: it only counts the suppressed warnings.
xargs -0 -r -n 2 -P "$(nproc)" sh -c 'clang-tidy --quiet -p "$0" "$1" 2>/dev/null' <"$work"
