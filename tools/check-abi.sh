#!/bin/sh
# Compares what the library exports, and the layout of its public types, with what was announced.
#
#   tools/check-abi.sh BUILD_FOLDER            fail if they differ from abi/ARCHITECTURE.abi
#   tools/check-abi.sh BUILD_FOLDER --write    announce them
set -eu

fail() {
    echo "check-abi: $1" >&2
    exit 1
}

[ $# -ge 1 ] || fail "name a build folder."
library=$1/abi/libvorn_abi.so
root=$(cd "$(dirname "$0")/.." && pwd)
announced=$root/abi/$(uname -m).abi

command -v abidw >/dev/null || fail "abidw is missing; tools/install-packages.sh abi installs it."
[ -f "$library" ] || fail "$library is missing; make check-abi builds it."

now=$(mktemp)
trap 'rm -f "$now"' EXIT
trap 'exit 1' HUP INT TERM
abidw --headers-dir "$root/include" --drop-private-types --load-all-types --drop-undefined-syms --no-corpus-path \
    --no-comp-dir-path --no-show-locs --no-elf-needed --type-id-style hash "$library" >"$now"

if [ "${2-}" = --write ]; then
    mkdir -p "$root/abi"
    cat "$now" >"$announced"
else
    [ -f "$announced" ] || fail "$announced is missing; write it with --write."
    abidiff --non-reachable-types --no-show-locs "$announced" "$now" ||
        fail "this is another ABI than announced. Raise VORN_VERSION_MAJOR if hosts must be rebuilt, then run make announce-abi."
fi
