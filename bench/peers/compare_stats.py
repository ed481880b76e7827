#!/usr/bin/python3
# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""bench/peers/compare_stats.py [BENCH_STATS [--history=FILE]]

Times each of the seventeen statistics against the same work written with numpy, one right after
the other on the same draws, and prints the ratios. BENCH_STATS is the program that the bench
preset builds. Ends with 1 when numpy is quicker in any type or the geometric mean of the ratios
is below 10, when the time over 200 000 draws has not grown in proportion, or when the analysis of one
of them or a full list of triplets takes 50 milliseconds.

The growth is taken from 50 000 draws on: the processor keeps 4858 draws in its nearest cache, and
after some rounds it knows them by heart.
"""
import json
import math
import pathlib
import subprocess
import sys
import tempfile

import numpy as np

import stats_numpy

TOP = pathlib.Path(__file__).resolve().parents[2]
TYPES = range(1, 18)
USUAL, QUARTER, LARGE = 4858, 50000, 200000


def bench_time(program, options, name):
    """CPU nanoseconds of one measurement, the median of several runs."""
    report = subprocess.run(
        [program, *options, f"--benchmark_filter=^{name}$",
         "--benchmark_format=json", "--benchmark_min_time=0.05", "--benchmark_repetitions=5"],
        check=True, capture_output=True, text=True).stdout
    times = [run for run in json.loads(report)["benchmarks"] if run["run_type"] == "aggregate"
             and run["aggregate_name"] == "median"]
    return times[0]["cpu_time"]


def read_answers(file):
    answers = {}
    for line in file.read_text().splitlines():
        stat_type, w, *values = map(int, line.split())
        answers[stat_type, w] = np.array(values, dtype=np.int64)
    return answers


def geometric_mean(values):
    return math.exp(sum(map(math.log, values)) / len(values))


def main():
    arguments = sys.argv[1:]
    default = str(TOP / "build/bench/bench/bench_stats")
    program = arguments.pop(0) if arguments and not arguments[0].startswith("--") else default
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        subprocess.run([program, *arguments, f"--write={folder}"], check=True)
        base = stats_numpy.Base(folder / "draws.txt")
        stats_numpy.check(base, read_answers(folder / "answers.txt"))

    print(f"{base.count} draws, numpy {np.__version__}; microseconds of one computation")
    print("type  compl    boulix     numpy   ratio  |  50 000  200 000  growth  |  numpy's best way")
    ratios, growths = [], []
    for stat_type in TYPES:
        for w in (0, 1):
            peer, way = stats_numpy.measure(base, stat_type, w)
            name = f"type{stat_type}/compl{w}"
            own = bench_time(program, arguments, f"{name}/{USUAL}")
            quarter = bench_time(program, arguments, f"{name}/{QUARTER}")
            large = bench_time(program, arguments, f"{name}/{LARGE}")
            ratios.append(peer / own)
            growths.append(large / quarter)
            print(f"{stat_type:4}  {w:5} {own / 1000:9.2f} {peer / 1000:9.2f} {ratios[-1]:7.1f}  |"
                  f"{quarter / 1000:8.1f} {large / 1000:8.1f} {growths[-1]:7.1f}  |  {way}", flush=True)
    mean = geometric_mean(ratios)
    index = bench_time(program, arguments, f"index/{USUAL}") / 1000
    analysis = bench_time(program, arguments, f"analysis/{LARGE}") / 1e6
    print(f"The first computation after a change of the base takes {index:.1f} microseconds more.")
    print(f"The analysis of one draw of {LARGE}, all rows, takes {analysis:.3f} milliseconds.")
    vain = bench_time(program, arguments, f"vain/{LARGE}") / 1e6
    print(f"Where none of its numbers was ever drawn before: {vain:.3f} milliseconds.")
    listing = bench_time(program, arguments, "list11") / 1e6
    print(f"A list of 18 404 triplets is computed and filled in {listing:.3f} milliseconds.")
    print(f"Slowest ratio {min(ratios):.1f}, geometric mean {mean:.1f}.")
    print(f"{LARGE // QUARTER} times the draws take at most {max(growths):.1f} times as long.")
    good = min(ratios) >= 1 and mean >= 10 and max(growths) <= 5
    good = good and analysis < 50 and vain < 50 and listing < 50
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
