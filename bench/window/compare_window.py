#!/usr/bin/python3
# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""bench/window/compare_window.py [BENCH_WINDOW] HISTORY

Times the whole program on an imported history until its window is painted against an empty Qt
window with one list, as whole processes in turn, and prints the ratio of the medians of ten runs.
Needs a display; scripts/with-display gives one.
"""
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

RUNS = 10


def seconds(command):
    start = time.perf_counter()
    subprocess.run(command, check=True, stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def main():
    default = pathlib.Path(__file__).resolve().parents[2] / "build/bench/bench/bench_window"
    program = sys.argv[1] if len(sys.argv) > 2 else str(default)
    history = sys.argv[-1]
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([program, "prepare", folder, history], check=True, stderr=subprocess.DEVNULL)
        commands = {"program": [program, "program", folder], "empty": [program, "empty"]}
        for command in commands.values():
            seconds(command)  # once for the caches of the system
        times = {name: [] for name in commands}
        for _ in range(RUNS):
            for name, command in commands.items():
                times[name].append(seconds(command))
    median = {name: statistics.median(values) for name, values in times.items()}
    print(f"program {median['program'] * 1000:.0f} ms, empty window {median['empty'] * 1000:.0f} ms, "
          f"ratio {median['program'] / median['empty']:.2f}")


main()
