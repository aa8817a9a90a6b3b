#!/bin/sh
# Compares the exports of the libraries and the layout of their public types with the announced ABI.
#
#   tools/check-abi.sh BUILD_FOLDER            fail if they differ from tests/abi/*ARCHITECTURE.abi
#   tools/check-abi.sh BUILD_FOLDER --write    write those files
set -eu

. "$(dirname "$0")/fail.sh"

[ $# -ge 1 ] || fail "name a build folder."
build=$1
mode=${2-}
root=$(cd "$(dirname "$0")/.." && pwd)

command -v abidw >/dev/null || fail "abidw is missing; tools/install-packages.sh abi installs it."

now=$(mktemp)
trap 'rm -f "$now"' EXIT
trap 'exit 1' HUP INT TERM

# check LIBRARY HEADERS ANNOUNCED ABIDW_OPTION ABIDIFF_OPTION
check() {
    library=$build/tests/abi/$1
    announced=$root/tests/abi/$3
    [ -f "$library" ] || fail "$library is missing; make check-abi builds it."
    # shellcheck disable=SC2086 # one option or none
    abidw --headers-dir "$root/$2" --drop-private-types $4 --drop-undefined-syms --no-corpus-path \
        --no-comp-dir-path --no-show-locs --no-elf-needed --type-id-style hash "$library" >"$now"
    if [ "$mode" = --write ]; then
        cat "$now" >"$announced"
    else
        [ -f "$announced" ] || fail "$announced is missing; write it with --write."
        # shellcheck disable=SC2086 # one option or none
        abidiff $5 --no-show-locs "$announced" "$now" ||
            fail "the ABI differs from the announced one. Raise VORN_VERSION_MAJOR if hosts must be rebuilt, then run make announce-abi."
    fi
}

check libvorn_abi.so include "$(uname -m).abi" --load-all-types --non-reachable-types
# No function of the C interface mentions the types of its enumerators, so a test checks their numbers.
check libvorn_c_abi.so bindings/c/include "vorn_c-$(uname -m).abi" "" ""
