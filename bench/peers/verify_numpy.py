#!/usr/bin/python3
# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""bench/peers/verify_numpy.py [BENCH_VERIFY]

Checks ten thousand grids over 4858 draws with numpy, in every way that comes to mind, and compares
the quickest one with the measurement `GameOverTheHistory` of BENCH_VERIFY, the program that the
bench preset builds. The grids and draws are the same, and so must be the wins. Ends with 1 when
numpy takes less than ten times as long.

What helps numpy is laid out beforehand: masks, their quarters, a table of bit counts, a matrix of
which grid holds which number. None of that is in the times.
"""
import json
import pathlib
import subprocess
import sys
import time

import numpy as np

TOP = pathlib.Path(__file__).resolve().parents[2]
DRAWS, GRIDS, GOAL = 4858, 10_000, 10
RANKS = range(1, 12)


def chance():
    """The random numbers of bench_verify."""
    state = 1
    while True:
        state = (state * 6364136223846793005 + 1442695040888963407) % 2**64
        yield state >> 33


def seven_numbers(random):
    numbers = list(range(1, 50))
    for i in range(7):
        k = i + next(random) % (49 - i)
        numbers[i], numbers[k] = numbers[k], numbers[i]
    return numbers[:7]


def masks_of(rows):
    return np.bitwise_or.reduce(np.left_shift(np.uint64(1), rows.astype(np.uint64)), axis=1)


class Task:
    def __init__(self):
        random = chance()
        draws = np.array([seven_numbers(random) for _ in range(DRAWS)])
        grids = np.array([seven_numbers(random)[:6] for _ in range(GRIDS)])
        self.draws = masks_of(draws[:, :6])
        self.compl = draws[:, 6].astype(np.uint64)
        self.grids = masks_of(grids)
        self.quarters = np.ascontiguousarray(self.grids.view(np.uint16).reshape(-1, 4).T)
        self.draw_quarters = self.draws.view(np.uint16).reshape(-1, 4)
        self.bits = np.array([bin(i).count("1") for i in range(65536)], dtype=np.uint8)
        self.held = np.zeros((GRIDS, 50), dtype=np.float32)
        np.put_along_axis(self.held, grids, 1, axis=1)
        self.drawn = np.zeros((DRAWS, 50), dtype=np.float32)
        np.put_along_axis(self.drawn, draws[:, :6], 2, axis=1)
        self.drawn[np.arange(DRAWS), draws[:, 6]] += 1


# Each way counts the grids by twice their matches, plus 1 with the complementary number.

def by_table(task):
    counts = np.zeros(14, dtype=np.int64)
    low = np.uint64(0xFFFF)
    for draw, compl in zip(task.draws, task.compl):
        found = task.grids & draw
        matched = task.bits[found & low]
        for shift in (16, 32, 48):
            matched += task.bits[(found >> np.uint64(shift)) & low]
        with_compl = ((task.grids >> compl) & np.uint64(1)).astype(np.uint8)
        counts += np.bincount(matched * 2 + with_compl, minlength=14)
    return counts


def by_table_of_quarters(task):
    counts = np.zeros(14, dtype=np.int64)
    for draw, compl in zip(task.draw_quarters, task.compl):
        matched = task.bits[task.quarters[0] & draw[0]]
        for part in (1, 2, 3):
            matched += task.bits[task.quarters[part] & draw[part]]
        part, bit = divmod(int(compl), 16)
        matched *= 2
        matched += (task.quarters[part] >> np.uint16(bit) & np.uint16(1)).astype(np.uint8)
        counts += np.bincount(matched, minlength=14)
    return counts


def by_adding_bits(task):
    counts = np.zeros(14, dtype=np.int64)
    odd, pairs, fours, ones = (np.uint64(byte * (2**64 // 255)) for byte in (0x55, 0x33, 0x0F, 1))
    one, two, four, top = (np.uint64(shift) for shift in (1, 2, 4, 56))
    for draw, compl in zip(task.draws, task.compl):
        x = task.grids & draw
        x -= (x >> one) & odd
        x = (x & pairs) + ((x >> two) & pairs)
        x = (x + (x >> four)) & fours
        worth = ((x * ones) >> top) * two + ((task.grids >> compl) & one)
        counts += np.bincount(worth.view(np.int64), minlength=14)
    return counts


def by_matrix(task):
    counts = np.zeros(14, dtype=np.int64)
    for first in range(0, DRAWS, 64):
        worth = task.held @ task.drawn[first:first + 64].T
        counts += np.bincount(worth.astype(np.int64).ravel(), minlength=14)
    return counts


def wins_of(counts):
    """The winning grids by rank: a rank is twice the matches less 1, one more with the compl."""
    return {rank: int(counts[rank + 1]) for rank in RANKS}


def measure(task):
    best = {}
    for way in (by_table, by_table_of_quarters, by_adding_bits, by_matrix):
        times = []
        for _ in range(3):
            start = time.perf_counter()
            counts = way(task)
            times.append(time.perf_counter() - start)
        best[way.__name__] = (min(times), wins_of(counts))
    return best


def own_run(program):
    report = subprocess.run(
        [program, "--benchmark_filter=^GameOverTheHistory", "--benchmark_format=json"],
        check=True, capture_output=True, text=True).stdout
    run = json.loads(report)["benchmarks"][0]
    return run["real_time"] / 1000, {rank: int(run[f"nWin{rank}"]) for rank in RANKS}


def main():
    program = sys.argv[1] if len(sys.argv) > 1 else str(TOP / "build/bench/bench/bench_verify")
    own, own_wins = own_run(program)
    print(f"{GRIDS} grids, {DRAWS} draws, numpy {np.__version__}")
    print(f"{'boulix':22} {own * 1000:9.2f} ms")
    ratios = []
    for name, (seconds, wins) in measure(Task()).items():
        if wins != own_wins:
            print(f"{name} finds other wins: {wins} in place of {own_wins}")
            return 1
        ratios.append(seconds / own)
        print(f"{name:22} {seconds * 1000:9.2f} ms  {ratios[-1]:7.1f} times")
    print(f"The quickest way of numpy takes {min(ratios):.1f} times as long (goal: {GOAL}).")
    return 0 if min(ratios) >= GOAL else 1


if __name__ == "__main__":
    sys.exit(main())
