#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs request_faults (request-faults.cpp) against the tests' fault server,
# one scenario after the other, and counts the requests that reached the
# server's other host. The deadline is the built-in one unless
# TARNELO_REQUEST_DEADLINE is set.
# Usage: bench/request-faults.sh [build-dir] [away|trickle|big ...]
set -euo pipefail

build="${1:-build}"
shift || true
scenarios=("$@")
[ ${#scenarios[@]} -gt 0 ] || scenarios=(away trickle big)
here="$(cd "$(dirname "$0")" && pwd)"
work="$(mktemp -d)"
trap 'exec 3>&-; wait; rm -rf "$work"' EXIT

# The server runs until its standard input closes: hold the pipe open on fd 3.
mkfifo "$work/stdin"
python3 "$here/../tests/service/faultserver.py" <"$work/stdin" >"$work/server.log" &
exec 3>"$work/stdin"
until grep -q '^ready ' "$work/server.log"; do sleep 0.1; done
read -r _ port _ cert <"$work/server.log"

for scenario in "${scenarios[@]}"; do
    reached_before="$(grep -c '^other-host' "$work/server.log" || true)"
    TARNELO_CA_FILE="$cert" "$build/bench/request_faults" "$scenario" "https://127.0.0.1:$port"
    sleep 0.5
    reached_after="$(grep -c '^other-host' "$work/server.log" || true)"
    echo "requests that reached the other host: $((reached_after - reached_before))"
done
