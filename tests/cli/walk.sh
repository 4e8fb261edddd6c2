#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# walk.sh RAVELCTL WORLD WORK_DIR: walks through the demo world with the program alone: no
# display, local and remote, what works and what does not. One line a step, exit code 1 when one of
# them is not as it should be.
# shellcheck disable=SC2016  # what is in single quotes is for jq and the inner shell
set -euo pipefail
# shellcheck source=tests/cli/world.sh
. "$(dirname -- "$(readlink -f -- "$0")")/world.sh"
enter_world "$@"
start_servers
define a_plain "http://127.0.0.1:$(port plain)/packages/"
define b_login "http://127.0.0.1:$(port login)/packages/"
define c_tls "https://127.0.0.1:$(port tls)/packages/"
define d_silent "http://127.0.0.1:$(port silent)/packages/"
define e_part "http://127.0.0.1:$(port part)/packages/"
define f_missing "http://127.0.0.1:$(port plain)/nowhere/"
define g_gone "file://$work/nowhere"
define h_none ""
define i_local "file://$repos/packages"
# A page leads to no file of this system.
mkdir -p -- "$work/pipes" "$repos/odd"
mkfifo -- "$work/pipes/a.xml"
printf '<a href="a.deb">a</a> <a href="file://%s">x</a>\n' "$work/pipes/a.xml" \
  > "$repos/odd/index.html"
define j_pipes "http://127.0.0.1:$(port plain)/odd/"
mkdir -p -- "$work/hostile"
: > "$work/hostile/a.deb"
printf '<update_data><name>bad%sname</name><title>t\xe2\x80\xaeegral\xc2\x9b1m&#27;[31m\nsecond line</title><version>1</version><thin_client>all</thin_client><notes>n &#7; \xe2\x80\xae</notes></update_data>' \
  '&#27;]0;owned&#7;' > "$work/hostile/a.xml"
define k_hostile "file://$work/hostile"
# A device's image, mounted on a machine of another architecture.
cp -a -- "$root" "$work/mounted"
sed -i 's/^Architecture: .*/Architecture: armel/' "$work/mounted/var/lib/dpkg/status"
# Names in two languages, the English one that of an installed pack and of a package.
mkdir -p -- "$work/named"
cp -- "$repos/packages/"tc-audio_* "$work/named"
sed -i 's,<name>tc-audio</name>,&<name xml:lang="de">Ton</name>,' "$work/named/"*.xml
: > "$work/named/pack.xar"
printf '<update_data><name>SP-6.1.2-1</name><name xml:lang="de">Paket 1</name><version>1</version><thin_client>all</thin_client></update_data>' \
  > "$work/named/pack.xml"
define m_named "file://$work/named"
define n_packs "file://$work/named"
sed -i 's,\.deb,.xar,; s,<filter_pattern>,<filter_sps>yes</filter_sps>&,' "$definitions/n_packs.xml"
define l_ftp "ftp://127.0.0.1:$(port ftp)/packages/"
: > "$work/empty"
mkdir -p -- "$work/broken" "$work/nothing" "$work/no-definitions"
printf '<repository_list><repository>' > "$work/broken/a.xml"
printf '<other/>' > "$work/nothing/a.xml"

# The system's own sections.
local_run()
{
  run_program "${@:1:2}" --root "$root" "${@:3}"
}
# Everything on the disk that the program could reach, but for what this script itself writes.
state()
{
  (
    cd "$work"
    find root repos home definitions hostile mounted named pipes -printf '%p %y %m %s %T@ %l\n' | sort
    # Packages that describe themselves pass through it.
    find tmp -mindepth 1
    find root repos home -type f -print0 | sort -z | xargs -0 sha256sum
  )
}

before=$(state)

### Reading, local
local_run 0 '.baseSystem == "6.1.2" and .model == "TC-420" and .architecture == "armel" and .packages == 7 and (.servicePacks | length) == 2' status
local_run 0 '[.repositories[].settingsKey] == ["image_uri","sp_uri","package_uri","application_uri"]' repos
local_run 0 '.repositories[0] | .index == 0 and .selector == "PickOne" and .filters[0].archive == "\\.dd\\.gz$" and .icon == "ImageRepository"' repos
local_run 0 '[.repositories[].entries | length] == [3,3,5,2]' list
local_run 0 '[.repositories[].entries[] | select(.preselected) | .name] | index("tc-printing") == null and length == 10' list
local_run 0 '.repositories[0].entries[] | select(.name == "tc-printing") | .state == "current" and .offered and .reason == "offered"' list 2
local_run 10 '.error == null' list --exit-code
local_run 10 '.repositories | length == 1' list --exit-code package_uri
local_run 0 '[.repositories[0].entries[] | select(.offered | not) | .reason] | sort == ["architecture","base-release","model","model","no-descriptor"]' list --all 2
local_run 0 '[.repositories[].archives[].reason] | group_by(.) | map({(.[0]): length}) | add == {"offered":13,"model":3,"base-release":3,"service-pack-installed":1,"architecture":2,"no-descriptor":1}' explain
local_run 0 '(.repositories | length) == 2 and .repositories[0].index == 1' explain 3 sp_uri
local_run 0 '.name == "tc-audio" and .models == ["TC-420","TC-440"] and .size == 676032 and (.notesText | startswith("Sound no longer"))' details package_uri tc-audio
local_run 0 '.version == "6.1.10" and .offered' details 0 tc-system=6.1.10
local_run 0 '.contents | length == 2' details 1 SP-6.1.2-3
local_run 0 '(.downloads | length) == 4 and .installer.program == "/bin/bash" and (.installer.script | contains("dpkg --install"))' plan 2
local_run 0 '[.updates[].name] == ["tc-audio","tc-printing"]' plan 2 tc-printing tc-audio
local_run 0 '(.downloads == []) and (.installer.script | contains("tc-system-6.1.2.dd.gz"))' plan --reinstall image_uri tc-system=6.1.2
local_run 0 '.installer.script == null and .installer.arguments == ["--extrdir=<directory of the archive>"]' plan sp_uri SP-6.1.2-3
local_run 1 '[.findings[] | select(.severity != "notice") | .kind] == ["descriptor-no-thin-client","archive-without-descriptor"] and .error.code == 1' lint
local_run 0 '.findings | length == 1 and .[0].kind == "other-model"' lint image_uri
local_run 0 '.findings == []' lint "$root/etc/cvtc-ravel/repositories/20-service-packs.xml"
local_run 0 '.kinds | length >= 25' lint --kinds
local_run 0 '.isDefault and .settingsKey == "sp_uri"' location sp_uri
local_run 0 '.style == "none" and (.proxies | length) == 3 and .proxies[0].used == null' proxy
run_program 0 '.help | contains("Commands:")' --help
run_program 0 '.help | contains("--exit-code")' list --help
run_program 0 '.version | startswith("ravelctl ")' --version

local_run 0 '.repositories[0].entries[] | select(.name == "tc-printing") | .state == "current" and (.preselected | not)' list 2
cp -- "$work/out" "$work/here"
run_program 0 '.error == null' --root "$work/mounted" list 2
check "its packages count as installed" cmp "$work/here" "$work/out"

### The keys that docs/ravelctl-json.md promises, and no others
keys()
{
  local filter=$1 expected=$2
  shift 2
  local_run 0 "[$filter | keys_unsorted | sort | join(\" \")] | unique == [\"$expected\"]" "$@"
}
entry='archive descriptor installed installedSize name offered preselected reason size state title unpackedSize version'
section='descriptorErrors error index location selector title trust'
keys . 'architecture baseSystem error lastRun model packages servicePacks' status
keys '.repositories[]' 'default description filterServicePacks filters icon index location locationLabel selector settingsKey title trust' repos
keys '.repositories[]' "descriptorErrors entries ${section#* }" list
keys '.repositories[].entries[]' "$entry" list --all
keys '.repositories[]' "archives $section" explain
keys '.repositories[].archives[]' 'archive offered reason text' explain
keys . 'architectures archive baseReleases contents descriptor error installed installedSize models name notes notesText offered preselected reason size state title unpackedSize version' details 2 tc-audio
keys . 'downloadSize downloads error installer obstacles trust unforeseen updates' plan 2
keys '.installer' 'arguments program script' plan 2
keys '.downloads[]' 'size url' plan 2
keys . 'default error index isDefault location settingsKey' location 2
keys . 'error proxies style useForAll' proxy
keys '.proxies[]' 'stored type used' proxy
local_run 0 '[.repositories[].entries[].state] | unique == ["current", "new", "update"]' list

### Reading, remote
run 0 '.repositories[0] | .error == null and (.entries | length) == 5' list a_plain
run 0 '.repositories[0].entries | length == 5' list b_login --user anna --password-file "$work/password"
run 3 '.repositories[0].error.code == 204' list b_login --user anna --password-file "$work/wrong"
run 3 '.repositories[0].error.code == 204' list b_login
run 0 '.repositories[0] | .error == null and ([.entries[].name] | length == 5)' list l_ftp --user anna --password-file "$work/password"
run 3 '.repositories[0].error.code == 204' list l_ftp --user anna --password-file "$work/wrong"
check "the password is nowhere" sh -c '! grep -q wrong "$@"' sh "$work/out" "$work/err"
run 3 '.repositories[0].error.certificate | .subject == "updates.example, Example Works" and (.sha256 | length) == 64 and (.errors | length) > 0' list c_tls
own=$(tr -d : <<<"$fingerprint" | tr A-F a-f)
fingerprint=$(jq -r '.repositories[0].error.certificate.sha256' "$work/out")
check "the certificate is described" grep -q "SHA-256: $fingerprint" "$work/err"
cp -- "$work/err" "$work/refused"
check "it is the server's own" test "$fingerprint" = "$own"
# It is for another host, which has to be named.
run 3 '.repositories[0].error.certificate.option | endswith(":host")' list c_tls --accept-fingerprint "$fingerprint"
option=$(jq -r '.repositories[0].error.certificate.option' "$work/out")
check "the option that accepts it is printed" grep -q -- "--accept-fingerprint $option\$" "$work/refused"
run 0 '.repositories[0].entries | length == 5' list c_tls --accept-fingerprint "$option"
run 3 '.repositories[0].entries == []' list c_tls --accept-fingerprint "${fingerprint//[0-9a-f]/0}"
run 124 '.error.code == 124' --timeout 1 list d_silent
run 8 '.repositories[0] | .error == null and (.descriptorErrors | length) == 1 and (.entries | length) == 4' list e_part
run 8 '[.repositories[0].archives[] | select(.reason == "unreadable-descriptor")] | length == 1' explain e_part
run 3 '.repositories[0].error.code == 203' list f_missing
run 3 '.repositories[0].error.code == 203' list g_gone
run 0 '.repositories[0] | .location == "" and .entries == []' list h_none
run 8 '[.repositories[].error == null] == [true, false, true]' list a_plain g_gone i_local
run 0 '[.repositories[].entries | length] == [5, 5]' list a_plain i_local
run 0 '.repositories[0].archives | length == 1 and .[0].reason == "no-descriptor"' explain j_pipes
run 0 '.repositories[0].entries[0].name | contains("\u001b")' list k_hostile
language=de_DE.UTF-8 run 0 '[.repositories[].entries[].name] == ["Ton"]' list m_named n_packs
language=de_DE.UTF-8 run 0 '.repositories[0].archives[0].reason == "service-pack-installed"' explain n_packs
language=de_DE.UTF-8 run 0 '.name == "Ton"' details m_named Ton
language=de_DE.UTF-8 run 0 '.name == "Ton"' details m_named tc-audio
language=de_DE.UTF-8 run 1 '[.findings[].kind] | index("name-per-language") != null and index("package-name-differs") == null' lint m_named
run 2 '.error.code == 2' details m_named Ton
run 1 '[.findings[] | select(.line == 2) | .kind] == ["descriptor-no-thin-client"]' lint a_plain
run 3 '.repositories[0].error.code == 203' lint f_missing
run 3 '.error.code == 3' plan f_missing
run 3 '.error.code == 3' details g_gone tc-audio

### Asked on a terminal
ask()
{
  local expected=$1 answer=$2 status=0
  shift 2
  timeout --kill-after=5 60 /usr/bin/python3 "$here/ask.py" "$answer" "$ravelctl" --root "$root" \
    --definitions "$definitions" --json list b_login --user anna "$@" >"$work/out" 2>"$work/err" \
    || status=$?
  [ "$status" -eq "$expected" ] || { cat "$work/out" "$work/err"; return 1; }
}
check "the password is typed, and not shown" ask 0 secret
check "a wrong one is refused" ask 3 mistake
check "none is an error" ask 2 ''
check "the interrupt key leaves the terminal as it was" ask 130 ^C
check "nobody is asked where there is no terminal" sh -c \
  'setsid -w "$@" </dev/null >/dev/null 2>&1; [ $? -eq 2 ]' sh "$ravelctl" --root "$root" \
  --definitions "$definitions" list b_login --user anna
check "a password comes from a pipe" sh -c \
  'echo secret | "$@" --password-file /dev/stdin >/dev/null 2>&1' sh "$ravelctl" --root "$root" \
  --definitions "$definitions" list b_login --user anna

### Ended from outside
: > "$work/err"
"$ravelctl" --root "$root" --definitions "$definitions" --json list d_silent >"$work/out" 2>"$work/err" &
silent_run=$!
await_text "$work/err" Retrieving
kill -TERM "$silent_run"
status=0
wait "$silent_run" || status=$?
check "SIGTERM ends it, with a document" sh -c '[ "$0" -eq 143 ] && jq -e ".error.code == 143" "$1" >/dev/null' "$status" "$work/out"

### What makes no sense
run_program 2 '.error.code == 2' frobnicate
run_program 2 '.error.code == 2'
run_program 2 '.error.text | contains("bogus")' --bogus list
local_run 2 '.error.code == 2' list 9
local_run 2 '.error.text | contains("nothere")' explain nothere
local_run 2 '.error.code == 2' lint nothere
local_run 2 '.error.code == 2' details 2
local_run 2 '.error.code == 2' details 2 tc-nothing
local_run 2 '.error.code == 2' plan
local_run 2 '.error.text | contains("tc-display")' plan 2 tc-display
local_run 2 '.error.code == 2' plan 0 tc-system=6.2.0 tc-system=6.1.2
local_run 2 '.error.code == 2' --timeout 0 status
local_run 2 '.error.code == 2' --timeout soon status
run 2 '.error.text | contains("one server")' list a_plain b_login --user anna --password-file "$work/password"
run 2 '.error.code == 2' list b_login --user anna --password-file "$work/nofile"
run 2 '.error.code == 2' list b_login --user anna --password-file "$work/empty"
run 2 '.error.code == 2' list b_login --password-file "$work/password"
run 2 '.error.code == 2' list c_tls --accept-fingerprint 1234
run_program 2 '.error.code == 2' --root "$work/nofile" status
run_program 1 '.error.code == 1' --root "$work/no-definitions" status
run_program 1 '.error.code == 1' --root "$work/no-definitions" repos
run_program 1 '.findings[0].kind == "xml-not-well-formed" and .findings[0].line == 1' --root "$root" --definitions "$work/broken" lint
run_program 1 '.error.text | contains(":1:")' --root "$root" --definitions "$work/broken" list
run_program 1 '.error.text | contains("repository_list")' --root "$root" --definitions "$work/nothing" list

check "nothing changed on the disk" diff <(echo "$before") <(state)

### The same requests as the window's, each once
: > "$work/requests"
run 0 '.error == null' list a_plain
check "one listing, then each paired descriptor once" test "$(sort "$work/requests" | uniq -c | awk '{print $1, $3, $4}')" = \
  "$(cd "$repos/packages" && { echo "1 GET /packages/"; for file in *.xml; do [ ! -e "${file%.xml}.deb" ] || echo "1 GET /packages/$file"; done; } | LC_ALL=C.UTF-8 sort)"

### On a terminal
timeout 30 "$ravelctl" --root "$root" --definitions "$definitions" details k_hostile "$(jq -rn '"bad\u001b]0;owned\u0007name"')" >"$work/out" 2>"$work/err" || wrong=$((wrong + 1))
check "hostile texts are harmless" sh -c '! LC_ALL=C grep -qP "[\\x00-\\x08\\x0b-\\x1f\\x7f]|\\xc2[\\x80-\\x9f]|\\xe2\\x80\\xae" "$0" && grep -q "bad.u001b" "$0"' "$work/out"
check "a full device is an error" sh -c '"$0" --root "$1" status >/dev/full 2>/dev/null; [ $? -eq 1 ]' "$ravelctl" "$root"
check "quiet says nothing beside" sh -c '"$0" --quiet --root "$1" list >/dev/null 2>"$2" && [ ! -s "$2" ]' "$ravelctl" "$root" "$work/err"

### Storing
settings=$root/.config/Corvane/Ravel.conf
local_run 2 '.error.text | contains("gopher")' location 0 gopher://host/x
local_run 2 '.error.code == 2' location 0 'http://host:99999/'
local_run 2 '.error.code == 2' proxy http nowhere
local_run 2 '.error.code == 2' proxy smtp host:25
local_run 2 '.error.code == 2' proxy host:25
check "what is refused stores nothing" test ! -e "$settings"
local_run 0 '.location == "http://mirror.example/p" and (.isDefault | not)' location package_uri http://mirror.example/p
check "the settings are their owner's alone" test "$(stat -c %a "$settings")" = 600
local_run 0 '.repositories[2].location == "http://mirror.example/p"' repos
local_run 2 '.error.text | contains("standard input")' location package_uri ftp://u:geheim@h/p
check "nor is it repeated" sh -c '! grep -q geheim "$@"' sh "$work/out" "$work/err"
local_run 2 '.error.code == 2' location package_uri - </dev/null
local_run 0 '.location == "ftp://u@h/p"' location package_uri - <<<'ftp://u:geheim@h/p'
check "the password is in the settings" grep -q 'ftp://u:geheim@h/p' "$settings"
check "and nowhere else" sh -c '! grep -rq geheim "$1/var/log" "$2" "$3"' sh "$root" "$work/out" "$work/err"
local_run 0 '.isDefault' location package_uri default
check "the default leaves no key" sh -c '! grep -q package_uri "$0"' "$settings"
local_run 0 '.location == ""' location package_uri ''
local_run 0 '.repositories[0].entries == []' list package_uri
local_run 0 '.isDefault' location package_uri default
local_run 0 '[.proxies[].used.server] == ["px", null, null] and .style == "manual"' proxy http px:3128
local_run 0 '[.proxies[].used.server] == ["px", null, "::1"]' proxy ftp '[::1]:21'
local_run 0 '[.proxies[].used.server] == ["all", "all", "all"] and .useForAll' proxy all all:8080
local_run 0 '[.proxies[].used.server] == ["all", null, "all"]' proxy https none
check "the keys are the options page's" sh -c 'grep -q "^server_HTTP=all" "$0" && grep -q "^port_HTTP=8080" "$0" && grep -q "^style=2" "$0" && grep -q "^useForAll=false" "$0"' "$settings"
check "still its owner's alone" test "$(stat -c %a "$settings")" = 600
run 3 '.repositories[0].error.code > 0' list a_plain
local_run 0 '.style == "none" and .proxies[0].used == null and .proxies[0].stored.server == "all"' proxy none
run 0 '.repositories[0].entries | length == 5' list a_plain
if [ "$(id -u)" -ne 0 ]; then
  chmod 500 "$(dirname "$settings")" && chmod 400 "$settings"
  local_run 1 '.error.code == 1' location package_uri http://mirror.example/p
  chmod 700 "$(dirname "$settings")" && chmod 600 "$settings"
fi

finish 100
