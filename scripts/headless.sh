#!/usr/bin/env bash
# The main job without a screen: a demo wedding in its own data root (made once), every report that
# exists written in both dialects, and where it all lives.
set -euo pipefail
cli="$1"
export VOWREN_HOME="${VOWREN_HOME:-$(dirname "$cli")/../demo-home}"
export VOWREN_NO_OPEN=1
mkdir -p "$VOWREN_HOME"
export VOWREN_HOME="$(cd "$VOWREN_HOME" && pwd)"
if [ ! -f "$VOWREN_HOME/Database/Vowren.quilldata" ]; then
    "$cli" demo
fi
"$cli" info
echo
echo "Writing every available report as RTF and CSV:"
written=$("$cli" report --all)
echo "$written" | sed 's/^/  /'
echo
echo "$(echo "$written" | grep -c . || true) reports are in $VOWREN_HOME/Reports."
echo "The demo wedding lives in $VOWREN_HOME; try: VOWREN_HOME=$VOWREN_HOME $cli report --list"
