#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian packages Plotto needs to build, test and run, and nothing else.
# This is the one place that names them. Runs apt-get only when something is missing.
set -euo pipefail

PACKAGES=(
  cmake ninja-build g++ clang
  qt6-base-dev qt6-svg-dev libgl-dev libboost-dev
  qt6-tools-dev qt6-l10n-tools
  libginac-dev libmuparser-dev pkg-config qt6-charts-dev libqt6opengl6-dev qt6-multimedia-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  fonts-liberation fonts-dejavu-core
  xvfb xauth imagemagick python3 poppler-utils
  openbox xdotool xclip dbus at-spi2-core python3-pyatspi
  lintian appstream desktop-file-utils dpkg-dev
)

missing=()
for p in "${PACKAGES[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"
echo "Installing: ${missing[*]}"
$SUDO apt-get update
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y --no-install-recommends "${missing[@]}"
