#!/bin/sh
# Runs a program for Linux on 64-bit ARM, with the libraries of Debian's cross compiler.
#
#   tools/run-under-qemu.sh PROGRAM [ARGUMENT...]
set -eu

command -v qemu-aarch64 >/dev/null || {
    echo "run-under-qemu: qemu-aarch64 is missing; tools/install-packages.sh arm64 installs it." >&2
    exit 1
}
exec qemu-aarch64 -L /usr/aarch64-linux-gnu "$@"
