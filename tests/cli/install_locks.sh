#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# install_locks.sh RAVELCTL WORLD WORK_DIR: a package database that another program holds, or that an
# interrupted one left.
# shellcheck disable=SC2016  # what is in single quotes is for jq and the inner shell
set -euo pipefail
# shellcheck source=tests/cli/world.sh
. "$(dirname -- "$(readlink -f -- "$0")")/world.sh"
enter_world "$@"
start_servers
define plain "http://127.0.0.1:$(port plain)/packages/"
define packs "http://127.0.0.1:$(port plain)/service-packs/" xar
save_root
watch_installers
### 6: the package database
# hold FILE: locks it as dpkg does until the descriptor 8 is closed.
hold()
{
  mkfifo -- "$work/holding" "$work/locked"
  /usr/bin/python3 -c 'import fcntl, sys
file = open(sys.argv[1], "a")
fcntl.lockf(file, fcntl.LOCK_EX)
open(sys.argv[2], "w").write("locked\n")
sys.stdin.read()' "$1" "$work/locked" <"$work/holding" 9>&- &
  holder=$!
  exec 8>"$work/holding"
  await_line "$work/locked"
}
release()
{
  exec 8>&-
  wait "$holder"
  rm -- "$work/holding" "$work/locked"
}
for lock in lock lock-frontend; do
  fresh
  hold "$root/var/lib/dpkg/$lock"
  : > "$work/requests"
  run 6 ".error.text | contains(\"python3 (process $holder)\")" install plain
  check "  and nothing was started" test ! -e "$work/ran/command"
  check "  nor downloaded" sh -c '! grep -q "deb$" "$0"' "$work/requests"
  run 6 '.error.code == 6' install plain --lock-timeout 1
  run 124 '.error.code == 124' --timeout 1 install plain --lock-timeout 30
  run 0 '.installer' plan plain
  : > "$work/err"
  "$ravelctl" --json --root "$root" --definitions "$definitions" install plain tc-audio --lock-timeout 50 \
    >"$work/out" 2>"$work/err" 8>&- &
  waiting=$!
  await_text "$work/err" 'is locked by.*Waiting'
  release
  status=0
  wait "$waiting" || status=$?
  check "a lock that goes away is waited for" test "$status" -eq 0
done
fresh
state_before=$(cd "$root" && find . -printf '%p %y %m %s %T@\n' | sort)
run 0 '.installer' plan plain
check "looking at the locks makes none" test "$state_before" = "$(cd "$root" && find . -printf '%p %y %m %s %T@\n' | sort)"
# After an interruption, nothing is installed before a repair.
sed 's/^Status: install ok installed$/Status: install ok unpacked/' "$work/root.saved/var/lib/dpkg/status" > "$work/unpacked"
fresh
cp -- "$work/unpacked" "$root/var/lib/dpkg/status"
run 6 '.error.text | contains("tc-session is unpacked") and contains("ravelctl repair")' install plain
check "  and nothing was started" test ! -e "$work/ran/command"
fresh
: > "$root/var/lib/dpkg/updates/tmp.i"
run 0 '.error == null' install plain tc-audio
fresh
: > "$root/var/lib/dpkg/updates/0001"
run 6 '.error.text | contains("interrupted")' install plain
run 0 '.error == null' install packs SP-6.1.2-2
fresh
awk '/^Package: /{audio = $2 == "tc-audio"} audio && /^Status: /{$0 = "Status: install reinstreq half-installed"} {print}' \
  "$work/root.saved/var/lib/dpkg/status" > "$work/half-installed"
cp -- "$work/half-installed" "$root/var/lib/dpkg/status"
run 6 '.error.text | contains("tc-audio is half-installed")' install plain tc-network
run 0 '.error == null' install plain tc-audio
check "what is broken is repaired by its own installation" test "$(version tc-audio)" = 1.0-1
# The repair, and what cannot be repaired.
fresh
run 0 '.found == [] and .removed == [] and .left == []' repair
cp -- "$work/unpacked" "$root/var/lib/dpkg/status"
rm -f -- "$root/var/lib/dpkg/info/"*.postinst
run 0 '(.found | length) > 0 and .left == []' repair
run 0 '.error == null' install plain
fresh
cp -- "$work/half-installed" "$root/var/lib/dpkg/status"
run 6 '.removed == [] and [.left[].name] == ["tc-audio"] and (.error.text | contains("repair --yes"))' repair
run 0 '.obstacles[0].kind == "interrupted" and .obstacles[0].code == 6' plan plain tc-network
run 0 '.removed == ["tc-audio"] and .left == []' repair --yes
check "  it is gone" test -z "$(version tc-audio 2>/dev/null)"
run 0 '.error == null' install plain tc-network
# A package whose needs nobody fulfils: refused by dpkg, and everything works after the repair.
mkdir -- "$work/needy" "$work/needy/tree" "$work/needy/tree/DEBIAN"
printf 'Package: tc-needy\nVersion: 1\nArchitecture: all\nMaintainer: x <x@example.org>\nDepends: tc-missing\nDescription: x\n' \
  > "$work/needy/tree/DEBIAN/control"
chmod 755 "$work/needy/tree/DEBIAN"
dpkg-deb --root-owner-group --build "$work/needy/tree" "$work/needy/tc-needy.deb" >/dev/null
printf '<update_data><name>tc-needy</name><version>1</version><thin_client>all</thin_client></update_data>' > "$work/needy/tc-needy.xml"
define needy "file://$work/needy"
fresh
run 7 '.installer.exitCode == 1' install needy
run 6 '.error.text | contains("tc-needy is unpacked")' install plain
run 0 '.removed == ["tc-needy"]' repair --yes
run 0 '.error == null' install plain
mkdir -- "$work/named"
cp -- "$repos/packages/tc-audio_1.0-1_all".* "$work/named"
sed -i 's,<name>tc-audio</name>,&<name xml:lang="de">Ton</name>,' "$work/named/"*.xml
define named "file://$work/named"
fresh
cp -- "$work/half-installed" "$root/var/lib/dpkg/status"
language=de_DE.UTF-8 run 0 '[.updates[].name] == ["Ton"]' install named Ton
check "  in every language" test "$(version tc-audio)" = 1.0-1

finish 10
