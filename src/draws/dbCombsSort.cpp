// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/dbCombs.h"

#include "core/numbers.h"

#include <utility>

namespace boulix {

namespace {

/// The position half-way between two others; between two positions it is the even one.
std::int64_t middleOf(std::int64_t first, std::int64_t last) {
    return static_cast<std::int64_t>(roundHalfEven(static_cast<double>(first + last) / 2));
}

} // namespace

void dbCombs::sort() {
    quickSort(1, Count());
}

// The pivot is a position, not a value: once that position takes part in an exchange, the rest of
// the pass compares with what came to lie there. The order that results, equal draws included, is
// what the users' bases have, so the routine is not to be made an ordinary sort.
void dbCombs::quickSort(std::int64_t first, std::int64_t last) {
    while (true) {
        const dbComb &pivot = Item(middleOf(first, last));
        std::int64_t i = first;
        std::int64_t j = last;
        while (i <= j) {
            while (pivot.isGreater(Item(i)))
                ++i;
            while (Item(j).isGreater(pivot))
                --j;
            if (i > j)
                break;
            std::swap(Item(i), Item(j));
            ++i;
            --j;
        }
        // The two parts have no draw in common, so their turn does not matter: calling for the
        // smaller one only keeps the stack low.
        const bool leftIsSmaller = j - first < last - i;
        if (leftIsSmaller) {
            if (first < j)
                quickSort(first, j);
            first = i;
        } else {
            if (i < last)
                quickSort(i, last);
            last = j;
        }
        if (first >= last)
            return;
    }
}

} // namespace boulix
