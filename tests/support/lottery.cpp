// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/lottery.h"

#include "core/globals.h"
#include "draws/dbCombs.h"

#include <numeric>
#include <utility>
#include <vector>

namespace boulix::testing_support {

lotoComb lotoCombOf(const SevenNumbers &numbers) {
    lotoComb comb;
    for (int i = 1; i <= lotoComb::size; ++i)
        comb.num(i, numbers[static_cast<std::size_t>(i - 1)]);
    comb.compl_(numbers[6]);
    return comb;
}

void addDraw(const SevenNumbers &numbers) {
    const Date day = dateOf({2000, 1, 1}) + gDbCombs->Count();
    gDbCombs->Add(day, 1, lotoCombOf(numbers), false, "");
}

SevenNumbers randomDraw(std::mt19937 &random, std::int16_t last) {
    std::vector<std::int16_t> all(static_cast<std::size_t>(last));
    std::iota(all.begin(), all.end(), std::int16_t{1});
    SevenNumbers numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        std::swap(all[i], all[i + random() % (all.size() - i)]);
        numbers[i] = all[i];
    }
    return numbers;
}

void addRandomDraws(int count, std::mt19937 &random, std::int16_t last) {
    for (int i = 0; i < count; ++i)
        addDraw(randomDraw(random, last));
}

bool importHistory(ScriptedDesktop &desktop, const std::string &folder,
                   const std::filesystem::path &file) {
    gDbCombs->dbFile().path(folder);
    gDbCombs->dbFile().name("tirages.dbl");
    desktop.answerOpen(file.string());
    return gDbCombs->ImportFdjFile();
}

} // namespace boulix::testing_support
