#!/bin/sh
# Prints what VornLib says of the sample queries and filters beside this script.
#
#   show-samples.sh PATH_TO_VORN_INSPECT
#
# Fails if one of them is not understood, or if the filter that is to be refused is not.
set -eu

if [ $# -ne 1 ]; then
    echo "show-samples: give the path of vorn-inspect, as in show-samples.sh build/release/vorn-inspect." >&2
    exit 2
fi
vorn_inspect=$1
samples=$(dirname "$0")
failed=0

indent() {
    sed 's/^\(.\)/    \1/'
}

# Runs vorn-inspect and prints its answer or its error, indented.
show() {
    status=0
    answer=$("$vorn_inspect" "$@" 2>&1) || status=$?
    printf '%s\n' "$answer" | indent
    return "$status"
}

fail() {
    echo "show-samples: $1" >&2
    failed=1
}

heading() {
    printf '%s\n%s\n\n' "$1" "$(printf '%s' "$1" | sed 's/./=/g')"
}

heading "Columns of queries"
for file in "$samples"/queries/*.cypher; do
    printf '%s  (%s)\n\n' "$(sed -n '1s|^// *||p' "$file")" "$(basename "$file")"
    show columns --file "$file" || fail "$file should be a query."
    echo
done

heading "Property filters: what they read, and a renaming"
for file in "$samples"/filters/*.cypher; do
    printf '%s\n\n' "$(basename "$file" .cypher)"
    indent <"$file"
    echo
    status=0
    show usages --file "$file" || status=$?
    case $file in
        *-refused-*) [ "$status" -eq 1 ] || fail "$file should be refused." ;;
        *) [ "$status" -eq 0 ] || fail "$file should be a filter." ;;
    esac
    # Every sample begins with a variable.
    variable=$(sed -n '1s/[.:].*//p' "$file")
    printf '\n    %s becomes x:\n\n' "$variable"
    show rename --map "$variable=x" --file "$file" || fail "$file should be renamed."
    echo
done

exit "$failed"
