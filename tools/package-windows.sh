#!/bin/sh
# Packs the Windows build into a zip, which can be unpacked anywhere, and prints its path.
#
#   tools/package-windows.sh
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/windows

. "$(dirname "$0")/fail.sh"

[ -f "$build/VornLib.dll" ] || fail "$build/VornLib.dll is missing; make windows builds it."
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
name=VornLib-$version-windows-x86_64

work=$(mktemp -d "$root/build/package.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM

package=$work/$name
cmake --install "$build" --prefix "$package" >/dev/null
# The compiler's DLLs come with symbols, which are most of their size.
x86_64-w64-mingw32-strip "$package"/bin/*.dll
cp "$root/packaging/windows/README.md" "$package"

licenses=$package/licenses
# The licences of the compiler's DLLs, and GPL 3, from which they make an exception.
cp /usr/share/common-licenses/GPL-3 "$licenses/GPL-3.txt"
for debian_package in gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev; do
    copyright=/usr/share/doc/$debian_package/copyright
    [ -f "$copyright" ] || fail "$copyright is missing; install $debian_package with its documents."
    cp -L "$copyright" "$licenses/$debian_package.txt"
done

zip=$build/$name.zip
rm -f "$zip"
(cd "$work" && cmake -E tar cf "$zip" --format=zip "$name")
echo "$zip"
