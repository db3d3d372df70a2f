#!/usr/bin/env bash
# What the offline map's tiles cost: the wall time of the tile target alone in
# a fresh build directory (the painter compiled, the shapes gathered, every
# tile painted), the time of a build with nothing changed and of one after the
# shapes script was touched, and the size of what is shipped: the PNG files'
# bytes level by level and in all, and the space they take on disk.
# Usage: bench/tile-build.sh [scratch build dir] [parallel jobs]
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
scratch="${1:-$root/build-tile-bench}"
jobs="${2:-2}"

seconds() {
    local start end
    start="$(date +%s%N)"
    "$@" >/dev/null
    end="$(date +%s%N)"
    awk -v ns="$((end - start))" 'BEGIN { printf "%.1f s", ns / 1e9 }'
}

rm -rf "$scratch"
cmake -S "$root" -B "$scratch" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
echo "tile target from clean ($jobs jobs): $(seconds cmake --build "$scratch" -j"$jobs" --target tarnelo_tiles)"
echo "again, nothing changed:             $(seconds cmake --build "$scratch" -j"$jobs" --target tarnelo_tiles)"
touch "$root/src/location/tiles/build-tile-shapes.mjs"
echo "after touching the shapes script:   $(seconds cmake --build "$scratch" -j"$jobs" --target tarnelo_tiles)"

tiles="$scratch/src/tiles"
for level in "$tiles"/*/; do
    find "$level" -name '*.png' -printf '%s\n' | awk -v level="$(basename "$level")" '{ s += $1 } END { printf "level %s: %5d tiles, %9d bytes\n", level, NR, s }'
done
find "$tiles" -name '*.png' -printf '%s\n' | awk '{ s += $1 } END { printf "all:     %5d tiles, %9d bytes (%.2f MB)\n", NR, s, s / 1e6 }'
echo "on disk (du): $(du -sh "$tiles" | cut -f1)"
