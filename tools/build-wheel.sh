#!/bin/sh
# Builds the Python package as a wheel in build/python/wheel/, for the platform that auditwheel finds.
#
#   tools/build-wheel.sh [PYTHON]
#
# It is for that Python: python3 if none is given.
set -eu
cd "$(dirname "$0")/.."

python=${1-python3}
build=build/python
package=bindings/python

"$python" -m venv --clear "$build/build-environment"
tool="$build/build-environment/bin"
"$tool/pip" install --quiet --disable-pip-version-check --requirement "$package/requirements-build.txt"

rm -rf "$build/raw" "$build/wheel"
# Without isolation the headers of nanobind stay where they are, so only what changed is compiled anew.
PATH="$PWD/$tool:$PATH" "$tool/pip" wheel --quiet --disable-pip-version-check --no-build-isolation --no-deps \
    --config-settings "build-dir=$PWD/$build/cmake" --wheel-dir "$build/raw" "./$package"
"$tool/auditwheel" show "$build"/raw/*.whl
PATH="$PWD/$tool:$PATH" "$tool/auditwheel" repair --wheel-dir "$build/wheel" "$build"/raw/*.whl
