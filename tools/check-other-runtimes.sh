#!/bin/sh
# Builds the library with Debian's package of the ANTLR 4.10 runtime and runs its tests. Compares the
# committed recognisers with those that other releases of the ANTLR tool generate, and compiles the
# generated ones. Debian has no newer runtime, so the compiler gets the headers of 4.10 and a header with
# what newer releases add.
#
#   tools/check-other-runtimes.sh
set -eu

cd "$(dirname "$0")/.."
build=build/system-antlr

. tools/fail.sh

for version in 4.10.1 4.11.1 4.12.0 4.13.2; do
    tools/fetch-antlr-tool.sh $version
    generated=build/recognisers-$version
    tools/generate-recognisers.sh --into $generated build/antlr-$version-complete.jar
    tests/grammar/same_networks.py grammar/generated $generated ||
        fail "the networks of release $version differ from those of 4.10."
    for source in "$generated"/*.cpp; do
        "${CXX:-c++}" -std=c++17 -fsyntax-only -w -DANTLR4CPP_STATIC -include tests/grammar/NewerRuntime.h \
            -isystem "$generated" -isystem build/antlr4-runtime-4.10/src "$source" ||
            fail "$source does not compile."
    done
done

tools/fetch-antlr-package.sh
# The nesting tests are left out: their limits hold for the bundled runtime only.
cmake --preset release -B $build -DVORN_ANTLR=system \
    -DCMAKE_PREFIX_PATH="$PWD/build/antlr4-package-4.10/usr" >/dev/null
cmake --build $build --target VornLib vorn-inspect grammar_test columns_test filters_test
readelf -d $build/libVornLib.so | grep -qF '[libantlr4-runtime.so.4.10]' ||
    fail "$build/libVornLib.so does not use the installed runtime."
ctest --test-dir $build --no-tests=error --output-on-failure -j 2 \
    -L '^(grammar|columns|filters)_test$'
ctest --test-dir $build --no-tests=error --output-on-failure -j 2 -R '^inspect_'
