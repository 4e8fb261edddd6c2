#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# serve.sh DIR COMMAND [ARGUMENT...]: makes the demo world in DIR with its three remote repositories,
# serves them on free loopback ports while the command runs, and ends the servers after it. The exit
# code is the command's.
#
#   https   nginx, with a certificate that nobody knows
#   http    nginx, for the user "demo" with the password "demo"
#   ftp     an FTP server, for everybody
set -euo pipefail
umask 022
# dpkg and nginx need the administrators' folders, which an ordinary user's PATH lacks.
export PATH=$PATH:/usr/sbin:/sbin

if [ $# -lt 2 ] || [ -z "$1" ]; then
  echo "usage: ${0##*/} DIR COMMAND [ARGUMENT...]" >&2
  exit 2
fi
mkdir -p -- "$1"
world=$(cd -- "$1" && pwd -P)
shift
demo=$(cd -- "$(dirname -- "$(readlink -f -- "$0")")" && pwd -P)
# Debian's own, which has the FTP server's library, whatever PATH says.
python=/usr/bin/python3

run=$(mktemp -d)
pids=()
# shellcheck disable=SC2317  # the trap calls it
stop()
{
  local pid
  for pid in "${pids[@]}"; do
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  rm -rf -- "$run"
}
trap stop EXIT

free_ports()
{
  "$python" - "$1" <<'PYTHON'
import socket, sys
sockets = [socket.socket() for _ in range(int(sys.argv[1]))]
for s in sockets:
    s.bind(("127.0.0.1", 0))
print(*(s.getsockname()[1] for s in sockets))
PYTHON
}

# await TEXT LOG: until the server has written so
await()
{
  grep -q -- "$1" < <(timeout 60 tail -n +1 -f -- "$2" 2>/dev/null) && return 0
  echo "${0##*/}: no server" >&2
  cat "$2" >&2
  return 1
}

read -r https http ftp <<<"$(free_ports 3)"
# A name of its own for the one with the login, which sections of one host share.
"$demo/build-world.sh" "$world" "https://127.0.0.1:$https/" "http://localhost:$http/" \
  "ftp://127.0.0.1:$ftp/"

openssl req -x509 -newkey rsa:2048 -nodes -days 30 -subj "/O=Demo/CN=127.0.0.1" \
  -addext "subjectAltName=IP:127.0.0.1" -keyout "$run/key.pem" -out "$run/certificate.pem" 2>/dev/null
printf 'demo:%s\n' "$(openssl passwd -apr1 demo)" > "$run/users"
# One process with the rights of who runs this; nothing outside its own directory is written.
cat > "$run/nginx.conf" <<NGINX
daemon off;
master_process off;
pid "$run/pid";
error_log "$run/log" notice;
events {}
http {
  access_log off;
  types { text/html html; text/xml xml; }
  client_body_temp_path "$run/body";
  proxy_temp_path "$run/proxy";
  fastcgi_temp_path "$run/fastcgi";
  uwsgi_temp_path "$run/uwsgi";
  scgi_temp_path "$run/scgi";
  autoindex on;
  server {
    listen 127.0.0.1:$https ssl;
    ssl_certificate "$run/certificate.pem";
    ssl_certificate_key "$run/key.pem";
    root "$world/repos/https";
  }
  server {
    listen 127.0.0.1:$http;
    auth_basic "Demo";
    auth_basic_user_file "$run/users";
    root "$world/repos/http";
  }
}
NGINX
: > "$run/log"
: > "$run/ftp"
nginx -c "$run/nginx.conf" -e "$run/log" 2>"$run/nginx.err" &
pids+=("$!")
"$python" "$demo/ftp-server.py" "$ftp" "$world/repos/ftp" >"$run/ftp" 2>&1 &
pids+=("$!")
# It has opened its ports by then.
await 'event method' "$run/log"
await listening "$run/ftp"

status=0
"$@" || status=$?
exit "$status"
