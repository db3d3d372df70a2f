#!/usr/bin/env bash
# Installs whatever the project needs and the machine lacks: the Debian packages
# listed in deps/debian-packages.txt and the npm packages locked in package-lock.json.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

mapfile -t wanted < <(sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$root/deps/debian-packages.txt")
missing=()
for package in "${wanted[@]}"; do
    status="$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)"
    [ "$status" = "install ok installed" ] || missing+=("$package")
done
# Registry packages come through npm; Debian's npm only where no npm is there
# already (a machine's own Node.js would conflict with it).
command -v npm >/dev/null || missing+=(npm)

if [ "${#missing[@]}" -gt 0 ]; then
    echo "Installing Debian packages: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    as_root apt-get update -q
    as_root apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

stamp="$root/node_modules/.package-lock.json"
if [ ! -f "$stamp" ] || [ "$root/package-lock.json" -nt "$stamp" ]; then
    echo "Installing npm packages"
    (cd "$root" && npm ci --no-audit --no-fund --loglevel=error)
fi
