// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace boulix {

class gameComb;

namespace modMaths {

inline constexpr int cnkMaxK = 6;
inline constexpr int cnkMaxN = 49;

/// Binomial coefficients: `cnkTable[k][n]`, k from 1 to 6, n from 0 to 49, 0 for n below k.
/// All zeros until `precomputeCnk`.
inline std::array<std::array<std::int32_t, cnkMaxN + 1>, cnkMaxK + 1> cnkTable{};

/// Fills `cnkTable`.
void precomputeCnk();

/// The binomial coefficient of `n` over `k`. `k` above 12 is an overflow, and so is a product
/// beyond the accumulator or a result beyond 32 bits.
std::int32_t Cnk(std::int16_t n, std::int16_t k);

/// `n`!, and 1 for `n` below 1; `n` above 12 is an overflow.
std::int32_t factorial(std::int16_t n);

/// The smaller or the larger of two values; on a tie the first one.
template <class A>
constexpr A minOf(A a, A b) {
    return b < a ? b : a;
}
template <class A>
constexpr A maxOf(A a, A b) {
    return b > a ? b : a;
}

/// The code of the first `k` numbers of `comb`: the sum of C(num(i), i). With ascending numbers
/// counted from 0 this is the rank in the combinatorial number system. A number outside 0 to 49
/// fails with `Failure::subscriptOutOfRange`.
std::int32_t combRank(const gameComb &comb, std::int16_t k);

/// The combination of `k` numbers that has the code `rank`; the inverse of `combRank`.
gameComb combFromRank(std::int32_t rank, std::int16_t k);

/// Fills `index` with 1 to `n` in ascending order of `keys`; equal keys keep their order. Both
/// arrays are used from index 1; an array without element `n` fails with
/// `Failure::subscriptOutOfRange`.
void sortIndex(const std::vector<std::int32_t> &keys, std::vector<std::int32_t> &index,
               std::int32_t n);

/// Sorts `values`, used from index 1 to `n`, ascending; fails as above.
void sortIntegers(std::vector<std::int16_t> &values, std::int32_t n);

} // namespace modMaths
} // namespace boulix
