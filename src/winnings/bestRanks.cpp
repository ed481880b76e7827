// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/bestRanks.h"

#include <bit>

namespace boulix {

namespace {

using numberSets::choose;

constexpr int drawSize = 6;
/// The smaller numbers of a draw: those beside its four largest ones.
constexpr int below = 2;
/// Matches that leave room for the complementary number.
constexpr int mostMatches = drawSize - 1;
/// So many places of a table are taken at once.
constexpr std::size_t lanes = 4;
static_assert(lanes <= numberSets::slack);

constexpr std::size_t singles = 48 + numberSets::slack; // one number below another
constexpr std::size_t pairs = 990 + numberSets::slack;  // two numbers below the four largest

void addCovers(std::uint64_t *sum, const std::uint64_t *covers, std::size_t count) {
    for (std::size_t at = 0; at < count; at += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane)
            sum[at + lane] |= covers[at + lane];
}

/// The numbers of the grids that hold as many numbers of a draw as any grid does, looked up over
/// the subsets of the draw. Where a subset of `k` numbers lies in a grid and none of more numbers
/// does, that grid matches exactly `k` numbers of the draw: with a complementary number that it
/// holds it wins the rank above.
class BestRanks {
  public:
    explicit BestRanks(const GridSets &game) : game_(game) {}

    /// Takes all draws with these four largest numbers into the count.
    void count(const TopFour &top);
    const RankCases &cases() const { return cases_; }

  private:
    template <std::size_t size>
    using Covers = std::array<std::array<std::uint64_t, size>, mostMatches + 1>;

    template <std::size_t size>
    void gather(const TopFour &top, int smaller, std::size_t count, Covers<size> &covers) const;
    void countDraw(std::uint64_t draw, const std::array<std::uint64_t, mostMatches + 1> &covers);

    const GridSets &game_;
    RankCases cases_{};
    // By the number of matches: what the subsets of the four largest numbers alone give, and with
    // one smaller number or two.
    Covers<numberSets::slack> none_{};
    Covers<singles> single_{};
    Covers<pairs> pair_{};
};

template <std::size_t size>
void BestRanks::gather(const TopFour &top, int smaller, std::size_t count,
                       Covers<size> &covers) const {
    for (auto &row : covers)
        row.fill(0);
    for (unsigned subset = 0; subset < TopFour::subsets; ++subset) {
        const int matched = smaller + std::popcount(subset);
        if (matched >= 1 && matched <= mostMatches)
            addCovers(covers[static_cast<std::size_t>(matched)].data(),
                      game_.covers(matched) + top.offset(smaller, subset), count);
    }
}

void BestRanks::count(const TopFour &top) {
    gather(top, 0, 1, none_);
    gather(top, 1, static_cast<std::size_t>(top.room()), single_);
    gather(top, 2, choose(top.room(), below), pair_);
    const std::uint32_t *sixes = game_.counts(drawSize) + top.offset(below, TopFour::subsets - 1);
    std::uint64_t four = 0;
    for (int i = 0; i < TopFour::count; ++i)
        four |= std::uint64_t{1} << static_cast<unsigned>(top.number(i));
    const auto others = static_cast<std::uint64_t>(game_.numbers() - drawSize);
    std::size_t at = 0;
    for (std::size_t z = 1; z < static_cast<std::size_t>(top.room()); ++z)
        for (std::size_t x = 0; x < z; ++x, ++at) {
            if (sixes[at] != 0) {
                cases_[11] += others;
                continue;
            }
            std::array<std::uint64_t, mostMatches + 1> covers{};
            for (std::size_t k = 1; k <= mostMatches; ++k)
                covers[k] = none_[k][0] | single_[k][x] | single_[k][z] | pair_[k][at];
            countDraw(four | std::uint64_t{1} << x | std::uint64_t{1} << z, covers);
        }
}

/// Counts a draw that no grid matches whole.
void BestRanks::countDraw(std::uint64_t draw,
                          const std::array<std::uint64_t, mostMatches + 1> &covers) {
    const auto others = static_cast<std::uint64_t>(game_.numbers() - drawSize);
    std::size_t matched = mostMatches;
    while (matched > 0 && covers[matched] == 0)
        --matched;
    if (matched == 0) {
        cases_[0] += others;
        return;
    }
    const auto with = static_cast<std::uint64_t>(std::popcount(covers[matched] & ~draw));
    cases_[2 * matched - 1] += others - with;
    cases_[2 * matched] += with;
}

} // namespace

std::optional<RankCases> casesByBestRank(const GridSets &game, CountWatch &watch) {
    BestRanks ranks(game);
    const auto count = [&ranks](const TopFour &top) { ranks.count(top); };
    if (!TopFour::forEach(game.numbers(), below, watch, count))
        return std::nullopt;
    return ranks.cases();
}

std::uint64_t allCases(int numbers) {
    return choose(numbers, drawSize) * static_cast<std::uint64_t>(numbers - drawSize);
}

std::uint64_t casesOfOneGrid(int numbers, int rank) {
    const auto orOne = [](int n, int k) { return k == 0 ? 1 : choose(n, k); };
    const int matched = (rank + 1) / 2;
    const int missed = drawSize - matched; // numbers of the draw outside the grid, and conversely
    const std::uint64_t draws = orOne(drawSize, matched) * orOne(numbers - drawSize, missed);
    const bool withComplementary = rank % 2 == 0;
    return draws *
           static_cast<std::uint64_t>(withComplementary ? missed : numbers - drawSize - missed);
}

} // namespace boulix
