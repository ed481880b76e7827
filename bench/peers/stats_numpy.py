# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The seventeen statistics over a whole base, written with numpy.

The draws come from a file that bench_stats writes. They are laid out beforehand in every form
that helps numpy: whole rows, columns, flat, as bit masks, as one row of booleans for each number,
in narrow and in wide integers. None of that is in the times. Where several ways of writing a type
come to mind, all are here, and the quickest one counts.

Every routine must give the answer of bench_stats before it is timed.
"""
import time

import numpy as np

NUMBERS = 49
TRIPLETS = 18424


class Base:
    """The draws, oldest first, in many forms."""

    def __init__(self, file_name):
        rows = np.loadtxt(file_name, dtype=np.int64)
        self.count = len(rows)
        self.six = np.ascontiguousarray(rows[:, :6])
        self.seven = np.ascontiguousarray(rows[:, :7])
        self.compl = np.ascontiguousarray(rows[:, 6])
        self.sum = np.ascontiguousarray(rows[:, 7])
        self.sumtot = np.ascontiguousarray(rows[:, 8])
        self.columns8 = {w: np.ascontiguousarray(self.numbers(w).T.astype(np.int8)) for w in (0, 1)}
        self.masks = {w: np.bitwise_or.reduce(np.left_shift(1, self.numbers(w)), axis=1)
                      for w in (0, 1)}
        self.flat = {w: self.numbers(w).ravel() for w in (0, 1)}
        self.flat8 = {w: self.flat[w].astype(np.int8) for w in (0, 1)}
        self.draw_of = {w: np.repeat(np.arange(self.count), 6 + w) for w in (0, 1)}
        self.held = {w: np.array([(self.numbers(w) == n).any(axis=1) for n in range(50)])
                     for w in (0, 1)}
        self.compl_bits = np.left_shift(1, self.compl)
        self.table = np.array([(a, b, c) for a in range(1, 48) for b in range(a + 1, 49)
                               for c in range(b + 1, 50)])
        # The place of the first triplet of each couple, less c: one look-up instead of a formula.
        self.couple_row = np.zeros((50, 50), dtype=np.int64)
        for place, (a, b, c) in enumerate(self.table):
            if c == b + 1:
                self.couple_row[a, b] = place - c
        self.couple_row = self.couple_row.ravel()
        self.positions = {w: np.array([(i, j, k) for i in range(6 + w)
                                       for j in range(i + 1, 6 + w)
                                       for k in range(j + 1, 6 + w)]).T for w in (0, 1)}

    def numbers(self, with_compl):
        return self.seven if with_compl else self.six

    def chosen(self, n):
        """The first n numbers of the newest draw."""
        return self.six[-1, :n]


def bits(mask):
    """The numbers of one mask as 49 zeros and ones."""
    return (np.right_shift(int(mask), np.arange(1, 50))) & 1


def mask_of(chosen):
    return np.int64(sum(1 << int(n) for n in chosen))


# Type 1
def frequency(base, w, _):
    return np.bincount(base.flat[w], minlength=50)[1:]


def frequency_by_held(base, w, _):
    return np.array([np.count_nonzero(row) for row in base.held[w][1:]])


# Types 2 to 5
def partners_by_mask(base, w, chosen):
    mask = mask_of(chosen)
    hits = base.six[(base.masks[w] & mask) == mask]
    counts = np.bincount(hits.ravel(), minlength=50)
    counts[chosen] = 0
    return counts[1:]


def partners_by_index(base, w, chosen):
    mask = mask_of(chosen)
    where = np.flatnonzero((base.masks[w] & mask) == mask)
    counts = np.bincount(base.six.take(where, axis=0).ravel(), minlength=50)
    counts[chosen] = 0
    return counts[1:]


def all_held(base, w, chosen):
    held = base.held[w][chosen[0]]
    for n in chosen[1:]:
        held = held & base.held[w][n]
    return held


def partners_by_held(base, w, chosen):
    hits = base.six.take(np.flatnonzero(all_held(base, w, chosen)), axis=0)
    counts = np.bincount(hits.ravel(), minlength=50)
    counts[chosen] = 0
    return counts[1:]


# Type 6
def sums(base, w, _):
    return np.bincount(base.sumtot if w else base.sum, minlength=323 if w else 280)[1:]


# Type 7
def delays(base, w, _):
    block = 128
    while True:
        newest = base.numbers(w)[-block:]
        result = np.zeros(50, dtype=np.int64)
        # The last of several writes to a place stays: that of the newest draw.
        result[newest.ravel()] = np.repeat(np.arange(len(newest), 0, -1), 6 + w)
        if block >= base.count or result[1:].all():
            return result[1:]
        block *= 8


# Type 8
def current_runs(base, w, _):
    block = 16
    while True:
        masks = base.masks[w][-block:][::-1].copy()
        masks[0] |= base.compl_bits[-1]
        running = np.bitwise_and.accumulate(masks)
        if block >= base.count or running[-1] == 0:
            return ((running[:, None] >> np.arange(1, 50)) & 1).sum(axis=0)
        block *= 8


# Type 9
def max_absence(base, w, _):
    order = np.argsort(base.flat8[w], kind="stable")
    numbers = base.flat[w][order]
    draws = base.draw_of[w][order]
    gaps = np.empty_like(draws)
    gaps[0] = draws[0]
    np.subtract(draws[1:], draws[:-1], out=gaps[1:])
    gaps[1:] -= 1
    starts = np.flatnonzero(np.diff(numbers, prepend=0))
    gaps[starts] = draws[starts]
    result = np.zeros(50, dtype=np.int64)
    result[numbers[starts]] = np.maximum.reduceat(gaps, starts)
    return result[1:]


# Type 10
def max_run(base, w, _):
    masks = base.masks[0]
    common = masks[1:] & masks[:-1]
    if w:
        common |= np.where(base.compl[1:] == base.compl[:-1], base.compl_bits[1:], 0)
    result = np.ones(49, dtype=np.int64)
    running = common
    while True:
        longest = bits(np.bitwise_or.reduce(running)) if len(running) else np.zeros(49, dtype=int)
        if not longest.any():
            return result
        result += longest
        running = running[1:] & common[:len(running) - 1]


# Type 11
def triplets_by_row(base, w, _):
    sorted_numbers = np.sort(base.numbers(w), axis=1)
    i, j, k = base.positions[w]
    rows = base.couple_row[sorted_numbers[:, i] * 50 + sorted_numbers[:, j]] + sorted_numbers[:, k]
    flags = np.zeros(TRIPLETS, dtype=np.int16)
    flags[rows.ravel()] = -1
    return flags


def triplets_by_column(base, w, _):
    columns = np.sort(base.columns8[w], axis=0).astype(np.int64)
    flags = np.zeros(TRIPLETS, dtype=np.int16)
    for i in range(4 + w):
        first = columns[i] * 50
        for j in range(i + 1, 5 + w):
            couples = base.couple_row.take(first + columns[j])
            for k in range(j + 1, 6 + w):
                flags[couples + columns[k]] = -1
    return flags


# Type 12
def triplets_with(way):
    def filtered(base, w, chosen):
        flags = way(base, w, chosen)
        flags[~(base.table == chosen[0]).any(axis=1)] = -1
        return flags
    filtered.__name__ = way.__name__
    return filtered


# Types 13 to 16
def periods_from(base, held):
    gaps = np.diff(np.flatnonzero(held), prepend=-1, append=base.count) - 1
    return gaps[gaps > 0]


def periods_by_mask(base, w, chosen):
    mask = mask_of(chosen)
    return periods_from(base, (base.masks[w] & mask) == mask)


def periods_by_held(base, w, chosen):
    return periods_from(base, all_held(base, w, chosen))


# Type 17
def even_count(base, w, _):
    odd = (base.columns8[w] & 1).sum(axis=0, dtype=np.int8)
    return np.bincount((6 + w) - odd, minlength=7 + w)


PARTNERS = [partners_by_mask, partners_by_index, partners_by_held]
PERIODS = [periods_by_mask, periods_by_held]
TRIPLET_WAYS = [triplets_by_row, triplets_by_column]

WAYS = {1: [frequency, frequency_by_held], 2: PARTNERS, 3: PARTNERS, 4: PARTNERS, 5: PARTNERS, 6: [sums],
        7: [delays], 8: [current_runs], 9: [max_absence], 10: [max_run], 11: TRIPLET_WAYS,
        12: [triplets_with(way) for way in TRIPLET_WAYS], 13: PERIODS, 14: PERIODS, 15: PERIODS,
        16: PERIODS, 17: [even_count]}
CHOSEN = {2: 1, 3: 2, 4: 3, 5: 4, 12: 1, 13: 1, 14: 2, 15: 3, 16: 4}


def nanoseconds(call, seconds):
    """The median time of a call over batches that take `seconds` in all."""
    started = time.perf_counter_ns()
    call()
    once = max(time.perf_counter_ns() - started, 1)
    batch = max(1, int(2e6 / once))
    times = []
    end = time.perf_counter_ns() + seconds * 1e9
    while time.perf_counter_ns() < end or len(times) < 5:
        started = time.process_time_ns()
        for _ in range(batch):
            call()
        times.append((time.process_time_ns() - started) / batch)
    return float(np.median(times))


def check(base, answers):
    """Every way must give the answers, which map (type, with) to an array."""
    for (stat_type, w), answer in answers.items():
        chosen = base.chosen(CHOSEN.get(stat_type, 0))
        for way in WAYS[stat_type]:
            if not np.array_equal(way(base, w, chosen), answer):
                raise SystemExit(f"type {stat_type}, with {w}: {way.__name__} gives another answer")


def measure(base, stat_type, w, seconds=0.2):
    """The time of the quickest way in nanoseconds, and its name."""
    chosen = base.chosen(CHOSEN.get(stat_type, 0))
    return min((nanoseconds(lambda: way(base, w, chosen), seconds), way.__name__)
               for way in WAYS[stat_type])
