#!/usr/bin/env bash
# Installs the build, moves the installed tree, and builds a C program against it with CMake and with pkg-config.
#   install.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
prefix=$work/moved
lib=$(dirname "$(find "$prefix" -name 'libpxlimx-5.3.so')")

cmake -S "$source/tests/consumer" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake" >/dev/null
"$work/cmake/consumer"

export PKG_CONFIG_PATH=$lib/pkgconfig
# shellcheck disable=SC2046
cc -std=c99 -Wall -Wextra -Werror "$source/tests/consumer/consumer.c" $(pkg-config --cflags --libs pxlimx) -o "$work/consumer"
LD_LIBRARY_PATH=$lib "$work/consumer"

# Run-time dependencies: the C library and an OpenMP runtime, nothing else.
for library in libpxlimx-5.3.so libpxlcore.so; do
    others=$(objdump -p "$lib/$library" | awk '/NEEDED/ {print $2}' | grep -vE '^(libc|libm|libgomp|libpxlcore|ld-linux-x86-64)\.so' || true)
    [ -z "$others" ] || { echo "$library needs $others"; exit 1; }
done
