#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# check_exports.sh LIBRARY: the shared library gives away its entry class and nothing else of ours.
set -euo pipefail

exported=$(nm -D --defined-only --demangle "$1" | cut -d' ' -f3-)
grep -q '^RVSection::RVSection(' <<<"$exported" || {
  echo "RVSection is not exported"
  exit 1
}
# What is thrown across the border keeps its type information; the rest is instantiated from other
# libraries' headers, which do not hide it.
thrown='RVMainPage::ExceptionType|OSInfoBaseClass::ExceptionType|ArchiveBaseClass::Exception_t|NetworkDirRequestBase::exceptionType'
others=$(grep -v -E \
  -e "^typeinfo (name )?for ($thrown)$" \
  -e '^RVSection::|^(vtable|typeinfo|typeinfo name) for RVSection$|^q(Init|Cleanup)Resources_' \
  -e '^(vtable|typeinfo|typeinfo name|VTT) for (Q|std::|OpProgress)' \
  -e '^((void|bool|int|char\*|void\*&) )?(Q[A-Z]|std::|qt_)|^operator (new|delete)|^__|^_(init|fini|edata|end)$' \
  -e '^guard variable for std::' <<<"$exported" || true)
if [ -n "$others" ]; then
  echo "exported, and should not be:"
  echo "$others"
  exit 1
fi
