#!/bin/sh
# Compares what a shared library exports with what was recorded.
# Usage: compare.sh LIBRARY RECORD
set -eu
folder=$(dirname "$0")
found=$(mktemp)
trap 'rm -f "$found"' EXIT
"$folder/symbols.sh" "$1" >"$found"
[ "$(wc -l <"$found")" -gt 100 ] || { echo "hardly any symbols in $1" >&2; exit 1; }
if ! diff -u "$2" "$found"; then
    echo "The exported symbols differ from $2 (- recorded, + found)." >&2
    echo "If that is meant: scripts/record-symbols" >&2
    exit 1
fi
