#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the build into a scratch DESTDIR and runs the app from there, so
# that the installed layout, not the build tree, has to provide its data.
# Usage: check-installed-app.sh <build-dir> <data-probe>
set -euo pipefail
build="$1"
probe="$2"
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

DESTDIR="$scratch" cmake --install "$build" > "$scratch/install.log"
prefix="$(cmake -L -N "$build" | sed -n 's/^CMAKE_INSTALL_PREFIX:PATH=//p')"
root="$scratch$prefix"
bin="$root/bin"

# Nothing from the build tree or the real user's files.
unset TARNELO_GAZETTEER TARNELO_TILES
export HOME="$scratch/home" XDG_DATA_HOME="$scratch/home/data" XDG_CACHE_HOME="$scratch/home/cache" XDG_CONFIG_HOME="$scratch/home/config"
export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software TARNELO_POSITION=none

cp "$probe" "$bin/"
"$bin/$(basename "$probe")" | tee "$scratch/found"
grep -q "^gazetteer $root/share/tarnelo/gazetteer.sqlite names Nairobi$" "$scratch/found"
grep -q "^tiles file://$root/share/tarnelo/tiles/ to level [1-9]" "$scratch/found"

"$bin/tarnelo" --self-test

# The backend its user service starts, and the files a desktop reads.
for file in libexec/tarnelo/tarnelo-backend lib/systemd/user/default.target.wants/tarnelo-backend.service \
    share/applications/org.tarnelo.Tarnelo.desktop share/metainfo/org.tarnelo.Tarnelo.metainfo.xml \
    share/icons/hicolor/scalable/apps/org.tarnelo.Tarnelo.svg; do
    [ -e "$root/$file" ] || { echo "Not installed: $file" >&2; exit 1; }
done
