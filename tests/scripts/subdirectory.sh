#!/usr/bin/env bash
# Builds a project that contains the library (FetchContent, which is add_subdirectory): only the libraries are built, warnings are
# no errors, and the project installs its own program alone. One target and no optimisation, for the time that it takes.
#   subdirectory.sh SOURCE_DIR
set -euo pipefail
source=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake -G Ninja -S "$source/tests/consumer" -B "$work/build" -DPXLIMX_SOURCE="$source" -DPXL_TARGETS=sse2 >/dev/null
if grep -q -e -Werror "$work/build/build.ninja"; then
    echo "warnings are errors in other people's projects" && exit 1
fi
cmake --build "$work/build" >"$work/log" || { cat "$work/log" && exit 1; }
"$work/build/consumer"
[ -z "$(find "$work/build" -name 'pxl_tests*' -o -name CTestTestfile.cmake -o -name 'CPackConfig.cmake')" ]

cmake --install "$work/build" --prefix "$work/installed" >/dev/null
[ "$(cd "$work/installed" && find . -type f)" = ./bin/consumer ]
