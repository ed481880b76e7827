// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "paperTest.h"

#include "printing/textReport.h"

#include <algorithm>

namespace boulix::testing_support {

namespace {

/// The server runs from the first test that asks for it to the end of the last one.
class ServerEnvironment : public ::testing::Environment {
  public:
    void TearDown() override { server.reset(); }
    std::optional<PrintServer> server;
};

ServerEnvironment *const environment = [] {
    auto *made = new ServerEnvironment; // owned by the test library from here on
    ::testing::AddGlobalTestEnvironment(made);
    return made;
}();

} // namespace

PrintServer &PaperTest::server() {
    if (!environment->server)
        environment->server.emplace();
    return *environment->server;
}

void PaperTest::expectFullSheets(const PrintedPages &pages) {
    constexpr double margin = TextReport::margin;
    constexpr double highestLine = 4.5; // of the reports' fonts, in millimetres
    double left = pages.sheetWidth();
    const PrintedWord *before = nullptr;
    for (const PrintedWord &word : pages.words()) {
        left = std::min(left, word.left);
        ASSERT_GT(word.top, margin - 0.1) << word.text;
        ASSERT_LT(word.bottom, pages.sheetHeight() - margin + 0.5) << word.text;
        ASSERT_LT(word.right, pages.sheetWidth() - margin + 0.1) << word.text;
        if (!before || word.page != before->page) {
            ASSERT_NEAR(word.top, margin, 0.1) << "page " << word.page;
        }
        if (before && word.page != before->page) {
            ASSERT_GT(before->bottom, pages.sheetHeight() - margin - highestLine)
                << "page " << before->page;
        }
        before = &word;
    }
    EXPECT_NEAR(left, margin, 0.1);
}

} // namespace boulix::testing_support
