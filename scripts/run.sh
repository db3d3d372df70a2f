#!/usr/bin/env bash
# Starts the built app. Without a display it runs headless and writes a
# screenshot of the first screen to <build>/screenshots/ instead.
set -euo pipefail

build="${1:-build}"
app="$build/src/tarnelo"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software
    mkdir -p "$build/screenshots"
    shot="$build/screenshots/home.png"
    "$app" --screenshot "$shot"
    echo "No display: wrote $shot"
else
    exec "$app"
fi
