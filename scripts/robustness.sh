#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Long random walks through the whole program under the sanitizers, one per seed, run side by side
# on every core.
# Usage: scripts/robustness.sh [ACTIONS] [SEED ...]   (defaults 200000 and one seed from the clock).
# Each walk prints its seed first and its summary (restarts after allowed run-time errors, by number)
# last; its full output is kept in build/asan/robustness-SEED.log. Exits non-zero if any walk failed.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
actions="${1:-200000}"
shift || true
seeds=("$@")
[ ${#seeds[@]} -eq 0 ] && seeds=("$(date +%s)")
cmake --preset asan >/dev/null
cmake --build --preset asan --target robustness_tests
jobs="${JOBS:-$(nproc)}"
run_one() {
  local seed="$1" log="build/asan/robustness-$1.log"
  if QT_QPA_PLATFORM=offscreen PLOTTO_SEED="$seed" PLOTTO_ACTIONS="$actions" \
      ASAN_OPTIONS=detect_leaks=1 LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp" UBSAN_OPTIONS=halt_on_error=1 \
      ./build/asan/tests/robustness_tests >"$log" 2>&1; then
    echo "seed $seed: passed; $(grep -h '^random walk: .*restarts' "$log")"
  else
    echo "seed $seed: FAILED, see $log"; tail -n 40 "$log"; return 1
  fi
}
export -f run_one
export actions
printf '%s\n' "${seeds[@]}" | xargs -P "$jobs" -I{} bash -c 'run_one {}'
