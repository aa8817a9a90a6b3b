#!/bin/sh
# Runs clang-tidy over sources, two or more at a time.
#
#   tools/run-clang-tidy.sh BUILD_FOLDER SOURCE...
set -eu
build=$1
shift
printf '%s\0' "$@" | xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p "$build" 2>/dev/null
