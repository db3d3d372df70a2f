#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# What the Debian package weighs and where the weight is: the .deb, its
# installed size, and the biggest parts of what it installs (the map's tiles,
# the gazetteer, the two programs). Makes the package in the given build
# directory first, as `make package` does in build-package.
# Usage: bench/package-size.sh [build-dir]
set -euo pipefail

build="${1:-build-package}"
(cd "$build" && cpack > /dev/null)
deb="$(ls -t "$build"/tarnelo_*.deb | head -n1)"
echo "package: $(basename "$deb") $(stat -c %s "$deb") bytes"
echo "installed: $(dpkg-deb -f "$deb" Installed-Size) KiB"

tree="$(mktemp -d)"
trap 'rm -rf "$tree"' EXIT
dpkg-deb -x "$deb" "$tree"
tiles="$(find "$tree" -path '*/share/tarnelo/tiles/*' -type f | wc -l)"
echo "tiles: $tiles files, $(du -sk "$tree"/usr/share/tarnelo/tiles | cut -f1) KiB on disk"
for part in usr/share/tarnelo/gazetteer.sqlite usr/bin/tarnelo usr/libexec/tarnelo/tarnelo-backend; do
    echo "$part: $(stat -c %s "$tree/$part") bytes"
done
