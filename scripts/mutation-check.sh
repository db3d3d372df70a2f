#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plants one fault at a time in a private copy of the repository and runs the
# test suite against it: a fault the suite lets through marks a rule no test
# holds, which is what to look at before tests are removed or merged.
#
#   scripts/mutation-check.sh [--rev REV] [--keep DIR] [--only PATTERN] [--list FILE]
#
#   --rev REV       check the committed revision REV (a clone of this
#                   repository); without it, the working tree as it is now:
#                   tracked files with their uncommitted edits, and new files
#                   git does not ignore, since new code arrives as those.
#   --keep DIR      copy and build in DIR and leave them there, so that the next
#                   run only rebuilds what changed; by default a scratch
#                   directory is made and removed.
#   --only PATTERN  only the faults whose line matches PATTERN (a Python regex).
#   --list FILE     the faults; scripts/mutations.tsv by default.
#
# Each line of the list is one fault, tab-separated and taken literally:
#   file  old text  new text  what it breaks
# The old text must occur exactly once in the file; the run stops before
# building if any does not. Blank lines and lines starting with # are skipped.
#
# The suite must pass on the unchanged copy first, or every fault would look
# caught. Then each fault is applied, the copy rebuilt incrementally and CTest
# run until its first failure; the file is restored afterwards. A fault that
# does not compile is reported apart, as it says nothing about the tests.
#
# The build needs node_modules (icons, gazetteer, map tiles), which git does
# not track; the copy links to this checkout's. The checkout itself is only
# read. Exit status: 0 when every fault was caught, 1 when any survived or did
# not build, 2 on a usage or setup error.
set -euo pipefail

repo="$(git -C "$(dirname "$0")/.." rev-parse --show-toplevel)"
list="$repo/scripts/mutations.tsv"
rev=""
keep=""
only=""
jobs=2

usage() {
    sed -n '8,18p' "$0" | sed 's/^# \{0,1\}//' >&2
    exit 2
}

while [ $# -gt 0 ]; do
    case "$1" in
    --rev) rev="${2:?}"; shift 2 ;;
    --keep) keep="${2:?}"; shift 2 ;;
    --only) only="${2:?}"; shift 2 ;;
    --list) list="$(realpath "${2:?}")"; shift 2 ;;
    -h | --help) usage ;;
    *) echo "Unknown argument: $1" >&2; usage ;;
    esac
done

started=$(date +%s)
if [ -n "$keep" ]; then
    mkdir -p "$keep"
    work="$(realpath "$keep")"
else
    work="$(mktemp -d /tmp/tarnelo-mutation.XXXXXX)"
    trap 'rm -rf "$work"' EXIT
fi
copy="$work/src"
build="$work/build"
log="$work/log"
mkdir -p "$log"

# A kept copy of the other kind (clone or working tree) is replaced whole.
if [ -n "$rev" ]; then
    commit="$(git -C "$repo" rev-parse --verify "$rev^{commit}")"
    [ -d "$copy/.git" ] || { rm -rf "$copy"; git clone --quiet --no-checkout "$repo" "$copy"; }
    git -C "$copy" fetch --quiet origin
    # Checking out only rewrites the files that differ, so a kept build stays warm.
    git -C "$copy" checkout --quiet --force --detach "$commit"
    echo "Checking $(git -C "$copy" log -1 --format='%h %s' | cut -c1-72)"
else
    [ ! -d "$copy/.git" ] || rm -rf "$copy"
    mkdir -p "$copy"
    # Only files whose content differs are copied, and they get a new time, so
    # that make sees them; a file the copy has that the tree lost stays.
    (cd "$repo" && git ls-files -z --cached --others --exclude-standard) | while IFS= read -r -d '' file; do
        [ -e "$repo/$file" ] || continue
        if ! cmp -s "$repo/$file" "$copy/$file"; then
            mkdir -p "$copy/$(dirname "$file")"
            cp -f "$repo/$file" "$copy/$file"
        fi
    done
    echo "Checking the working tree of $repo ($(git -C "$repo" log -1 --format=%h) and uncommitted changes)"
fi
[ ! -d "$repo/node_modules" ] || [ -e "$copy/node_modules" ] || ln -s "$repo/node_modules" "$copy/node_modules"

# The faults as NUL-separated records: line number, file, old, new, description.
faults="$work/faults"
python3 - "$list" "$copy" "$only" >"$faults" <<'EOF'
import re, sys
path, copy, only = sys.argv[1:]
bad = 0
for number, line in enumerate(open(path, encoding="utf-8"), 1):
    line = line.rstrip("\n")
    if not line.strip() or line.startswith("#") or (only and not re.search(only, line)):
        continue
    fields = line.split("\t")
    if len(fields) != 4 or not all(fields[:3]):
        print(f"{path}:{number}: want 4 tab-separated fields: file, old text, new text, what it breaks", file=sys.stderr)
        bad += 1
        continue
    file, old, new, what = fields
    try:
        count = open(f"{copy}/{file}", encoding="utf-8").read().count(old)
    except OSError as error:
        print(f"{path}:{number}: {error}", file=sys.stderr)
        bad += 1
        continue
    if count != 1 or old == new:
        print(f"{path}:{number}: the old text occurs {count} times in {file}, not once" if count != 1 else f"{path}:{number}: old and new text are the same", file=sys.stderr)
        bad += 1
        continue
    sys.stdout.write("\0".join([str(number), file, old, new, what]) + "\0")
sys.exit(1 if bad else 0)
EOF
[ -s "$faults" ] || { echo "No fault in $list matches '${only}'." >&2; exit 2; }

build_copy() {
    cmake --build "$build" -j "$jobs" >"$1" 2>&1
}

# Prints the names of the tests that failed, one a line; true if none did.
# A test that fails once and passes when run again is flaky under load, not a
# catch: taking it as one would hide the fault's survival behind it.
run_suite() {
    local output="$1"
    ctest --test-dir "$build" -j "$jobs" --stop-on-failure --timeout 60 --repeat until-pass:2 --output-on-failure >"$output" 2>&1 && return 0
    grep -E '^ *[0-9]+/[0-9]+ Test +#[0-9]+: ' "$output" | grep -v ' Passed ' | sed -E 's/.*Test +#[0-9]+: ([^ ]+) .*/\1/'
    return 1
}

echo "Building in $build"
cmake -S "$copy" -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo >"$log/configure.txt" 2>&1 || { echo "Configuring failed: $log/configure.txt" >&2; exit 2; }
build_copy "$log/build.txt" || { echo "The unchanged copy does not build: $log/build.txt" >&2; exit 2; }
if ! failed="$(run_suite "$log/baseline.txt")"; then
    echo "The suite fails without any fault (${failed//$'\n'/, }); see $log/baseline.txt" >&2
    exit 2
fi
echo "Suite passes unchanged ($(($(date +%s) - started)) s so far)."

killed=0 survived=0 unbuilt=0 total=0
survivors=""
# The faults come on descriptor 3, out of reach of the builds and tests.
while IFS= read -r -d '' -u 3 number && IFS= read -r -d '' -u 3 file && IFS= read -r -d '' -u 3 old && IFS= read -r -d '' -u 3 new \
    && IFS= read -r -d '' -u 3 what; do
    total=$((total + 1))
    target="$copy/$file"
    saved="$work/original"
    cp -p "$target" "$saved"
    OLD="$old" NEW="$new" python3 -c '
import os, sys
text = open(sys.argv[1], encoding="utf-8").read()
open(sys.argv[1], "w", encoding="utf-8").write(text.replace(os.environ["OLD"], os.environ["NEW"], 1))' "$target"
    fault_started=$(date +%s)
    if ! build_copy "$log/build-$number.txt"; then
        verdict="did not build (see $log/build-$number.txt)"
        unbuilt=$((unbuilt + 1))
    elif failed="$(run_suite "$log/test-$number.txt")"; then
        verdict="SURVIVED"
        survived=$((survived + 1))
        survivors+="  line $number, $file: $what"$'\n'
    else
        verdict="killed by ${failed//$'\n'/, }"
        [ -n "$failed" ] || verdict="killed (see $log/test-$number.txt)"
        killed=$((killed + 1))
    fi
    # Copied back rather than renamed so that the file is newer than its
    # object and the next build compiles it again.
    cp "$saved" "$target"
    printf '%3s %-44s %-48s %s (%d s)\n' "$number" "$file" "$what" "$verdict" "$(($(date +%s) - fault_started))"
done 3<"$faults"
# Leaves a kept build matching the unchanged copy.
build_copy "$log/build-restored.txt" || echo "Rebuilding the unchanged copy failed: $log/build-restored.txt" >&2

echo
echo "killed $killed / total $total"
[ "$unbuilt" -eq 0 ] || echo "did not build: $unbuilt (not counted as killed)"
[ -z "$survivors" ] || printf 'Survivors:\n%s' "$survivors"
echo "Wall time: $(($(date +%s) - started)) s"
[ "$killed" -eq "$total" ]
