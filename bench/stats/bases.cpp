// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/bases.h"

#include "core/globals.h"
#include "draws/dbCombs.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <numeric>
#include <random>
#include <vector>

namespace boulix::bench {

namespace {

/// Where the operator's file has the six numbers, the complementary, the date and the draw.
constexpr ColumnPositions operatorColumns = {0, 6, 7, 8, 9, 10, 11, 12, 4, 2};

void addDraw(Date day, std::int16_t id, lotoComb comb) {
    int sum = 0;
    for (int i = 1; i <= lotoComb::size; ++i)
        sum += comb.num(i);
    comb.sum(static_cast<std::int16_t>(sum));
    comb.sumtot(static_cast<std::int16_t>(sum + comb.compl_()));
    gDbCombs->Add(day, id, comb, false, "");
}

} // namespace

void makeBase(std::int32_t count) {
    gDbCombs->clear();
    std::mt19937 random(649);
    std::array<std::int16_t, 49> numbers{};
    std::iota(numbers.begin(), numbers.end(), std::int16_t{1});
    for (std::int32_t i = 0; i < count; ++i) {
        lotoComb comb;
        for (std::size_t k = 0; k < 7; ++k) {
            std::swap(numbers[k], numbers[k + random() % (49 - k)]);
            comb.num(static_cast<int>(k) + 1, numbers[k]);
        }
        comb.compl_(numbers[6]);
        addDraw(30000 + i / 2, static_cast<std::int16_t>(1 + i % 2), comb);
    }
}

void makeBaseWithNewNumbers(std::int32_t count) {
    gDbCombs->clear();
    for (std::int32_t i = 1; i <= count; ++i) {
        const int first = i < count ? 1 : 43;
        lotoComb comb;
        for (int k = 1; k <= lotoComb::size; ++k)
            comb.num(k, static_cast<std::int16_t>(first + k - 1));
        comb.compl_(static_cast<std::int16_t>(first + 6));
        addDraw(30000 + i, 1, comb);
    }
}

void readHistory(const std::string &fileName) {
    gDbCombs->clear();
    std::ifstream file(fileName);
    std::vector<dbComb> newestFirst;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        newestFirst.emplace_back();
        newestFirst.back().fromString(line, operatorColumns);
    }
    std::for_each(newestFirst.rbegin(), newestFirst.rend(),
                  [](const dbComb &draw) { addDraw(draw.day(), draw.id(), draw.comb()); });
}

} // namespace boulix::bench
