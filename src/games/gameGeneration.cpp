// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/modMaths.h"
#include "core/platform.h"
#include "core/text.h"
#include "games/game.h"
#include "games/gameDef.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"
#include "sill/reports.h"
#include "sill/selector.h"

#include <algorithm>
#include <array>
#include <optional>

namespace boulix {

namespace {

using Numbers = std::vector<std::int16_t>;

Numbers selectedNumbers(const selector &sel) {
    Numbers numbers;
    for (std::int16_t i = 1; i <= sel.nSelectedNbr(); ++i)
        numbers.push_back(sel.selectedNbr(i));
    return numbers;
}

/// The sum of six numbers of a selection.
std::int16_t sumOf(const gameComb::Numbers &six) {
    return static_cast<std::int16_t>(six[0] + six[1] + six[2] + six[3] + six[4] + six[5]);
}

/// Every six of the numbers, in lexicographic order of their ranks.
class Sixes {
  public:
    /// There have to be six numbers at least.
    explicit Sixes(const Numbers &numbers)
        : numbers_(numbers), ascending_(std::is_sorted(numbers.begin(), numbers.end())) {
        take(0);
    }
    /// Writes the next `count` of them; there have to be as many.
    void write(gameComb *to, std::size_t count);

  private:
    void take(std::size_t from);
    void advance();

    const Numbers &numbers_;
    bool ascending_;
    std::array<std::size_t, gameComb::size> ranks_{0, 1, 2, 3, 4, 5};
    gameComb::Numbers six_{}; // the numbers at these ranks, but for the last one
    std::int16_t five_ = 0;   // their sum
};

void Sixes::write(gameComb *to, std::size_t count) {
    while (count > 0) {
        // The last of the six runs through the rest of the selection.
        std::size_t &last = ranks_.back();
        const std::size_t run = std::min(count, numbers_.size() - last);
        const gameComb::Numbers s = six_;
        const std::int16_t *sixth = &numbers_[last];
        for (std::size_t i = 0; i < run; ++i)
            to[i] = gameComb({s[0], s[1], s[2], s[3], s[4], sixth[i]},
                             static_cast<std::int16_t>(five_ + sixth[i]));
        if (!ascending_)
            std::for_each(to, to + run, [](gameComb &grid) { grid.sort(); });
        to += run;
        count -= run;
        last += run;
        if (last == numbers_.size())
            advance();
    }
}

/// Takes the numbers at the ranks from place `from` on.
void Sixes::take(std::size_t from) {
    for (std::size_t p = from; p + 1 < ranks_.size(); ++p)
        six_[p] = numbers_[ranks_[p]];
    five_ = static_cast<std::int16_t>(six_[0] + six_[1] + six_[2] + six_[3] + six_[4]);
}

/// Moves the last place that can still move, and puts those behind it next to it.
void Sixes::advance() {
    std::size_t p = ranks_.size() - 1;
    while (p > 0 && ranks_[p] >= numbers_.size() - ranks_.size() + p)
        --p;
    ++ranks_[p];
    for (std::size_t q = p + 1; q < ranks_.size(); ++q)
        ranks_[q] = ranks_[q - 1] + 1;
    take(p);
}

/// Six different numbers of the selection, in the order in which chance gives them. The position
/// is rounded, not cut: the first and the last one come half as often as those between.
gameComb::Numbers randomSix(const Numbers &selection) {
    Numbers pool = selection;
    gameComb::Numbers six{};
    for (std::int16_t &number : six) {
        const double x = platform().nextRandom();
        const auto last = static_cast<double>(pool.size()) - 1;
        const auto at = pool.begin() + (toInt16(x * last + 1) - 1);
        number = *at;
        pool.erase(at);
    }
    return six;
}

/// The codes of the grids that a random game holds already.
class SeenCodes {
  public:
    /// Takes the code in; false when it was there before.
    bool insert(std::int32_t code) {
        const auto at = static_cast<std::size_t>(code);
        if (seen_[at])
            return false;
        seen_[at] = true;
        return true;
    }

  private:
    /// Six numbers up to 49 in any order, repeated or not, have codes up to this one.
    static constexpr std::size_t lastCode = 49 + 1176 + 18424 + 211876 + 1906884 + 13983816;

    std::vector<bool> seen_ = std::vector<bool>(lastCode + 1);
};

/// Takes back the grids that a computation has added where it does not come to its end: half of
/// what was asked for is nothing to play.
class AllOrNone {
  public:
    explicit AllOrNone(std::vector<GridRef> &grids) : grids_(grids), before_(grids.size()) {}
    ~AllOrNone() {
        if (!ended_)
            grids_.resize(before_);
    }
    AllOrNone(const AllOrNone &) = delete;
    AllOrNone &operator=(const AllOrNone &) = delete;
    void ended() { ended_ = true; }

  private:
    std::vector<GridRef> &grids_;
    std::size_t before_;
    bool ended_ = false;
};

void reportNoCount() {
    reportNumbered(3102, "Le nombre de grilles à calculer n'a pas été précisé!");
}

void reportTooMany(std::int32_t count, std::int16_t n) {
    reportNumbered(3103, "Impossible de réaliser " + std::to_string(count) +
                             " grilles aléatoires toutes distinctes avec une sélection de "
                             "seulement " +
                             std::to_string(n) + "!");
}

} // namespace

bool game::ComputeDefinedGame(const gameDef &def, const selector &sel) {
    if (def.nSelect() != sel.nSelectedNbr()) {
        reportNumbered(3101, "Vous devez avoir sélectionné exactement " +
                                 std::to_string(def.nSelect()) +
                                 " numéros pour utiliser ce système de jeu." + crlf +
                                 "Le calcul est impossible!");
        return false;
    }
    AllOrNone made(grids_);
    for (std::int32_t i = 1; i <= def.nComb(); ++i) {
        const boulix::gameComb &row = *def.gameComb(i);
        gameComb grid;
        for (int p = 1; p <= gameComb::size; ++p)
            grid.num(p, sel.selectedNbr(row.num(p)));
        grid.sum(grid.total());
        grids_.emplace_back(grid);
        // The row's number counts, not the end of the collection: on a game that was not empty,
        // this orders an older grid and leaves the new one as it is.
        Item(i).sort();
    }
    made.ended();
    return true;
}

bool game::ComputeManualGame(const selector &sel) {
    const Numbers selection = selectedNumbers(sel);
    auto left = static_cast<std::uint32_t>(modMaths::cnkTable[6][selection.size()]);
    ProgressShown progress("Calcul de jeu Manuel", "Calcul en cours en cours...");
    progress->ProgressBar.range(1, modMaths::maxOf<std::int64_t>(left + 1, 2));
    AllOrNone grids(grids_);
    reserve(left);

    std::optional<Sixes> sixes;
    if (left > 0)
        sixes.emplace(selection);
    while (left > 0) {
        constexpr std::int32_t rhythm = 50;
        const auto untilTurn = static_cast<std::uint32_t>(rhythm - Count() % rhythm);
        const GridStore::Stretch made = gridStore.make(std::min(left, untilTurn));
        sixes->write(made.grids, made.count);
        for (std::uint32_t i = 0; i < made.count; ++i)
            grids_.push_back(GridRef::adopt(made.first + i));
        left -= made.count;
        if (Count() % rhythm != 0)
            continue;
        desktop().runEvents();
        if (progress->cancelled()) {
            progress.unload();
            grids.ended();
            clear();
            return false;
        }
        progress->ProgressBar.value = Count();
    }
    grids.ended();
    progress.unload();
    desktop().runEvents();
    return true;
}

bool game::ComputeRandomGame(std::int32_t count, const selector &sel) {
    const std::int16_t n = sel.nSelectedNbr();
    if (count < 0) {
        reportNoCount();
        return false;
    }
    if (modMaths::Cnk(n, 6) < count) {
        reportTooMany(count, n);
        return false;
    }
    platform().seedRandomFromClock();
    if (Count() >= count)
        return true;
    AllOrNone made(grids_);
    reserve(static_cast<std::size_t>(count - Count()));
    const Numbers selection = selectedNumbers(sel);
    SeenCodes seen;
    // The first grid of a call is compared with none, all later ones with the whole game.
    std::int32_t have = 0;
    while (have < count) {
        gameComb::Numbers six = randomSix(selection);
        std::sort(six.begin(), six.end());
        const gameComb grid(six, sumOf(six));
        if (have > 0 && !seen.insert(modMaths::combRank(grid, 6)))
            continue;
        grids_.emplace_back(grid);
        if (have == 0 && Count() < count)
            for (const gameComb &old : *this)
                seen.insert(modMaths::combRank(old, 6));
        have = Count();
    }
    made.ended();
    return true;
}

} // namespace boulix
