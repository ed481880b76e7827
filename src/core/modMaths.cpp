// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modMaths.h"

#include "core/failure.h"
#include "core/numbers.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <numeric>

namespace boulix::modMaths {

namespace {

/// The largest whole value of the accumulator of `Cnk`: a 64-bit integer scaled by 10000.
constexpr std::int64_t accumulatorMax = std::numeric_limits<std::int64_t>::max() / 10000;

std::int64_t multiplied(std::int64_t product, std::int64_t factor) {
    const std::int64_t size = factor < 0 ? -factor : factor;
    const std::int64_t productSize = product < 0 ? -product : product;
    if (size != 0 && productSize > accumulatorMax / size)
        fail(Failure::overflow);
    return product * factor;
}

} // namespace

void precomputeCnk() {
    for (std::int16_t k = 1; k <= cnkMaxK; ++k) {
        auto &row = cnkTable[static_cast<std::size_t>(k)];
        row.fill(0);
        for (std::int16_t n = k; n <= cnkMaxN; ++n)
            row[static_cast<std::size_t>(n)] = Cnk(n, k);
    }
}

std::int32_t Cnk(std::int16_t n, std::int16_t k) {
    std::int64_t product = 1;
    for (int factor = n - k + 1; factor <= n; ++factor)
        product = multiplied(product, factor);
    return toInt32(static_cast<double>(product) / static_cast<double>(factorial(k)));
}

std::int32_t factorial(std::int16_t n) {
    std::int64_t product = 1;
    for (int factor = 2; factor <= n; ++factor)
        product = multiplied(product, factor);
    return toInt32(static_cast<double>(product));
}

void sortIndex(const std::vector<std::int32_t> &keys, std::vector<std::int32_t> &index,
               std::int32_t n) {
    if (n < 1)
        return;
    checkedIndex(n, 1, std::ssize(keys) - 1);
    const auto last = index.begin() + 1 + checkedIndex(n, 1, std::ssize(index) - 1);
    std::iota(index.begin() + 1, last, 1);
    std::stable_sort(index.begin() + 1, last, [&keys](std::int32_t a, std::int32_t b) {
        return keys[static_cast<std::size_t>(a)] < keys[static_cast<std::size_t>(b)];
    });
}

void sortIntegers(std::vector<std::int16_t> &values, std::int32_t n) {
    if (n < 1)
        return;
    std::sort(values.begin() + 1, values.begin() + 1 + checkedIndex(n, 1, std::ssize(values) - 1));
}

} // namespace boulix::modMaths
