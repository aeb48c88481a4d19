#!/usr/bin/env bash
# Installs what is missing, builds the sanitizer build (Debug, AddressSanitizer and
# UndefinedBehaviorSanitizer, warnings as errors) and runs the whole test suite.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
source "$root/scripts/deps.sh"

build="$root/build-asan"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVOWREN_SANITIZE=ON -DVOWREN_WERROR=ON >/dev/null
cmake --build "$build"

export QT_QPA_PLATFORM=offscreen
export VOWREN_NO_OPEN=1
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export LSAN_OPTIONS="suppressions=$root/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
cd "$build"
ctest --output-on-failure -j2 "$@"
