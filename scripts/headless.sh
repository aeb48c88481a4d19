#!/usr/bin/env bash
# The main job without a screen: a demo wedding in its own data root (made once), and where it lives.
set -euo pipefail
cli="$1"
export VOWREN_HOME="${VOWREN_HOME:-$(dirname "$cli")/../demo-home}"
mkdir -p "$VOWREN_HOME"
export VOWREN_HOME="$(cd "$VOWREN_HOME" && pwd)"
if [ ! -f "$VOWREN_HOME/Database/Vowren.quilldata" ]; then
    "$cli" demo
fi
"$cli" info
echo "The demo wedding lives in $VOWREN_HOME; try: VOWREN_HOME=$VOWREN_HOME $cli sql \"SELECT FIRST_NM, LAST_NM FROM CONTACT LIMIT 5\""
