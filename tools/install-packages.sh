#!/bin/sh
# Installs the missing Debian packages that a task needs.
#
#   tools/install-packages.sh TASK
#
# If none is missing it does nothing, and needs neither network nor root.
set -eu

. "$(dirname "$0")/fail.sh"

case "${1-}" in
    build) packages="g++ cmake ninja-build python3 patch xz-utils libutfcpp-dev
                     libcli11-dev nlohmann-json3-dev libutf8proc-dev
                     libgtest-dev librapidcheck-dev locales pkg-config clang-14" ;;
    grammar) packages="python3 unicode-data maven default-jre-headless" ;;
    docs) packages="python3 python3-railroad-diagrams doxygen" ;;
    bench) packages="libbenchmark-dev valgrind python3" ;;
    abi) packages="abigail-tools" ;;
    debian) packages="debhelper dpkg-dev fakeroot lintian devscripts mmdebstrap" ;;
    arm64) packages="g++-aarch64-linux-gnu qemu-user cmake ninja-build python3 xz-utils
                     googletest libutfcpp-dev libcli11-dev nlohmann-json3-dev clang-14" ;;
    coverage) packages="gcovr" ;;
    python) packages="python3-dev python3-venv binutils patchelf" ;;
    lint) packages="clang-format clang-tidy" ;;
    windows) packages="g++-mingw-w64-x86-64-posix wine64 cmake ninja-build python3 xz-utils
                       googletest libutfcpp-dev libcli11-dev nlohmann-json3-dev clang-14 lld llvm" ;;
    fuzz) packages="clang-14 libclang-rt-14-dev" ;;
    *) fail "name a task, one of those in this script." ;;
esac

command -v dpkg-query >/dev/null ||
    fail "this is no Debian system; install the counterparts of these packages by hand: $(echo $packages)"

missing=""
for package in $packages; do
    state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) || state=""
    [ "$state" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "these packages are missing and installing them needs root or sudo:$missing"
    as_root="sudo"
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
trap 'exit 1' HUP INT TERM

# Runs apt-get. If it fails, the message has its first error and the first file that it could not fetch.
run_apt() {
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get -q "$@" >>"$log" 2>&1 </dev/null ||
        fail "apt-get $1 failed for$missing: $(grep -m 1 '^E:' "$log") $(grep -m 1 '^W: Failed' "$log")"
}

echo "Installing$missing"
# A repository that cannot be reached is no failure; a package that cannot be installed is one.
run_apt update
# shellcheck disable=SC2086 # one argument for each package
run_apt install --yes --no-install-recommends $missing
