// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/boulixTest.h"
#include "workbench/databasePage.h"
#include "workbench/frmMain.h"

#include <cstdint>
#include <string>
#include <vector>

namespace boulix::testing_support {

inline const std::string importHeader =
    "BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;BOULE6;BOULE_COMPLEMENTAIRE;DATE_DE_TIRAGE;"
    "1ER_OU_2EME_TIRAGE\r\n";
inline const std::vector<std::int16_t> sevenA = {31, 15, 33, 27, 36, 48, 34};
inline const std::vector<std::int16_t> sevenB = {1, 2, 3, 4, 5, 6, 7};

/// The database page of the main window, with this fixture in the place of the screen.
class DatabasePage : public BoulixTest, protected databaseView {
  protected:
    DatabasePage() : page(mainWindow->database) {
        gDbCombs->dbFile().path(folder());
        gDbCombs->dbFile().name("tirages.dbl");
        page.view(this);
    }
    std::vector<std::int64_t> selectedRows() const override { return selected; }
    void goToRow(std::int64_t row, bool select) override {
        row_ = row;
        if (select)
            selected = {row};
    }
    void refresh() override {}

    /// The base and the window as after a start with these draws in the file.
    void startWith(const std::vector<dbComb> &draws) {
        for (const dbComb &draw : draws)
            gDbCombs->Add(draw.day(), draw.id(), draw.comb(), false, "");
        mainWindow->load();
    }
    static dbComb draw(int day, std::int16_t id, const std::vector<std::int16_t> &seven) {
        lotoComb comb;
        for (int i = 1; i <= lotoComb::size; ++i)
            comb.num(i, seven[static_cast<std::size_t>(i - 1)]);
        comb.compl_(seven[6]);
        return {dateOf({2003, 1, day}), id, comb};
    }
    std::vector<std::string> row(std::int64_t index) const {
        std::vector<std::string> texts;
        for (int column = 0; column < 9; ++column)
            texts.push_back(page.lvwDBcomb.text(index, column));
        return texts;
    }
    std::string status() const { return mainWindow->StatusBar[0]; }
    /// What the window shows of the base: list, status, up-downs with their limits, the board and
    /// its label.
    std::vector<std::string> shown() const {
        std::vector<std::string> all = {status(), page.lblDBCombDesc};
        for (std::int64_t i = 0; i < page.lvwDBcomb.rowCount(); ++i)
            for (const std::string &text : row(i))
                all.push_back(text);
        for (const upDown *control :
             {&mainWindow->winnings.updVerifComb, &mainWindow->statistics.updStatStart,
              &mainWindow->statistics.updStatEnd, &mainWindow->analysis.updnTirNbr})
            for (const std::int32_t n : {control->min(), control->max(), control->value()})
                all.push_back(std::to_string(n));
        for (const std::int16_t n : markedNumbers(page.grdDB))
            all.push_back(std::to_string(n));
        return all;
    }
    /// The base can be saved no more.
    void loseTheFolder() const { gDbCombs->dbFile().path(file("no such folder")); }
    void importText(const std::string &lines) {
        testing_support::writeBytes(file("h.txt"), importHeader + lines);
        desktop.answerOpen(file("h.txt"));
        page.clickButton(databasePage::importDraws);
    }

    databasePage &page;
    std::vector<std::int64_t> selected;
    std::int64_t row_ = 0; ///< to which the list has scrolled
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::DatabasePage;
using testing_support::importHeader;
using testing_support::sevenA;
using testing_support::sevenB;
} // namespace boulix
