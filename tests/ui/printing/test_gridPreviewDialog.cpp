// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The preview of a print run on the screen: what each control does to what comes out on paper.

#include "printing/modPrinter.h"
#include "printing/slipRun.h"
#include "ui/printing/qtPrintWindows.h"
#include "ui/support/screenTest.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QToolBar>
#include <QWindow>
#include <QtTest/QTest>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace boulix {
namespace {

using testing_support::Drawn;
using testing_support::PrintedDocument;

/// A cross by its first line.
using Mark = std::array<double, 4>;
using Marks = std::vector<Mark>;

constexpr Mark eitherDay = {55.5, 57, 58.3, 61};
constexpr Mark bothDays = {55.5, 70, 58.3, 61};
constexpr Mark noJoker = {99, 78, 101.8, 82};
constexpr Mark joker = {99, 69, 101.8, 82};
constexpr std::array<Mark, 4> weeks = {
    {{129, 65, 131.8, 69}, {129, 71, 131.8, 75}, {148, 65, 150.8, 69}, {148, 71, 150.8, 75}}};

/// A user who prints nineteen grids: three slips, the last with three of them.
class GridPreviewTest : public ScreenTest {
  protected:
    static constexpr std::int32_t gridCount = 19;

    GridPreviewTest() {
        setPrintWindows(&windows);
        modPrinter::direction = modPrinter::directionUp;
        modPrinter::offset_X = 0;
        modPrinter::offset_Y = 0;
    }
    ~GridPreviewTest() override { setPrintWindows(nullptr); }

    /// Opens the preview, lets the user act in it, and returns once it is closed. Each grid that is
    /// drawn counts; a grid is a cross in the box of its own number.
    void preview(const std::function<void(QWidget &)> &act) {
        drawnGrids.clear();
        robot.in("frmPrintGridPreview", [act](QWidget &dialog) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            act(dialog);
        });
        slipRun::run(gridCount, slipRun::Sheets::slips,
                     [this](std::int32_t grid, std::int16_t position, Canvas &target,
                            slip::Placement placement) {
                         drawnGrids.push_back(grid);
                         const auto n = static_cast<std::int16_t>(grid);
                         if (placement.mode == slip::onPicture)
                             slip::drawGrid(target, {n, n, n, n, n, n}, position, placement);
                     });
    }

    static void pressButton(QWidget &dialog, int button) {
        auto &bar = control<QToolBar>(dialog, "tbarPrint");
        click(*bar.widgetForAction(
            &control<QAction>(dialog, ("tbarPrint_" + std::to_string(button)).c_str())));
    }
    static void print(QWidget &dialog) { pressButton(dialog, 3); }
    static void clickOn(QWidget &dialog, const std::string &name) {
        // In its indicator: the rest of a wide row may be bare ground.
        auto &button = control<QAbstractButton>(dialog, name.c_str());
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    }
    /// A button that is reached by its key is shown pressed for a moment before it acts.
    static constexpr int afterMnemonic = 250; // milliseconds
    static void alt(QWidget &dialog, Qt::Key key) {
        QTest::keyClick(dialog.windowHandle(), key, Qt::AltModifier);
        QTest::qWait(afterMnemonic);
    }
    static std::string panel(const QWidget &dialog, int n) {
        return control<QLabel>(dialog, ("StatusBar_" + std::to_string(n)).c_str())
            .text()
            .toStdString();
    }
    static std::string panels(const QWidget &dialog) {
        return panel(dialog, 1) + " | " + panel(dialog, 2);
    }
    static void clickArrow(QSpinBox &box, QStyle::SubControl arrow) {
        QStyleOptionSpinBox option;
        option.initFrom(&box);
        option.subControls = QStyle::SC_All;
        const QRect place = box.style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, &box);
        QTest::mouseClick(&box, Qt::LeftButton, {}, place.center());
    }

    /// The option marks of the first page of the only document; every page has the same.
    Marks printedMarks() const {
        Marks marks;
        const std::vector<Drawn> lines = printers.onlyDocument().ofKind(Drawn::line);
        for (std::size_t i = 0; i < lines.size() && lines[i].page == 1; i += 2)
            marks.push_back({rounded(lines[i].x1), rounded(lines[i].y1), rounded(lines[i].x2),
                             rounded(lines[i].y2)});
        return marks;
    }
    static double rounded(double millimetres) { return std::round(millimetres * 100) / 100; }

    /// Whether the picture shows a cross in the box of `number` on grid `position`: the dark of its
    /// two lines where no other line and no text of the slip comes.
    static bool crossed(const QWidget &dialog, int position, int number) {
        auto &view = control<QWidget>(dialog, "picGrid");
        const QImage image = view.grab().toImage();
        const double scale = std::min(image.width() / 153.0, image.height() / 54.0);
        const QPointF origin((image.width() - 153 * scale) / 2, (image.height() - 54 * scale) / 2);
        const double left = number / 10 * 3.8 + (position - 1) * 19 + 1 + 0.5;
        const double top = number % 10 * 5 + 1 + 1;
        const QPointF onTheLine = origin + scale * QPointF(left + 2.8 / 5, top + 4.0 / 5);
        return image.pixelColor(onTheLine.toPoint()).lightness() < 100;
    }

    QtPrintWindows windows;
    std::vector<std::int32_t> drawnGrids;
};

TEST_F(GridPreviewTest, OpensOnTheWholeGameWithNoOptionTaken) {
    preview([](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Prévisualisation de l'impression");
        EXPECT_EQ(control<QSpinBox>(dialog, "updnBeg").value(), 1);
        EXPECT_EQ(control<QSpinBox>(dialog, "updnEnd").value(), 19);
        EXPECT_EQ(control<QLineEdit>(dialog, "lblBeg").text().toStdString(), "1");
        EXPECT_EQ(control<QLineEdit>(dialog, "lblEnd").text().toStdString(), "19");
        EXPECT_FALSE(control<QCheckBox>(dialog, "chkAbon").isChecked());
        EXPECT_FALSE(control<QGroupBox>(dialog, "frameAbon").isEnabled());
        EXPECT_TRUE(control<QRadioButton>(dialog, "optWedOrSat").isChecked());
        EXPECT_TRUE(control<QRadioButton>(dialog, "optPlayJokerNo").isChecked());
        EXPECT_EQ(panels(dialog), "19 combinaisons à imprimer | Grille 1 de 3");
        dialog.close();
    });
}

TEST_F(GridPreviewTest, EveryControlSaysWhatItIs) {
    preview([](QWidget &dialog) {
        const std::vector<std::pair<const char *, const char *>> captions = {
            {"chkAbon", "Abonnement"},
            {"optWeek_0", "2 Semaines"},
            {"optWeek_1", "3 Semaines"},
            {"optWeek_2", "4 Semaines"},
            {"optWeek_3", "5 Semaines"},
            {"optPlayJokerYes", "Participation au Joker"},
            {"optPlayJokerNo", "Pas de participation au Joker"},
            {"optWedAndSat", "Tirage Mercredi et Samedi"},
            {"optWedOrSat", "Tirage Mercredi ou Samedi"}};
        for (const auto &[name, caption] : captions)
            EXPECT_EQ(control<QAbstractButton>(dialog, name)
                          .text()
                          .remove(QLatin1Char('&'))
                          .toStdString(),
                      caption);
        QStringList labels;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            labels << label->text().remove(QLatin1Char('&'));
        EXPECT_TRUE(labels.contains(QStringLiteral("Première grille")));
        EXPECT_TRUE(labels.contains(QStringLiteral("Dernière grille")));
        EXPECT_EQ(control<QToolBar>(dialog, "tbarPrint").actions().size(), 6);
        dialog.close();
    });
}

TEST_F(GridPreviewTest, EachOptionIsMarkedOnThePaper) {
    const std::vector<std::pair<std::vector<std::string>, Marks>> table = {
        {{}, {eitherDay, noJoker}},
        {{"optWedAndSat"}, {bothDays, noJoker}},
        {{"optWedAndSat", "optWedOrSat"}, {eitherDay, noJoker}},
        {{"optPlayJokerYes"}, {eitherDay, joker}},
        {{"optPlayJokerYes", "optPlayJokerNo"}, {eitherDay, noJoker}},
        {{"chkAbon"}, {eitherDay, noJoker, weeks[1]}},
        {{"chkAbon", "optWeek_0"}, {eitherDay, noJoker, weeks[0]}},
        {{"chkAbon", "optWeek_3", "optWeek_1"}, {eitherDay, noJoker, weeks[1]}},
        {{"chkAbon", "optWeek_2"}, {eitherDay, noJoker, weeks[2]}},
        {{"chkAbon", "optWeek_3"}, {eitherDay, noJoker, weeks[3]}},
        {{"chkAbon", "optWeek_3", "chkAbon"}, {eitherDay, noJoker}},
        {{"chkAbon", "optWeek_3", "chkAbon", "chkAbon"}, {eitherDay, noJoker, weeks[3]}},
        {{"optWeek_3"}, {eitherDay, noJoker}},
    };
    for (const auto &[clicks, marks] : table) {
        printers.documents.clear();
        preview([&names = clicks](QWidget &dialog) {
            for (const std::string &name : names)
                clickOn(dialog, name);
            print(dialog);
        });
        EXPECT_EQ(printedMarks(), marks) << ::testing::PrintToString(clicks);
    }
}

TEST_F(GridPreviewTest, EachOptionHasItsKey) {
    const std::vector<std::pair<std::vector<Qt::Key>, Marks>> table = {
        {{Qt::Key_M}, {bothDays, noJoker}},
        {{Qt::Key_M, Qt::Key_O}, {eitherDay, noJoker}},
        {{Qt::Key_J}, {eitherDay, joker}},
        {{Qt::Key_J, Qt::Key_K}, {eitherDay, noJoker}},
        {{Qt::Key_B}, {eitherDay, noJoker, weeks[1]}},
        {{Qt::Key_B, Qt::Key_2}, {eitherDay, noJoker, weeks[0]}},
        {{Qt::Key_B, Qt::Key_4}, {eitherDay, noJoker, weeks[2]}},
        {{Qt::Key_B, Qt::Key_5, Qt::Key_3}, {eitherDay, noJoker, weeks[1]}},
        {{Qt::Key_B, Qt::Key_5}, {eitherDay, noJoker, weeks[3]}},
    };
    for (const auto &[keys, marks] : table) {
        printers.documents.clear();
        preview([&pressed = keys](QWidget &dialog) {
            for (const Qt::Key key : pressed)
                alt(dialog, key);
            alt(dialog, Qt::Key_I);
        });
        EXPECT_EQ(printedMarks(), marks) << ::testing::PrintToString(keys);
    }
}

TEST_F(GridPreviewTest, AWeekIsShownAloneAndComesBackWithTheTick) {
    preview([](QWidget &dialog) {
        const auto on = [&dialog] {
            std::string weeksOn;
            for (int i = 0; i < 4; ++i)
                weeksOn += control<QRadioButton>(dialog, ("optWeek_" + std::to_string(i)).c_str())
                                   .isChecked()
                               ? '1'
                               : '0';
            return weeksOn;
        };
        EXPECT_EQ(on(), "0000");
        clickOn(dialog, "chkAbon");
        EXPECT_TRUE(control<QGroupBox>(dialog, "frameAbon").isEnabled());
        EXPECT_EQ(on(), "0100");
        clickOn(dialog, "optWeek_2");
        EXPECT_EQ(on(), "0010");
        clickOn(dialog, "chkAbon");
        EXPECT_EQ(on(), "0000");
        EXPECT_FALSE(control<QGroupBox>(dialog, "frameAbon").isEnabled());
        clickOn(dialog, "chkAbon");
        EXPECT_EQ(on(), "0010");
        dialog.close();
    });
}

TEST_F(GridPreviewTest, TheSlipsAreTurnedByButtonsAndKeys) {
    preview([](QWidget &dialog) {
        const std::vector<std::pair<std::function<void()>, int>> table = {
            {[&] { pressButton(dialog, 1); }, 1}, {[&] { pressButton(dialog, 2); }, 2},
            {[&] { pressButton(dialog, 2); }, 3}, {[&] { pressButton(dialog, 2); }, 3},
            {[&] { pressButton(dialog, 1); }, 2}, {[&] { alt(dialog, Qt::Key_S); }, 3},
            {[&] { alt(dialog, Qt::Key_R); }, 2}, {[&] { alt(dialog, Qt::Key_R); }, 1},
        };
        for (const auto &[turn, slip] : table) {
            turn();
            EXPECT_EQ(panels(dialog),
                      "19 combinaisons à imprimer | Grille " + std::to_string(slip) + " de 3");
        }
        dialog.close();
    });
}

TEST_F(GridPreviewTest, ThePictureShowsTheGridsOfTheSlip) {
    preview([](QWidget &dialog) {
        for (int grid = 1; grid <= 8; ++grid)
            for (int number = 1; number <= 20; ++number)
                EXPECT_EQ(crossed(dialog, grid, number), number == grid)
                    << "number " << number << " of grid " << grid;
        pressButton(dialog, 2);
        EXPECT_TRUE(crossed(dialog, 1, 9));
        EXPECT_FALSE(crossed(dialog, 1, 1));
        EXPECT_TRUE(crossed(dialog, 8, 16));
        pressButton(dialog, 2);
        EXPECT_TRUE(crossed(dialog, 3, 19));
        EXPECT_FALSE(crossed(dialog, 4, 20));
        dialog.close();
    });
}

TEST_F(GridPreviewTest, TheRangeIsPrintedAsItsTwoCountersSay) {
    const auto choose = [](QWidget &dialog, const char *name, const QString &number) {
        auto &box = control<QSpinBox>(dialog, name);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, number);
        QTest::keyClick(&box, Qt::Key_Tab);
    };
    preview([&](QWidget &dialog) {
        choose(dialog, "updnBeg", QStringLiteral("3"));
        EXPECT_EQ(panels(dialog), "17 combinaisons à imprimer | Grille 1 de 3");
        EXPECT_EQ(control<QSpinBox>(dialog, "updnEnd").minimum(), 3);
        choose(dialog, "updnEnd", QStringLiteral("11"));
        EXPECT_EQ(panels(dialog), "9 combinaisons à imprimer | Grille 1 de 2");
        EXPECT_EQ(control<QSpinBox>(dialog, "updnBeg").maximum(), 11);
        pressButton(dialog, 2);
        EXPECT_TRUE(crossed(dialog, 1, 11));
        print(dialog);
    });
    const PrintedDocument &document = printers.onlyDocument();
    EXPECT_EQ(document.pages, 2);
    EXPECT_TRUE(document.ended);
    const std::vector<std::int32_t> asked = {3, 4, 5, 6, 7, 8, 9, 10, 11};
    ASSERT_GE(drawnGrids.size(), asked.size());
    EXPECT_EQ(std::vector<std::int32_t>(drawnGrids.end() - 9, drawnGrids.end()), asked);
}

TEST_F(GridPreviewTest, TheCountersHaveArrowsAndKeysAndStopAtOneAnother) {
    preview([](QWidget &dialog) {
        auto &first = control<QSpinBox>(dialog, "updnBeg");
        auto &last = control<QSpinBox>(dialog, "updnEnd");
        clickArrow(last, QStyle::SC_SpinBoxDown);
        EXPECT_EQ(panels(dialog), "18 combinaisons à imprimer | Grille 1 de 3");
        clickArrow(last, QStyle::SC_SpinBoxUp);
        clickArrow(last, QStyle::SC_SpinBoxUp);
        EXPECT_EQ(panels(dialog), "19 combinaisons à imprimer | Grille 1 de 3");
        clickArrow(first, QStyle::SC_SpinBoxUp);
        EXPECT_EQ(panels(dialog), "18 combinaisons à imprimer | Grille 1 de 3");
        alt(dialog, Qt::Key_D);
        EXPECT_TRUE(last.hasFocus());
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(&last, Qt::Key_Down);
        EXPECT_EQ(panels(dialog), "1 combinaisons à imprimer | Grille 1 de 1");
        EXPECT_EQ(last.value(), 2) << "the last grid stops at the first one";
        alt(dialog, Qt::Key_G);
        EXPECT_TRUE(first.hasFocus());
        QTest::keyClick(&first, Qt::Key_Up);
        EXPECT_EQ(first.value(), 2) << "and the first one at the last one";
        dialog.close();
    });
}

TEST_F(GridPreviewTest, AShorterRangeBringsBackASlipThatExists) {
    preview([](QWidget &dialog) {
        pressButton(dialog, 2);
        pressButton(dialog, 2);
        auto &last = control<QSpinBox>(dialog, "updnEnd");
        for (int i = 0; i < 11; ++i)
            QTest::keyClick(&last, Qt::Key_Down);
        EXPECT_EQ(panels(dialog), "8 combinaisons à imprimer | Grille 1 de 1");
        EXPECT_TRUE(crossed(dialog, 8, 8));
        dialog.close();
    });
}

TEST_F(GridPreviewTest, OnlyTheOrderToPrintPrints) {
    const std::vector<std::pair<const char *, std::function<void(QWidget &)>>> ways = {
        {"button", [](QWidget &dialog) { pressButton(dialog, 4); }},
        {"mnemonic", [](QWidget &dialog) { alt(dialog, Qt::Key_A); }},
        {"Escape", [](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }},
        {"close box", [](QWidget &dialog) { dialog.close(); }},
    };
    for (const auto &[name, leave] : ways) {
        preview([&way = leave](QWidget &dialog) {
            clickOn(dialog, "chkAbon");
            pressButton(dialog, 2);
            way(dialog);
            EXPECT_FALSE(dialog.isVisible());
        });
        EXPECT_TRUE(printers.documents.empty()) << name;
    }
    const std::vector<std::function<void(QWidget &)>> orders = {
        [](QWidget &dialog) { pressButton(dialog, 3); },
        [](QWidget &dialog) { alt(dialog, Qt::Key_I); },
        [](QWidget &dialog) {
            QTest::keyClick(dialog.windowHandle(), Qt::Key_P, Qt::ControlModifier);
        },
    };
    for (std::size_t i = 0; i < orders.size(); ++i) {
        preview(orders[i]);
        ASSERT_EQ(printers.documents.size(), i + 1);
        EXPECT_TRUE(printers.documents.back().ended);
        EXPECT_EQ(printers.documents.back().pages, 3);
    }
}

TEST_F(GridPreviewTest, ThePrinterIsChosenFromHereAndThePreviewStays) {
    printers.names = {"Bureau", "Salon"};
    for (const bool byKey : {false, true}) {
        robot.in("frmPrintGridPreview", [byKey](QWidget &dialog) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            clickOn(dialog, "optPlayJokerYes");
            if (byKey)
                alt(dialog, Qt::Key_P);
            else
                pressButton(dialog, 5);
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_TRUE(control<QRadioButton>(dialog, "optPlayJokerYes").isChecked());
            print(dialog);
        });
        robot.in("frmPrint", [byKey](QWidget &settings) {
            control<QComboBox>(settings, "cmbPrinter").setCurrentIndex(byKey ? 0 : 1);
            click(control<QAbstractButton>(settings, "cmdOK"));
        });
        printers.documents.clear();
        slipRun::run(1, slipRun::Sheets::slips, [](auto, auto, auto &, auto) {});
        EXPECT_EQ(printers.onlyDocument().printer, byKey ? "Bureau" : "Salon");
        EXPECT_EQ(printedMarks(), (Marks{eitherDay, joker}));
    }
}

} // namespace
} // namespace boulix
