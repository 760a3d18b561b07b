#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The mutation check (not part of CI): small faults put into the code one at a time, each built
# incrementally in build/mutants/tree and run against the test suite. Report: build/mutants/report.md.
# Usage: scripts/mutants.sh [--count N] [--seed S] [--list] [--recheck|--survivors|--again REPORT.json] [--kill-map]
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
command -v ccache >/dev/null || { [ "$(id -u)" -eq 0 ] && apt-get install -y ccache >/dev/null || sudo apt-get install -y ccache; }
export CCACHE_BASEDIR="$PWD"   # the work tree's objects share the cache with this tree's
exec python3 scripts/mutants.py "$@"
