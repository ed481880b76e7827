// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "workbench/frmMain.h"
#include "workbench/statisticsPage.h"

#include "core/globals.h"
#include "stats/graphSettings.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "support/boulixTest.h"
#include "support/lottery.h"
#include "support/recordingPrinters.h"

#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace boulix::testing_support {

using Texts = std::vector<std::string>;
using Numbers = std::vector<std::int16_t>;

/// Where the graph window of these tests lies when it is closed.
inline constexpr modStats::GraphWindowPos somewhere = {10, 20, 300, 200};

/// The statistics page of the main window, with this fixture in the place of the screen.
class StatisticsPage : public BoulixTest, protected statisticsView {
  protected:
    StatisticsPage() : page(mainWindow->statistics) {
        modStats::InitStatTypes();
        modStats::InitTripletTable();
        modStats::InitGraphTypes();
        modStats::reset();
        setPrinterSystem(&printers);
        page.view(this);
    }
    ~StatisticsPage() override { setPrinterSystem(nullptr); }

    // The screen.
    std::vector<std::int64_t> selectedRows() const override { return selected; }
    void refresh() override {}
    void openGraph(frmGraph &shown) override {
        graph = &shown;
        ++graphOpened;
    }
    modStats::GraphWindowPos closeGraph() override {
        graph = nullptr;
        return somewhere;
    }

    /// The window as after a start with these draws.
    void startWith(const std::vector<SevenNumbers> &draws) {
        for (const SevenNumbers &numbers : draws)
            addDraw(numbers);
        mainWindow->load();
    }
    void startWithFourDraws() {
        startWith({{1, 2, 3, 4, 5, 6, 7},
                   {1, 2, 3, 14, 15, 16, 17},
                   {21, 22, 23, 24, 25, 26, 7},
                   {1, 2, 13, 14, 25, 36, 47}});
    }
    void startWithDraws(int count) {
        std::mt19937 random(5);
        addRandomDraws(count, random);
        mainWindow->load();
    }
    void compute(std::int16_t type, const Numbers &chosen = {}) {
        page.pickType(type);
        computeAgain(chosen);
    }
    void computeAgain(const Numbers &chosen = {}) {
        if (!chosen.empty())
            desktop.answerNumbers(NumberScript().click(chosen).ok());
        page.clickButton(statisticsPage::computeType);
    }
    void computeDismissed(std::int16_t type) {
        page.pickType(type);
        desktop.answerNumbers(NumberScript().cancel());
        page.clickButton(statisticsPage::computeType);
    }
    void pressCompl(bool down) { page.clickButton(statisticsPage::withComplementary, down); }
    void pressGraph(bool down) { page.clickButton(statisticsPage::showGraph, down); }
    void clickRows(std::vector<std::int64_t> rows) {
        selected = std::move(rows);
        page.clickList();
    }

    Texts headers() const {
        Texts texts;
        for (const ReportColumn &column : page.lvwStatsResult.columns())
            texts.push_back(column.header);
        return texts;
    }
    /// The rows as they are shown, cells joined by blanks.
    Texts rows() const {
        Texts texts;
        for (std::int64_t row = 0; row < page.lvwStatsResult.rowCount(); ++row) {
            std::string text;
            for (std::size_t column = 0; column < headers().size(); ++column)
                text += (column > 0 ? " " : "") +
                        page.lvwStatsResult.text(row, static_cast<int>(column));
            texts.push_back(text);
        }
        return texts;
    }
    std::size_t curvePoints() const {
        return graph && !graph->plot.curves().empty() ? graph->plot.curves().front().x.size() : 0;
    }
    std::string status() const { return mainWindow->StatusBar[1]; }
    Numbers board() const { return markedNumbers(page.grdStatNbrSelector); }

    statisticsPage &page;
    testing_support::RecordingPrinters printers;
    std::vector<std::int64_t> selected;
    frmGraph *graph = nullptr;
    int graphOpened = 0;
};

} // namespace boulix::testing_support

namespace boulix {
using testing_support::Numbers;
using testing_support::somewhere;
using testing_support::StatisticsPage;
using testing_support::Texts;
} // namespace boulix
