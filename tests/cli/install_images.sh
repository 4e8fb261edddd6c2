#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# install_images.sh RAVELCTL WORLD WORK_DIR: images that the device could not have, the one that it
# runs, and a restart that fails.
# shellcheck disable=SC2016  # what is in single quotes is for jq and the inner shell
set -euo pipefail
# shellcheck source=tests/cli/world.sh
. "$(dirname -- "$(readlink -f -- "$0")")/world.sh"
enter_world "$@"
start_servers
bad=$repos/bad
mkdir -- "$bad"
# bad_image NAME [SIZE]: the descriptor of an image in a file of that name.
bad_image()
{
  printf '<update_data><name>%s</name><version>9</version><thin_client>all</thin_client>%s</update_data>' \
    "$1" "${2:+<size>$2</size>}" > "$bad/$1.xml"
}
good=$repos/images/tc-system-6.2.0.dd.gz
: > "$bad/empty.dd.gz"
head -c 2 "$good" > "$bad/cut.dd.gz"
head -c 1000 /dev/zero > "$bad/plain.dd.gz"
printf '\n<html>Log in</html>' > "$bad/page.dd.gz"
cp -- "$good" "$bad/sized.dd.gz"
cp -- "$good" "$bad/good.dd.gz"
mkfifo -- "$bad/pipe.dd.gz"
cp -- "$good" "$bad/lost.dd.gz"
for name in empty cut plain page good pipe lost; do bad_image $name; done
bad_image sized 12345
for kind in plain login tls ftp; do
  case $kind in tls) scheme=https ;; ftp) scheme=ftp ;; *) scheme=http ;; esac
  define "$kind" "$scheme://127.0.0.1:$(port $kind)/bad/" 'dd\.gz'
done
define local "file://$bad" 'dd\.gz'
define images "http://127.0.0.1:$(port plain)/images/" 'dd\.gz'
save_root
watch_installers
unarranged()
{
  nothing_ran && [ ! -e "$root/writable/CV/Snapstow.conf" ] && [ ! -e "$root/etc/auto-update/new_image" ]
}
# refused EXIT_CODE WORDS ARGUMENT...: not asked about, nothing written, not restarted.
refused()
{
  run "$1" '(.error.text | contains("'"$2"'")) and .installer == null' install --yes "${@:3}"
  check "  and nothing was arranged" unarranged
}

### Images that the device could not have
refused 4 'is empty' plain empty
refused 4 'not packed' plain cut
refused 4 'not packed' plain plain
refused 4 'a page' plain page
refused 4 '12345' plain sized
refused 4 'is empty' local empty
refused 4 'not packed' local plain
refused 4 '12345' local sized
refused 3 'wants a login' login good --user anna --password-file "$work/password"
refused 3 'wants a login' ftp good --user anna --password-file "$work/password"
# After the listing.
define gone "http://127.0.0.1:$(port noimage)/bad/" 'dd\.gz'
refused 3 'not there' gone lost
"$ravelctl" --quiet --root "$root" proxy http "127.0.0.1:$(port proxy)" >/dev/null
refused 3 'The proxy wants a login' plain good --proxy-user anna --proxy-password-file "$work/password"
"$ravelctl" --quiet --root "$root" proxy none >/dev/null

### And those that it can have
run 0 '.error == null' install --yes local good
fresh
run 0 '.error == null' install --yes tls good --accept-fingerprint "$fingerprint:host"
check "a certificate that only the user accepts is named" grep -q 'The certificate of https://127.0.0.1' "$work/err"
fresh

### The image that the device runs
run 0 '[.repositories[0].entries[] | select(.state == "current") | [.version, .installed, .preselected]]
  == [["6.1.2", "6.1.2", false]]' list images
run 2 '.error.text | contains("--reinstall")' plan images tc-system=6.1.2
run 2 '.error.text | contains("--reinstall")' install --yes images tc-system=6.1.2
check "  and nothing was arranged" unarranged
run 0 '.updates[0].version == "6.1.2"' plan --reinstall images tc-system=6.1.2
run 0 '.error == null' install --yes --reinstall images tc-system=6.1.2
check "  really" grep -q 'tc-system-6.1.2' "$root/etc/auto-update/new_image"
# A timer that installs what is new, again and again, on a device that has it.
fresh
define newest "http://127.0.0.1:$(port plain)/images/" 'dd\.gz'
sed -i 's/PickAny/PickOne/' "$definitions/newest.xml"
newest=$(jq -r '.repositories[0].entries[0].version' < <("$ravelctl" --quiet --json --root "$root" --definitions "$definitions" list newest))
run 0 '.updates[0].version == "'"$newest"'"' plan newest
echo "$newest" > "$root/etc/imageid"
run 0 '.updates == []' plan newest
run 0 '.updates == [] and .installer == null' install --yes newest
check "  and nothing was arranged" unarranged
run 0 '.updates[0].version == "'"$newest"'"' plan --reinstall newest

### A restart that fails
fresh
printf '#!/bin/sh\nexit 3\n' > "$root/usr/sbin/cvtc-ts-reboot"
run 7 '.installer.exitCode == 3' install --yes images tc-system=6.2.0
check "  leaves no order" test ! -e "$root/writable/CV/Snapstow.conf"

finish 24
