#!/bin/sh
# Lists what a shared library offers to its hosts, one demangled name a line.
#
# Left out: weak functions, which are copies of templates that the compiler made for its own use.
# Vtables and type information are weak as well, but hosts derive from what they describe.
# Usage: symbols.sh LIBRARY
set -eu
nm -D --defined-only -C "$1" | cut -d ' ' -f 2- | LC_ALL=C awk '
    { kind = substr($0, 1, 1); name = substr($0, 3) }
    kind == "W" || name ~ /(^|for |on )std::|^_/ { next }
    { print name }' | LC_ALL=C sort -u
