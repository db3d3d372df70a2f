#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Start-up of the app beside a bare Qt Quick window, measured the same way in
one run, against the development backend on loopback, printed as one table:

- first frame: median, min and max over interleaved runs (process start to the
  first swapped frame, both programs' own --report-first-frame clock);
- instructions to first frame under callgrind, which repeats exactly, so it is
  the figure to watch for regressions;
- peak resident memory: the app's once its dashboard has filled (its
  --screenshot waits for that), the bare window's at its first frame;
- a position fix to the header's fields, from build/bench/fix_to_header: the
  median and 95th percentile of the later fixes, and the first fix, which
  also pays for the connection and the TLS handshake;
- the home shell, from build/bench/shell_switch: a tab switch from the tap to
  the frame showing the new destination (median of every tab over 20
  rounds, and the slowest tab's median), and the time and frames from a tap
  on the menu button to the frame where the side menu has moved, the first
  time (when it is built) and later.

Usage: bench/startup.py BUILD_DIR [--runs 21] [--fixes 50] [--rounds 20] [--no-callgrind]
"""
import argparse
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time


def start_backend(build, data):
    server = subprocess.Popen([f"{build}/server/tarnelo-devserver", "--data", data, "--https-port", "0", "--http-port", "0",
                               "--sources", "simulated"], stdout=subprocess.PIPE, text=True)
    ready = server.stdout.readline()
    match = re.search(r"https=(\d+) http=(\d+) ca=(\S+)", ready)
    if not match:
        server.kill()
        sys.exit(f"the backend did not start: {ready!r}")
    return server, match


def app_environment(scratch, ready):
    """Headless, against the backend `ready` announced, with a fixed position
    and the extra certificate authority a development backend needs."""
    return dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software", XDG_DATA_HOME=f"{scratch}/data",
                TARNELO_BACKEND_URL=f"https://127.0.0.1:{ready.group(1)}", TARNELO_HISTORY_URL=f"http://127.0.0.1:{ready.group(2)}",
                TARNELO_CA_FILE=ready.group(3), TARNELO_OWM_KEY="0123456789abcdef0123456789abcdef",
                TARNELO_POSITION="fixed:-1.2864,36.8172")


def first_frame_ms(program, env):
    start = time.time_ns()
    result = subprocess.run([program, "--report-first-frame"], env=env, capture_output=True, text=True, timeout=60)
    frame = re.search(r"first-frame-ns (\d+)", result.stderr)
    if not frame:
        sys.exit(f"{program} reported no first frame:\n{result.stderr}")
    return (int(frame.group(1)) - start) / 1e6


def instructions(program, env):
    result = subprocess.run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program, "--report-first-frame"],
                            env=env, capture_output=True, text=True, timeout=600)
    collected = re.search(r"Collected : (\d+)", result.stderr)
    return int(collected.group(1)) if collected else None


def peak_rss_mib(arguments, env):
    child = subprocess.Popen(arguments, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, _, usage = os.wait4(child.pid, 0)
    return usage.ru_maxrss / 1024


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build")
    parser.add_argument("--runs", type=int, default=21)
    parser.add_argument("--fixes", type=int, default=50)
    parser.add_argument("--rounds", type=int, default=20)
    parser.add_argument("--no-callgrind", action="store_true")
    options = parser.parse_args()
    build = os.path.abspath(options.build)
    app, bare = f"{build}/src/tarnelo", f"{build}/bench/bare_window"

    scratch = tempfile.mkdtemp()
    server, ready = start_backend(build, f"{scratch}/backend")
    try:
        env = app_environment(scratch, ready)
        frames = {app: [], bare: []}
        for _ in range(options.runs):
            for program in (bare, app):
                frames[program].append(first_frame_ms(program, env))
        counts = {program: None if options.no_callgrind else instructions(program, env) for program in (bare, app)}
        rss = {bare: peak_rss_mib([bare, "--report-first-frame"], env),
               app: peak_rss_mib([app, "--screenshot", f"{scratch}/home.png"], env)}
        fix = subprocess.run([f"{build}/bench/fix_to_header", str(options.fixes)], env=env, capture_output=True, text=True, timeout=300)
        fix_line = re.search(r"median ([\d.]+) p95 ([\d.]+) n \d+ first ([\d.]+)", fix.stdout)
        shell = subprocess.run([f"{build}/bench/shell_switch", str(options.rounds)], env=env, capture_output=True, text=True, timeout=300)
        tabs = re.search(r"tab-switch-ms median ([\d.]+) p95 ([\d.]+) slowest-tab ([\d.]+)", shell.stdout)
        menu = re.search(r"side-menu-moving first (\d+) frames ([\d.]+) ms later (\d+) frames ([\d.]+) ms", shell.stdout)
    finally:
        server.terminate()
        server.wait()
        shutil.rmtree(scratch, ignore_errors=True)

    def ratio(a, b):
        return f"{a / b:.2f}×" if a and b else "–"

    rows = [("first frame, median ms", statistics.median(frames[bare]), statistics.median(frames[app])),
            ("first frame, min ms", min(frames[bare]), min(frames[app])),
            ("first frame, max ms", max(frames[bare]), max(frames[app])),
            ("instructions to first frame, M", counts[bare] and counts[bare] / 1e6, counts[app] and counts[app] / 1e6),
            ("peak RSS, MiB (app: dashboard filled)", rss[bare], rss[app])]
    print(f"{'':40} {'bare window':>12} {'Tarnelo':>12} {'ratio':>8}")
    for name, base, ours in rows:
        show = lambda v: f"{v:12.1f}" if v else f"{'–':>12}"
        print(f"{name:40} {show(base)} {show(ours)} {ratio(ours, base):>8}")
    if fix_line:
        print(f"{'fix to header fields, ms':40} {'':>12} {'median ' + fix_line.group(1):>12}  p95 {fix_line.group(2)} ({options.fixes} fixes)")
        print(f"{'first fix to header fields, ms':40} {'':>12} {fix_line.group(3):>12}  (connection and TLS handshake)")
    else:
        print(f"fix to header: no figure ({fix.stderr.strip()[-200:]})")
    if tabs and menu:
        print(f"{'tab switch to its frame, ms':40} {'':>12} {'median ' + tabs.group(1):>12}  p95 {tabs.group(2)}, slowest tab's median {tabs.group(3)} ({options.rounds} rounds)")
        print(f"{'side menu moving after the tap, first':40} {'':>12} {menu.group(2) + ' ms':>12}  frame {menu.group(1)}; later {menu.group(4)} ms, frame {menu.group(3)}")
    else:
        print(f"shell: no figure ({shell.stderr.strip()[-200:]})")
    print(f"({options.runs} interleaved runs each; offscreen, software rendering, backend on loopback)")


if __name__ == "__main__":
    main()
