// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Every box of the program that can be typed in, times every way of giving a command: what stands
// in the box has reached the rules before the command does.

#include "core/globals.h"
#include "core/text.h"
#include "games/frmRandomComb.h"
#include "printing/frmGridParam.h"
#include "printing/frmPrint.h"
#include "printing/frmPrintGridPreview.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "support/lottery.h"
#include "ui/forecasts/testPronoDialog.h"
#include "ui/games/randomCombDialog.h"
#include "ui/printing/gridParamDialog.h"
#include "ui/printing/gridPreviewDialog.h"
#include "ui/printing/printDialog.h"
#include "ui/stats/graphWindow.h"
#include "ui/support/commands.h"
#include "ui/support/places.h"
#include "ui/support/screenTest.h"
#include "workbench/frmMain.h"
#include "workbench/frmTestProno.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>

#include <array>
#include <map>
#include <set>

namespace boulix {
namespace {

using testing_support::Command;
using testing_support::Interceptor;
using testing_support::Place;

/// What a box takes, in two turns, and where it must arrive.
struct TypedBox {
    std::array<std::string, 2> texts;
    std::function<std::string()> inRules;
};
using TypedBoxes = std::map<std::string, TypedBox>;

class TypedTextTest : public ScreenTest {
  protected:
    TypedTextTest() : window(start()) {
        std::mt19937 random{7};
        addRandomDraws(50, random);
        mainWindow->frmUpdateDBList();
        activate(window);
    }
    static void activate(QWidget &window) {
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// The boxes that can be typed in just now.
    static std::vector<QWidget *> boxesIn(const QWidget &window) {
        std::vector<QWidget *> boxes;
        for (QWidget *box : window.findChildren<QWidget *>())
            if ((qobject_cast<QAbstractSpinBox *>(box) || qobject_cast<QLineEdit *>(box)) &&
                !qobject_cast<QAbstractSpinBox *>(box->parentWidget()) && box->isVisible() &&
                box->isEnabled())
                boxes.push_back(box);
        return boxes;
    }
    static void type(QWidget &box, const std::string &text) {
        box.setFocus();
        QTest::keySequence(&box, QKeySequence::SelectAll);
        QTest::keyClicks(&box, QString::fromStdString(text));
    }
    void tryCommand(QWidget &box, const TypedBox &typed, const Command &command) {
        const std::string &text = typed.texts[turn_++ % 2];
        type(box, text);
        const Interceptor interceptor(box, typed.inRules);
        command.give();
        if (!interceptor.seen() && command.canBeOfAnotherPage)
            return;
        ++commandsGiven;
        EXPECT_EQ(interceptor.seen().value_or("no command came"), text)
            << testing_support::nameOf(&box) << ", " << command.name;
    }
    /// Tries each box of `window` that is to be seen; all of them must be among `boxes`.
    void walk(QWidget &shown, const TypedBoxes &boxes) {
        for (QWidget *box : boxesIn(shown)) {
            const std::string name = box->objectName().toStdString();
            const auto typed = boxes.find(name);
            ASSERT_NE(typed, boxes.end()) << name << " is not among the boxes of this test";
            found.insert(name);
            for (const Command &command : testing_support::commandsOf(shown, *box))
                tryCommand(*box, typed->second, command);
            type(*box, typed->second.texts[turn_ % 2]);
            QTest::keyClick(box, Qt::Key_Return);
            EXPECT_EQ(typed->second.inRules(), typed->second.texts[turn_ % 2]) << name;
        }
    }
    void walkAlone(QWidget &dialog, const TypedBoxes &boxes) {
        activate(dialog);
        walk(dialog, boxes);
        EXPECT_EQ(found, namesOf(boxes));
        EXPECT_GT(commandsGiven, 4 * static_cast<int>(boxes.size()));
    }
    static std::set<std::string> namesOf(const TypedBoxes &boxes) {
        std::set<std::string> names;
        for (const auto &[name, box] : boxes)
            names.insert(name);
        return names;
    }

    MainWindow &window;
    std::set<std::string> found;
    int commandsGiven = 0;

  private:
    std::size_t turn_ = 0;
};

TypedBox position(const upDown &control, const char *one, const char *other) {
    return {{one, other}, [&control] { return std::to_string(control.value()); }};
}

TypedBox text(const std::string &inRules) {
    return {{"12", "13"}, [&inRules] { return inRules; }};
}

std::string numbered(const char *name, std::size_t i) {
    return name + std::to_string(i);
}

TypedBoxes boxesOfThePages(frmMain &pages) {
    systemMaker &systems = pages.games.design.systems;
    TypedBoxes boxes = {
        {"txtFind", {{"12", "13"}, [&pages] { return pages.database.finder.text(); }}},
        {"txtStatStart", position(pages.statistics.updStatStart, "3", "4")},
        {"txtStatEnd", position(pages.statistics.updStatEnd, "40", "41")},
        {"txtTirNbr", position(pages.analysis.updnTirNbr, "7", "8")},
        {"txtVerifComb", position(pages.winnings.updVerifComb, "9", "10")},
        {"txtNFixedNbr", position(systems.nFixed.upDownControl, "1", "2")},
        {"txtWinNbr", position(systems.nWin.upDownControl, "4", "5")},
        {"txtChoosenNbr", position(systems.nChoosen.upDownControl, "10", "11")},
        {"txtNrandomGrid", text(pages.games.design.txtNrandomGrid)},
    };
    for (std::size_t i = 0; i < pages.winnings.txtRapPrice.size(); ++i)
        boxes[numbered("txtRapPrice_", i)] = text(pages.winnings.txtRapPrice[i]);
    for (std::size_t i = 0; i < pages.elimination.txtEliminator.size(); ++i)
        boxes[numbered("txtEliminator_", i)] = text(pages.elimination.txtEliminator[i]);
    for (std::size_t i = 0; i < pages.forecasts.txtN.size(); ++i) {
        boxes[numbered("txtPoints_", i)] = text(pages.forecasts.txtPoints[i]);
        if (pages.forecasts.visibleN[i])
            boxes[numbered("txtN_", i)] = text(pages.forecasts.txtN[i]);
        if (pages.forecasts.visibleP[i])
            boxes[numbered("txtP_", i)] = text(pages.forecasts.txtP[i]);
    }
    return boxes;
}

TEST_F(TypedTextTest, OnEachPageItIsTakenOverBeforeAnyCommand) {
    const TypedBoxes boxes = boxesOfThePages(*mainWindow);
    for (const Place &place : testing_support::placesOfMainWindow()) {
        place.goThere(window);
        for (QCheckBox *rule : window.findChildren<QCheckBox *>())
            if (rule->isVisible() && rule->objectName().startsWith(QLatin1String("chkEliminator")))
                rule->setChecked(true); // its box opens
        walk(window, boxes);
    }
    EXPECT_EQ(found, namesOf(boxes));
    EXPECT_GT(commandsGiven, 1000);
}

TEST_F(TypedTextTest, InThePreviewItIsTakenOverBeforeAnyCommand) {
    frmPrintGridPreview rules(9, [](auto &&...) {});
    GridPreviewDialog dialog(rules);
    walkAlone(dialog, {{"updnBeg", position(rules.updnBeg, "2", "3")},
                       {"updnEnd", position(rules.updnEnd, "5", "6")}});
}

TEST_F(TypedTextTest, InTheForecastTestItIsTakenOverBeforeAnyCommand) {
    frmTestProno rules;
    TestPronoDialog dialog(rules);
    const auto left = [&rules] {
        const bool told = rules.lblDescTir().find(" du & ") != std::string::npos;
        return rules.txtNumTir() + (told ? "" : ", but not left");
    };
    walkAlone(dialog, {{"txtNumTir", {{"7", "8"}, left}},
                       {"txtTirBefore", text(rules.txtTirBefore)},
                       {"txtTirAfter", text(rules.txtTirAfter)},
                       {"txtNbrCount", text(rules.txtNbrCount())}});
}

TEST_F(TypedTextTest, BesideTheGraphItIsTakenOverBeforeAnyCommand) {
    frmGraph rules;
    rules.clickManualRange();
    GraphWindow graph(rules);
    const auto limit = [](const float &setting, const char *one, const char *other) {
        return TypedBox{{one, other}, [&setting] { return plainDecimal(setting); }};
    };
    walkAlone(graph, {{"txtXMin", limit(modStats::graphXMin, "3", "4")},
                      {"txtXMax", limit(modStats::graphXMax, "40", "41")},
                      {"txtYMin", limit(modStats::graphYMin, "1", "2")},
                      {"txtYMax", limit(modStats::graphYMax, "50", "51")}});
}

TEST_F(TypedTextTest, ForRandomDrawsItIsTakenOverBeforeAnyCommand) {
    frmRandomComb rules;
    RandomCombDialog dialog(rules);
    walkAlone(dialog, {{"txtnComb", text(rules.txtnComb)}});
}

/// These windows hand over all they hold when they are confirmed.
TEST_F(TypedTextTest, TheSettingsTakeWhatIsTypedWhicheverWayTheyAreConfirmed) {
    const auto confirm = [](QDialog &dialog, QWidget &box, const char *button, bool byKey) {
        if (byKey)
            QTest::keyClick(&box, Qt::Key_Return);
        else
            click(control<QPushButton>(dialog, button));
    };
    for (const bool byKey : {false, true}) {
        const std::string number = byKey ? "1.5" : "2.5";
        for (const char *name : {"txtUnit", "txtPrice"}) {
            frmGridParam rules;
            GridParamDialog dialog(rules);
            activate(dialog);
            auto &box = control<QLineEdit>(dialog, name);
            type(box, number);
            confirm(dialog, box, "CMD_OK", byKey);
            EXPECT_EQ(name == std::string("txtUnit") ? rules.txtUnit : rules.txtPrice, number);
        }
        for (const char *name : {"txtOffsetX", "txtOffsetY"}) {
            frmPrint rules;
            PrintDialog dialog(rules);
            activate(dialog);
            auto &box = control<QLineEdit>(dialog, name);
            type(box, number);
            confirm(dialog, box, "cmdOK", byKey);
            EXPECT_EQ(name == std::string("txtOffsetX") ? rules.txtOffsetX : rules.txtOffsetY,
                      number);
        }
    }
}

} // namespace
} // namespace boulix
