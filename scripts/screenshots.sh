#!/usr/bin/env bash
# Makes the README's screenshots from the program itself, headless, into docs/.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target plotto_shots
QT_QPA_PLATFORM=offscreen ./build/default/plotto_shots docs
