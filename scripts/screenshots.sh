#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the README's screenshots of the launcher and every screen of the registry from the program itself,
# headless, into docs/ (100%) and docs/hidpi/ (200%).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target plotto_shots
# The screens maximized on a 1920x1080 projector, normal and projector mode, go to docs/projector;
# PLOTTO_SHOT_SIZES=1920x1080,1280x720,1024x768 makes all three sizes (for a look, not for the page).
QT_QPA_PLATFORM=offscreen PLOTTO_SHOT_SIZES="${PLOTTO_SHOT_SIZES:-1920x1080}" ./build/default/plotto_shots docs
# The same at 200% scaling, for high-resolution displays.
QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=2 PLOTTO_SHOT_SIZES=none ./build/default/plotto_shots docs/hidpi
