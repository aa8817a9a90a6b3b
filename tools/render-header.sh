#!/bin/sh
# Renders the public header as a manual in build/docs/html. A declaration without documentation is an
# error.
set -eu

cd "$(dirname "$0")/.."
command -v doxygen >/dev/null || {
    echo "render-header: doxygen is missing; tools/install-packages.sh docs installs it." >&2
    exit 1
}
# Otherwise the pages of removed declarations would stay.
rm -rf build/docs
mkdir -p build
doxygen docs/Doxyfile
