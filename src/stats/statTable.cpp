// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "stats/statTable.h"

#include "core/modMaths.h"
#include "core/text.h"
#include "sill/selector.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"

#include <array>

namespace boulix::modStats {

namespace {

constexpr std::array<const char *, 2> titleSuffix = {" (Sans complémentaire)",
                                                     " (Avec complémentaire)"};
constexpr std::array<const char *, 2> descriptionSuffix = {
    " (Ce calcul ne tient pas compte du numéro complémentaire)",
    " (Ce calcul tient compte du numéro complémentaire)"};

std::size_t suffixIndex(std::int16_t withCompl) {
    return withCompl == 1 ? 1 : 0;
}

ReportColumn narrow(const std::string &header) {
    return {header, " 0000 ", true};
}

ReportColumn wide(const std::string &header) {
    return {header, "", true};
}

/// How many entries of the stores belong to the result of `type`.
std::int32_t entryCount(std::int16_t type) {
    if (type == 6 || type == 17)
        return nStatResult;
    if (type >= 13 && type <= 16)
        return nStatPeriods;
    return lastNumber;
}

std::int32_t entry(std::int16_t type, std::int32_t index) {
    if (type >= 13 && type <= 16)
        return statPeriods[static_cast<std::size_t>(index)];
    return statResult(index);
}

/// Types with a number or a sum in the first column and a value in the second.
StatTable twoColumns(std::int16_t type, ReportColumn first, ReportColumn second,
                     std::array<int, 2> digits) {
    StatTable table{{std::move(first), std::move(second)}, {digits[0], digits[1]}, {}};
    const std::int32_t shift = type == 17 ? 1 : 0; // entry 1 counts the draws with no even number
    for (std::int32_t i = 1; i <= entryCount(type); ++i) {
        if (type == 6 && entry(type, i) == 0)
            continue;
        table.cells.push_back(i - shift);
        table.cells.push_back(entry(type, i));
    }
    return table;
}

/// The numbers chosen for `type`, in the order of the selector. One that it does not hold is
/// reported by it and reads as 0.
std::vector<std::int16_t> chosenNumbers(std::int16_t type, const selector &chooser) {
    std::vector<std::int16_t> numbers;
    for (std::int16_t i = 1; i <= statTypes(type).nNumbers; ++i)
        numbers.push_back(chooser.selectedNbr(i));
    return numbers;
}

/// Types 2 to 5: the chosen numbers, the partner, the value; only partners that came out.
StatTable partners(std::int16_t type, const selector &chooser) {
    StatTable table;
    if (chooser.nSelectedNbr() == 0)
        return table;
    const std::vector<std::int16_t> chosen = chosenNumbers(type, chooser);
    for (std::size_t i = 1; i <= chosen.size() + 1; ++i)
        table.columns.push_back(narrow(zeroPadded(static_cast<std::int64_t>(i), 2)));
    table.columns.push_back(wide("Fréquence"));
    table.digits.assign(table.columns.size(), 2);
    for (std::int32_t partner = 1; partner <= lastNumber; ++partner) {
        if (statResult(partner) == 0)
            continue;
        table.cells.insert(table.cells.end(), chosen.begin(), chosen.end());
        table.cells.push_back(partner);
        table.cells.push_back(statResult(partner));
    }
    return table;
}

StatTable triplets() {
    StatTable table{{narrow("01"), narrow("02"), narrow("03")}, {2, 2, 2}, {}};
    for (std::int32_t row = 1; row <= tripletCount; ++row)
        if (tripletTable(row).flag == 0)
            table.cells.insert(table.cells.end(), tripletTable(row).num.begin(),
                               tripletTable(row).num.end());
    return table;
}

/// The chosen numbers, plain, joined by commas.
std::string plainNumbers(std::int16_t type, const selector &chooser) {
    std::string text;
    for (const std::int16_t n : chosenNumbers(type, chooser))
        text += (text.empty() ? "" : ",") + std::to_string(n);
    return text;
}

std::string partnerSummary(std::int16_t type, const selector &chooser) {
    // A quintuplet has no word of its own.
    constexpr std::array<const char *, 4> words = {"Couple", "Triplet", "Quadruplet", "Quadruplet"};
    const Best best = bestOf(type);
    if (best.value < 1)
        return {};
    std::string text = words[static_cast<std::size_t>(type - 2)];
    text += " le plus sorti: ";
    for (const std::int16_t n : chosenNumbers(type, chooser))
        text += zeroPadded(n, 2) + " - ";
    return text + zeroPadded(best.at, 2) + " (" + std::to_string(best.value) + " fois)";
}

std::string absenceSummary(std::int16_t type, const selector &chooser) {
    constexpr std::array<const char *, 3> groups = {"le couple (", "le triplet (",
                                                    "le quadruplet ("};
    const std::string numbers = plainNumbers(type, chooser);
    const std::string subject = type == 13
                                    ? "le numéro " + numbers
                                    : groups[static_cast<std::size_t>(type - 14)] + numbers + ")";
    return "Absence maxi pour " + subject + ": " + std::to_string(bestOf(type).value) + " tirages";
}

std::string inDraws(const char *sentence, const Best &best) {
    return sentence + std::to_string(best.at) + " (" + std::to_string(best.value) + " tirages)";
}

} // namespace

std::int64_t StatTable::rowCount() const {
    return columns.empty() ? 0 : static_cast<std::int64_t>(cells.size() / columns.size());
}

std::int32_t StatTable::value(std::int64_t row, int column) const {
    return cells[static_cast<std::size_t>(row) * columns.size() + static_cast<std::size_t>(column)];
}

std::string StatTable::text(std::int64_t row, int column) const {
    return zeroPadded(value(row, column), digits[static_cast<std::size_t>(column)]);
}

Best bestOf(std::int16_t type) {
    Best best;
    for (std::int32_t i = 1; i <= entryCount(type); ++i) {
        best.value = modMaths::maxOf(best.value, entry(type, i));
        if (best.value == entry(type, i))
            best.at = i;
    }
    return best;
}

StatTable statTable(std::int16_t type, const selector &chooser) {
    switch (type) {
    case 1:
        return twoColumns(type, narrow("N°"), wide("Fréquence"), {2, 3});
    case 6:
        return twoColumns(type, wide("Somme"), wide("Fréquence"), {3, 3});
    case 7:
        return twoColumns(type, narrow("N°"), wide("Dernière Sortie"), {2, 2});
    case 8:
        return twoColumns(type, narrow("N°"), wide("Consécutifs"), {2, 2});
    case 9:
        return twoColumns(type, narrow("N°"), wide("Max sans sortir"), {2, 2});
    case 10:
        return twoColumns(type, narrow("N°"), wide("Max consécutifs"), {2, 2});
    case 11:
    case 12:
        return triplets();
    case 13:
    case 14:
    case 15:
    case 16:
        return twoColumns(type, wide("Période"), wide("Absences"), {2, 2});
    case 17:
        return twoColumns(type, wide("Nombre de numéros pairs"), wide("Nombre de combinaisons"),
                          {2, 2});
    default:
        return isStatType(type) ? partners(type, chooser) : StatTable{};
    }
}

std::string statSummary(std::int16_t type, const selector &chooser) {
    const Best best = type == 11 || type == 12 ? Best{} : bestOf(type);
    const std::string times = " (" + std::to_string(best.value) + " fois)";
    switch (type) {
    case 1:
        return "Numéro le plus sorti: " + zeroPadded(best.at, 2) + times;
    case 6:
        return "Somme la plus fréquente: " + std::to_string(best.at) + times;
    case 7:
        return inDraws("Numéro le plus en retard: ", best);
    case 8:
        return inDraws("Numéro le plus en répété: ", best);
    case 9:
        return inDraws("Numéro avec le record de retard: ", best);
    case 10:
        return inDraws("Numéro avec le record de répétition: ", best);
    case 11:
    case 12:
        return std::to_string(triplets().rowCount()) + " triplets non sortis";
    case 13:
    case 14:
    case 15:
    case 16:
        return absenceSummary(type, chooser);
    case 17:
        return "Meilleur compromis avec " + std::to_string(best.at - 1) + " numéros pairs";
    default:
        return isStatType(type) ? partnerSummary(type, chooser) : std::string();
    }
}

std::string statTitle(std::int16_t type, std::int16_t withCompl) {
    return statTypes(type).name + titleSuffix[suffixIndex(withCompl)];
}

std::string statDescription(std::int16_t type, std::int16_t withCompl) {
    return statTypes(type).description + descriptionSuffix[suffixIndex(withCompl)];
}

} // namespace boulix::modStats
