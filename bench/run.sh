#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# run.sh BUILD_DIR: every benchmark, each against its peer in the same run; fails when one
# falls below the factor that it names; where that is under 1, ours is the slower one and says why.
# RAVEL_BENCH_PACKAGES names a directory of .deb files; without it twenty of the distribution's are
# downloaded, if they can be.
set -euo pipefail
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export HOME=$home XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home

if [ -z "${RAVEL_BENCH_PACKAGES:-}" ]; then
  export RAVEL_BENCH_PACKAGES=$home/packages
  mkdir "$RAVEL_BENCH_PACKAGES"
  # As whoever runs this: root's directory is closed to apt's own user.
  (cd "$RAVEL_BENCH_PACKAGES" && timeout 60 apt-get -qq -o APT::Sandbox::User= download \
    adduser apt base-files bash bsdutils coreutils dash diffutils dpkg findutils \
    grep gzip hostname libc6 mount perl-base sed tar tzdata util-linux) || true
fi

failed=0
for program in "$1"/bench/bench_*; do
  if [ ! -f "$program" ]; then continue; fi
  "$program" || failed=1
done
exit $failed
