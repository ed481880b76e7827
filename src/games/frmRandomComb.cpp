// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "games/frmRandomComb.h"

#include "core/numbers.h"
#include "core/platform.h"
#include "core/text.h"
#include "sill/reports.h"
#include "sill/typedField.h"

#include <algorithm>
#include <array>

namespace boulix {

namespace {

const TypedField countField = {"txtnComb", "Nombre de combinaisons",
                               "un nombre entier jusqu'à 32 767"};

enum Column { positionColumn, firstNumberColumn, complementaryColumn = 7 };

/// Six numbers and the complementary one. The position is drawn among all 49, however many are
/// left: beyond those left stand numbers that earlier ones left behind, so that a number can come
/// twice. The draws of this dialog are made this way on purpose.
lotoComb randomDraw() {
    std::array<std::int16_t, 49> pool{};
    for (std::size_t i = 0; i < pool.size(); ++i)
        pool[i] = static_cast<std::int16_t>(i + 1);
    std::size_t remaining = pool.size();
    std::array<std::int16_t, 7> taken{};
    for (std::int16_t &number : taken) {
        const double x = platform().nextRandom();
        const auto at = static_cast<std::size_t>(toInt16(x * 48 + 1) - 1);
        number = pool[at];
        if (at + 1 < remaining)
            std::copy(pool.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                      pool.begin() + static_cast<std::ptrdiff_t>(remaining),
                      pool.begin() + static_cast<std::ptrdiff_t>(at));
        --remaining;
    }
    lotoComb draw;
    for (int i = 1; i <= lotoComb::size; ++i)
        draw.num(i, taken[static_cast<std::size_t>(i - 1)]);
    draw.sort();
    draw.compl_(taken.back());
    return draw;
}

} // namespace

frmRandomComb::frmRandomComb() {
    std::vector<ReportColumn> columns = {{"N°", " 00000 ", false}};
    for (const char *header : {"1", "2", "3", "4", "5", "6", "C"})
        columns.push_back({header, " 000 ", true});
    lvWComb.columns(std::move(columns));
    lvWComb.whenEmpty({"Donnez le nombre de combinaisons, puis cliquez sur Calculer."});
}

void frmRandomComb::clickCompute() {
    runCommand([this] { compute(); });
}

void frmRandomComb::compute() {
    lvWComb.clear();
    draws_.clear();
    platform().seedRandomFromClock();
    const std::int16_t count = readField(countField, txtnComb, [](const std::string &typed) {
        return toInt16(wholeNumberText(typed));
    });
    // 32 bits to count with: 16 of them never get beyond the largest count.
    for (std::int32_t i = 1; i <= count; ++i)
        draws_.push_back(randomDraw());
    lvWComb.rows(std::ssize(draws_),
                 [this](std::int64_t row, int column) { return cell(row, column); });
}

std::string frmRandomComb::cell(std::int64_t row, int column) const {
    const lotoComb &draw = draws_[static_cast<std::size_t>(row)];
    if (column == positionColumn)
        return zeroPadded(row + 1, 4);
    if (column == complementaryColumn)
        return zeroPadded(draw.compl_(), 2);
    return zeroPadded(draw.num(column - firstNumberColumn + 1), 2);
}

void frmRandomComb::clickOK() {
    randomDraws = draws_;
    hidden_ = true;
}

void frmRandomComb::clickCancel() {
    randomDraws.clear();
    hidden_ = true;
}

} // namespace boulix
