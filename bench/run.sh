#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# run.sh BUILD_DIR: every benchmark, each against its peer in the same run; fails when one is slower.
set -euo pipefail
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home

failed=0
for program in "$1"/bench/bench_*; do
  if [ ! -f "$program" ]; then continue; fi
  "$program" || failed=1
done
exit $failed
