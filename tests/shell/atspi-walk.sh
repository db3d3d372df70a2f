#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The app as a screen reader meets it, through the desktop's accessibility bus
# (AT-SPI). Run inside a private session bus and X server:
#   dbus-run-session -- xvfb-run -a atspi-walk.sh APP SERVER
# It starts a private accessibility bus with its registry, announces it on the
# root window as the desktop would (Qt reads it from there at start and
# registers only once, so the registry must already answer), starts the
# development backend and lets atspi_walk.py walk every screen.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
app="$1" server="$2"
scratch="$(mktemp -d)"

a11y_pid=""
cleanup() {
    [ -n "${dev_backend_pid:-}" ] && kill "$dev_backend_pid" 2>/dev/null
    [ -n "$a11y_pid" ] && kill "$a11y_pid" 2>/dev/null
    rm -rf "$scratch"
}
trap cleanup EXIT

# Known before the bus starts, so that the registry it starts on demand
# inherits it and does not go looking for the desktop's own bus.
export AT_SPI_BUS_ADDRESS="unix:path=$scratch/a11y-bus"
dbus-daemon --config-file=/usr/share/defaults/at-spi2/accessibility.conf --address="$AT_SPI_BUS_ADDRESS" --fork --print-pid=3 3>"$scratch/a11y.pid"
a11y_pid="$(cat "$scratch/a11y.pid")"
xprop -root -f AT_SPI_BUS 8s -set AT_SPI_BUS "$AT_SPI_BUS_ADDRESS"

# shellcheck source=../../scripts/dev-backend.sh
source "$here/../../scripts/dev-backend.sh"
start_dev_backend "$server" "$scratch/backend" "$scratch/backend.log" --sources simulated
demo=""
for _ in $(seq 50); do
    demo="$(sed -n 's/^Demo account: //p' "$scratch/backend.log")"
    [ -n "$demo" ] && break
    sleep 0.1
done

# pyatspi is Debian's, for the system interpreter.
XDG_DATA_HOME="$scratch/data" /usr/bin/python3 "$here/atspi_walk.py" "$app" "${demo% / *}" "${demo#* / }"
