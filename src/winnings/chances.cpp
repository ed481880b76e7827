// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/chances.h"

#include "core/numberMask.h"
#include "core/text.h"
#include "games/game.h"
#include "sill/frmProgress.h"
#include "winnings/gameResult.h"

#include <bit>
#include <string>

namespace boulix {

namespace {

constexpr int lottery = 49;
/// With more grids the counts of those that share a number could pass their 32 bits.
constexpr std::int32_t mostGrids = 500'000'000;

/// The place of the first grid, from 1, that is not six different numbers of 1 to 49; 0: none.
std::int64_t firstUnplayable(const game &grids) {
    std::int64_t position = 0;
    for (const gameComb &grid : grids) {
        ++position;
        if (std::popcount(maskOf(grid.numbers())) != gameComb::size)
            return position;
    }
    return 0;
}

std::string numbersText(const gameComb &grid) {
    std::string text;
    for (const std::int16_t n : grid.numbers())
        text += (text.empty() ? "" : " ") + zeroPadded(n, 2);
    return text;
}

double part(std::uint64_t cases, std::uint64_t all) {
    return static_cast<double>(cases) / static_cast<double>(all);
}

double money(std::int64_t amount, std::int64_t unit) {
    return static_cast<double>(amount) / static_cast<double>(unit);
}

/// How far the bar goes: the grids, the sets of each size on the way down from the grids, the
/// draws, and the sets of a draw and its complementary number.
std::int64_t steps(std::int32_t grids) {
    std::size_t sum = static_cast<std::size_t>(grids);
    for (int size = 2; size <= numberSets::largest; ++size)
        sum += numberSets::choose(lottery, size);
    const std::size_t draws = numberSets::choose(lottery, numberSets::largest);
    return static_cast<std::int64_t>(sum + draws + draws * (lottery - numberSets::largest) / 7);
}

} // namespace

std::uint64_t GameChances::atLeast(int rank) const {
    std::uint64_t sum = 0;
    for (auto r = static_cast<std::size_t>(rank); r < best.size(); ++r)
        sum += best[r];
    return sum;
}

double GameChances::meanGrids(int rank) const {
    return static_cast<double>(grids) * part(oneGrid[static_cast<std::size_t>(rank)], cases);
}

double GameChances::meanWin(int rank) const {
    return meanGrids(rank) * money(amounts.prizes[static_cast<std::size_t>(rank)], amounts.unit);
}

double GameChances::stake() const {
    return money(amounts.price * grids, amounts.unit);
}

double GameChances::meanReturn() const {
    double sum = 0;
    for (int rank = 1; rank <= gameResult::ranks; ++rank)
        sum += meanWin(rank);
    return sum;
}

std::optional<double> GameChances::returnPart() const {
    if (amounts.price == 0)
        return std::nullopt;
    return meanReturn() / stake();
}

std::string chancesRefusal(const game &grids, const rapport &prizes, float price) {
    if (grids.Count() == 0)
        return "Le jeu courant est vide : ajoutez-lui des grilles pour en connaître les chances.";
    if (grids.Count() > mostGrids)
        return "Le jeu a plus de 500 millions de grilles : le calcul de ses chances demanderait "
               "trop de mémoire.";
    if (const std::int64_t odd = firstUnplayable(grids); odd != 0)
        return "La grille n° " + std::to_string(odd) + " (" + numbersText(grids.Item(odd)) +
               ") ne peut pas être jouée : il lui faut six numéros différents de 1 à 49.";
    if (!exactAmounts(prizes, price, grids.Count()))
        return "Les montants des rapports ou le prix d'une grille sont trop grands, ou ont trop de "
               "décimales, pour être additionnés exactement.";
    return {};
}

std::optional<GameChances> chancesOf(const game &grids, const rapport &prizes, float price,
                                     frmProgress &progress) {
    progress.ProgressBar.range(0, steps(grids.Count()));
    CountWatch watch(progress);
    GameChances chances;
    chances.grids = grids.Count();
    chances.numbers = numbersInPlay(grids);
    chances.amounts = exactAmounts(prizes, price, grids.Count()).value();
    chances.guarantees = guaranteesOf(grids);
    chances.cases = allCases(lottery);
    for (int rank = 1; rank <= gameResult::ranks; ++rank)
        chances.oneGrid[static_cast<std::size_t>(rank)] = casesOfOneGrid(lottery, rank);

    GridSets sets(lottery);
    if (!sets.fill(grids, watch))
        return std::nullopt;
    const auto best = casesByBestRank(sets, watch);
    if (!best)
        return std::nullopt;
    chances.best = *best;
    const std::int64_t stake = chances.amounts.price * chances.grids;
    const auto above = casesAbove(sets, chances.amounts.prizes, stake, watch);
    if (!above)
        return std::nullopt;
    chances.aboveStake = *above;
    return chances;
}

} // namespace boulix
