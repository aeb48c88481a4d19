#!/usr/bin/env bash
# Installs the Debian 12 packages that Vowren needs to build, test and run, when any is missing.
# Sourced by run.sh and test.sh; installs nothing when everything is there.
set -euo pipefail

VOWREN_PACKAGES=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-svg-dev qt6-charts-dev qt6-webengine-dev libgl-dev libglx-dev
    libsqlite3-dev libbenchmark-dev ccache lld
    fonts-dejavu-core poppler-utils python3-vobject libreoffice-writer-nogui
)

vowren_missing_packages() {
    local missing=()
    for pkg in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
            missing+=("$pkg")
        fi
    done
    echo "${missing[@]:-}"
}

vowren_install_packages() {
    local missing
    missing=$(vowren_missing_packages "$@")
    [ -z "$missing" ] && return 0
    echo "Installing: $missing"
    local sudo=""
    if [ "$(id -u)" -ne 0 ]; then
        sudo="sudo"
    fi
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get update -q
    # shellcheck disable=SC2086
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing
}

vowren_install_packages "${VOWREN_PACKAGES[@]}"
