// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/globals.h"
#include "eliminators/eliminators.h"
#include "games/modGame.h"
#include "support/boulixTest.h"
#include "workbench/eliminatorPage.h"
#include "workbench/frmGameList.h"
#include "workbench/frmOptimiser.h"
#include "workbench/gamePage.h"

#include <functional>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// The game page as the start leaves it, with a screen that a test plays.
class GamePageTest : public BoulixTest, protected gameView {
  protected:
    using Texts = std::vector<std::string>;
    using Numbers = std::vector<std::int16_t>;

    GamePageTest() {
        gEliminators->init();
        modGame::init();
        rules.init();
        page.gameShown = [this] { ++gamesShown; };
        page.init();
        page.view(this);
    }
    ~GamePageTest() override {
        page.view(nullptr);
        modGame::init();
    }
    std::vector<std::int64_t> selectedRows() const override { return selected; }
    bool anyRowSelected() const override { return !selected.empty(); }
    void showSide(int index) override { side = index; }
    void refresh() override { ++refreshes; }
    void runGameList(frmGameList &window) override {
        if (onGameList)
            onGameList(window);
    }
    void runOptimiser(frmOptimiser &window) override {
        if (onOptimiser)
            onOptimiser(window);
    }

    static std::vector<Texts> rows(const reportList &list) {
        std::vector<Texts> all;
        for (std::int64_t row = 0; row < list.rowCount(); ++row) {
            Texts texts;
            for (std::size_t column = 0; column < list.columns().size(); ++column)
                texts.push_back(list.text(row, static_cast<int>(column)));
            all.push_back(texts);
        }
        return all;
    }
    static void addGrids(int count, game &to = *currentGame) {
        for (int i = 1; i <= count; ++i) {
            const auto n = static_cast<std::int16_t>(i % 40 + 1);
            to.Add(GridRef(gameComb({n, 42, 43, 44, 45, 46})));
        }
    }
    void click(gamePage::Button button) { page.clickButton(button); }
    void click(gameDesign::Button button) { page.design.clickButton(button); }
    /// Selects the numbers through the dialog of "Sélection".
    void select(const Numbers &numbers) {
        desktop.answerNumbers(NumberScript().clear().click(numbers).ok());
        click(gameDesign::selectNumbers);
    }
    static Numbers upTo(int count) {
        Numbers numbers;
        for (int n = 1; n <= count; ++n)
            numbers.push_back(static_cast<std::int16_t>(n));
        return numbers;
    }

    eliminatorPage rules;
    gamePage page{rules};
    std::vector<std::int64_t> selected;
    std::function<void(frmGameList &)> onGameList;
    std::function<void(frmOptimiser &)> onOptimiser;
    int side = -1; ///< the sub-tab that was asked for last
    int refreshes = 0;
    int gamesShown = 0;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::GamePageTest;
} // namespace boulix
