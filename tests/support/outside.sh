#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# outside.sh note|compare FILE: notes in FILE what tests have to leave alone, or fails when that has
# changed since: the system that a Ravel installed here would work on, the package database with it,
# and the home of who runs the tests. Other suites may run beside this one: what stays behind in the
# folders of temporary files is looked at by .ci/run, which is alone on its machine.
set -euo pipefail
export LC_ALL=C
home=${HOME:-/nonexistent}

# What RVPaths names, and what dpkg writes.
system=(/etc/imageid /etc/service-packs /etc/cvtc-ravel /etc/auto-update /var/lib/ravel /run/ravel /writable
  /var/log/Ravel.log /tmp/Ravel.log /var/lib/dpkg/status /var/log/dpkg.log)

outside()
{
  find "${system[@]}" -printf '%p %i %s %T@\n' || true
  # New things of any name, and ours at any depth.
  find "$home" "$home"/.config "$home"/.cache "$home"/.local/share -mindepth 1 -maxdepth 1 -printf '%p\n' || true
  find "$home"/.config "$home"/.cache "$home"/.local/share \
    \( -ipath '*ravel*' -o -ipath '*corvane*' \) -printf '%p %i %s %T@\n' || true
} 2>/dev/null

case $1 in
  note) outside | sort > "$2" ;;
  compare) outside | sort | diff "$2" - || { echo "a test has written outside its own folder"; exit 1; } ;;
esac
