#!/bin/sh
# Fetches sources or a package from the pool of Debian's archive and unpacks them into a folder under
# build/.
#
#   tools/fetch-from-pool.sh POOL_PATH SHA256 FOLDER [PART]
#
# With PART, only that folder is unpacked. The file comes from the mirror that this machine already uses
# and is pinned by its hash. Nothing is fetched if the folder is there.
set -eu

. "$(dirname "$0")/fail.sh"

[ $# -eq 3 ] || [ $# -eq 4 ] || fail "give the path in the pool, the hash and the folder, as tools/fetch-antlr-runtime.sh does."
archive=$(basename "$1")
build=$(cd "$(dirname "$0")/.." && pwd)/build
target=$build/$3

[ ! -d "$target" ] || exit 0

helper=/usr/lib/apt/apt-helper
[ -x "$helper" ] || fail "$helper is missing; put the contents of $archive into $target by hand."
# Any repository of this release may be Debian's mirror; the hash tells whether the file is right.
codename=$(. /etc/os-release && echo "${VERSION_CODENAME-}")
mirrors=$(apt-get update --print-uris 2>/dev/null |
    sed -nE "s#^'(.*)/dists/($codename|stable|oldstable)/InRelease' .*#\\1#p" | sort -u)
[ -n "$mirrors" ] || fail "apt knows no mirror for Debian '$codename' to fetch $archive from."

mkdir -p "$build"
work=$(mktemp -d "$build/$3.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM

echo "Fetching $3"
for mirror in $mirrors; do
    ! "$helper" -q -o APT::Sandbox::User=root download-file \
        "$mirror/pool/main/$1" "$work/$archive" "SHA256:$2" \
        >"$work/log" 2>&1 || break
    rm -f "$work/$archive"
done
[ -f "$work/$archive" ] ||
    fail "cannot fetch $archive: $(grep -m 1 '^[EW]:' "$work/log" || tail -n 1 "$work/log")"
mkdir "$work/unpacked"
case "$archive" in
    *.deb) dpkg-deb -x "$work/$archive" "$work/unpacked" 2>"$work/log" ;;
    *) tar -xf "$work/$archive" -C "$work/unpacked" 2>"$work/log" ;;
esac ||
    fail "cannot unpack $archive: $(head -n 1 "$work/log")"
# Most archives hold a single folder with everything in it; the others have no such folder.
contents=$work/unpacked
[ "$(ls "$contents" | wc -l)" -ne 1 ] || contents=$contents/$(ls "$contents")
mv "$contents${4:+/$4}" "$target"
