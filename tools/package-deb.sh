#!/bin/sh
# Builds the Debian packages into build/packages/ and checks them with lintian.
#
#   tools/package-deb.sh
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
work=$root/build/package-deb
packages=$root/build/packages
version=$(sed -n 's/^#define VORN_VERSION_[A-Z]* //p' "$root/include/vorn/vorn.h" | paste -sd .)

. "$(dirname "$0")/fail.sh"

command -v dpkg-buildpackage >/dev/null ||
    fail "dpkg-buildpackage is missing; tools/install-packages.sh debian installs it."

rm -rf "$work" "$packages"
source=$work/vornlib-$version
mkdir -p "$source/build" "$packages"
for part in CMakeLists.txt THIRD-PARTY.md bindings cmake examples grammar include inspect platform src \
    strings build/antlr4-runtime-4.10; do
    cp -R "$root/$part" "$source/$part"
done
cp -R "$root/packaging/debian" "$source/"
date=$(git -C "$root" log -1 --format=%cD)
sed "s/@VERSION@/$version/; s/@DATE@/$date/" "$source/debian/changelog.in" >"$source/debian/changelog"
rm "$source/debian/changelog.in"

cd "$source"
DEB_BUILD_OPTIONS="${DEB_BUILD_OPTIONS:-parallel=$(nproc)}" \
    dpkg-buildpackage -b -us -uc >"$work/log" 2>&1 || fail "the build failed; see $work/log."

cd "$work"
lintian --fail-on error,warning ./*.changes || fail "lintian has found errors or warnings."
mv ./*.deb "$packages"
