#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# on-display.sh HOME COMMAND [ARGUMENT...]: runs the command on a virtual X display with a window
# manager and nothing of the person who runs this: HOME is made afresh, with no settings, no
# session, no theme and no language. Its exit code is the command's.
set -euo pipefail

if [ $# -lt 2 ]; then
  echo "usage: ${0##*/} HOME COMMAND [ARGUMENT...]" >&2
  exit 2
fi
home=$1
shift
rm -rf -- "$home"
mkdir -p -- "$home"
home=$(cd -- "$home" && pwd -P)
mkdir -m 0700 -- "$home/run"
export HOME=$home XDG_CONFIG_HOME=$home/.config XDG_CACHE_HOME=$home/.cache XDG_RUNTIME_DIR=$home/run
export LC_ALL=C.UTF-8 DBUS_SESSION_BUS_ADDRESS=disabled:
# Widgets need no GL, whose drivers are slow to load and leak.
export QT_QPA_PLATFORM=xcb QT_XCB_GL_INTEGRATION=none
unset WAYLAND_DISPLAY QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE QT_SCALE_FACTOR LANGUAGE

pids=()
# shellcheck disable=SC2317  # the trap calls it
stop()
{
  local pid
  for pid in "${pids[@]}"; do
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
}
trap stop EXIT

# await PIPE WHAT LOG: the line that comes through PIPE
await()
{
  local fd line
  exec {fd}<>"$1"
  if ! read -r -t 60 -u "$fd" line; then
    echo "${0##*/}: no $2" >&2
    cat "$3" >&2
    return 1
  fi
  exec {fd}>&-
  echo "$line"
}

mkfifo -- "$home/display" "$home/managed"
Xvfb -displayfd 3 -screen 0 2560x2000x24 -nolisten tcp 3>"$home/display" 2>"$home/xvfb.log" &
pids=("$!")
DISPLAY=:$(await "$home/display" 'virtual display' "$home/xvfb.log")
export DISPLAY
# A window manager gives dialogs their frames and the focus, but not to windows that were there first.
echo "$DISPLAY" > "$home/number"
openbox --sm-disable --startup "cp '$home/number' '$home/managed'" >"$home/openbox.log" 2>&1 &
pids=("$!" "${pids[@]}")
await "$home/managed" 'window manager' "$home/openbox.log" >/dev/null

status=0
"$@" || status=$?
exit "$status"
