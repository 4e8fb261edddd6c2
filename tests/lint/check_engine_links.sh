#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# check_engine_links.sh PROGRAM: a program on the whole engine needs no library that draws.
set -euo pipefail

needed=$(ldd "$1")
grep -q libQt5Network <<<"$needed" || {
  echo "$1 does not hold the engine"
  exit 1
}
direct=$(readelf -d "$1" | grep NEEDED)
if grep -E 'libQt5(Gui|Widgets|Svg)|libplume_widgets' <<<"$direct"; then
  echo "$1 links a widget library itself"
  exit 1
fi
if grep -E 'libQt5(Gui|Widgets|Svg)|libplume_widgets' <<<"$needed"; then
  echo "the engine links a widget library"
  exit 1
fi
