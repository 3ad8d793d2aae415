#!/usr/bin/env bash
# Holds the export table of Lib_Brask against the list of its names: each of them is there, and nothing else.
#   check_exports.sh BUILD_TREE
set -eu -o pipefail
cd "$(dirname "$0")/.."
exec python3 tests/exports/check.py "$1" tests/exports/names.txt
