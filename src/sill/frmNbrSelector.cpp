// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/frmNbrSelector.h"

#include "core/numbers.h"
#include "core/platform.h"
#include "sill/reports.h"

#include <cstdint>
#include <numeric>
#include <vector>

namespace boulix {

namespace {

/// The word as a number of the lottery, 0 where it is none.
std::int16_t numberIn(const std::string &word) {
    const bool figures = word.size() <= 2 && word.find_first_not_of("0123456789") == word.npos;
    const int n = figures ? std::stoi(word) : 0;
    return static_cast<std::int16_t>(n <= NumberBoard::lastNumber ? n : 0);
}

std::string numbers(int count) {
    return std::to_string(count) + (count > 1 ? " numéros" : " numéro");
}

/// The words of a line, parted by blanks and the usual signs.
std::vector<std::string> wordsOf(const std::string &text) {
    constexpr const char *separators = " ,;+-/\t";
    std::vector<std::string> words;
    for (std::size_t at = text.find_first_not_of(separators); at != text.npos;) {
        const std::size_t end = text.find_first_of(separators, at);
        words.push_back(text.substr(at, end - at));
        at = text.find_first_not_of(separators, end);
    }
    return words;
}

} // namespace

frmNbrSelector::frmNbrSelector() {
    grd.selectionChanged = [this] { refused_.clear(); };
    grd.refused = [this](std::int16_t n) { refused_ = beyondLimit(n); };
}

std::string frmNbrSelector::lblStatus() const {
    return std::to_string(grd.selectedCount()) + " numéros";
}

std::string frmNbrSelector::lblWanted() const {
    const int marked = grd.selectedCount();
    const int most = grd.maxSelected();
    const bool limited = most > 0 && most < NumberBoard::lastNumber;
    const int missing = minimum - marked;
    std::string wanted;
    if (limited && minimum == most)
        wanted = numbers(most) + " à cocher";
    else if (limited && minimum > 0)
        wanted = "De " + std::to_string(minimum) + " à " + numbers(most) + " à cocher";
    else if (limited)
        wanted = numbers(most) + " au plus";
    else if (minimum > 0)
        wanted = numbers(minimum) + " au moins";
    else
        return "Cochez autant de numéros que vous voulez.";
    if (missing == 1 && lastIsComplementary)
        return wanted + ", il manque le complémentaire.";
    return wanted + (missing > 0 ? ", encore " + std::to_string(missing) + "." : ".");
}

std::string frmNbrSelector::txtNumbers() const {
    std::string text;
    for (std::int16_t i = 1; i <= grd.selectedCount(); ++i)
        text += (text.empty() ? "" : " ") + std::to_string(grd.selectedNumber(i));
    return text;
}

void frmNbrSelector::clickClear() {
    refused_.clear();
    grd.clearSelection();
}

void frmNbrSelector::typeNumbers(const std::string &text) {
    clickClear();
    for (const std::string &word : wordsOf(text)) {
        const std::string refusal = refusalOf(word);
        if (refusal.empty())
            grd.selectNumber(numberIn(word));
        else if (refused_.empty())
            refused_ = refusal;
    }
}

/// Why a word of the line is not marked; empty where it can be.
std::string frmNbrSelector::refusalOf(const std::string &word) const {
    const std::int16_t n = numberIn(word);
    if (n == 0)
        return "« " + word + " » n'est pas un numéro de 1 à 49.";
    if (grd.isSelected(n))
        return "Le " + std::to_string(n) + " est écrit deux fois.";
    if (grd.maxSelected() > 0 && grd.selectedCount() >= grd.maxSelected())
        return beyondLimit(n);
    return {};
}

std::string frmNbrSelector::beyondLimit(std::int16_t n) const {
    return "Le " + std::to_string(n) + " n'est pas coché : " + numbers(grd.maxSelected()) +
           " au plus. Décochez-en un d'abord.";
}

void frmNbrSelector::clickSelectAll() {
    if (grd.maxSelected() != NumberBoard::lastNumber) {
        reportNumbered(801, "Impossible de sélectionner tous les numéros, vous ne pouvez en "
                            "sélectionner que " +
                                std::to_string(grd.maxSelected()));
        return;
    }
    platform().seedRandomFromClock();
    std::vector<std::int16_t> unused(NumberBoard::lastNumber);
    std::iota(unused.begin(), unused.end(), std::int16_t{1});
    while (!unused.empty()) {
        const double r = static_cast<double>(platform().nextRandom());
        const double last = static_cast<double>(unused.size() - 1);
        const auto at = static_cast<std::ptrdiff_t>(roundHalfEven(r * last));
        grd.selectNumber(unused[static_cast<std::size_t>(at)]);
        unused.erase(unused.begin() + at);
    }
}

} // namespace boulix
