#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# walk.sh BUILD_DIR [APPEARANCE]: walks through the demo world without a person: a virtual display, a
# fresh world, and the program of tests/e2e/walk.cpp, in its normal, large, dark or contrast
# appearance. One line a step; the exit code is that program's. Screenshots are in
# BUILD_DIR/screenshots/APPEARANCE afterwards.
set -euo pipefail

if [ $# -lt 1 ] || [ $# -gt 2 ] || [ ! -d "$1" ]; then
  echo "usage: ${0##*/} BUILD_DIR [normal|large|dark|contrast]" >&2
  exit 2
fi
build=$(cd -- "$1" && pwd -P)
demo=$(cd -- "$(dirname -- "$(readlink -f -- "$0")")" && pwd -P)
appearance=${2:-normal}
world=$build/demo/walk-$appearance
screenshots=$build/screenshots/$appearance
rm -rf -- "$screenshots"
mkdir -p -- "$screenshots"
status=0
"$demo/serve.sh" "$world" "$demo/on-display.sh" "$world/home" timeout --kill-after=5 120 \
  "$build/tests/e2e/ravel-walk" "$world/root" "$screenshots" "$appearance" || status=$?
[ "$status" -ne 124 ] || echo "walk: stopped after two minutes" >&2
exit "$status"
