#!/usr/bin/env bash
# Starts the built app. Without a display (the app then draws off screen by
# itself) it writes a screenshot of the first screen to <build>/screenshots/.
set -euo pipefail

build="${1:-build}"
app="$build/src/tarnelo"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    mkdir -p "$build/screenshots"
    shot="$build/screenshots/home.png"
    "$app" --screenshot "$shot"
    echo "No display: wrote $shot"
else
    exec "$app"
fi
