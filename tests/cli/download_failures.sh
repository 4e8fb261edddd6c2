#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# download_failures.sh RAVELCTL WORLD WORK_DIR: every way in which a download ends, and what a folder may hold.
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
define slow "http://127.0.0.1:$(port slow)/packages/"
define gone "http://127.0.0.1:$(port plain)/nowhere/"
make_odd_packages
mirror=$work/mirror
mkdir -- "$repos/hostile"
cp -- "$repos/packages/tc-audio_1.0-1_all.deb" "$repos/evil.deb"
printf '<update_data><name>evil</name><version>1</version><thin_client>all</thin_client></update_data>' > "$repos/evil.xml"
printf '<a href="%s">a</a> <a href="%s">x</a>\n' '..%2f..%2fevil.deb' '..%2f..%2fevil.xml' > "$repos/hostile/index.html"
define hostile "http://127.0.0.1:$(port plain)/hostile/"

# Nothing is written outside, whatever lies in the folder or comes from a server.
rm -rf -- "$mirror"
mkdir -- "$mirror"
echo untouched > "$work/victim"
ln -s -- "$work/victim" "$mirror/tc-audio_1.0-1_all.deb"
ln -s -- "$work/victim" "$mirror/tc-network_1.1-1_all.deb.part"
mkfifo -- "$mirror/tc-browser_4.3-1_all.deb"
run 8 '[.files[] | select(.error) | .error.kind] == ["target", "target"]' download plain --to "$mirror"
check "  links are not written through" test "$(cat "$work/victim")" = untouched
check "  nor kept" test -f "$mirror/tc-network_1.1-1_all.deb" -a ! -L "$mirror/tc-network_1.1-1_all.deb"
run 1 '.error.text | contains("cannot be used")' download plain --to "$work/victim"
rm -rf -- "$mirror"
run 1 '[.files[] | .file, .error.kind] | unique == [null, "target"]' download hostile --all --to "$mirror/deep/folder"
check "  names stay names" test -z "$(find "$work" -name 'evil*' ! -path "$repos/*")"
rm -rf -- "$mirror"
run 2 '.error.text | contains("--to")' download plain
run 2 '.error.code == 2' download plain tc-audio --all --to "$mirror"
run 2 '.error.code == 2' download plain tc-nothing --to "$mirror"
run 3 '.error.code == 3' download gone --to "$mirror"
run 3 '[.files[] | select(.error) | .error.code] | unique == [203]' download nodebs --to "$mirror"
check "  no archive is there" sh -c '! ls -A "$0" | grep -qv "xml$"' "$mirror"
run 8 '[.files[] | select(.error) | .file] == ["tc-audio_1.0-1_all.deb"]' download noaudio --to "$mirror"
rm -rf -- "$mirror"
run 4 '[.files[] | select(.error) | .error.kind] | unique == ["damaged"]' download short --to "$mirror"
run 4 '[.files[] | select(.error) | .error.kind] == ["damaged"]' download odd tc-cut --to "$mirror"
check "  no archive is there" sh -c '! ls -A "$0" | grep -qv "xml$"' "$mirror"
run 5 '.error.text | contains("space")' download odd tc-huge --to "$mirror"
rm -rf -- "$mirror"
mkdir -- "$mirror"
if has_little_space; then
  # The folder itself is the small disk.
  status=0
  in_little_space "$mirror" "$ravelctl" --json --root "$root" --definitions "$definitions" \
    download odd tc-audio --to "$mirror" >"$work/out" 2>"$work/err" || status=$?
  check "a full disk ends a download" test "$status" -eq 5
fi
run 124 '.error.code == 124' --timeout 2 download slow --to "$mirror"
check "  only a part is left" sh -c '! ls "$0" | grep -q "deb$"' "$mirror"
rm -rf -- "$mirror"
: > "$work/progress"
"$ravelctl" --root "$root" --definitions "$definitions" download slow --to "$mirror" \
  >/dev/null 2>"$work/progress" &
killed=$!
await_text "$work/progress" %
run 1 '.error.text | contains("another program")' download plain --to "$mirror"
kill -KILL "$killed"
wait "$killed" 2>/dev/null || true
check "  a killed run leaves only a part" sh -c 'ls "$0" | grep -q "deb\.part$" && ! ls "$0" | grep -q "deb$"' "$mirror"
run 0 '[.files[].error] | unique == [null]' download plain --all --to "$mirror"
check "  the next one completes it" sh -c '! ls -A "$0" | grep -q "\.part$"' "$mirror"

finish 15
