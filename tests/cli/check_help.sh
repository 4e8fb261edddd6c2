#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# check_help.sh RAVELCTL MANUAL COMPLETION: each command and option of the program's own help stands
# in the manual and in the completion too, and the manual is well-formed.
set -euo pipefail

mandoc -T lint -W warning "$2"
wrong=0
missing()
{
  echo "$1 is missing in $2"
  wrong=1
}
commands=$("$1" --help | sed -n 's/^  \([a-z]\{3,\}\) .*/\1/p; s/^  \([a-z]\{3,\}\)$/\1/p')
[ "$(wc -w <<<"$commands")" -ge 8 ]
for command in $commands; do
  grep -q "^\.It Cm $command\b" "$2" || missing "$command" "$2"
  grep -qw -- "$command" "$3" || missing "$command" "$3"
  for option in $("$1" "$command" --help | grep -oE '^  (-[a-z], )?--[a-z-]+' | grep -oE -- '--[a-z-]+'); do
    grep -q -- "Fl -${option#--}\b" "$2" || missing "$option" "$2"
    grep -qw -e "$option" "$3" || missing "$option" "$3"
  done
done
exit $wrong
