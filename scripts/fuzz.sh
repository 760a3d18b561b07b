#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fuzzes the reading and writing of numbers with libFuzzer (clang) for a bounded time.
# Usage: scripts/fuzz.sh [SECONDS]   (default 600). Inputs that break a property are kept in
# fuzz/regressions/, which the test suite replays.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
seconds="${1:-600}"
out=build/fuzz
mkdir -p "$out" fuzz/corpus fuzz/regressions
clang++ -std=c++20 -O1 -g -I. -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined \
  fuzz/fuzz_numbers.cpp runtime/Numbers.cpp runtime/RuntimeError.cpp -o "$out/fuzz_numbers"
"$out/fuzz_numbers" -max_total_time="$seconds" -max_len=512 -artifact_prefix=fuzz/regressions/ \
  fuzz/corpus fuzz/seeds
