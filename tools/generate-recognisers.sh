#!/bin/sh
# Generates lexer, parser and listeners from grammar/Cypher.g4 with the ANTLR tool, and compiles the
# grammar to the library's own lexer and parser.
#
#   tools/generate-recognisers.sh                     rewrite grammar/generated/ with the tool of 4.10
#   tools/generate-recognisers.sh --check             fail if that would change grammar/generated/
#   tools/generate-recognisers.sh --into FOLDER JAR   write only the sources of the ANTLR tool in JAR,
#                                                     into another folder
set -eu

root=$(cd "$(dirname "$0")/.." && pwd)
jar=$root/build/antlr-4.10-complete.jar
generated=$root/grammar/generated

. "$(dirname "$0")/fail.sh"

case "${1-} $#" in
    " 0" | "--check 1") ;;
    "--into 3") generated=$(realpath -m "$2") jar=$(realpath -m "$3") ;;
    *) fail "give no argument, --check, or --into FOLDER JAR." ;;
esac
command -v java >/dev/null || fail "java is missing; tools/install-packages.sh grammar installs it."
[ -f "$jar" ] || fail "$jar is missing; tools/fetch-antlr-tool.sh fetches it."

mkdir -p "$root/build"
work=$(mktemp -d "$root/build/generated.XXXXXX")
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM

# The tool writes the grammar's path into the sources, so it runs beside the grammar.
cd "$root/grammar"
java -jar "$jar" -Dlanguage=Cpp -package vorn -listener -no-visitor -encoding UTF-8 -Werror \
    -Xexact-output-dir -o "$work" Cypher.g4 || fail "the tool rejected grammar/Cypher.g4."
# Only the C++ sources are kept: the other files are for IDE plug-ins.
rm "$work"/*.interp "$work"/*.tokens

if [ "${1-}" != --into ]; then
    mkdir "$work/compiled"
    python3 -B "$root/grammar/compile_grammar.py" "$work/compiled" || fail "the grammar cannot be compiled."
fi

if [ "${1-}" = --check ]; then
    diff -r "$work" "$generated" >/dev/null ||
        fail "grammar/generated/ differs from what the tool writes; run make grammar."
else
    mkdir -p "$generated"
    rm -rf "$generated/compiled"
    mv "$work"/* "$generated"
fi
