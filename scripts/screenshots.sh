#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the README's screenshots of the launcher and all eight screens from the program itself,
# headless, into docs/ (100%) and docs/hidpi/ (200%).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target plotto_shots
QT_QPA_PLATFORM=offscreen ./build/default/plotto_shots docs
# The same at 200% scaling, for high-resolution displays.
QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 ./build/default/plotto_shots docs/hidpi
