#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks Plotto as a screen reader sees it: a private X server with a window manager, a session bus
# with the accessibility bus, Qt's accessibility bridge on, and scripts/accessibility.py driving the
# program with the keyboard and reading it through AT-SPI.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
preset="${PRESET:-default}"
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target plotto
export PLOTTO="$PWD/build/$preset/plotto"
exec xvfb-run -a -s "-screen 0 1920x1080x24" dbus-run-session -- bash -c '
  export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
  /usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
  openbox >/dev/null 2>&1 &
  sleep 1
  "$PLOTTO" >/dev/null 2>&1 &
  app=$!
  status=0
  /usr/bin/python3 scripts/accessibility.py || status=$?
  kill $app 2>/dev/null || true
  exit $status'
