// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "paperTest.h"

#include "printing/frmPrint.h"
#include "printing/modPrinter.h"

#include <string>

namespace boulix {
namespace {

using namespace testing_support;
using Names = std::vector<std::string>;

/// The bytes of a keyword of one value in the order that comes with a document.
std::string keyword(const std::string &name, const std::string &value) {
    const auto counted = [](const std::string &text) {
        return std::string(1, '\0') + static_cast<char>(text.size()) + text;
    };
    return "\x44" + counted(name) + counted(value);
}

class PrintSystemTest : public PaperTest {
  protected:
    /// Prints a report and waits until the print system has taken or refused it.
    void printLine(const std::string &text) {
        auto report = modPrinter::startReport("essai");
        ASSERT_TRUE(report);
        report->line(text);
        report->end();
        taken = system.finishDocuments();
    }

    bool taken = false;
};

TEST_F(PrintSystemTest, ListsTheQueuesAndTheDefaultOne) {
    EXPECT_EQ(system.printers(), (Names{"Bureau", "Salon"}));
    EXPECT_EQ(system.defaultPrinter(), "Salon");
    EXPECT_EQ(modPrinter::printerCheck(), 0);
}

TEST_F(PrintSystemTest, APrinterAddedLaterIsListedAtOnce) {
    server().addRawQueue("Grenier");
    EXPECT_EQ(system.printers(), (Names{"Bureau", "Grenier", "Salon"}));
    server().removeQueue("Grenier");
    EXPECT_EQ(system.printers(), (Names{"Bureau", "Salon"}));
}

TEST_F(PrintSystemTest, WithoutAnyQueueThePrinterCheckSaysSo) {
    server().removeQueues();
    EXPECT_TRUE(system.printers().empty());
    EXPECT_EQ(system.defaultPrinter(), "");
    EXPECT_EQ(modPrinter::printerCheck(), -1);
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 2301");
    server().makeQueues();
}

TEST_F(PrintSystemTest, TheChosenPrinterIsSavedAndPrintsAfterTheNextStart) {
    printWindows.onPrint = [](frmPrint &window) {
        EXPECT_EQ(window.cmbPrinter, (Names{"Bureau", "Salon"}));
        EXPECT_EQ(window.cmbPrinterIndex, 1) << "the default one";
        window.cmbPrinterIndex = 0;
        window.clickOK();
    };
    modPrinter::printerDialog();
    modPrinter::currentPrinter("");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::currentPrinter(), "Bureau");
    printLine("retrouvée");
    EXPECT_NE(server().lastOrder().find("/printers/Bureau"), std::string::npos);
    EXPECT_EQ(lastPrinted("Bureau").lines().back().text, "retrouvée");
}

TEST_F(PrintSystemTest, ASavedPrinterThatIsGoneLeavesTheDefaultOne) {
    server().addRawQueue("Grenier");
    writeBytes(file("boulix.ini"), "[impression]\r\nimprimante=Grenier\r\n");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::currentPrinter(), "Grenier");
    server().removeQueue("Grenier");
    modPrinter::loadSettings();
    EXPECT_EQ(modPrinter::currentPrinter(), "Salon");
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(PrintSystemTest, APrinterThatGoesAwayDuringTheRunIsAFailure) {
    server().addRawQueue("Grenier");
    modPrinter::currentPrinter("Grenier");
    server().removeQueue("Grenier");
    const int before = server().documents();
    const auto failure = failureOf([this] { printLine("perdue"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 482);
    EXPECT_EQ(failure->description(), "L'imprimante Grenier n'est pas disponible.");
    EXPECT_EQ(server().documents(), before);
}

TEST_F(PrintSystemTest, AStoppedQueueKeepsTheDocumentUntilItRunsAgain) {
    outputOf(QStringLiteral("cupsdisable"), {QStringLiteral("Salon")});
    printLine("patience");
    EXPECT_TRUE(server().waits("Salon"));
    outputOf(QStringLiteral("cupsenable"), {QStringLiteral("Salon")});
    EXPECT_EQ(lastPrinted("Salon").lines().back().text, "patience");
}

TEST_F(PrintSystemTest, AQueueThatTakesNoDocumentsIsAFailureInItsOwnWords) {
    outputOf(QStringLiteral("cupsreject"), {QStringLiteral("Bureau")});
    modPrinter::currentPrinter("Bureau");
    const int before = server().documents();
    printLine("refusée");
    outputOf(QStringLiteral("cupsaccept"), {QStringLiteral("Bureau")});
    EXPECT_FALSE(taken);
    ASSERT_EQ(desktop.messages.size(), 1U);
    const ShownBox &box = desktop.messages[0];
    EXPECT_EQ(box.title, "Boulix Erreur système N° 482");
    EXPECT_EQ(box.icon, Icon::critical);
    const std::string told = "L'imprimante n'accepte pas le document « Boulix - essai ».\r\n";
    EXPECT_EQ(box.text.substr(0, told.size()), told);
    EXPECT_NE(box.text.find("Bureau"), std::string::npos) << box.text;
    EXPECT_EQ(server().documents(), before);
}

TEST_F(PrintSystemTest, ADocumentThatIsDroppedIsNotPrinted) {
    const int before = server().documents();
    {
        const auto paper = system.openDocument("Bureau", "Boulix - essai", Sides::one);
        paper->font("Arial", 10);
        paper->text(10, 10, "à moitié");
        paper->newPage();
    }
    EXPECT_EQ(server().documents(), before);
}

TEST_F(PrintSystemTest, DocumentsPrintedWhileOneIsStillOnItsWayComeOutInTheirOrder) {
    const int before = server().documents();
    for (const char *text : {"la première", "la deuxième", "la dernière"}) {
        auto report = modPrinter::startReport("essai");
        ASSERT_TRUE(report);
        report->line(text);
        report->end();
    }
    EXPECT_EQ(lastPrinted("Salon").lines().back().text, "la dernière");
    EXPECT_EQ(server().documents(), before + 3);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(PrintSystemTest, SlipsComeUnscaledOneOnASheet) {
    modPrinter::currentPrinter("Bureau");
    modPrinter::printCanvas();
    ASSERT_TRUE(system.finishDocuments());
    const std::string order = server().lastOrder();
    EXPECT_NE(order.find(keyword("print-scaling", "none")), std::string::npos);
    EXPECT_NE(order.find(keyword("sides", "one-sided")), std::string::npos);
    printLine("recto verso");
    const std::string report = server().lastOrder();
    EXPECT_NE(report.find(keyword("print-scaling", "none")), std::string::npos);
    EXPECT_EQ(report.find(keyword("sides", "one-sided")), std::string::npos);
}

TEST_F(PrintSystemTest, ASheetIsAsLargeAsThePrinterHasIt) {
    for (const char *queue : bothQueues) {
        const auto paper = system.openDocument(queue, "Boulix - essai", Sides::one);
        EXPECT_NEAR(paper->sheetWidth(), 210, 0.2) << queue;
        EXPECT_NEAR(paper->sheetHeight(), 297, 0.2) << queue;
    }
}

} // namespace
} // namespace boulix
