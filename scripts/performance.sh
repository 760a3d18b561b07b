#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the benchmarks and writes docs/performance.md from their medians.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target plotto_bench
QT_QPA_PLATFORM=offscreen ./build/default/bench/plotto_bench --benchmark_repetitions=7 \
  --benchmark_report_aggregates_only=true --benchmark_format=json --benchmark_out=build/default/bench.json \
  --benchmark_out_format=json >/dev/null
python3 scripts/performance.py build/default/bench.json docs/performance.md
cat docs/performance.md
