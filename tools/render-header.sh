#!/bin/sh
# Renders the public header as a manual in build/docs/html; what is not documented there is an error.
set -eu

cd "$(dirname "$0")/.."
command -v doxygen >/dev/null || {
    echo "render-header: doxygen is missing; tools/install-packages.sh docs installs it." >&2
    exit 1
}
# Pages of what is no longer there would stay.
rm -rf build/docs
mkdir -p build
doxygen docs/Doxyfile
