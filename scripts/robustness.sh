#!/usr/bin/env bash
# A long random walk through the whole program under the sanitizers.
# Usage: scripts/robustness.sh [ACTIONS] [SEED]   (defaults 200000 and a seed from the clock, printed).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
actions="${1:-200000}"
seed="${2:-$(date +%s)}"
cmake --preset asan >/dev/null
cmake --build --preset asan --target robustness_tests
echo "seed $seed, $actions actions"
QT_QPA_PLATFORM=offscreen PLOTTO_SEED="$seed" PLOTTO_ACTIONS="$actions" \
  ASAN_OPTIONS=detect_leaks=1 LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp" UBSAN_OPTIONS=halt_on_error=1 \
  ./build/asan/tests/robustness_tests
