#!/bin/sh
# Builds the Python package as a wheel in build/python/wheel/. auditwheel determines its platform.
#
#   tools/build-wheel.sh [PYTHON]    the Python that the wheel is for, python3 by default
set -eu
cd "$(dirname "$0")/.."

python=${1-python3}
build=build/python
package=bindings/python

"$python" -m venv --clear "$build/build-environment"
tool="$build/build-environment/bin"
"$tool/pip" install --quiet --disable-pip-version-check --requirement "$package/requirements-build.txt"

rm -rf "$build/raw" "$build/wheel"
# Without isolation the headers of nanobind stay in one place, so only changed sources are compiled again.
PATH="$PWD/$tool:$PATH" "$tool/pip" wheel --quiet --disable-pip-version-check --no-build-isolation --no-deps \
    --config-settings "build-dir=$PWD/$build/cmake" --wheel-dir "$build/raw" "./$package"
"$tool/auditwheel" show "$build"/raw/*.whl
PATH="$PWD/$tool:$PATH" "$tool/auditwheel" repair --wheel-dir "$build/wheel" "$build"/raw/*.whl
