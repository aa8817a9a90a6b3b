#!/bin/sh
# Tests the wheel that tools/build-wheel.sh has built, in a virtual environment without the source tree.
#
#   tools/test-python.sh [PYTHON]
#
# PYTHON must be the one that the wheel was built with. The tests compare answers with those of
# vorn-inspect.
set -eu
cd "$(dirname "$0")/.."

python=${1-python3}
environment=build/python/test-environment
package=bindings/python
export PYTHONDONTWRITEBYTECODE=1 HYPOTHESIS_STORAGE_DIRECTORY="$PWD/build/python/hypothesis"

"$python" -m venv --clear "$environment"
"$environment/bin/pip" install --quiet --disable-pip-version-check \
    --requirement "$package/requirements-test.txt" build/python/wheel/*.whl
tool="$PWD/$environment/bin"
cd "$package/tests"
"$tool/pytest" --quiet --config-file ../pyproject.toml -p no:cacheprovider .
"$tool/mypy" --config-file ../pyproject.toml --python-version 3.9 --cache-dir "$tool/../mypy" .
"$tool/mypy" --config-file ../pyproject.toml --python-version 3.9 --cache-dir "$tool/../mypy" -p vornlib
