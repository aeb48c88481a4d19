#!/usr/bin/env bash
# Drives vowren-cli the way a script would and checks what it prints and its exit status.
set -u
cli="$1"
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export VOWREN_HOME="$home"
passed=0
failed=0

check() { # name, expected status, expected text (grep -E), command...
    local name="$1" status="$2" pattern="$3"
    shift 3
    local out rc
    out=$("$@" 2>&1)
    rc=$?
    if [ "$rc" -eq "$status" ] && grep -qE -- "$pattern" <<<"$out"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL: $name (status $rc, wanted $status; pattern '$pattern')"
        echo "$out" | head -20
    fi
}

check "version" 0 '^vowren-cli [0-9]+\.[0-9]+\.[0-9]+$' "$cli" --version
check "help lists info" 0 'info' "$cli" --help
check "no command" 2 'no command given' "$cli"
check "unknown command" 2 'unknown command "frobnicate"' "$cli" frobnicate
check "info rejects arguments" 2 'takes no arguments' "$cli" info extra
check "info names the data root" 0 "Data root: +$home" "$cli" info
check "info names the database" 0 "Database: +$home/Database/Vowren.quilldata" "$cli" info
check "info names the settings file" 0 "Settings file: +$home/Vowren.ini" "$cli" info

mkdir -p "$home/Database"
printf '/srv/shared/Wedding.quilldata\r\n' >"$home/Database/Vowren.connect"
check "info follows the connect file" 0 "Database: +/srv/shared/Wedding.quilldata$" "$cli" info

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
