#!/usr/bin/env bash
# The gallery and the small host in real windows, operated by mouse and keyboard: natively, and as Windows programs
# under Wine. The last line says how it went.
#   run.sh [NATIVE_BUILD [WINDOWS_BUILD]]
cd "$(dirname "$0")/../.."
export PYTHONDONTWRITEBYTECODE=1
exec python3 tests/system/run.py "${1:-build/linux-debug}" "${2:-build/windows}"
