#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# install_plans.sh RAVELCTL WORLD WORK_DIR: installations from every kind of repository, with the real
# dpkg: each does what its plan says.
# shellcheck disable=SC2016  # what is in single quotes is for jq and the inner shell
set -euo pipefail
# shellcheck source=tests/cli/world.sh
. "$(dirname -- "$(readlink -f -- "$0")")/world.sh"
enter_world "$@"
start_servers
define plain "http://127.0.0.1:$(port plain)/packages/"
define login "http://127.0.0.1:$(port login)/packages/"
define tls "https://127.0.0.1:$(port tls)/packages/"
define ftp "ftp://127.0.0.1:$(port ftp)/packages/"
define part "http://127.0.0.1:$(port part)/packages/"
define packs "http://127.0.0.1:$(port plain)/service-packs/" xar
define images "http://127.0.0.1:$(port plain)/images/" 'dd\.gz'
define local "file://$repos/packages"
define mixed "file://$work/mixed" '(deb|xar|dd\.gz)'
# An image, a service pack and a package beside each other.
mkdir -- "$work/mixed"
cp -- "$repos/packages/tc-audio_1.0-1_all".* "$repos/service-packs/SP-6.1.2-2".* \
  "$repos/images/tc-system-6.2.0".* "$work/mixed"
save_root
watch_installers
cat > "$work/xarinstall" <<SHELL
#!/bin/sh
if [ -e ../RVinstall.sh ]; then
  # One of several.
  echo "/bin/bash ./RVinstall.sh" > "$work/ran/command"
  cp ../RVinstall.sh "$work/ran/script"
else
  echo "\$0 --extrdir=<directory of the archive>" > "$work/ran/command"
fi
[ -d "\${1#--extrdir=}" ] && cp -R "./\${1#--extrdir=}/." "$root/"
echo "\${1#--extrdir=}" >> "$root/etc/service-packs/installed"
SHELL

cases=0
# same [ARGUMENT...]: plan and install with the same arguments.
same()
{
  local result=ok
  cases=$((cases + 1))
  cp -- "$work/xarinstall" "$root/usr/sbin/xarinstall"
  run "${expected_plan:-0}" '.error == null or .error.code == 8' plan "$@"
  cp -- "$work/out" "$work/plan"
  : > "$work/requests"
  run "${expected:-0}" 'has("installer")' install --yes "$@"
  jq -r '.downloads[].url' "$work/plan" | sed 's|.*/||' | sort > "$work/planned"
  # From a server: what was asked for, each once; else: what the installer found.
  if jq -e '[.downloads[].url | startswith("http")] | any' "$work/plan" >/dev/null; then
    { grep -E '\.(deb|xar|dd\.gz)$' "$work/requests" || true; } | sed 's|.*/||' | sort > "$work/done"
    if grep -qE '^(login|proxy)' "$work/requests"; then
      # Asked for without a login first.
      sort -u -o "$work/done" "$work/done"
    fi
    diff "$work/planned" "$work/done" >&2 || result="other downloads"
  fi
  if [ -e "$work/ran/archives" ]; then
    sort "$work/ran/archives" | diff "$work/planned" - >&2 || result="other archives"
  fi
  jq -r '.installer | if . then [.program] + .arguments | join(" ") else "" end' "$work/plan" > "$work/planned"
  touch "$work/ran/command"
  if [ -s "$work/ran/command" ] || [ -s "$work/planned" ]; then
    diff <(grep . "$work/planned") <(grep . "$work/ran/command") >&2 || result="another command"
  fi
  if [ -e "$work/ran/script" ]; then
    jq -j '.installer.script' "$work/plan" | cmp - "$work/ran/script" >&2 || result="another script"
  fi
  [ "$(jq -c '[.updates[] | .name, .version]' "$work/plan")" = "$(jq -c '[.updates[] | .name, .version]' "$work/out")" ] \
    || result="other updates"
  verdict "$result" "  as planned"
}
same plain
check "the packages are installed" test "$(version tc-audio) $(version tc-network)" = "1.0-1 1.1-1"
same plain
check "nothing is new" jq -e '.updates == [] and .installer == null' "$work/out"
same plain tc-printing
fresh
same plain tc-audio
same plain tc-network=1.1-1
same plain tc-terminal tc-browser tc-browser
same local
fresh
same local tc-audio
same login --user anna --password-file "$work/password"
fresh
same ftp --user anna --password-file "$work/password"
fresh
# The certificate is for another host.
same tls --accept-fingerprint "$fingerprint:host"
same packs SP-6.1.2-2
same packs SP-6.1.2-3
same packs SP-6.1.2-3=3
check "the pack that is named is installed" jq -e '[.results[] | .name, .state] == ["SP-6.1.2-3", "not-confirmable"]' "$work/out"
fresh
same packs
check "each pack is installed, in their order" jq -e '[.results[].state] == ["not-confirmable", "installed", "installed"]' "$work/out"
check "  and listed in it" test "$(tail -n 3 "$root/etc/service-packs/installed" | tr '\n' ' ')" = "SP-6.1.2-1 SP-6.1.2-2 SP-6.1.2-3 "
same images tc-system=6.2.0
check "the image is noted" grep -q 'tc-system-6.2.0.dd.gz' "$root/etc/auto-update/new_image"
same images tc-system=6.1.2 --reinstall
expected=8 same images
fresh
"$ravelctl" --quiet --root "$root" proxy http "127.0.0.1:$(port proxyopen)" >/dev/null
same images tc-system=6.2.0
check "the device uses the proxy too" grep -q "remote-deploy.proxy=127.0.0.1:$(port proxyopen)" "$root/writable/CV/Snapstow.conf"
"$ravelctl" --quiet --root "$root" proxy http "127.0.0.1:$(port proxy)" >/dev/null
same plain --proxy-user anna --proxy-password-file "$work/password"
check "all of it went through the proxy" sh -c '[ -s "$0" ] && ! grep -qv "^proxy" "$0"' "$work/requests"
run 3 '.repositories[0].error.code == 105' list plain --proxy-user anna --proxy-password-file "$work/wrong"
run 3 '.error.text | contains("roxy")' install plain --proxy-user anna --proxy-password-file "$work/wrong"
run 2 '.error.code == 2' install plain --proxy-password-file "$work/wrong"
fresh
expected_plan=8 expected=8 same part
fresh
expected=8 same mixed
check "at least 20 cases" test "$cases" -ge 20

finish 40
