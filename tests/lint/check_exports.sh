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
others=$(grep -v -E '^(RVSection::|(vtable|typeinfo|typeinfo name|non-virtual thunk) (for|to) RVSection|q(Init|Cleanup)Resources_|std::|void std::|bool std::|__|_init$|_fini$|_edata$|_end$|guard variable for std::|operator (new|delete))' \
  <<<"$exported" | grep -v -E '^(vtable for|typeinfo (name )?for|VTT for) (Q|std::)|^Q[A-Z]|^void Q|^bool Q|^int Q|^qt_|^qt?[a-z]+Q' || true)
if [ -n "$others" ]; then
  echo "exported, and should not be:"
  echo "$others"
  exit 1
fi
