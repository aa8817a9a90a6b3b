#!/bin/sh
# Puts the sources of some libraries into folders under build/. Debian has these libraries for its own
# system only, so cross builds compile them.
set -eu

fetch=$(dirname "$0")/fetch-from-pool.sh

# Newer than the package of Debian 12, since not every mirror has the sources of that one.
"$fetch" r/rapidcheck/rapidcheck_0~1048-a5724ea.orig.tar.xz \
    a56df6c2fc91ae1a49092666e8115e71801fc2976543b822a616561c8b49a4b7 \
    rapidcheck-1048
"$fetch" u/utf8proc/utf8proc_2.8.0.orig.tar.gz \
    a0a60a79fe6f6d54e7d411facbfcc867a6e198608f2cd992490e46f04b1bcecc \
    utf8proc-2.8.0
