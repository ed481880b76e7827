// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "printServer.h"
#include "printedPages.h"
#include "support/boulixTest.h"
#include "ui/printing/qtPrinterSystem.h"

namespace boulix::testing_support {

/// A program that prints on the tests' own print server, with everything else as in other tests.
/// Where the server cannot start, the tests say why and are skipped.
class PaperTest : public BoulixTest {
  protected:
    PaperTest() { setPrinterSystem(&system); }
    void SetUp() override {
        if (!server().problem().empty())
            GTEST_SKIP() << server().problem();
    }
    /// The server of the whole run; it ends with the program.
    static PrintServer &server();

    /// What `queue` printed last, once all documents are handed over.
    PrintedPages lastPrinted(const std::string &queue) {
        EXPECT_TRUE(system.finishDocuments());
        return PrintedPages(queue == "Salon" ? server().lastOutput() : server().lastDocument());
    }

    /// Expects everything within the margins of a text report, lines from the top of each page
    /// on, and every page but the last filled to its bottom.
    static void expectFullSheets(const PrintedPages &pages);

    QtPrinterSystem system;
};

/// The queues that tests print on one after the other.
inline const char *const bothQueues[] = {"Bureau", "Salon"};

} // namespace boulix::testing_support
