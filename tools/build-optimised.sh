#!/bin/sh
# Builds the library with link-time and profile-guided optimisation, as build/optimized/libVornLib.so.
#
#   tools/build-optimised.sh
#
# The texts it is trained with are none of those that the benchmarks measure.
set -eu

cd "$(dirname "$0")/.."
build=build/optimized

# Trained as one program, which holds all counts itself.
cmake --preset optimized -DVORN_PROFILE=generate -DVORN_SHARED=OFF >/dev/null
find $build -name '*.gcda' -delete
cmake --build $build --target vorn-train
# Without address randomisation the counts, and so the library, are the same every time.
benchmark/corpus/corpus.py --training | setarch -R $build/benchmark/training/vorn-train

cmake --preset optimized -DVORN_PROFILE=use -DVORN_SHARED=ON >/dev/null
cmake --build $build --target VornLib
