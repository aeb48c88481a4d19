#!/usr/bin/env bash
# Installs what is missing, builds Release and starts Vowren. Without a display it runs the headless
# main job with vowren-cli instead and says so.
set -euo pipefail
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
source "$root/scripts/deps.sh"

build="$root/build-release"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
cmake --build "$build"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display found (neither DISPLAY nor WAYLAND_DISPLAY is set): running the headless job with vowren-cli."
    exec "$root/scripts/headless.sh" "$build/src/vowren-cli"
fi
exec "$build/src/vowren" "$@"
