#!/bin/sh
# Fetches the ANTLR tool with Maven and puts it into build/antlr-VERSION-complete.jar.
#
#   tools/fetch-antlr-tool.sh [VERSION]    release 4.10 by default
#
# The file is pinned by its hash. Nothing is fetched if the file is there.
set -eu

version=${1-4.10}
artifact=org.antlr:antlr4:$version:jar:complete

build=$(cd "$(dirname "$0")/.." && pwd)/build
target=$build/antlr-$version-complete.jar

. "$(dirname "$0")/fail.sh"

case "$version" in
    4.10) sha256=fb5cf682be74aafb6cf355b118bb5b2fa4a10abd4bc0a59fb7883f597ecc7201 ;;
    4.10.1) sha256=41949d41f20d31d5b8277187735dd755108df52b38db6c865108d3382040f918 ;;
    4.11.0) sha256=0f08a3d3e1d07e498558a0eb39ac5dfca95fe3ee6fbffe586e77077059e0160f ;;
    4.11.1) sha256=62975e192b4af2622b72b5f0131553ee3cbce97f76dc2a41632dcc55e25473e1 ;;
    4.12.0) sha256=88f18a2bfac0dde1009eda5c7dce358a52877faef7868f56223a5bcc15329e43 ;;
    4.13.0) sha256=bc6f4abc0d225a27570126c51402569f000a8deda3487b70e7642840e570e4a6 ;;
    4.13.1) sha256=bc13a9c57a8dd7d5196888211e5ede657cb64a3ce968608697e4f668251a8487 ;;
    4.13.2) sha256=eae2dfa119a64327444672aff63e9ec35a20180dc5b8090b7a6ab85125df4d76 ;;
    *) fail "release $version is none of those from 4.10 to 4.13.2 that this script knows." ;;
esac

[ ! -f "$target" ] || exit 0
command -v mvn >/dev/null || fail "mvn is missing; tools/install-packages.sh grammar installs it."

mkdir -p "$build"
work=$(mktemp -d "$build/antlr-tool.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM

echo "Fetching the ANTLR $version tool"
mvn -q -B dependency:get "-Dartifact=$artifact" -Dtransitive=false >"$work/log" 2>&1 &&
    mvn -q -B dependency:copy "-Dartifact=$artifact" "-DoutputDirectory=$work" \
        -Dmdep.useBaseVersion=true >>"$work/log" 2>&1 ||
    fail "Maven cannot get $artifact: $(grep -m 1 'ERROR' "$work/log" || tail -n 1 "$work/log")"
jar=$work/antlr4-$version-complete.jar
echo "$sha256  $jar" | sha256sum --check --status ||
    fail "$artifact has the wrong SHA-256 hash; remove it from Maven's local repository before the next try."
mv "$jar" "$target"
