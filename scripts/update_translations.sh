#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Brings every catalogue in translations/ up to date with the sources: new texts are added as
# unfinished entries for a translator, texts no longer in the program are dropped. Run it after a
# text changes, translate the new entries (Qt Linguist, or by hand in the .ts), then build.
set -euo pipefail
cd "$(dirname "$0")/.."
LUPDATE=${LUPDATE:-/usr/lib/qt6/bin/lupdate}
"$LUPDATE" -no-obsolete -locations none -extensions cpp,h runtime funclib graphwin screens launcher \
  -ts translations/plotto_*.ts
