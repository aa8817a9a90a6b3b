#!/bin/sh
# Builds the library with link-time and profile-guided optimisation, in build/PRESET/.
#
#   tools/build-optimised.sh [PRESET]
#
# PRESET is optimized, or windows-optimized, which is trained under Wine.
# The texts it is trained with are none of those that the benchmarks measure.
set -eu

cd "$(dirname "$0")/.."
preset=${1:-optimized}
build=build/$preset
train=$build/benchmark/training/vorn-train
case $preset in
    windows-*) train="tools/run-under-wine.sh $train.exe" ;;
esac

# A library for Windows loses its counts at the end of the process, so the program holds them.
cmake --preset "$preset" -DVORN_PROFILE=generate -DVORN_SHARED=OFF >/dev/null
find "$build" -name '*.gcda' -delete
cmake --build "$build" --target vorn-train
# Without address randomisation the counts, and so the library, are the same every time.
# shellcheck disable=SC2086 # a command of two words
benchmark/corpus/corpus.py --training | setarch -R $train

cmake --preset "$preset" -DVORN_PROFILE=use -DVORN_SHARED=ON >/dev/null
cmake --build "$build" --target VornLib
