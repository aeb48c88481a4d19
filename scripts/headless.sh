#!/usr/bin/env bash
# The main job without a screen.
set -euo pipefail
cli="$1"
"$cli" info
