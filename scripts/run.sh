#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds Plotto and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target plotto
exec ./build/default/plotto "$@"
