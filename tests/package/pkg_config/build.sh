#!/bin/sh
# A consumer without CMake: every header alone, then the host, with what pkg-config says.
# Usage: build.sh COMPILER PACKAGE VERSION QT OUTPUT
set -eu
compiler=$1
package=$2
version=$3
qt=$4
output=$5
cd "$(dirname "$0")/../host"

pkg-config --exact-version="$version" "$package"
flags="-std=c++17 -Wall -Wextra -Wpedantic -Werror $(pkg-config --cflags "$package")"
# Qt 5 wants it said, and its own pkg-config files do not say it.
[ "$qt" = 6 ] || flags="$flags -fPIC"
headers=$(pkg-config --variable=includedir "$package")

count=0
for header in "$headers"/*.h; do
    echo "#include <${header##*/}>" | $compiler $flags -fsyntax-only -x c++ -
    count=$((count + 1))
done
[ "$count" -ge 20 ] || { echo "only $count headers in $headers" >&2; exit 1; }

$compiler $flags "-DHOST_EXPECTED_VERSION=\"$version\"" main.cpp -o "$output" \
    $(pkg-config --libs "$package")
