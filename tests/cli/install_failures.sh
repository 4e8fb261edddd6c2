#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# install_failures.sh RAVELCTL WORLD WORK_DIR: what cannot be had, what fails, and what makes no sense.
# shellcheck disable=SC2016  # what is in single quotes is for jq and the inner shell
set -euo pipefail
# shellcheck source=tests/cli/world.sh
. "$(dirname -- "$(readlink -f -- "$0")")/world.sh"
enter_world "$@"
start_servers
define plain "http://127.0.0.1:$(port plain)/packages/"
define noaudio "http://127.0.0.1:$(port noaudio)/packages/"
define nodebs "http://127.0.0.1:$(port nodebs)/packages/"
define short "http://127.0.0.1:$(port short)/packages/"
define gone "http://127.0.0.1:$(port plain)/nowhere/"
define packs "http://127.0.0.1:$(port plain)/service-packs/" xar
define images "http://127.0.0.1:$(port plain)/images/" 'dd\.gz'
define lost "file://$work/lost"
make_odd_packages
# Of a local file that it does not open, the engine hears at once.
mkdir -- "$work/lost"
mkfifo -- "$work/pipe"
ln -s -- "$work/pipe" "$work/lost/whole.deb"
cp -- "$work/odd/whole.xml" "$work/lost/"
save_root
watch_installers
# Nothing was downloaded either.
refused()
{
  local before
  fresh
  : > "$work/requests"
  run "$@"
  before=$(grep -cE '\.(deb|xar|gz)$' "$work/requests" || true)
  check "  and nothing was started" nothing_ran
  check "  nor downloaded" test "$before" -eq 0
}

### 3, 4, 8: what cannot be had
fresh
run 3 '.installer == null and ([.downloads[].error.kind] | unique) == ["network"]' install nodebs
check "  and nothing was started" nothing_ran
run 3 '.error.code == 3' install gone
run 4 '.installer == null and ([.downloads[].error.kind] | unique) == ["damaged"]' install short
check "  and nothing was started" nothing_ran
run 8 '.installer.exitCode == 0 and ([.downloads[] | select(.error) | .error.code]) == [203]' install noaudio
check "  the others are installed" test "$(version tc-audio) $(version tc-network)" = "0.9-1 1.1-1"
fresh
for name in cut empty page; do
  run 4 '.installer == null and .downloads[0].error.kind == "damaged"' install odd "tc-$name"
  check "  and nothing was started" nothing_ran
done
run 4 '.installer == null and (.downloads[0].error.text | contains("its name is '"'"'tc-audio'"'"', not '"'"'tc-other'"'"'"))' install odd tc-other
check "  and nothing was started" nothing_ran
run 8 '.installer.exitCode == 0 and ([.downloads[] | select(.error) | .url | sub(".*/"; "")] == ["cut.deb"])' install odd tc-cut tc-audio
check "  a damaged package keeps nothing from the others" test "$(version tc-audio)" = 1.0-1
fresh
run 3 '.installer == null and (.downloads | length) == 1' install lost
check "  and nothing was started" nothing_ran

### 7: the installer fails
run 7 '.installer.exitCode == 1 and (.installer.output | contains("rotten.deb"))' install odd tc-rotten
fresh
rm -- "$root/usr/sbin/xarinstall"
run 7 '.installer.exitCode == null' install packs SP-6.1.2-2
printf '#!/bin/sh\nkill -KILL $$\n' > "$root/usr/sbin/xarinstall" && chmod 755 "$root/usr/sbin/xarinstall"
run 7 '.error.text | contains("signal")' install packs SP-6.1.2-2
# A terminal's worth of output stays bounded, and harmless.
printf '#!/bin/sh\necho "${1#--extrdir=}" >> "%s/etc/service-packs/installed"\nseq 100000\nprintf "\\033]0;owned\\007 \\001end"\n' \
  "$root" > "$root/usr/sbin/xarinstall"
run 0 '.installer.outputIsCut and (.installer.output | length) <= 65536 and (.installer.output | endswith("end\n"))' install packs SP-6.1.2-2
"$ravelctl" --quiet --root "$root" --definitions "$definitions" install packs SP-6.1.2-2 >"$work/out" 2>"$work/err"
check "the output is passed on, and nothing else is said" sh -c 'grep -qx 100000 "$0" && grep -q "u001b" "$0" && [ ! -s "$1" ]' "$work/out" "$work/err"
# A reader that goes away does not take the installer with it.
rm -f -- "$work/finished"
printf '#!/bin/sh\nseq 100000\ntouch %s\n' "$work/finished" > "$root/usr/sbin/xarinstall"
"$ravelctl" --root "$root" --definitions "$definitions" install packs SP-6.1.2-2 2>/dev/null | head -n 1 >/dev/null || true
check "a reader that goes away lets the installer end" test -e "$work/finished"

# What is not on the system afterwards is not installed, whatever the installer says.
fresh
printf '#!/bin/sh\nexit 0\n' > "$root/usr/sbin/xarinstall"
run 7 '[.results[] | .state] == ["failed"] and (.results[0].reason | contains("not in the list"))' install packs SP-6.1.2-2
# Several packs: after a failure the rest is not tried.
printf '#!/bin/sh\n[ "$1" != --extrdir=SP-6.1.2-2 ] || exit 3\necho "${1#--extrdir=}" >> "%s/etc/service-packs/installed"\n' \
  "$root" > "$root/usr/sbin/xarinstall"
fresh_list=$(cat "$root/etc/service-packs/"*)
run 7 '[.results[].state] == ["not-confirmable", "failed", "not-tried"] and .installer.exitCode == 3' install packs
check "  really" test "$(cat "$root/etc/service-packs/"*)" = "$fresh_list
SP-6.1.2-1"

### 5: space
refused 5 '.error.text | contains("space")' install odd tc-huge
refused 5 '.error.text | contains("space")' install odd tc-bloated
if has_little_space; then
  # in_small ARGUMENT...: with such a temporary directory.
  in_small()
  {
    TMPDIR=$work/small in_little_space "$work/small" "$ravelctl" --json --root "$root" \
      --definitions "$definitions" "$@" >"$work/out" 2>"$work/err"
  }
  fresh
  status=0
  in_small install plain || status=$?
  check "a small disk is seen beforehand" test "$status" -eq 5
  check "  and nothing was started" nothing_ran
  status=0
  in_small install odd tc-audio || status=$?
  check "a full disk ends a download of unknown size" test "$status" -eq 5
  check "  and nothing was started" nothing_ran
else
  echo "skip no private mounts here: the full disk is left out"
fi

### 2: what needs a yes, and what makes no sense
refused 2 '.error.text | contains("--yes")' install images tc-system=6.2.0
refused 2 '.error.code == 2' install plain tc-nothing
refused 2 '.error.code == 2' install plain --lock-timeout soon
refused 2 '.error.code == 2' install

finish 20
