# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
# shellcheck shell=bash
#
# For the scripts beside it: enter_world makes them a demo system of their own, define_servers puts
# servers before its repositories, and each check is one line of output.
# shellcheck disable=SC2016,SC2034  # single quotes are for jq and the inner shell, the scripts use the names
here=$(cd -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")" && pwd -P)

# enter_world RAVELCTL WORLD WORK_DIR: afresh in WORK_DIR, copies of WORLD's root and repositories.
enter_world()
{
  ravelctl=$1 work=$3
  local world=$2
  unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM http_proxy https_proxy ftp_proxy HTTP_PROXY HTTPS_PROXY
  unset XDG_CONFIG_HOME DPKG_FRONTEND_LOCKED
  export LC_ALL=C.UTF-8 HOME=$work/home TMPDIR=$work/tmp PATH=$PATH:/usr/sbin:/sbin
  root=$work/root repos=$work/repos definitions=$work/definitions
  rm -rf -- "$work"
  mkdir -p -- "$work" "$HOME" "$TMPDIR" "$definitions" "$work/ran"
  exec </dev/null
  cp -a -- "$world/root" "$world/repos" "$work"
  # The copy's package tool keeps its log here.
  { grep -v '^log ' "$world/root/.dpkg.cfg"; echo "log $root/var/log/dpkg.log"; } > "$root/.dpkg.cfg"
  printf 'secret\n' > "$work/password"
  printf 'wrong\n' > "$work/wrong"
  trap leave_world EXIT
  wrong=0 runs=0 server=
}
# shellcheck disable=SC2317  # the trap calls it
leave_world()
{
  exec 9>&-
  [ -z "$server" ] || wait "$server" 2>/dev/null || true
}

# await_line FIFO [SECONDS]: waits for a line that comes through it.
await_line()
{
  local fd result=0
  exec {fd}<>"$1"
  read -r -t "${2:-60}" -u "$fd" || result=1
  exec {fd}>&-
  return $result
}
# await_text FILE TEXT: waits until TEXT stands in a file that grows.
await_text()
{
  grep -q -- "$2" < <(timeout 60 tail -n +1 -f -- "$1" 2>/dev/null)
}

# define KEY URI [ARCHIVES [DESCRIPTORS]]: one more section.
define()
{
  cat > "$definitions/$1.xml" <<XML
<repository_list><repository>
  <title>Section $1</title><settings_key>$1</settings_key>
  <default_uri>$2</default_uri><selector_type>PickAny</selector_type>
  <filter_pattern><archive_pattern>\\.${3:-deb}\$</archive_pattern>
    <descriptor_pattern>${4:-\\.xml\$}</descriptor_pattern></filter_pattern>
</repository></repository_list>
XML
}
# start_servers: those of servers.py, on the repositories; they end with the script.
start_servers()
{
  local line
  openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -days 30 \
    -subj '/CN=updates.example/O=Example Works' -keyout "$work/key.pem" \
    -out "$work/certificate.pem" 2>/dev/null
  cat "$work/key.pem" >> "$work/certificate.pem"
  fingerprint=$(openssl x509 -in "$work/certificate.pem" -noout -fingerprint -sha256 | sed 's/.*=//')
  mkfifo -- "$work/stdin" "$work/stdout"
  /usr/bin/python3 "$here/servers.py" "$repos" "$work/certificate.pem" "$work/requests" \
    <"$work/stdin" >"$work/stdout" 2>"$work/servers.log" &
  server=$!
  exec 9>"$work/stdin"
  while read -r line; do
    echo "$line"
  done <"$work/stdout" >"$work/ports"
}
port()
{
  sed -n "s/^$1=//p" "$work/ports"
}

# The system as enter_world made it.
save_root()
{
  cp -a -- "$root" "$work/root.saved"
}
fresh()
{
  rm -rf -- "$root"
  cp -a -- "$work/root.saved" "$root"
}
version()
{
  DPKG_ROOT='' dpkg-query --admindir="$root/var/lib/dpkg" -W -f '${Version}' "$1"
}

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
# run_program EXIT_CODE FILTER ARGUMENT...: the program has to end so, and its only output has to be
# one document that has that code and that the filter accepts. With language=LOCALE before it, in
# that language.
run_program()
{
  local expected=$1 filter=$2 status=0 result=ok
  shift 2
  runs=$((runs + 1))
  rm -rf -- "$work/ran" && mkdir -- "$work/ran"
  LC_ALL=${language:-$LC_ALL} timeout --kill-after=5 60 "$ravelctl" --json "$@" \
    >"$work/out" 2>"$work/err" || status=$?
  if [ "$status" -ne "$expected" ]; then
    result="exit code $status, not $expected"
  # 10 is not an error, but an answer.
  elif ! jq -es --argjson code "$expected" 'length == 1 and (.[0] | has("error")
      and (.error.code // if $code == 10 then 10 else 0 end) == $code and ('"$filter"'))' \
      "$work/out" >/dev/null; then
    result="not one document that says: $filter"
  elif LC_ALL=C grep -qP '[\x00-\x08\x0b-\x1f\x7f]|\xc2[\x80-\x9f]|\xe2\x80[\xa8-\xae]' "$work/out" "$work/err"; then
    result="control characters"
  elif [ -n "$(find "$TMPDIR" -mindepth 1 -print -quit)" ]; then
    result="something is left in the temporary directory"
  fi
  verdict "$result" "$status $*"
}
# The same on the system below WORK_DIR, and on the sections that are defined here.
run()
{
  run_program "${@:1:2}" --root "$root" --definitions "$definitions" "${@:3}"
}
check()
{
  local what=$1 result=ok
  shift
  "$@" || result=no
  verdict "$result" "$what"
}
# Of what an installation leaves behind, there is nothing.
nothing_ran()
{
  [ ! -e "$work/ran/command" ] && [ ! -e "$root/var/log/dpkg.log.new" ] \
    && diff -r "$work/root.saved/var/lib" "$root/var/lib" >/dev/null
}

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

# watch_installers: notes in WORK_DIR/ran what is really run, and on what, before it runs. With a
# pipe WORK_DIR/go, the package tool says that it has begun and waits for a line.
watch_installers()
{
  local real_dpkg
  real_dpkg=$(command -v dpkg)
  mkdir -- "$work/bin"
  cat > "$work/bin/dpkg" <<SHELL
#!/bin/sh
cp RVinstall.sh "$work/ran/script"
echo "/bin/bash ./RVinstall.sh" > "$work/ran/command"
for file in ./*.deb; do echo "\${file#./}"; done > "$work/ran/archives"
if [ -p "$work/go" ]; then
  echo installing
  echo begun > "$work/begun"
  read -r _ < "$work/go"
fi
exec "$real_dpkg" "\$@"
SHELL
  cat > "$work/bin/bash" <<SHELL
#!/bin/sh
cp RVinstall.sh "$work/ran/script"
echo "bash \$*" > "$work/ran/command"
exec /bin/bash "\$@"
SHELL
  chmod 755 "$work/bin"/*
  export PATH=$work/bin:$PATH
}

# make_odd_packages: a folder of packages that are none, or not what their descriptors say.
make_odd_packages()
{
  local odd=$work/odd good=$repos/packages/tc-audio_1.0-1_all.deb
  # odd NAME PACKAGE EXTRA: its descriptor.
  odd()
  {
    printf '<update_data><name>%s</name><version>%s</version><thin_client>all</thin_client>%s</update_data>' \
      "$2" "${4:-1}" "$3" > "$odd/$1.xml"
  }
  mkdir -- "$odd"
  head -c 400000 "$good" > "$odd/cut.deb"
  odd cut tc-cut ''
  : > "$odd/empty.deb"
  odd empty tc-empty ''
  echo '<html>Not found</html>' > "$odd/page.deb"
  odd page tc-page ''
  cp -- "$good" "$odd/huge.deb"
  odd huge tc-huge '<size>4000000000000000</size>'
  cp -- "$good" "$odd/bloated.deb"
  odd bloated tc-bloated '<installed_size>4000000000000000</installed_size>'
  cp -- "$good" "$odd/whole.deb"
  odd whole tc-audio '' 1.0-1
  # The descriptor speaks of another package.
  cp -- "$good" "$odd/other.deb"
  odd other tc-other ''
  # Whole from outside, and nothing that the package tool takes.
  cp -- "$good" "$odd/rotten.deb"
  head -c 60 /dev/zero | dd of="$odd/rotten.deb" bs=1 seek=200 conv=notrunc status=none
  odd rotten tc-rotten ''
  define odd "file://$odd"
}

# Whether a disk can be made here; says so when not.
has_little_space()
{
  unshare --user --map-root-user --mount true 2>/dev/null \
    || { echo "skip no private mounts here: the full disk is left out"; return 1; }
}
# in_little_space DIRECTORY COMMAND...: where DIRECTORY is a disk of 600 KiB.
in_little_space()
{
  local directory=$1
  shift
  mkdir -p -- "$directory"
  timeout --kill-after=5 60 unshare --user --map-root-user --mount sh -c \
    'mount -t tmpfs -o size=600k none "$0" && exec "$@"' "$directory" "$@"
}

# finish LEAST: the summary, and whether all went well in that many runs.
finish()
{
  echo "$runs runs, $wrong wrong"
  [ "$wrong" -eq 0 ] && [ "$runs" -ge "$1" ]
}
