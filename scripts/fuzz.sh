#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fuzzes with libFuzzer (clang) for a bounded time: the reading and writing of numbers, or with
# TARGET=typed the typed functions (reading, derivative, evaluation).
# Usage: [TARGET=typed] scripts/fuzz.sh [SECONDS]   (default 600). Inputs that break a property are
# kept in fuzz/regressions/ (fuzz/typed-regressions/), which the test suite replays.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
seconds="${1:-600}"
out=build/fuzz
mkdir -p "$out" fuzz/corpus fuzz/regressions
flags=(-std=c++20 -O1 -g -I. -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined)
if [ "${TARGET:-numbers}" = typed ]; then
  mkdir -p fuzz/typed-corpus fuzz/typed-regressions
  clang++ "${flags[@]}" $(pkg-config --cflags ginac muparser) fuzz/fuzz_typed.cpp funclib/Typed*.cpp \
    funclib/FuncGlobals.cpp runtime/Numbers.cpp runtime/RuntimeError.cpp $(pkg-config --libs ginac muparser) \
    -o "$out/fuzz_typed"
  # CLN keeps a few bytes from its loading that the leak checker cannot follow (see tests/lsan.supp).
  LSAN_OPTIONS="suppressions=tests/lsan.supp" exec "$out/fuzz_typed" -max_total_time="$seconds" -max_len=300 -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix=fuzz/typed-regressions/ fuzz/typed-corpus fuzz/typed-seeds
fi
clang++ "${flags[@]}" \
  fuzz/fuzz_numbers.cpp runtime/Numbers.cpp runtime/RuntimeError.cpp -o "$out/fuzz_numbers"
"$out/fuzz_numbers" -max_total_time="$seconds" -max_len=512 -artifact_prefix=fuzz/regressions/ \
  fuzz/corpus fuzz/seeds
