#!/bin/sh
# Puts the sources of the ANTLR 4.10 C++ runtime into build/antlr4-runtime-4.10/.
#
# Debian keeps them in the pool of its archive, so they come from the mirror this machine already
# uses. The file is pinned by its hash; nothing is fetched when the folder is there.
set -eu

archive=antlr4-cpp-runtime_4.10+dfsg.orig.tar.xz
sha256=42bde857c1644cd1b1ee8ded2e9a97b4cc083ee85181772c06c9292173abf638

build=$(cd "$(dirname "$0")/.." && pwd)/build
target=$build/antlr4-runtime-4.10

fail() {
    echo "fetch-antlr-runtime: $1" >&2
    exit 1
}

[ ! -d "$target" ] || exit 0

helper=/usr/lib/apt/apt-helper
[ -x "$helper" ] || fail "$helper is missing; put the contents of $archive into $target by hand."
# Any repository of this release may be Debian's mirror; the hash tells whether the file is right.
codename=$(. /etc/os-release && echo "${VERSION_CODENAME-}")
mirrors=$(apt-get update --print-uris 2>/dev/null |
    sed -nE "s#^'(.*)/dists/($codename|stable|oldstable)/InRelease' .*#\\1#p" | sort -u)
[ -n "$mirrors" ] || fail "apt knows no mirror for Debian '$codename' to fetch $archive from."

mkdir -p "$build"
work=$(mktemp -d "$build/antlr4-runtime.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM

echo "Fetching the ANTLR 4.10 runtime"
for mirror in $mirrors; do
    ! "$helper" -q -o APT::Sandbox::User=root download-file \
        "$mirror/pool/main/a/antlr4-cpp-runtime/$archive" "$work/$archive" "SHA256:$sha256" \
        >"$work/log" 2>&1 || break
    rm -f "$work/$archive"
done
[ -f "$work/$archive" ] ||
    fail "cannot fetch $archive: $(grep -m 1 '^[EW]:' "$work/log" || tail -n 1 "$work/log")"
mkdir "$work/unpacked"
tar -xJf "$work/$archive" -C "$work/unpacked" --strip-components=1 2>"$work/log" ||
    fail "cannot unpack $archive: $(head -n 1 "$work/log")"
mv "$work/unpacked" "$target"
