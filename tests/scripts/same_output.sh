#!/usr/bin/env bash
# Runs the checksum program of two builds, one of them cross-compiled, and compares what they print.
#   same_output.sh NATIVE RUNNER CROSS_COMPILED
set -euo pipefail
diff <("$1") <("$2" "$3" | tr -d '\r')
