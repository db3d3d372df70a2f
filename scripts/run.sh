#!/usr/bin/env bash
# Starts the development backend on loopback and the built app against it.
# Without a display (the app then draws off screen by itself) the app writes a
# screenshot of the first screen to <build>/screenshots/ and quits.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:-build}"
app="$build/src/tarnelo"
server="$build/server/tarnelo-devserver"
data="$build/devserver-data"
log="$build/devserver.log"
history_key=0123456789abcdef0123456789abcdef

# The backend's console goes to the terminal and to a log; ports are chosen
# by the system and read back from its ready line.
: > "$log"
"$server" --data "$data" --https-port 0 --http-port 0 --history-key "$history_key" --print-reset-passwords > >(tee -a "$log") 2>&1 &
server_pid=$!
trap 'kill "$server_pid" 2>/dev/null || true; wait "$server_pid" 2>/dev/null || true' EXIT

ready=""
for _ in $(seq 1 150); do
    ready="$(grep -m1 '^Tarnelo development backend ready:' "$log" || true)"
    [ -n "$ready" ] && break
    kill -0 "$server_pid" 2>/dev/null || { echo "The development backend did not start; see $log" >&2; exit 1; }
    sleep 0.1
done
[ -n "$ready" ] || { echo "The development backend did not get ready; see $log" >&2; exit 1; }
field() { sed -n "s/.* $1=\([^ ]*\).*/\1/p" <<<"$ready"; }

export TARNELO_BACKEND_URL="https://127.0.0.1:$(field https)"
export TARNELO_HISTORY_URL="http://127.0.0.1:$(field http)"
export TARNELO_CA_FILE="${ready#* ca=}"
export TARNELO_OWM_KEY="$history_key"
# Unless told otherwise, the app walks through central Nairobi, replaying a
# recorded log in real time.
export TARNELO_POSITION="${TARNELO_POSITION:-nmea:$root/demo/nairobi-walk.nmea}"

# Where this run's readings came from, from the backend's request lines.
sources_used() {
    local used
    used="$(grep -oE '\[(open-meteo|openweathermap|simulated)[^]]*\]$' "$log" | sort | uniq -c | awk '{ $1 = $1; print }' | paste -sd ';' - || true)"
    echo "Readings in this run: ${used:-none requested}"
}
trap 'sources_used; kill "$server_pid" 2>/dev/null || true; wait "$server_pid" 2>/dev/null || true' EXIT

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    mkdir -p "$build/screenshots"
    shot="$build/screenshots/home.png"
    "$app" --screenshot "$shot"
    echo "No display: wrote $shot"
else
    "$app"
fi
