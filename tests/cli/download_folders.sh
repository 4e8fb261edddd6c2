#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# download_folders.sh RAVELCTL WORLD WORK_DIR: a folder of downloads from every kind of repository offers
# what its source does, and installs.
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
define packs "http://127.0.0.1:$(port plain)/service-packs/" xar
define images "http://127.0.0.1:$(port plain)/images/" 'dd\.gz'
define local "file://$repos/packages"
save_root

mirror=$work/mirror
define mirror "file://$mirror"
define packmirror "file://$mirror" xar
define imagemirror "file://$mirror" 'dd\.gz'
mkdir -- "$repos/awkward"
define awkward "http://127.0.0.1:$(port plain)/awkward/"
define awkftp "ftp://127.0.0.1:$(port ftp)/awkward/"
define awklocal "file://$repos/awkward"
for name in 'a b' 'pct%41' 'tool_1:2.0-1' 'ünï' '-dash' 'x#y' "it's" 'semi;colon' '$HOME' 'q?mark'; do
  cp -- "$repos/packages/tc-audio_1.0-1_all.deb" "$repos/awkward/$name.deb"
  printf '<update_data><name>%s</name><version>1</version><thin_client>all</thin_client></update_data>' \
    "$(cksum <<<"$name" | cut -d' ' -f1)" > "$repos/awkward/$name.xml"
done
# What is offered, with the names of its files.
listed()
{
  "$ravelctl" --json --root "$root" --definitions "$definitions" list "$@" 2>/dev/null \
    | jq -c '[.repositories[0].entries[] | [.name, .version, .size, (.archive, .descriptor | sub(".*/"; ""))]] | sort' \
    | /usr/bin/python3 -c 'import sys, urllib.parse; print(urllib.parse.unquote(sys.stdin.read()))'
}
# mirrors SECTION MIRROR [OPTION...]
mirrors()
{
  local section=$1 copy=$2
  shift 2
  rm -rf -- "$mirror"
  run 0 '([.files[] | .fetched and .error == null] | all) and (.files | length) > 1' download "$section" --all --to "$mirror" "$@"
  check "  the folder offers the same" test "$(listed "$section" "$@")" = "$(listed "$copy")"
  : > "$work/requests"
  run 0 '[.files[].fetched] | any | not' download "$section" --all --to "$mirror" "$@"
  check "  a second run fetches no archive" sh -c '! grep -qE "\.(deb|xar|gz)$" "$0"' "$work/requests"
  check "  and no descriptor but the refresh's" sh -c '! grep "xml$" "$0" | grep -vE "^(login|proxy)" | sort | uniq -d | grep -q .' "$work/requests"
  check "  nothing is left over" sh -c '! ls -A "$0" | grep -q "\.part$"' "$mirror"
}
mirrors plain mirror
check "the files are the server's" sh -c 'cd "$0" && for file in *; do cmp "$file" "$1/$file" || exit 1; done' "$mirror" "$repos/packages"
mirrors local mirror
mirrors login mirror --user anna --password-file "$work/password"
mirrors ftp mirror --user anna --password-file "$work/password"
mirrors tls mirror --accept-fingerprint "$fingerprint:host"
mirrors packs packmirror
mirrors images imagemirror
mirrors awkward mirror
check "ten odd names" test "$(find "$mirror" -name '*.deb' | wc -l)" -eq 10
mirrors awklocal mirror
mirrors awkftp mirror --user anna --password-file "$work/password"
"$ravelctl" --quiet --root "$root" proxy http "127.0.0.1:$(port proxy)" >/dev/null
mirrors plain mirror --proxy-user anna --proxy-password-file "$work/password"
"$ravelctl" --quiet --root "$root" proxy none >/dev/null
rm -rf -- "$mirror"
run 0 '[.files[].file] == ["tc-audio_1.0-1_all.xml", "tc-audio_1.0-1_all.deb"]' download plain tc-audio --to "$mirror"
run 0 '(.files | length) == 8 and ([.files[] | select(.fetched)] | length) == 6' download plain --to "$mirror"
run 0 '[.files[].fetched] | all' download plain --again --to "$mirror"
run 0 '.installer.exitCode == 0' install mirror
run 0 '.files == []' download plain --to "$mirror"
fresh
run 0 '[.files[] | select(.file | endswith("gz")) | .file] == ["tc-system-6.2.0.dd.gz", "tc-system-6.1.2.dd.gz"]' \
  download images tc-system=6.1.2 tc-system=6.2.0 --to "$mirror"

finish 20
