// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/winsAbove.h"

#include <algorithm>
#include <bit>

namespace boulix {

namespace {

using numberSets::choose;
using numberSets::largest;

// The seven numbers of a case, the draw and its complementary number c, are a set E. What a grid
// wins depends on how many numbers m it shares with E, and on whether c is one of them: without it
// the grid matches m numbers and is paid plain(m), with it m - 1 numbers and the complementary one
// and is paid marked(m). Both can be spread over the subsets of what is shared:
//
//     plain(m) = sum over k of C(m, k) f(k)
//     marked(m) = plain(m) + sum over k of C(m - 1, k - 1) h(k)
//
// and then the win of a whole game is a sum over the subsets T of E, with n(T) the grids that hold
// all of T, whose number no longer matters:
//
//     win(E, c) = sum over T of f(|T|) n(T) + sum over T with c in it of h(|T|) n(T)
//
// Below, E = {x < z < y} and four larger numbers. A sum over all subsets for each E would repeat
// itself: those without x, without z or without y are shared by many E and summed once. All sums
// are kept modulo 2^64; what comes out in the end is small enough to be exact.

/// The sums that are kept beside one another: over the sets that hold the i-th of the four largest
/// numbers of E, over all sets, both weighted by h, and over all sets weighted by f.
enum Channel : std::size_t { any = TopFour::count, base, channels };

/// So many places of a table are taken at once.
constexpr std::size_t lanes = 4;
static_assert(lanes <= numberSets::slack);

constexpr std::size_t singles = 48 + numberSets::slack; // one number below another
constexpr std::size_t pairs = 990 + numberSets::slack;  // two numbers below the four largest

template <std::size_t size>
using Sums = std::array<std::array<std::uint64_t, size>, channels>;

constexpr std::uint64_t all = ~std::uint64_t{0};

std::int64_t plain(const RankAmounts &prizes, int m) {
    return m == 0 ? 0 : prizes[static_cast<std::size_t>(2 * m - 1)];
}

std::int64_t marked(const RankAmounts &prizes, int m) {
    return m <= 1 ? 0 : prizes[static_cast<std::size_t>(2 * (m - 1))];
}

std::uint64_t ways(int n, int k) {
    return k == 0 ? 1 : choose(n, k);
}

/// f and h, negative: from the amount to be beaten is taken what is won.
struct Weights {
    explicit Weights(const RankAmounts &prizes) {
        for (int k = 1; k <= largest; ++k)
            for (int m = 1; m <= k; ++m) {
                const std::uint64_t sign = (k - m) % 2 == 0 ? all : 1;
                const auto without = static_cast<std::uint64_t>(plain(prizes, m));
                const auto with = static_cast<std::uint64_t>(marked(prizes, m));
                f[static_cast<std::size_t>(k)] += sign * ways(k, m) * without;
                h[static_cast<std::size_t>(k)] += sign * ways(k - 1, m - 1) * (with - without);
            }
    }
    std::array<std::uint64_t, largest + 1> f{};
    std::array<std::uint64_t, largest + 1> h{};
};

/// The tables in which some sets lie that differ in one to three numbers of the four largest: in
/// the order none, each one, each two.
using Rows = std::array<const std::uint64_t *, 11>;
constexpr std::array<unsigned, 11> rowSubsets = {0, 1, 2, 4, 8, 3, 5, 9, 6, 10, 12};

/// For each place the sum of all rows, and of those with each of the four numbers.
template <std::size_t size>
void sumByNumber(const Rows &rows, std::size_t count, Sums<size> &sums) {
    const auto [r, r0, r1, r2, r3, r01, r02, r03, r12, r13, r23] = rows;
    for (std::size_t first = 0; first < count; first += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            const std::size_t at = first + lane;
            const std::uint64_t with3 = r3[at] + r03[at] + r13[at] + r23[at];
            const std::uint64_t only0 = r0[at] + r01[at] + r02[at]; // without those counted before
            const std::uint64_t only1 = r1[at] + r12[at];
            sums[3][at] = with3;
            sums[2][at] = r2[at] + r02[at] + r12[at] + r23[at];
            sums[1][at] = only1 + r01[at] + r13[at];
            sums[0][at] = only0 + r03[at];
            sums[any][at] = r[at] + with3 + only0 + only1 + r2[at];
        }
}

void sumAll(const Rows &rows, std::size_t count, std::uint64_t *sum) {
    const auto [r, r0, r1, r2, r3, r01, r02, r03, r12, r13, r23] = rows;
    for (std::size_t first = 0; first < count; first += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            const std::size_t at = first + lane;
            sum[at] = r[at] + r0[at] + r1[at] + r2[at] + r3[at] + r01[at] + r02[at] + r03[at] +
                      r12[at] + r13[at] + r23[at];
        }
}

class WinsAbove {
  public:
    WinsAbove(const GridSets &game, const RankAmounts &prizes, std::int64_t amount);

    /// Takes all sets of seven numbers with these four largest ones into the count.
    void count(const TopFour &top);
    std::uint64_t cases() const { return cases_; }

  private:
    using Table = std::vector<std::uint64_t>;
    using Lanes = std::array<std::uint64_t, lanes>;

    template <std::size_t size>
    void gather(const TopFour &top, int below, std::size_t first, std::size_t count,
                Sums<size> &sums) const;
    template <std::size_t size>
    void addRow(unsigned subset, int held, std::size_t first, std::size_t count,
                Sums<size> &sums) const;
    void countRow(std::size_t y, std::size_t z);

    const GridSets &game_;
    Weights weights_;
    std::uint64_t amount_;
    // By the size of a set and its place: the grids that hold it, weighted.
    std::array<Table, largest> f_;
    std::array<Table, largest> h_;
    std::uint64_t cases_ = 0;
    // Over the subsets of the four largest numbers alone, and with one, two or three smaller ones.
    // The last is for one y: the place is that of x and z.
    Sums<numberSets::slack> none_{};
    Sums<singles> single_{};
    Sums<pairs> pair_{};
    Sums<pairs> triple_{};
    Sums<singles> withY_{}; // one smaller number, with and without y
};

WinsAbove::WinsAbove(const GridSets &game, const RankAmounts &prizes, std::int64_t amount)
    : game_(game), weights_(prizes), amount_(static_cast<std::uint64_t>(amount)) {
    f_[0] = h_[0] = Table(1 + numberSets::slack); // the empty set gives nothing
    for (std::size_t size = 1; size < largest; ++size) {
        const auto k = static_cast<int>(size);
        f_[size] = h_[size] = numberSets::table<std::uint64_t>(game.numbers(), k);
        for (std::size_t at = 0; at < f_[size].size(); ++at) {
            f_[size][at] = weights_.f[size] * game.counts(k)[at];
            h_[size][at] = weights_.h[size] * game.counts(k)[at];
        }
    }
}

/// Sums over the subsets of the four largest numbers with `below` smaller ones, for `count` sets
/// of such smaller ones from the place `first` on.
template <std::size_t size>
void WinsAbove::gather(const TopFour &top, int below, std::size_t first, std::size_t count,
                       Sums<size> &sums) const {
    Rows f{};
    Rows h{};
    for (std::size_t row = 0; row < f.size(); ++row) {
        const auto held = static_cast<std::size_t>(below + std::popcount(rowSubsets[row]));
        f[row] = f_[held].data() + top.offset(below, rowSubsets[row]) + first;
        h[row] = h_[held].data() + top.offset(below, rowSubsets[row]) + first;
    }
    sumByNumber(h, count, sums);
    sumAll(f, count, sums[base].data());
    for (const unsigned subset : {7U, 11U, 13U, 14U, 15U}) // three of the four, and all
        if (const int held = below + std::popcount(subset); held <= largest)
            addRow(subset, held, top.offset(below, subset) + first, count, sums);
}

/// Adds the sets of one subset, which hold `held` numbers. There are few grids as a rule that hold
/// as many as these.
template <std::size_t size>
void WinsAbove::addRow(unsigned subset, int held, std::size_t first, std::size_t count,
                       Sums<size> &sums) const {
    const std::uint32_t *grids = game_.counts(held) + first;
    for (std::size_t at = 0; at < count; ++at) {
        if (grids[at] == 0)
            continue;
        const std::uint64_t weight = weights_.h[static_cast<std::size_t>(held)] * grids[at];
        for (std::size_t i = 0; i < TopFour::count; ++i)
            if ((subset >> i & 1U) != 0)
                sums[i][at] += weight;
        sums[any][at] += weight;
        sums[base][at] += weights_.f[static_cast<std::size_t>(held)] * grids[at];
    }
}

void WinsAbove::count(const TopFour &top) {
    const auto room = static_cast<std::size_t>(top.room());
    gather(top, 0, 0, 1, none_);
    gather(top, 1, 0, room, single_);
    gather(top, 2, 0, choose(top.room(), 2), pair_);
    for (std::size_t y = 2; y < room; ++y) {
        const auto number = static_cast<int>(y);
        gather(top, 3, choose(number, 3), choose(number, 2), triple_);
        for (std::size_t channel = 0; channel < channels; ++channel)
            for (std::size_t x = 0; x < y; ++x)
                withY_[channel][x] = single_[channel][x] + pair_[channel][choose(number, 2) + x];
        for (std::size_t z = 1; z < y; ++z)
            countRow(y, z);
    }
}

/// Counts the cases of the sets with each x below z.
void WinsAbove::countRow(std::size_t y, std::size_t z) {
    const std::size_t yRow = choose(static_cast<int>(y), 2);
    const std::size_t zRow = choose(static_cast<int>(z), 2);
    std::array<std::uint64_t, channels> fixed{}; // the sets without x, and the amount to be beaten
    for (std::size_t i = 0; i < channels; ++i)
        fixed[i] = none_[i][0] + single_[i][y] + withY_[i][z];
    fixed[base] += amount_;
    const std::uint64_t fixedY = single_[any][y] + pair_[any][yRow + z];
    const std::uint64_t fixedZ = withY_[any][z];
    Lanes above{};
    for (std::size_t first = 0; first < z; first += lanes) {
        Lanes here{};
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            const std::size_t x = first + lane;
            const std::size_t at = zRow + x;
            // What is left of the amount: negative, when more is won. Each of the seven numbers
            // is the complementary one in turn.
            const std::uint64_t left =
                fixed[base] + withY_[base][x] + pair_[base][at] + triple_[base][at];
            for (std::size_t i = 0; i < TopFour::count; ++i)
                here[lane] +=
                    (left + fixed[i] + withY_[i][x] + pair_[i][at] + triple_[i][at]) >> 63U;
            const std::uint64_t both = pair_[any][at] + triple_[any][at];
            here[lane] += (left + fixedY + pair_[any][yRow + x] + triple_[any][at]) >> 63U;
            here[lane] += (left + fixedZ + both) >> 63U;
            here[lane] += (left + withY_[any][x] + both) >> 63U;
        }
        const std::size_t inRow = std::min(lanes, z - first);
        for (std::size_t lane = 0; lane < inRow; ++lane)
            above[lane] += here[lane];
    }
    for (const std::uint64_t count : above)
        cases_ += count;
}

} // namespace

std::optional<std::uint64_t> casesAbove(const GridSets &game, const RankAmounts &prizes,
                                        std::int64_t amount, CountWatch &watch) {
    WinsAbove wins(game, prizes, amount);
    const auto count = [&wins](const TopFour &top) { wins.count(top); };
    if (!TopFour::forEach(game.numbers(), 3, watch, count))
        return std::nullopt;
    return wins.cases();
}

} // namespace boulix
