#!/usr/bin/env bash
# The public header: up to date with the registry, clean C99 and C++, and plain C once its preprocessor lines are dropped.
#   header.sh SOURCE_DIR
set -euo pipefail
source=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

python3 -B "$source/api/generate.py" header --check
echo '#include "pxli.h"
#include "pxlcore.h"
#include "pxli.h"' > "$work/both.c"
cp "$work/both.c" "$work/both.cpp"
cc -std=c99 -pedantic -Wall -Wextra -Wstrict-prototypes -Werror -fsyntax-only -I"$source/include" "$work/both.c"
c++ -std=c++11 -pedantic -Wall -Wextra -Werror -fsyntax-only -I"$source/include" "$work/both.cpp"
{
    echo '#include <stdint.h>'
    grep -v '^[[:space:]]*#' "$source/include/pxli.h"
} > "$work/bare.c"
cc -std=c99 -pedantic -Wall -Wextra -Werror -fsyntax-only "$work/bare.c"
