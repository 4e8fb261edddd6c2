#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# install.sh RAVELCTL BUILD_WORLD WORK_DIR: installs and downloads in the demo world, from local and
# remote repositories, with real packages and the real dpkg: that an installation does what its plan
# says, that a folder of downloads offers what its source does, and every way in which either ends. One line a step, exit code 1 when one is not as it should be.
# shellcheck disable=SC2016  # what is in single quotes is for jq and the inner shell
set -euo pipefail
here=$(cd -- "$(dirname -- "$(readlink -f -- "$0")")" && pwd -P)
ravelctl=$1
build_world=$2
work=$3

unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM http_proxy https_proxy ftp_proxy HTTP_PROXY HTTPS_PROXY
unset XDG_CONFIG_HOME DPKG_FRONTEND_LOCKED
export LC_ALL=C.UTF-8 HOME=$work/home TMPDIR=$work/tmp
PATH=$PATH:/usr/sbin:/sbin
rm -rf -- "$work"
mkdir -p -- "$work" "$HOME" "$TMPDIR"
"$build_world" "$work/world" >/dev/null
root=$work/world/root
repos=$work/world/repos
definitions=$work/definitions
mkdir -- "$definitions"
mkfifo -- "$work/stdin"

server=
# shellcheck disable=SC2317  # the trap calls it
stop()
{
  exec 9>&-
  [ -z "$server" ] || wait "$server" 2>/dev/null || true
}
trap stop EXIT
openssl req -x509 -newkey rsa:2048 -nodes -days 30 -subj '/CN=updates.example' \
  -keyout "$work/key.pem" -out "$work/certificate.pem" 2>/dev/null
cat "$work/key.pem" >> "$work/certificate.pem"
/usr/bin/python3 "$here/servers.py" "$repos" "$work/certificate.pem" "$work/requests" \
  <"$work/stdin" >"$work/ports" 2>"$work/servers.log" &
server=$!
exec 9>"$work/stdin"
for ((i = 0; i < 100; ++i)); do
  ! grep -q silent= "$work/ports" || break
  sleep 0.1
done
port()
{
  sed -n "s/^$1=//p" "$work/ports"
}

# define KEY URI [ARCHIVES]: one more section.
define()
{
  cat > "$definitions/$1.xml" <<XML
<repository_list><repository>
  <title>Section $1</title><settings_key>$1</settings_key>
  <default_uri>$2</default_uri><selector_type>PickAny</selector_type>
  <filter_pattern><archive_pattern>\\.${3:-deb}\$</archive_pattern>
    <descriptor_pattern>\\.xml\$</descriptor_pattern></filter_pattern>
</repository></repository_list>
XML
}
define plain "http://127.0.0.1:$(port plain)/packages/"
define login "http://127.0.0.1:$(port login)/packages/"
define tls "https://127.0.0.1:$(port tls)/packages/"
define ftp "ftp://127.0.0.1:$(port ftp)/packages/"
define part "http://127.0.0.1:$(port part)/packages/"
define noaudio "http://127.0.0.1:$(port noaudio)/packages/"
define nodebs "http://127.0.0.1:$(port nodebs)/packages/"
define short "http://127.0.0.1:$(port short)/packages/"
define slow "http://127.0.0.1:$(port slow)/packages/"
define gone "http://127.0.0.1:$(port plain)/nowhere/"
define packs "http://127.0.0.1:$(port plain)/service-packs/" xar
define images "http://127.0.0.1:$(port plain)/images/" 'dd\.gz'
define local "file://$repos/packages"
define mixed "file://$work/mixed" '(deb|xar|dd\.gz)'
define odd "file://$work/odd"
define lost "file://$work/lost"
printf 'secret\n' > "$work/password"
printf 'wrong\n' > "$work/wrong"

# Mixed: an image, a service pack and a package beside each other. Odd: packages that are none.
mkdir -- "$work/mixed" "$work/odd" "$work/lost"
cp -- "$repos/packages/tc-audio_1.0-1_all".* "$repos/service-packs/SP-6.1.2-2".* \
  "$repos/images/tc-system-6.2.0".* "$work/mixed"
# odd FILE NAME EXTRA: the descriptor of a package.
odd()
{
  printf '<update_data><name>%s</name><version>1</version><thin_client>all</thin_client>%s</update_data>' \
    "$2" "$3" > "$work/$1.xml"
}
head -c 400000 "$repos/packages/tc-audio_1.0-1_all.deb" > "$work/odd/cut.deb"
odd odd/cut tc-cut ''
: > "$work/odd/empty.deb"
odd odd/empty tc-empty ''
echo '<html>Not found</html>' > "$work/odd/page.deb"
odd odd/page tc-page ''
cp -- "$repos/packages/tc-audio_1.0-1_all.deb" "$work/odd/huge.deb"
odd odd/huge tc-huge '<size>4000000000000000</size>'
cp -- "$repos/packages/tc-audio_1.0-1_all.deb" "$work/odd/bloated.deb"
odd odd/bloated tc-bloated '<installed_size>4000000000000000</installed_size>'
cp -- "$repos/packages/tc-audio_1.0-1_all.deb" "$work/odd/whole.deb"
printf '<update_data><name>tc-audio</name><version>1.0-1</version><thin_client>all</thin_client></update_data>' \
  > "$work/odd/whole.xml"
# The descriptor speaks of another package.
cp -- "$repos/packages/tc-audio_1.0-1_all.deb" "$work/odd/other.deb"
odd odd/other tc-other ''
# Whole from outside, and nothing that the package tool takes.
/usr/bin/python3 - "$repos/packages/tc-audio_1.0-1_all.deb" "$work/odd/rotten.deb" <<'PYTHON'
import sys
data = bytearray(open(sys.argv[1], "rb").read())
data[200:260] = bytes(60)
open(sys.argv[2], "wb").write(data)
PYTHON
odd odd/rotten tc-rotten ''
# Of a local file that it does not open, the engine hears at once.
mkfifo -- "$work/pipe"
ln -s -- "$work/pipe" "$work/lost/whole.deb"
cp -- "$work/odd/whole.xml" "$work/lost/"
cp -a -- "$root" "$work/root.saved"
fresh()
{
  rm -rf -- "$root"
  cp -a -- "$work/root.saved" "$root"
}

# What is really run, and on what: stands before the real programs and notes it.
mkdir -- "$work/bin" "$work/ran"
real_dpkg=$(command -v dpkg)
cat > "$work/bin/dpkg" <<SHELL
#!/bin/sh
cp RVinstall.sh "$work/ran/script"
echo "/bin/bash ./RVinstall.sh" > "$work/ran/command"
for file in ./*.deb; do echo "\${file#./}"; done > "$work/ran/archives"
[ ! -e "$work/hang" ] || { echo installing; while [ -e "$work/hang" ]; do sleep 0.1; done; }
exec "$real_dpkg" "\$@"
SHELL
cat > "$work/bin/bash" <<SHELL
#!/bin/sh
cp RVinstall.sh "$work/ran/script"
echo "bash \$*" > "$work/ran/command"
exec /bin/bash "\$@"
SHELL
chmod 755 "$work/bin"/*
cat > "$work/xarinstall" <<SHELL
#!/bin/sh
echo "\$0 --extrdir=<directory of the archive>" > "$work/ran/command"
[ -d "\${1#--extrdir=}" ] && cp -R "./\${1#--extrdir=}/." "$root/"
SHELL
export PATH=$work/bin:$PATH

wrong=0
runs=0
verdict()
{
  if [ "$1" = ok ]; then
    echo "ok   $2"
  else
    wrong=$((wrong + 1))
    echo "BAD  $2: $1"
    cat "$work/out" "$work/err"
  fi
}
# run EXIT_CODE FILTER ARGUMENT...: with language=LOCALE before it, in that language.
run()
{
  local expected=$1 filter=$2 status=0 result=ok
  shift 2
  runs=$((runs + 1))
  rm -rf -- "$work/ran" && mkdir -- "$work/ran"
  timeout --kill-after=5 60 env LC_ALL="${language:-$LC_ALL}" \
    "$ravelctl" --json --root "$root" --definitions "$definitions" "$@" \
    >"$work/out" 2>"$work/err" </dev/null || status=$?
  [ "$status" -eq "$expected" ] || result="exit code $status, not $expected"
  if ! jq -es 'length == 1 and (.[0] | has("error"))' "$work/out" >/dev/null; then
    result="not one document"
  elif ! jq -e "$filter" "$work/out" >/dev/null; then
    result="not what it should say: $filter"
  elif [ "$expected" -ne "$(jq '.error.code // 0' "$work/out")" ]; then
    result="another code in the document"
  elif find "$TMPDIR" -mindepth 1 | grep -q .; then
    result="something is left in the temporary directory"
  fi
  verdict "$result" "$status $*"
}
check()
{
  local what=$1 result=ok
  shift
  "$@" || result=no
  verdict "$result" "$what"
}
nothing_ran()
{
  [ ! -e "$work/ran/command" ] && [ ! -e "$root/var/log/dpkg.log.new" ] \
    && diff -r "$work/root.saved/var/lib" "$root/var/lib" >/dev/null
}
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

### An installation does what its plan says
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
version()
{
  DPKG_ROOT='' dpkg-query --admindir="$root/var/lib/dpkg" -W -f '${Version}' "$1"
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
fingerprint=$(openssl x509 -in "$work/certificate.pem" -noout -fingerprint -sha256 | sed 's/.*=//')
# The certificate is for another host.
fingerprint=$fingerprint:host
same tls --accept-fingerprint "$fingerprint"
same packs SP-6.1.2-2
same packs SP-6.1.2-3
same packs SP-6.1.2-3=3
expected=8 same packs
same images tc-system=6.2.0
check "the image is noted" grep -q 'tc-system-6.2.0.dd.gz' "$root/etc/auto-update/new_image"
same images tc-system=6.1.2
expected=8 same images
fresh
"$ravelctl" --quiet --root "$root" proxy http "127.0.0.1:$(port proxy)" >/dev/null
same images tc-system=6.2.0 --proxy-user anna --proxy-password-file "$work/password"
check "the device uses the proxy too" grep -q "remote-deploy.proxy=127.0.0.1:$(port proxy)" "$root/writable/CV/Snapstow.conf"
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
printf '#!/bin/sh\nseq 100000\nprintf "\\033]0;owned\\007 \\001end"\n' > "$root/usr/sbin/xarinstall"
run 0 '.installer.outputIsCut and (.installer.output | length) <= 65536 and (.installer.output | endswith("end\n"))' install packs SP-6.1.2-2
"$ravelctl" --quiet --root "$root" --definitions "$definitions" install packs SP-6.1.2-2 >"$work/out" 2>"$work/err"
check "the output is passed on, and nothing else is said" sh -c 'grep -qx 100000 "$0" && grep -q "u001b" "$0" && [ ! -s "$1" ]' "$work/out" "$work/err"
# A reader that goes away does not take the installer with it.
rm -f -- "$work/finished"
printf '#!/bin/sh\nseq 100000\ntouch %s\n' "$work/finished" > "$root/usr/sbin/xarinstall"
"$ravelctl" --root "$root" --definitions "$definitions" install packs SP-6.1.2-2 2>/dev/null | head -n 1 >/dev/null || true
check "a reader that goes away lets the installer end" test -e "$work/finished"

### 5: space
refused 5 '.error.text | contains("space")' install odd tc-huge
refused 5 '.error.text | contains("space")' install odd tc-bloated
if unshare --user --map-root-user --mount true 2>/dev/null; then
  mkdir -- "$work/small"
  # in_small ARGUMENT...: with a temporary directory of 600 KiB.
  in_small()
  {
    timeout --kill-after=5 60 unshare --user --map-root-user --mount sh -c \
      'mount -t tmpfs -o size=600k none "$0" && TMPDIR=$0 exec "$@"' "$work/small" "$ravelctl" --json \
      --root "$root" --definitions "$definitions" "$@" >"$work/out" 2>"$work/err" </dev/null
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

### 6: the package database
# hold FILE: locks it as dpkg does until the descriptor 8 is closed.
hold()
{
  mkfifo -- "$work/holding"
  /usr/bin/python3 -c 'import fcntl, sys
file = open(sys.argv[1], "a")
fcntl.lockf(file, fcntl.LOCK_EX)
open(sys.argv[2], "w").close()
sys.stdin.read()' "$1" "$work/locked" <"$work/holding" 9>&- &
  holder=$!
  exec 8>"$work/holding"
  for ((i = 0; i < 100; ++i)); do
    [ ! -e "$work/locked" ] || break
    sleep 0.1
  done
}
release()
{
  exec 8>&-
  wait "$holder"
  rm -f -- "$work/holding" "$work/locked"
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
  "$ravelctl" --json --root "$root" --definitions "$definitions" install plain tc-audio --lock-timeout 50 \
    >"$work/out" 2>"$work/err" 8>&- &
  waiting=$!
  for ((i = 0; i < 100; ++i)); do
    ! grep -q 'Waiting for the package database' "$work/err" || break
    sleep 0.1
  done
  release
  status=0
  wait "$waiting" || status=$?
  check "a lock that goes away is waited for" test "$status" -eq 0
done
fresh
state_before=$(cd "$root" && find . -printf '%p %y %m %s %T@\n' | sort)
run 0 '.installer' plan plain
check "looking at the locks makes none" test "$state_before" = "$(cd "$root" && find . -printf '%p %y %m %s %T@\n' | sort)"
# interrupted COMMAND...: after it, nothing is installed before a repair.
sed 's/^Status: install ok installed$/Status: install ok unpacked/' "$work/root.saved/var/lib/dpkg/status" > "$work/unpacked"
fresh
cp -- "$work/unpacked" "$root/var/lib/dpkg/status"
run 6 '.error.text | contains("tc-session is unpacked") and contains("--configure -a")' install plain
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
mkdir -- "$work/named"
cp -- "$repos/packages/tc-audio_1.0-1_all".* "$work/named"
sed -i 's,<name>tc-audio</name>,&<name xml:lang="de">Ton</name>,' "$work/named/"*.xml
define named "file://$work/named"
fresh
cp -- "$work/half-installed" "$root/var/lib/dpkg/status"
language=de_DE.UTF-8 run 0 '[.updates[].name] == ["Ton"]' install named Ton
check "  in every language" test "$(version tc-audio)" = 1.0-1

### 2: what needs a yes, and what makes no sense
refused 2 '.error.text | contains("--yes")' install images tc-system=6.2.0
refused 2 '.error.code == 2' install plain tc-nothing
refused 2 '.error.code == 2' install plain --lock-timeout soon
refused 2 '.error.code == 2' install

### On a terminal
# on_terminal EXIT_CODE COLUMNS QUESTION ANSWER ARGUMENT...
on_terminal()
{
  local expected=$1 columns=$2 question=$3 answer=$4 status=0
  shift 4
  rm -rf -- "$work/ran" && mkdir -- "$work/ran"
  timeout --kill-after=5 60 /usr/bin/python3 "$here/terminal.py" "$columns" "$question" "$answer" \
    "$ravelctl" --root "$root" --definitions "$definitions" "$@" >"$work/out" 2>"$work/err" || status=$?
  [ "$status" -eq "$expected" ] || { echo "exit code $status"; return 1; }
}
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
# in_installer EXIT_CODE WHAT ARGUMENT...: WHAT happens while the installer runs, which then goes on.
in_installer()
{
  local expected=$1 what=$2 status=0 i
  shift 2
  fresh
  rm -rf -- "$work/ran" && mkdir -- "$work/ran"
  : > "$work/hang"
  : > "$work/err"
  (
    for ((i = 0; i < 200; ++i)); do
      ! grep -qs 'cannot be interrupted' "$work/err" || break
      [ "$what" != terminal ] || [ ! -e "$work/ran/command" ] || { sleep 1; break; }
      sleep 0.1
    done
    rm -- "$work/hang"
  ) &
  case $what in
    timeout)
      "$ravelctl" --timeout 3 --json --root "$root" --definitions "$definitions" "$@" \
        >"$work/out" 2>"$work/err" || status=$?
      ;;
    terminal)
      timeout 60 /usr/bin/python3 "$here/terminal.py" 80 'installing' "$answer" "$ravelctl" \
        --root "$root" --definitions "$definitions" "$@" >"$work/out" 2>"$work/err" || status=$?
      ;;
    *)
      "$ravelctl" --json --root "$root" --definitions "$definitions" "$@" >"$work/out" 2>"$work/err" &
      local run=$!
      for ((i = 0; i < 100; ++i)); do
        [ ! -e "$work/ran/command" ] || break
        sleep 0.1
      done
      kill "-$what" "$run"
      wait "$run" || status=$?
      ;;
  esac
  wait "$!" 2>/dev/null || true
  while [ -e "$work/hang" ]; do sleep 0.1; done
  # Whoever has no terminal any more cannot be told the result.
  [ "$status" -eq "$expected" ] || { [ "${answer:-}" = ^H ] && [ "$status" -eq 1 ]; } \
    || { echo "exit code $status"; return 1; }
  [ "$(version tc-network)" = 1.1-1 ]
}
for signal in TERM HUP; do
  check "SIG$signal lets the installer end" in_installer 0 "$signal" install plain
done
check "so does the time" in_installer 0 timeout install plain
answer=^C check "and the interrupt key" in_installer 0 terminal install plain
answer=^H check "and the end of the terminal" in_installer 0 terminal install plain

### Downloads
fresh
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
mkdir -- "$repos/hostile"
cp -- "$repos/packages/tc-audio_1.0-1_all.deb" "$repos/evil.deb"
printf '<update_data><name>evil</name><version>1</version><thin_client>all</thin_client></update_data>' > "$repos/evil.xml"
printf '<a href="%s">a</a> <a href="%s">x</a>\n' '..%2f..%2fevil.deb' '..%2f..%2fevil.xml' > "$repos/hostile/index.html"
define hostile "http://127.0.0.1:$(port plain)/hostile/"
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
mirrors tls mirror --accept-fingerprint "$fingerprint"
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
if [ -d "$work/small" ]; then
  # The folder itself is the small disk.
  status=0
  timeout --kill-after=5 60 unshare --user --map-root-user --mount sh -c \
    'mount -t tmpfs -o size=600k none "$0" && exec "$@"' "$mirror" "$ravelctl" --json --root "$root" \
    --definitions "$definitions" download odd tc-audio --to "$mirror" >"$work/out" 2>"$work/err" || status=$?
  check "a full disk ends a download" test "$status" -eq 5
fi
run 124 '.error.code == 124' --timeout 2 download slow --to "$mirror"
check "  only a part is left" sh -c '! ls "$0" | grep -q "deb$"' "$mirror"
rm -rf -- "$mirror"
"$ravelctl" --root "$root" --definitions "$definitions" download slow --to "$mirror" >/dev/null 2>&1 &
killed=$!
for ((i = 0; i < 100; ++i)); do
  ! ls "$mirror"/*.deb.part >/dev/null 2>&1 || break
  sleep 0.1
done
run 1 '.error.text | contains("another program")' download plain --to "$mirror"
kill -KILL "$killed"
wait "$killed" 2>/dev/null || true
check "  a killed run leaves only a part" sh -c 'ls "$0" | grep -q "deb\.part$" && ! ls "$0" | grep -q "deb$"' "$mirror"
run 0 '[.files[].error] | unique == [null]' download plain --all --to "$mirror"
check "  the next one completes it" sh -c '! ls -A "$0" | grep -q "\.part$"' "$mirror"

echo "$runs runs, $cases as planned, $wrong wrong"
[ "$wrong" -eq 0 ]
