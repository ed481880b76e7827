// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "draws/dbComb.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace boulix {

/// A set of draws of the base: 64 positions to a word, words without a draw left out.
struct DrawWord {
    std::size_t at = 0;
    std::uint64_t bits = 0;
};
using DrawSet = std::vector<DrawWord>;

/// Calls `use` with the position of each draw of the set, oldest first.
template <class Use>
void forEachDraw(const DrawSet &set, Use use) {
    for (const DrawWord &word : set)
        for (std::uint64_t bits = word.bits; bits != 0; bits &= bits - 1)
            use(static_cast<std::int32_t>(64 * word.at) + std::countr_zero(bits) + 1);
}

/// Where each number stands: for each of them the draws that hold it, as a row of bits. It
/// answers in a microsecond what a scan of all draws needs ten for.
class drawIndex {
  public:
    explicit drawIndex(const std::vector<dbComb> &draws);

    /// Whether every draw has six different numbers and another one as complementary, all of 1
    /// to 49. A base that a bad file brought in is not regular, and its index holds nothing.
    bool isRegular() const { return regular_; }

    /// The draws `first` to `last` that hold all the numbers of the mask `chosen`; `withCompl`
    /// says whether the complementary number counts. `first` and `last` are positions of the
    /// base, in this order.
    DrawSet draws(std::int32_t first, std::int32_t last, std::uint64_t chosen,
                  bool withCompl) const;
    /// How many draws of the set hold number `n`, 1 to 49.
    std::int32_t count(const DrawSet &set, std::int16_t n, bool withCompl) const;

  private:
    const std::uint64_t *row(std::int16_t n, bool withCompl) const;

    bool regular_;
    std::size_t words_;               // of a row
    std::vector<std::uint64_t> rows_; // the numbers among the six, then with the complementary
};

} // namespace boulix
