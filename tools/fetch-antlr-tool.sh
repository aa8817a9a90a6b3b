#!/bin/sh
# Puts the ANTLR 4.10 tool into build/antlr-4.10-complete.jar, by way of Maven.
#
# The file is pinned by its hash; nothing is fetched when it is there.
set -eu

artifact=org.antlr:antlr4:4.10:jar:complete
sha256=fb5cf682be74aafb6cf355b118bb5b2fa4a10abd4bc0a59fb7883f597ecc7201

build=$(cd "$(dirname "$0")/.." && pwd)/build
target=$build/antlr-4.10-complete.jar

fail() {
    echo "fetch-antlr-tool: $1" >&2
    exit 1
}

[ ! -f "$target" ] || exit 0
command -v mvn >/dev/null || fail "mvn is missing; tools/install-packages.sh grammar installs it."

mkdir -p "$build"
work=$(mktemp -d "$build/antlr-tool.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM

echo "Fetching the ANTLR 4.10 tool"
mvn -q -B dependency:get "-Dartifact=$artifact" -Dtransitive=false >"$work/log" 2>&1 &&
    mvn -q -B dependency:copy "-Dartifact=$artifact" "-DoutputDirectory=$work" \
        -Dmdep.useBaseVersion=true >>"$work/log" 2>&1 ||
    fail "Maven cannot get $artifact: $(grep -m 1 'ERROR' "$work/log" || tail -n 1 "$work/log")"
jar=$work/antlr4-4.10-complete.jar
echo "$sha256  $jar" | sha256sum --check --status ||
    fail "$artifact has the wrong SHA-256 hash; remove it from Maven's local repository before the next try."
mv "$jar" "$target"
