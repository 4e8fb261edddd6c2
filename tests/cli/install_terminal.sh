#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# install_terminal.sh RAVELCTL WORLD WORK_DIR: installations on a terminal, and ones that are ended from
# outside.
# shellcheck disable=SC2016  # what is in single quotes is for jq and the inner shell
set -euo pipefail
# shellcheck source=tests/cli/world.sh
. "$(dirname -- "$(readlink -f -- "$0")")/world.sh"
enter_world "$@"
start_servers
define plain "http://127.0.0.1:$(port plain)/packages/"
define local "file://$repos/packages"
define slow "http://127.0.0.1:$(port slow)/packages/"
define images "http://127.0.0.1:$(port plain)/images/" 'dd\.gz'
save_root
watch_installers
### On a terminal
fresh
check "a no leaves the image" on_terminal 2 80 '[y/N] ' n install images tc-system=6.2.0
check "so does nothing" on_terminal 2 80 '[y/N] ' '' install images tc-system=6.2.0
check "and the interrupt key" on_terminal 130 80 '[y/N] ' ^C install images tc-system=6.2.0
check "  and nothing was started" nothing_ran
check "a yes installs it" on_terminal 0 80 '[y/N] ' yes install images tc-system=6.2.0
check "  really" grep -q bash "$work/ran/command"
# The widest line that was drawn, and whether the bar is gone at the end.
bar()
{
  /usr/bin/python3 - "$work/out" "$1" <<'PYTHON'
import re, sys
shown = open(sys.argv[1], encoding="utf-8", newline="").read()
bars = [piece for piece in re.split(r"\r\x1b\[K|\n", shown) if "%" in piece and " of " in piece]
assert bars, shown
assert max(map(len, bars)) < int(sys.argv[2]), bars
tail = shown[shown.rindex(bars[-1]) + len(bars[-1]):]
assert tail.startswith("\r\x1b[K"), tail
PYTHON
}
for columns in 120 80 40 30; do
  fresh
  check "$columns columns" on_terminal 0 "$columns" '' '' install plain
  check "  the bar fits and goes" bar "$columns"
done
fresh
check "quiet has no bar" on_terminal 0 80 '' '' --quiet install plain
check "  really" sh -c '! grep -q % "$0"' "$work/out"

### Ended from outside
fresh
run 124 '.error.code == 124' --timeout 2 install slow
check "  and nothing was started" nothing_ran
check "the interrupt key ends the downloads" on_terminal 130 80 '%' ^C install slow
check "  and nothing was started" nothing_ran
mkfifo -- "$work/begun"
# in_installer EXIT_CODE WHAT ARGUMENT...: WHAT happens while the installer runs, which then goes on.
in_installer()
{
  local expected=$1 what=$2 status=0 run
  shift 2
  fresh
  rm -rf -- "$work/ran" && mkdir -- "$work/ran"
  mkfifo -- "$work/go"
  local program=("$ravelctl" --root "$root" --definitions "$definitions")
  case $what in
    ^*) program=(timeout 60 /usr/bin/python3 "$here/terminal.py" 80 installing "$what" "${program[@]}") ;;
    time) program+=(--json --timeout "$seconds") ;;
    *) program+=(--json) ;;
  esac
  "${program[@]}" "$@" >"$work/out" 2>"$work/err" &
  run=$!
  await_line "$work/begun" "${seconds:-60}" || { kill "$run"; rm -- "$work/go"; return 1; }
  case $what in
    ^C) await_text "$work/out" 'cannot be interrupted' ;;
    ^H) await_text "$work/out" '\[closed\]' ;;
    time) await_text "$work/err" 'cannot be interrupted' ;;
    *) kill "-$what" "$run" && await_text "$work/err" 'cannot be interrupted' ;;
  esac || return 1
  echo > "$work/go"
  wait "$run" || status=$?
  rm -- "$work/go"
  # Whoever has no terminal any more cannot be told the result.
  [ "$status" -eq "$expected" ] || { [ "$what" = ^H ] && [ "$status" -eq 1 ]; } \
    || { echo "exit code $status"; return 1; }
  [ "$(version tc-network)" = 1.1-1 ]
}
for signal in TERM HUP; do
  check "SIG$signal lets the installer end" in_installer 0 "$signal" install plain
done
# On a slow machine the time may be over before the installer begins.
time_over()
{
  local seconds
  for seconds in 2 8 32; do
    ! in_installer 0 time install local || return 0
  done
  return 1
}
check "so does the time" time_over
check "and the interrupt key" in_installer 0 ^C install plain
check "and the end of the terminal" in_installer 0 ^H install plain

finish 1
