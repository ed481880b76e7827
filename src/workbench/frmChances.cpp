// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/frmChances.h"

#include "core/frenchNumbers.h"
#include "core/globals.h"
#include "core/numbers.h"
#include "core/text.h"
#include "winnings/chances.h"
#include "winnings/gameResult.h"
#include "winnings/rapport.h"

#include <cmath>

namespace boulix {

namespace {

/// A mean that can be far below one.
std::string meanText(double mean) {
    return mean == 0 || mean >= 100 ? commaNumber(mean, mean == 0 ? 0 : 2)
                                    : commaNumber(mean, mean < 0.001 ? 9 : 4);
}

void show(reportList &list, const std::vector<std::vector<std::string>> &lines) {
    list.rows(std::ssize(lines), [&lines](std::int64_t row, int column) {
        return lines[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    });
}

} // namespace

frmChances::frmChances(const GameChances &chances, const std::string &unit) {
    lblCases = "Calcul exact sur " + groupedNumber(chances.cases) +
               " cas : tous les tirages, chacun avec chaque numéro complémentaire possible." +
               crlf +
               "Au moins ce rang : la meilleure grille gagne ce rang, ou un autre qui le suit "
               "dans la table." +
               crlf + "Grilles gagnantes et gains : moyennes par tirage, pour ce rang seul.";
    fillRanks(chances);
    fillMoney(chances, unit);
    fillGuarantees(chances);
}

void frmChances::fillRanks(const GameChances &chances) {
    lvwRanks.columns({{"Rang", "5 numéros + complémentaire ", false},
                      {"Au moins ce rang", "00,00000000 % ", true},
                      {"1 chance sur", "00 000 000 ", true},
                      {"Cas", "000 000 000 ", true},
                      {"Grilles gagnantes", "000 000,0000 ", true},
                      {"Gains", "000 000,00000 ", true}});
    double grids = 0;
    for (int rank = 1; rank <= gameResult::ranks; ++rank) {
        const std::uint64_t cases = chances.atLeast(rank);
        const std::string label = gRapport->label(narrow16(rank - 1));
        const std::string percent = percentText(cases, chances.cases) + "\u00a0%";
        const std::string oneIn = oneInText(cases, chances.cases);
        ranks_.push_back({label, percent, oneIn, groupedNumber(cases),
                          meanText(chances.meanGrids(rank)), amountText(chances.meanWin(rank))});
        grids += chances.meanGrids(rank);
        if (cases > 0)
            bars.push_back({label, static_cast<double>(cases) / static_cast<double>(chances.cases),
                            percent + ", 1 chance sur " + oneIn});
    }
    ranks_.push_back(
        {"Tous les rangs", "", "", "", meanText(grids), amountText(chances.meanReturn())});
    show(lvwRanks, ranks_);
}

void frmChances::fillMoney(const GameChances &chances, const std::string &unit) {
    const std::string stake = amountWithUnit(chances.stake(), unit);
    const std::string gives = amountWithUnit(chances.meanReturn(), unit);
    lblStake = stake;
    lblReturn = gives + " par tirage";
    const auto part = chances.returnPart();
    lblReturnPart = part ? commaNumber(100 * *part, 2) + "\u00a0%" : "\u2014";
    lblAboveStake = percentText(chances.aboveStake, chances.cases) + "\u00a0%, 1 chance sur " +
                    oneInText(chances.aboveStake, chances.cases);
    if (chances.aboveStake == 0)
        lblAboveStake = "aucune";
    lblSentence = "En moyenne, ce jeu rend " + gives + " pour " + stake +
                  (std::abs(chances.stake()) >= 2 ? " joués." : " joué.");
}

void frmChances::fillGuarantees(const GameChances &chances) {
    hasGuarantees = !chances.guarantees.empty();
    lvwGuarantees.columns({{"Numéros tirés", "", true},
                           {"Au moins", "000 trouvés", true},
                           {"En moyenne", "0,0000 ", true},
                           {"Au plus", "000 trouvés", true}});
    if (!hasGuarantees) {
        lblGuarantees = "Garanties : données jusqu'à " + std::to_string(mostGuaranteeNumbers) +
                        " numéros différents." + crlf + "Ce jeu en a " +
                        std::to_string(chances.numbers) + ".";
        return;
    }
    lblGuarantees = "Garanties : numéros trouvés par la meilleure grille," + std::string(crlf) +
                    "quand tant des " + std::to_string(chances.numbers) +
                    " numéros du jeu sont tirés.";
    for (const GuaranteeRow &row : chances.guarantees)
        guarantees_.push_back(
            {std::to_string(row.drawn), std::to_string(row.least),
             commaNumber(static_cast<double>(row.sum) / static_cast<double>(row.cases), 4),
             std::to_string(row.most)});
    show(lvwGuarantees, guarantees_);
}

} // namespace boulix
