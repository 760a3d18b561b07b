#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package and checks it: lintian with no error and no warning, the AppStream file
# and the desktop entry valid, `cmake --install` into a staging folder giving the same files as the
# package, the staged program answering --version and starting, and (as root) the package installed
# with apt and started from its desktop entry under Xvfb, then removed again.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target plotto plotto_docs
rm -f build/default/plotto_*.deb
(cd build/default && cpack -G DEB >/dev/null)
deb=$(ls "$PWD"/build/default/plotto_*.deb)
echo "package: $deb"

lintian --fail-on error,warning --display-level ">=warning" "$deb"
echo "lintian: no error, no warning"
report=$(appstreamcli validate --pedantic --no-net packaging/*.metainfo.xml)
echo "$report"
[ "$report" = "✔ Validation was successful." ] || { echo "appstreamcli reported issues"; exit 1; }
desktop-file-validate packaging/plotto.desktop
echo "desktop entry: valid"

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
DESTDIR="$stage" cmake --install build/default --prefix /usr >/dev/null
staged=$(cd "$stage" && find . -type f | sed 's|^\./||' | sort)
packaged=$(dpkg-deb -c "$deb" | awk '$1 !~ /^d/ {print $6}' | sed 's|^\./||' | sort)
if [ "$staged" != "$packaged" ]; then
  echo "cmake --install and the package differ:"; diff <(echo "$staged") <(echo "$packaged") || true; exit 1
fi
echo "cmake --install gives the package's $(echo "$packaged" | wc -l) files"
"$stage/usr/bin/plotto" --version
status=0; QT_QPA_PLATFORM=offscreen timeout 3 "$stage/usr/bin/plotto" >/dev/null 2>&1 || status=$?
[ "$status" -eq 124 ] || { echo "the staged program ended with status $status instead of running"; exit 1; }
echo "the staged program starts and runs"

if [ "$(id -u)" -eq 0 ]; then
  DEBIAN_FRONTEND=noninteractive apt-get install -y "$deb" >/dev/null
  # Lessons: the examples, the file type and the desktop entry's association are installed.
  ls /usr/share/plotto/lessons/*.plotto >/dev/null
  grep -q '^MimeType=application/x-plotto-lesson;' /usr/share/applications/plotto.desktop
  grep -q 'application/x-plotto-lesson' /usr/share/mime/packages/plotto.xml
  echo "installed: $(ls /usr/share/plotto/lessons | wc -l) example lessons, the lesson file type and its desktop association"
  exec_line=$(sed -n 's/^Exec=//p' /usr/share/applications/plotto.desktop | sed 's/ %[fFuU]//')
  status=0
  xvfb-run -a bash -c "$exec_line & p=\$!; sleep 2; xdotool search --sync --name 'Calculus Calculator' >/dev/null; r=\$?; kill \$p; exit \$r" \
    >/dev/null 2>&1 || status=$?
  DEBIAN_FRONTEND=noninteractive apt-get remove -y plotto >/dev/null
  [ "$status" -eq 0 ] || { echo "the installed program did not open its window from the desktop entry"; exit 1; }
  echo "installed with apt; the desktop entry's command opens the launcher window; removed again"
fi
echo "package: every check passed"
