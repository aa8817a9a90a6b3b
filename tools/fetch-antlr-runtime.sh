#!/bin/sh
# Puts the sources of the ANTLR 4.10 C++ runtime into build/antlr4-runtime-4.10/.
set -eu

exec "$(dirname "$0")/fetch-from-pool.sh" \
    a/antlr4-cpp-runtime/antlr4-cpp-runtime_4.10+dfsg.orig.tar.xz \
    42bde857c1644cd1b1ee8ded2e9a97b4cc083ee85181772c06c9292173abf638 \
    antlr4-runtime-4.10 runtime
