#!/bin/sh
# Puts the contents of Debian's packages of the ANTLR 4.10 runtime into build/antlr4-package-4.10/.
set -eu

tools=$(cd "$(dirname "$0")" && pwd)
build=$tools/../build
target=$build/antlr4-package-4.10
pool=a/antlr4-cpp-runtime

. "$(dirname "$0")/fail.sh"

[ ! -d "$target" ] || exit 0
[ "$(dpkg --print-architecture)" = amd64 ] || fail "it knows the hashes of the packages for amd64 only."

"$tools/fetch-from-pool.sh" $pool/libantlr4-runtime4.10_4.10+dfsg-1_amd64.deb \
    42195acd94ed3af0240b2bff9f0032a5ab4777600cf2888683f56090cf244181 antlr4-package-4.10-library
"$tools/fetch-from-pool.sh" $pool/libantlr4-runtime-dev_4.10+dfsg-1_amd64.deb \
    d47a40e65df0a1eb15ea687d200f97c3d415a200e7a955e47dfbd52c91dacc0f antlr4-package-4.10-development
work=$(mktemp -d "$build/antlr4-package.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
mkdir "$work/usr"
for part in library development; do
    cp -R "$build/antlr4-package-4.10-$part/." "$work/usr"
done
mv "$work" "$target"
