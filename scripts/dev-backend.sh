# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the scripts that run the app against the development backend.
#
# start_dev_backend SERVER DATA_DIR LOG [OPTION...] starts the backend on
# loopback ports the system chooses, with its console in LOG, waits for its
# ready line and exports what points the app at it: TARNELO_BACKEND_URL,
# TARNELO_HISTORY_URL, TARNELO_CA_FILE and TARNELO_OWM_KEY. The backend's
# process id is left in dev_backend_pid; the caller stops it.

dev_backend_history_key=0123456789abcdef0123456789abcdef

start_dev_backend() {
    local server="$1" data="$2" log="$3"
    shift 3
    : > "$log"
    "$server" --data "$data" --https-port 0 --http-port 0 --history-key "$dev_backend_history_key" "$@" >> "$log" 2>&1 &
    dev_backend_pid=$!
    local ready=""
    for _ in $(seq 1 150); do
        ready="$(grep -m1 '^Tarnelo development backend ready:' "$log" || true)"
        [ -n "$ready" ] && break
        kill -0 "$dev_backend_pid" 2>/dev/null || { echo "The development backend did not start; see $log" >&2; return 1; }
        sleep 0.1
    done
    [ -n "$ready" ] || { echo "The development backend did not get ready; see $log" >&2; return 1; }
    export TARNELO_BACKEND_URL="https://127.0.0.1:$(sed -n 's/.* https=\([0-9]*\).*/\1/p' <<<"$ready")"
    export TARNELO_HISTORY_URL="http://127.0.0.1:$(sed -n 's/.* http=\([0-9]*\).*/\1/p' <<<"$ready")"
    export TARNELO_CA_FILE="${ready#* ca=}"
    export TARNELO_OWM_KEY="$dev_backend_history_key"
}
