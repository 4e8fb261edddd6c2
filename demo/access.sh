#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# access.sh BUILD_DIR: goes through the demo world with a screen reader's eyes and the keyboard alone:
# tests/e2e/access.py on a virtual display with an accessibility bus of its own.
set -euo pipefail

if [ $# -ne 1 ] || [ ! -d "$1" ]; then
  echo "usage: ${0##*/} BUILD_DIR" >&2
  exit 2
fi
build=$(cd -- "$1" && pwd -P)
demo=$(cd -- "$(dirname -- "$(readlink -f -- "$0")")" && pwd -P)
world=$build/demo/access
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
status=0
# Debian's own python3, which has the bindings of the bus, whatever PATH says.
"$demo/serve.sh" "$world" "$demo/on-display.sh" "$world/home" dbus-run-session -- timeout --kill-after=5 150 \
  /usr/bin/python3 "$demo/../tests/e2e/access.py" "$build/host/ravel-host" "$world/root" \
  2> >(grep -v 'dbus-daemon' >&2) || status=$?
[ "$status" -ne 124 ] || echo "access: stopped after two and a half minutes" >&2
exit "$status"
