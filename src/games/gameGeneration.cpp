// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/desktop.h"
#include "core/frmProgress.h"
#include "core/modMaths.h"
#include "core/platform.h"
#include "core/reports.h"
#include "core/selector.h"
#include "core/text.h"
#include "games/game.h"
#include "games/gameDef.h"

#include <algorithm>

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

/// Calls `use` for every six of the numbers, in lexicographic order of their ranks, until it says
/// false. True when it never did.
template <class Use>
bool forEachSix(const Numbers &s, const Use &use) {
    const std::size_t n = s.size();
    for (std::size_t a = 0; a + 5 < n; ++a)
        for (std::size_t b = a + 1; b + 4 < n; ++b)
            for (std::size_t c = b + 1; c + 3 < n; ++c)
                for (std::size_t d = c + 1; d + 2 < n; ++d)
                    for (std::size_t e = d + 1; e + 1 < n; ++e)
                        for (std::size_t f = e + 1; f < n; ++f)
                            if (!use({s[a], s[b], s[c], s[d], s[e], s[f]}))
                                return false;
    return true;
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
    return true;
}

bool game::ComputeManualGame(const selector &sel) {
    const Numbers selection = selectedNumbers(sel);
    const bool ascending = std::is_sorted(selection.begin(), selection.end());
    const std::int32_t grids = modMaths::cnkTable[6][selection.size()];
    ProgressShown progress("Calcul de jeu Manuel", "Calcul en cours en cours...");
    progress->ProgressBar.range(1, modMaths::maxOf(grids + 1, 2));
    grids_.reserve(grids_.size() + static_cast<std::size_t>(grids));

    const bool completed = forEachSix(selection, [&](gameComb::Numbers six) {
        if (!ascending)
            std::sort(six.begin(), six.end());
        grids_.emplace_back(six, sumOf(six));
        if (Count() % 50 != 0)
            return true;
        desktop().runEvents();
        if (progress->cancelled())
            return false;
        progress->ProgressBar.value = Count();
        return true;
    });
    progress.unload();
    if (!completed)
        clear();
    else
        desktop().runEvents();
    return completed;
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
    return true;
}

} // namespace boulix
