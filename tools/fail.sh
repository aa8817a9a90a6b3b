# Read by the scripts beside it. `fail MESSAGE` ends the script that calls it.
fail() {
    echo "$(basename "$0" .sh): $1" >&2
    exit 1
}
