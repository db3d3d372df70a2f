#!/usr/bin/env bash
# Time from process start to first frame, headless, for the app and for a bare
# Qt Quick window measured the same way: the median of N runs of each, in ms.
set -euo pipefail

build="${1:-build}"
runs="${2:-10}"
export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software
data_home="$(mktemp -d)"
trap 'rm -rf "$data_home"' EXIT
export XDG_DATA_HOME="$data_home"

median_ms() {
    local program="$1" samples=()
    for _ in $(seq "$runs"); do
        local start frame
        start="$(date +%s%N)"
        frame="$("$program" --report-first-frame 2>&1 >/dev/null | sed -n 's/^first-frame-ns //p')"
        samples+=("$(( (frame - start) / 1000 ))")
    done
    printf '%s\n' "${samples[@]}" | sort -n | awk '{ v[NR] = $1 } END { m = (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2; printf "%.1f\n", m / 1000 }'
}

echo "bare Qt Quick window: $(median_ms "$build/bench/bare_window") ms (median of $runs)"
echo "Tarnelo:              $(median_ms "$build/src/tarnelo") ms (median of $runs)"
