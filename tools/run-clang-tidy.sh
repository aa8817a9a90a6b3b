#!/bin/sh
# Runs clang-tidy over sources, as many at a time as there are processors.
#
#   tools/run-clang-tidy.sh BUILD_FOLDER SOURCE...
#
# Sources that the build folder does not compile are left out: they belong to programs that tests
# build elsewhere.
set -eu

build=$1
shift
for source in "$@"; do
    if grep -qF "\"file\": \"$PWD/$source\"" "$build/compile_commands.json"; then
        printf '%s\0' "$source"
    fi
done | xargs -0 -r -n 1 -P "$(nproc)" clang-tidy --quiet -p "$build" 2>/dev/null
