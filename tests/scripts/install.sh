#!/usr/bin/env bash
# Installs the build, moves the installed tree, and builds a C program against it with CMake and with pkg-config.
#   install.sh BUILD_DIR SOURCE_DIR [TOOLCHAIN_FILE C_COMPILER RUNNER]     the last three for a cross-compiled build
set -euo pipefail
build=$1 source=$2 toolchain=${3:-} cc=${4:-cc} runner=${5:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/moved"
prefix=$work/moved
package=$(find "$prefix" -name pxlimx.pc)

cmp "$source/LICENSE" "$prefix/share/doc/pxlimx/LICENSE"
if [ -n "$runner" ]; then
    diff -r "$source/cmake/notices" "$prefix/share/doc/pxlimx/notices" # of the DLLs that are not ours
fi

find_components() { # find_components DIRECTORY [COMPONENT]: configures the consumer
    cmake -G Ninja -S "$source/tests/consumer" -B "$1" ${toolchain:+--toolchain "$toolchain"} \
        -Dpxlimx_DIR="$(dirname "$(find "$prefix" -name pxlimx-config.cmake)")" -DPXLIMX_COMPONENTS="${2:-}"
}
if find_components "$work/unknown" nothing >"$work/log" 2>&1; then
    echo "a component that does not exist was found" && exit 1
fi
grep -q 'no component "nothing"' "$work/log"
find_components "$work/cmake" pxlcore >/dev/null
cmake --build "$work/cmake" >/dev/null

mkdir "$work/pkg-config"
export PKG_CONFIG_LIBDIR=${package%/*}
release=$(sed -n 's/^#define PXL_VERSION_[A-Z]* //p' "$prefix/include/pxli.h" | paste -sd.)
[ "$(pkg-config --modversion pxlimx)" = "$release" ]
# shellcheck disable=SC2046
"$cc" -std=c99 -Wall -Wextra -Werror "$source/tests/consumer/consumer.c" $(pkg-config --cflags --libs pxlimx) \
    -o "$work/pkg-config/consumer"

for way in cmake pkg-config; do
    if [ -n "$runner" ]; then
        WINEPATH=$prefix/bin "$runner" "$work/$way/consumer.exe"
    else
        LD_LIBRARY_PATH=$(pkg-config --variable=libdir pxlimx) "$work/$way/consumer"
    fi
done
