#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
#
# kills.sh RAVELCTL WORLD WORK_DIR: the program is killed at random moments of an installation and
# of a change of its settings. RAVEL_KILLS is how often (20), RAVEL_KILL_SEED the seed (printed).
set -euo pipefail
# shellcheck source=tests/cli/world.sh
. "$(dirname -- "$(readlink -f -- "$0")")/world.sh"
enter_world "$@"
start_servers
define plain "http://127.0.0.1:$(port plain)/packages/"
save_root
exec /usr/bin/python3 "$here/kills.py" "$ravelctl" "$work" "${RAVEL_KILLS:-20}" "${RAVEL_KILL_SEED:-}"
