#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds Plotto and runs every test.
# PRESET=asan runs the same tests with AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${PRESET:-default}"
bash scripts/deps.sh
# Under CI (CI set, as .ci/run does) a warning fails the build.
werror=OFF
[ -n "${CI:-}" ] && werror=ON
cmake --preset "$preset" -DPLOTTO_WERROR="$werror" >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset"
