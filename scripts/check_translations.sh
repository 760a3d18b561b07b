#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a text the program shows has no finished entry in a shipped catalogue, or a catalogue
# keeps an entry the program no longer has: lupdate refreshes copies of the catalogues from the
# sources, and each copy must come out with no unfinished, vanished or obsolete entry.
set -euo pipefail
top="$(cd "$(dirname "$0")/.." && pwd)"
LUPDATE=${LUPDATE:-/usr/lib/qt6/bin/lupdate}
LRELEASE=${LRELEASE:-/usr/lib/qt6/bin/lrelease}
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cp "$top"/translations/plotto_*.ts "$work/"
cd "$top"
"$LUPDATE" -locations none -extensions cpp,h runtime funclib graphwin screens launcher -ts "$work"/plotto_*.ts \
  > "$work/lupdate.log" 2>&1 || { cat "$work/lupdate.log"; exit 1; }
status=0
for ts in "$work"/plotto_*.ts; do
  name=$(basename "$ts")
  for kind in unfinished vanished obsolete; do
    count=$(grep -c "type=\"$kind\"" "$ts" || true)
    if [ "$count" -ne 0 ]; then
      echo "$name: $count $kind entries:"
      grep -B2 "type=\"$kind\"" "$ts" | grep '<source>' | head -20
      status=1
    fi
  done
  report=$("$LRELEASE" "$ts" -qm "$work/${name%.ts}.qm")
  echo "$report" | grep -q " 0 unfinished" || { echo "$name: $report"; status=1; }
done
[ "$status" -eq 0 ] && echo "Every catalogue is complete: $(ls "$work"/plotto_*.ts | wc -l) languages."
exit "$status"
