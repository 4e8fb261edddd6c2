#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# completion.sh COMPLETION RAVELCTL WORLD WORK_DIR: what bash completes.
set -euo pipefail
# shellcheck source=/dev/null
. "$1"
ravelctl=$2
rm -rf -- "$4"
mkdir -p -- "$4/home"
export HOME=$4/home LC_ALL=C.UTF-8
cp -a -- "$3/root" "$4"
root=$4/root
wrong=0

# completes EXPECTED WORD...: the last word is the one at which the cursor stands.
completes()
{
  local expected=$1
  shift
  COMP_WORDS=("$ravelctl" "$@")
  COMP_CWORD=$#
  COMPREPLY=()
  _ravelctl
  local found="${COMPREPLY[*]}"
  if [ "$found" != "$expected" ]; then
    echo "'$*' completes to '$found', not '$expected'"
    wrong=1
  fi
}

complete -p ravelctl >/dev/null
completes 'status repos list explain details plan install repair history download lint location proxy trust sums' ''
completes 'plan proxy' p
completes 'list lint location' --json l
completes 'list' --root /x lis
completes '--json' --j
completes '--exit-code' list --e
completes '--user' explain --u
completes '' status --a
completes '' --timeout ''
completes 'none http https ftp all' proxy ''
completes 'http https' proxy h
completes 'none' proxy http ''
completes '' proxy http none ''
completes 'image_uri sp_uri package_uri application_uri' --root "$root" list ''
completes 'package_uri' --root "$root" plan pa
completes 'package_uri' --root "$root" install pa
completes '--yes' install --y
completes 'image_uri sp_uri package_uri application_uri' --root "$root" lint ''
completes "$root/etc" --root "$root" lint sp_uri "$root/et"
completes '--kinds' lint --k
completes 'package_uri' --root "$root" list image_uri pa
completes '' --root "$root" details package_uri ''
completes 'default' --root "$root" location package_uri d
completes '' --root /nowhere list ''
completes '' nonsense ''
completes "$root/etc" --root "$root/et"
exit $wrong
