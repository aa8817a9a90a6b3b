#!/bin/sh
# Runs each fuzzer for a number of seconds and stops at the first one that finds something.
#
#   tools/fuzz.sh BUILD_FOLDER SECONDS [TARGET...]
#
# The corpora stay in BUILD_FOLDER/corpus. Inputs that fail go to BUILD_FOLDER/findings.
set -eu

. "$(dirname "$0")/fail.sh"

[ $# -ge 2 ] || fail "give the build folder and the seconds for each target."
build=$1
seconds=$2
shift 2
[ $# -gt 0 ] || set -- columns usages renaming c_interface strings grammar parser
past=$(cd "$(dirname "$0")/.." && pwd)/fuzz/findings
log=$build/fuzz.log

# With short stack traces at allocations a fuzzer runs half as many inputs again.
export ASAN_OPTIONS="malloc_context_size=2:quarantine_size_mb=64${ASAN_OPTIONS:+:$ASAN_OPTIONS}"
mkdir -p "$build/findings"

for target in "$@"; do
    corpus=$build/corpus/$target
    mkdir -p "$corpus"
    # The prediction caches grow with every new shape of text, hence the memory.
    "$build/fuzz/fuzz_$target" -max_total_time="$seconds" -max_len=600 -timeout=60 \
        -rss_limit_mb=4096 -dict="$build/fuzz/dictionary" \
        -artifact_prefix="$build/findings/$target-" \
        "$corpus" "$build/fuzz/seeds/$target" "$past/$target" >"$log" 2>&1 ||
        fail "$target found something: $(grep -m 1 -E 'Does not hold|ERROR|runtime error' "$log"); see $log, fix it and keep the input in fuzz/findings/$target."
    printf '%-11s %s\n' "$target" "$(grep '^Done' "$log")"
done
