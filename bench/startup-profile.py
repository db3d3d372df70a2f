#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Where the app's instructions to its first frame go, by phase, under
callgrind, against the development backend on loopback and in the same
environment as startup.py. Each phase is the inclusive cost of the functions
that stand for it (the largest of them, or their sum where they do not nest),
so phases that nest overlap: fonts and text shaping lie inside the QML tree's
creation, for one. Give several programs (an older build beside the current
one) to see them side by side; the first frame ends each run
(--report-first-frame), so a run's total also holds the teardown.

Usage: bench/startup-profile.py BUILD_DIR [PROGRAM ...] [--position SETTING] [--keep DIR]
(--position geoclue: the device's position sources, as a user's run has them)
"""
import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile

from startup import app_environment, start_backend

# (phase, how to combine, pattern of the functions that stand for it)
PHASES = [
    ("dynamic linking of the libraries", max, r"^_dl_start$"),
    ("application object, platform plugin", max, r"Q(Gui)?Application::Q(Gui)?Application\(int&, char\*\*, int\)$"),
    ("QML type registration", max, r"QmlTypes::registerAll\("),
    ("QML tree: load and create (engine.load)", max, r"QQmlApplicationEngine::load\(QUrl const&\)$"),
    ("  compiled QML: type loading and linking", max, r"QQmlTypeLoader::setCachedUnit\(QQmlDataBlob\*, QV4::CompiledData::Unit const\*\)$"),
    ("  QML plugin imports", max, r"QQmlImportDatabase::importDynamicPlugin\("),
    ("  Controls 2 style", max, r"QQuickStylePlugin::resolvedUrl|QQuickStylePrivate::init"),
    ("  tip cards (list delegates)", max, r"QQmlDelegateModel::object\(int, QQmlIncubator::IncubationMode\)$"),
    ("  text layout (Text items completed)", max, r"QQuickText::componentComplete\(\)$"),
    ("    fonts: fontconfig set-up", max, r"FcInit$"),
    ("    fonts: engines for each size and weight", max, r"QFontDatabase::load\(QFontPrivate const\*, int\)$"),
    ("    text shaping", max, r"QTextEngine::shapeText\(int\) const$"),
    ("first frame: polish and render", max, r"QQuickWindow::exposeEvent\(QExposeEvent\*\)$"),
    ("  glyph drawing", max, r"QRasterPaintEngine::drawCachedGlyphs\("),
    ("SVG symbols (symbol provider)", max, r"SymbolImageProvider::requestImage\("),
    ("image decoding (tip pictures)", max, r"QImageReader::read\(QImage\*\)$"),
    ("SQLite opens (alert store, login)", sum, r"AlertStore::AlertStore\(\)$|SQliteLogin::SQliteLogin\(\)$"),
    ("dashboard header model", max, r"MainHeaderViewModel::MainHeaderViewModel\(QObject\*\)$"),
    ("dashboard weather model", max, r"MainWeatherViewModel::MainWeatherViewModel\(QObject\*\)$"),
    ("gazetteer", max, r"OfflineGazetteer::OfflineGazetteer|GazetteerDatabase::open"),
    ("position sources", max, r"createPositionSource\("),
    ("TLS set-up", max, r"QSslSocketPrivate::ensureInitialized|QSslConfiguration::systemCaCertificates"),
    ("map", max, r"QDeclarativeGeoMap::QDeclarativeGeoMap|QGeoServiceProvider::QGeoServiceProvider"),
    ("teardown after the first frame", sum, r"QQmlApplicationEngine::~QQmlApplicationEngine\(\)$|stdlib/exit\.c:exit$"),
]


def inclusive_costs(profile):
    """Function name -> inclusive instructions, from callgrind_annotate."""
    annotated = subprocess.run(["callgrind_annotate", "--inclusive=yes", "--threshold=100", "--auto=no", profile], capture_output=True, text=True).stdout
    costs = {}
    for line in annotated.splitlines():
        match = re.match(r"\s*([\d,]+) \([\s\d.]+%\)  (\S.*?)(?: \[.*\])?$", line)
        # Recursive calls show again with a '2 suffix: the outermost counts.
        if match and not match.group(2).endswith("'2"):
            # "file:function": inlined code shows under its header's name too.
            name = re.sub(r"^(\?\?\?|[^ (]*?\.(?:cpp|h|c)):", "", match.group(2))
            costs[name] = max(costs.get(name, 0), int(match.group(1).replace(",", "")))
    return costs


def profile_run(program, env, keep):
    out = os.path.join(keep, os.path.basename(program) + ".callgrind")
    result = subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={out}", program, "--report-first-frame"], env=env,
                            capture_output=True, text=True, timeout=900)
    total = re.search(r"Collected : (\d+)", result.stderr)
    if not total:
        sys.exit(f"{program} did not run under callgrind:\n{result.stderr[-2000:]}")
    return int(total.group(1)), inclusive_costs(out)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build")
    parser.add_argument("programs", nargs="*")
    parser.add_argument("--position", help="TARNELO_POSITION for the runs (default: startup.py's fixed position)")
    parser.add_argument("--keep", help="directory for the callgrind files (default: thrown away)")
    options = parser.parse_args()
    build = os.path.abspath(options.build)
    programs = [os.path.abspath(p) for p in options.programs] or [f"{build}/src/tarnelo"]

    scratch = tempfile.mkdtemp()
    keep = options.keep or scratch
    os.makedirs(keep, exist_ok=True)
    server, ready = start_backend(build, f"{scratch}/backend")
    try:
        # Each program starts as on a first run, with data of its own.
        env = app_environment(scratch, ready)
        if options.position:
            env["TARNELO_POSITION"] = options.position
        runs = [profile_run(program, dict(env, XDG_DATA_HOME=f"{scratch}/data{i}"), keep) for i, program in enumerate(programs)]
    finally:
        server.terminate()
        server.wait()
        shutil.rmtree(scratch, ignore_errors=True)

    print(f"{'M instructions, inclusive':46}" + "".join(f"{os.path.basename(p)[:14]:>15}" for p in programs))
    print(f"{'whole run to the first frame':46}" + "".join(f"{total / 1e6:15.1f}" for total, _ in runs))
    for phase, combine, pattern in PHASES:
        values = []
        for _, costs in runs:
            found = [cost for name, cost in costs.items() if re.search(pattern, name)]
            values.append(combine(found) if found else 0)
        print(f"{phase:46}" + "".join(f"{v / 1e6:15.1f}" for v in values))


if __name__ == "__main__":
    main()
