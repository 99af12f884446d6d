#!/usr/bin/env bash
# Packs the source archive, and configures what it holds: nothing is missing, nothing else came along.
#   source_archive.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cpack --config "$build/CPackSourceConfig.cmake" -B "$work" >/dev/null
tar -xzf "$work"/pxlimx-*.tar.gz -C "$work"
unpacked=$(find "$work" -mindepth 1 -maxdepth 1 -type d -name 'pxlimx-*')
cmake -G Ninja -S "$unpacked" -B "$work/build" -DPXL_TESTS=OFF >/dev/null
if git -C "$source" ls-files --error-unmatch CMakeLists.txt >/dev/null 2>&1; then
    diff <(git -C "$source" ls-files --cached --others --exclude-standard | LC_ALL=C sort) \
         <(cd "$unpacked" && find . -type f -printf '%P\n' | LC_ALL=C sort)
fi
