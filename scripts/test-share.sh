#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Non-blank lines of code (src/, server/) and of tests (tests/) among the files
# git tracks, and the tests' share of the code in percent.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

lines() {
    git ls-files -- "$@" | grep -E '\.(cpp|h|qml|mjs|py|sh)$|CMakeLists\.txt$' | tr '\n' '\0' | xargs -0 cat | grep -cv '^[[:space:]]*$'
}

code="$(lines src server)"
tests="$(lines tests)"
echo "code:  $code non-blank lines (src/, server/)"
echo "tests: $tests non-blank lines (tests/)"
awk -v t="$tests" -v c="$code" 'BEGIN { printf "share: %.1f%%\n", 100 * t / c }'
