#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fuzzes with libFuzzer (clang) for a bounded time: the reading and writing of numbers, with
# TARGET=typed the typed functions (reading, derivative, evaluation), or with TARGET=lessons lessons
# of arbitrary bytes and damaged examples opened and applied on every screen (the whole program is
# built with clang under the sanitizers into build/fuzz: one heavy build).
# Usage: [TARGET=typed|lessons] scripts/fuzz.sh [SECONDS]   (default 600). Inputs that break a
# property are kept in fuzz/regressions/ (fuzz/typed-regressions/, fuzz/lesson-regressions/), which
# the test suite replays.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
seconds="${1:-600}"
out=build/fuzz
mkdir -p "$out" fuzz/corpus fuzz/regressions
flags=(-std=c++20 -O1 -g -I. -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined)
if [ "${TARGET:-numbers}" = typed ]; then
  mkdir -p fuzz/typed-corpus fuzz/typed-regressions
  clang++ "${flags[@]}" $(pkg-config --cflags ginac muparser) fuzz/fuzz_typed.cpp funclib/Typed*.cpp funclib/Words.cpp \
    funclib/FuncGlobals.cpp runtime/Numbers.cpp runtime/RuntimeError.cpp $(pkg-config --libs ginac muparser) \
    -o "$out/fuzz_typed"
  # CLN keeps a few bytes from its loading that the leak checker cannot follow (see tests/lsan.supp).
  LSAN_OPTIONS="suppressions=tests/lsan.supp" exec "$out/fuzz_typed" -max_total_time="$seconds" -max_len=300 -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix=fuzz/typed-regressions/ fuzz/typed-corpus fuzz/typed-seeds
fi
if [ "${TARGET:-numbers}" = lessons ]; then
  mkdir -p fuzz/lesson-corpus fuzz/lesson-regressions
  CXX=clang++ cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -g" \
    -DPLOTTO_SANITIZE=ON -DPLOTTO_FUZZ=ON -DPLOTTO_BUILD_TESTS=OFF -DPLOTTO_BUILD_BENCH=OFF \
    -DCMAKE_CXX_COMPILER_LAUNCHER="$(command -v ccache || true)" >/dev/null
  cmake --build build/fuzz -j2 --target fuzz_lessons
  QT_QPA_PLATFORM=offscreen LSAN_OPTIONS="suppressions=tests/lsan.supp" \
    exec build/fuzz/fuzz_lessons -max_total_time="$seconds" -max_len=4096 -timeout=30 -rss_limit_mb=4096 \
    -artifact_prefix=fuzz/lesson-regressions/ fuzz/lesson-corpus fuzz/lesson-seeds
fi
clang++ "${flags[@]}" \
  fuzz/fuzz_numbers.cpp runtime/Numbers.cpp runtime/RuntimeError.cpp -o "$out/fuzz_numbers"
"$out/fuzz_numbers" -max_total_time="$seconds" -max_len=512 -artifact_prefix=fuzz/regressions/ \
  fuzz/corpus fuzz/seeds
