#!/usr/bin/env bash
# Installs the Debian packages the build needs (only those missing), then
# configures and builds the release preset. Safe to run again.
# Usage: setup.sh [TARGET...]   (no target: everything)
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(cmake ninja-build g++ pkg-config libgtest-dev libgmock-dev libbenchmark-dev
          qt6-base-dev qt6-serialport-dev libgl-dev libzip-dev libyaml-cpp-dev ccache
          fonts-liberation2 poppler-utils
          dpkg-dev file desktop-file-utils libxml2-utils shared-mime-info)
# Reports print in Arial or its metric twin Liberation Sans; the report tests read PDFs
# back with poppler's pdftotext. Qt's print support comes with qt6-base-dev.
# The Debian package needs dpkg-dev and file (dpkg-shlibdeps); the package tests judge
# the menu entry and the file types with desktop-file-validate, xmllint and
# update-mime-database.
# The desktop app needs Qt's Wayland plugin to open a window in a Wayland session.
if [ -n "${WAYLAND_DISPLAY:-}" ]; then
    packages+=(qt6-wayland)
fi
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    sudo_cmd=()
    [ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
    export DEBIAN_FRONTEND=noninteractive
    "${sudo_cmd[@]}" apt-get update -qq
    "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

targets=()
for t in "$@"; do
    targets+=(--target "$t")
done
cmake --preset release >/dev/null
cmake --build --preset release "${targets[@]}"
