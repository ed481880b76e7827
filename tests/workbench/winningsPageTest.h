// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "games/frmRandomComb.h"
#include "games/game.h"
#include "support/boulixTest.h"
#include "support/lottery.h"
#include "winnings/rapport.h"
#include "workbench/frmChances.h"
#include "workbench/frmMain.h"
#include "workbench/frmWinDate.h"
#include "workbench/winningsPage.h"

#include <functional>
#include <gtest/gtest.h>

namespace boulix::testing_support {

/// Three draws; a game of one grid that has three numbers of the first and of the third one.
class WinningsPageTest : public BoulixTest, protected winningsView {
  protected:
    WinningsPageTest() {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({31, 32, 33, 34, 35, 36, 37});
        addDraw({1, 2, 3, 44, 45, 46, 47});
        gDbCombs->Item(2).id(2);
        addGrid({1, 2, 3, 11, 12, 13});
        for (std::int16_t i = 0; i < rapport::size; ++i)
            gRapport->Value(i, static_cast<float>(i) + 0.5F);
        randomDraws.clear();
        page.view(this);
        page.init();
        page.followBase();
        page.showPrizes();
    }
    ~WinningsPageTest() override { randomDraws.clear(); }
    void refresh() override {
        ++refreshes;
        if (onRefresh)
            onRefresh();
    }
    void runRandomComb(frmRandomComb &dialog) override { onRandomComb(dialog); }
    void runWinDate(frmWinDate &window) override { onWinDate(window); }
    void runChances(frmChances &window) override { onChances(window); }

    using Texts = winningsPage::RankTexts;

    static void addGrid(const gameComb::Numbers &numbers) {
        currentGame->Add(GridRef(gameComb(numbers)));
    }
    static Texts zeros() {
        Texts texts;
        texts.fill("0");
        return texts;
    }
    static Texts zerosBut(int rank, const std::string &text) {
        Texts texts = zeros();
        texts[static_cast<std::size_t>(rank - 1)] = text;
        return texts;
    }
    static std::vector<std::string> row(const frmWinDate &window, std::int64_t index) {
        std::vector<std::string> texts;
        for (int column = 0; column < 10; ++column)
            texts.push_back(window.lvwWinDate.text(index, column));
        return texts;
    }

    winningsPage page;
    std::function<void()> onRefresh;
    std::function<void(frmRandomComb &)> onRandomComb;
    std::function<void(frmWinDate &)> onWinDate = [](frmWinDate &) {};
    std::function<void(frmChances &)> onChances;
    int refreshes = 0;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::WinningsPageTest;
} // namespace boulix
