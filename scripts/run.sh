#!/usr/bin/env bash
# Starts the development backend on loopback and the built app against it.
# Without a display (the app then draws off screen by itself) the app writes a
# screenshot of the first screen to <build>/screenshots/ and quits.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:-build}"
app="$build/src/tarnelo"
log="$build/devserver.log"
# shellcheck source=scripts/dev-backend.sh
. "$root/scripts/dev-backend.sh"

# The backend's console goes to the terminal and to a log.
start_dev_backend "$build/server/tarnelo-devserver" "$build/devserver-data" "$log" --print-reset-passwords
tail -n +1 -f "$log" --pid "$dev_backend_pid" &
trap 'kill "$dev_backend_pid" 2>/dev/null || true; wait "$dev_backend_pid" 2>/dev/null || true' EXIT

# Unless told otherwise, the app walks through central Nairobi, replaying a
# recorded log in real time.
export TARNELO_POSITION="${TARNELO_POSITION:-nmea:$root/demo/nairobi-walk.nmea}"

# Where this run's readings came from, from the backend's request lines.
sources_used() {
    local used
    used="$(grep -oE '\[(open-meteo|openweathermap|simulated)[^]]*\]$' "$log" | sort | uniq -c | awk '{ $1 = $1; print }' | paste -sd ';' - || true)"
    echo "Readings in this run: ${used:-none requested}"
}
trap 'sources_used; kill "$dev_backend_pid" 2>/dev/null || true; wait "$dev_backend_pid" 2>/dev/null || true' EXIT

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    mkdir -p "$build/screenshots"
    shot="$build/screenshots/home.png"
    "$app" --screenshot "$shot"
    echo "No display: wrote $shot"
else
    "$app"
fi
