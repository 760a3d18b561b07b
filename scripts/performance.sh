#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the handlers' benchmarks and, in a separate process, their floors, and writes
# docs/performance.md from their medians.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target plotto_bench plotto_floors
run() {
  "$1" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true --benchmark_format=json \
    --benchmark_out="$2" --benchmark_out_format=json >/dev/null
}
# The handlers in a process with the toolkit running; their floors in one that never starts it.
# Rounds alternate the two, so that a burst of load on a shared machine falls on one round only.
rounds="${ROUNDS:-3}"
handlers=() floors=()
for r in $(seq "$rounds"); do
  QT_QPA_PLATFORM=offscreen run ./build/default/bench/plotto_bench "build/default/bench-$r.json"
  run ./build/default/bench/plotto_floors "build/default/floors-$r.json"
  handlers+=("build/default/bench-$r.json") floors+=("build/default/floors-$r.json")
done
python3 scripts/performance.py "$(IFS=,; echo "${handlers[*]}")" "$(IFS=,; echo "${floors[*]}")" docs/performance.md
cat docs/performance.md
