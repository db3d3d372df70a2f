#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Pictures of the real app for the README, headless, against the development
# backend on loopback, from central Nairobi: the dashboard and the login screen
# as a guest sees them, then, signed in as the demo account through the
# backend as the app would be, the profile, health tips, the scale, the past
# week and the map.
# Usage: scripts/screenshots.sh [BUILD_DIR] [OUT_DIR]
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$(cd "${1:-$root/build}" && pwd)"
out="${2:-$root/docs/screenshots}"
mkdir -p "$out"
scratch="$(mktemp -d)"
# shellcheck source=scripts/dev-backend.sh
. "$root/scripts/dev-backend.sh"

start_dev_backend "$build/server/tarnelo-devserver" "$scratch/backend" "$scratch/backend.log"
trap 'kill "$dev_backend_pid" 2>/dev/null || true; wait "$dev_backend_pid" 2>/dev/null || true; rm -rf "$scratch"' EXIT
export TARNELO_POSITION="fixed:-1.2864,36.8172"
export XDG_DATA_HOME="$scratch/data"

shot() {
    local name="$1"
    shift
    "$build/src/tarnelo" "$@" --screenshot "$out/$name.png" > /dev/null
    echo "wrote $out/$name.png"
}

shot dashboard
# A guest sees the login screen everywhere but on the dashboard.
shot login --open Profile

# Signed in as the demo account: the session the backend hands out, kept in
# the app's user store as a login would keep it.
python3 - "$TARNELO_BACKEND_URL" "$TARNELO_CA_FILE" "$XDG_DATA_HOME/tarnelo/tarnelo_db.sqlite" <<'PY'
import json, sqlite3, ssl, sys, urllib.request
backend, ca, store = sys.argv[1:]
answer = urllib.request.urlopen(backend + "/tarnelo/v1/login.php?username=demo%40tarnelo.test&passcode=CleanAir2026",
                                context=ssl.create_default_context(cafile=ca))
user = json.load(answer)[0]
with sqlite3.connect(store) as db:
    db.execute("INSERT INTO UserTable (userid, fullname, phonenumber, emailaddress, dateofbirth, gender, registerdate) VALUES (?, ?, ?, ?, ?, ?, ?)",
               (user["userid"], user["fullname"], user["phonenumber"], user["emailaddress"], user["dateofbirth"], user["gender"], user["registerdate"]))
PY
shot profile --open Profile
shot health-tips --open "Health Tips"
shot scale --open "AQI Scale"
shot history --open-history
shot map --search Mombasa
