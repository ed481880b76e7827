// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The forecast test in its window: each control by mouse and by keyboard.

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "forecasts/pronostics.h"
#include "sill/appInfo.h"
#include "support/lottery.h"
#include "ui/forecasts/testPronoDialog.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/reportView.h"
#include "ui/widgets/upDownView.h"
#include "workbench/frmTestProno.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>
#include <QtTest/QTest>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace boulix {
namespace {

using Texts = std::vector<std::string>;

/// Ten draws from 1 January 2000 on that hold the numbers 1 to 7, the last but one with 49 among
/// them, and one rule that gives every number the same points: the best six are 44 to 49.
class TestPronoDialogTest : public ScreenTest {
  protected:
    TestPronoDialogTest() {
        gAppInfo->init("", "", "", 2003);
        for (int i = 1; i <= 10; ++i)
            addDraw(i == 9 ? SevenNumbers{1, 2, 3, 4, 5, 6, 49}
                           : SevenNumbers{1, 2, 3, 4, 5, 6, 7});
        gDbCombs->Item(2).id(2);
        pronos rule;
        rule.label("x");
        rule.pronoType(4);
        rule.n(100);
        rule.p(1);
        rule.nPoint(1);
        rule.enableN(true);
        rule.enableP(true);
        gPronostics->Add(rule);
        rules = std::make_unique<frmTestProno>();
        dialog = std::make_unique<TestPronoDialog>(*rules);
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    ~TestPronoDialogTest() override {
        dialog.reset();
        rules.reset();
    }

    QLineEdit &box(const char *name) { return control<QLineEdit>(*dialog, name); }
    std::string text(const char *name) { return box(name).text().toStdString(); }
    std::string description() {
        return control<QLabel>(*dialog, "lblDescTir").text().toStdString();
    }
    ReportView &list() { return control<ReportView>(*dialog, "lvWResult"); }
    Texts column(int column) {
        Texts texts;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            texts.push_back(list().model()->index(row, column).data().toString().toStdString());
        return texts;
    }
    void type(const char *name, const char *words) {
        box(name).setFocus();
        box(name).selectAll();
        QTest::keyClicks(&box(name), QString::fromLatin1(words));
    }
    void fill(const char *draw, const char *before, const char *after, const char *best) {
        type("txtNumTir", draw);
        type("txtTirBefore", before);
        type("txtTirAfter", after);
        type("txtNbrCount", best);
    }
    /// A button that is reached by its key is shown pressed for a moment before it acts.
    static constexpr int afterMnemonic = 250; // milliseconds
    void alt(Qt::Key key) {
        QTest::keyClick(dialog->windowHandle(), key, Qt::AltModifier);
        QTest::qWait(afterMnemonic);
    }
    void pressButton(int button) {
        auto &bar = control<QToolBar>(*dialog, "toolBar");
        const std::string name = "toolBar_" + std::to_string(button);
        click(*bar.widgetForAction(&control<QAction>(*dialog, name.c_str())));
    }
    void clickHeader(int column) {
        const QHeaderView &header = *list().header();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(header.sectionViewportPosition(column) + 5, 5));
    }

    std::unique_ptr<frmTestProno> rules;
    std::unique_ptr<TestPronoDialog> dialog;
};

TEST_F(TestPronoDialogTest, EverythingSaysWhatItIs) {
    EXPECT_EQ(dialog->windowTitle().toStdString(), "Test de Pronostiques");
    QStringList labels;
    for (const QLabel *label : dialog->findChildren<QLabel *>())
        labels << label->text().remove(QLatin1Char('&'));
    for (const char *told :
         {"Etablir le pronostique sur la base du tirage", "Tester le pronostique pour",
          "tirages avant ce tirage", "tirages après ce tirage", "Considérer les ",
          "meilleurs numéros issus du pronostique"})
        EXPECT_TRUE(labels.contains(QString::fromUtf8(told))) << told;
    const auto &model = *list().model();
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString().toStdString(), "Tirage");
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString().toStdString(), "Nombre de numéros");
    EXPECT_EQ(text("txtNumTir"), "10");
    EXPECT_EQ(description(), "Tirage N° 1 du 10-01-2000");
    for (const char *empty : {"txtTirBefore", "txtTirAfter", "txtNbrCount"})
        EXPECT_EQ(text(empty), "") << empty;
}

TEST_F(TestPronoDialogTest, TheArrowsWalkRoundTheDraws) {
    auto &arrows = control<UpDownView>(*dialog, "spnTir");
    const auto buttons = arrows.findChildren<QToolButton *>();
    ASSERT_EQ(buttons.size(), 2);
    const auto up = [&] { click(*buttons[0]); };
    const auto down = [&] { click(*buttons[1]); };
    const auto upKey = [&] { QTest::keyClick(&arrows, Qt::Key_Up); };
    const auto downKey = [&] { QTest::keyClick(&arrows, Qt::Key_Down); };
    const std::vector<std::tuple<std::function<void()>, std::string, std::string>> table = {
        {up, "1", "Tirage N° 1 du & 01-01-2000"},    {up, "2", "Tirage N° 2 du & 02-01-2000"},
        {down, "1", "Tirage N° 1 du 01-01-2000"},    {down, "10", "Tirage N° 1 du 10-01-2000"},
        {upKey, "1", "Tirage N° 1 du & 01-01-2000"}, {upKey, "2", "Tirage N° 2 du & 02-01-2000"},
        {downKey, "1", "Tirage N° 1 du 01-01-2000"}, {downKey, "10", "Tirage N° 1 du 10-01-2000"},
    };
    for (const auto &[step, draw, words] : table) {
        step();
        EXPECT_EQ(text("txtNumTir"), draw);
        EXPECT_EQ(description(), words);
    }
}

TEST_F(TestPronoDialogTest, ATypedDrawIsDescribedAtOnceAndOneThatIsNoneIsNot) {
    type("txtNumTir", "2");
    EXPECT_EQ(description(), "Tirage N° 2 du 02-01-2000");
    type("txtNumTir", "11");
    EXPECT_EQ(text("txtNumTir"), "11");
    EXPECT_EQ(description(), "Tirage N° 1 du 01-01-2000") << "that of the first digit";
    type("txtNumTir", "x");
    EXPECT_EQ(description(), "Tirage N° 1 du 01-01-2000");
}

TEST_F(TestPronoDialogTest, EveryBoxIsReachedByTheKeyOfItsLabel) {
    const std::vector<std::pair<Qt::Key, const char *>> table = {{Qt::Key_T, "txtNumTir"},
                                                                 {Qt::Key_V, "txtTirBefore"},
                                                                 {Qt::Key_P, "txtTirAfter"},
                                                                 {Qt::Key_M, "txtNbrCount"}};
    for (const auto &[key, name] : table) {
        alt(key);
        EXPECT_EQ(dialog->focusWidget(), &box(name)) << name;
    }
}

TEST_F(TestPronoDialogTest, TheResultIsListedByButtonMnemonicAndKey) {
    const std::vector<std::function<void()>> ways = {
        [this] { pressButton(1); }, [this] { alt(Qt::Key_L); },
        [this] { QTest::keyClick(dialog->windowHandle(), Qt::Key_F5); }};
    for (const auto &compute : ways) {
        rules->lvWResult.clear();
        fill("9", "1", "5", "6");
        compute();
        EXPECT_EQ(column(0),
                  (Texts{"Tirage N° 0008 du 08-01-2000 - 1", "Tirage N° 0009 du 09-01-2000 - 1",
                         "Tirage N° 0010 du 10-01-2000 - 1"}));
        EXPECT_EQ(column(1), (Texts{"0", "1", "0"})) << "49 is the complementary number of one";
    }
}

TEST_F(TestPronoDialogTest, EachBoxIsItsOwnPartOfTheQuestion) {
    fill("3", "10", "2", "49");
    pressButton(1);
    EXPECT_EQ(column(0),
              (Texts{"Tirage N° 0001 du 01-01-2000 - 1", "Tirage N° 0002 du 02-01-2000 - 2",
                     "Tirage N° 0003 du 03-01-2000 - 1", "Tirage N° 0004 du 04-01-2000 - 1",
                     "Tirage N° 0005 du 05-01-2000 - 1"}));
    EXPECT_EQ(column(1), (Texts{"7", "7", "7", "7", "7"}));
}

TEST_F(TestPronoDialogTest, AClickOnAHeaderSortsTheListByThatColumn) {
    fill("9", "1", "5", "6");
    pressButton(1);
    clickHeader(1);
    EXPECT_EQ(column(1), (Texts{"0", "0", "1"}));
    clickHeader(1);
    EXPECT_EQ(column(1), (Texts{"1", "0", "0"}));
    clickHeader(0);
    EXPECT_EQ(column(0),
              (Texts{"Tirage N° 0008 du 08-01-2000 - 1", "Tirage N° 0009 du 09-01-2000 - 1",
                     "Tirage N° 0010 du 10-01-2000 - 1"}));
}

TEST_F(TestPronoDialogTest, AMissingOrImpossibleValueIsToldAndTheListStays) {
    fill("9", "0", "0", "6");
    pressButton(1);
    const Texts before = column(0);
    const std::vector<std::array<const char *, 4>> table = {
        {"", "1", "1", "6"},  {"9", " ", "1", "6"},  {"9", "1", "", "6"},  {"9", "1", "1", "  "},
        {"0", "1", "1", "6"}, {"11", "1", "1", "6"}, {"9", "1", "1", "0"}, {"9", "1", "1", "50"}};
    for (const auto &[draw, past, after, best] : table) {
        for (const char *name : {"txtNumTir", "txtTirBefore", "txtTirAfter", "txtNbrCount"}) {
            type(name, "1");
            QTest::keyClick(&box(name), Qt::Key_Backspace);
        }
        fill(draw, past, after, best);
        robot.box("Veuillez remplir tous les champs correctement", "boulix",
                  QMessageBox::Information);
        pressButton(1);
        robot.finish();
        EXPECT_EQ(column(0), before);
    }
}

TEST_F(TestPronoDialogTest, TheWindowIsLeftByButtonMnemonicEscapeAndCloseBox) {
    const std::vector<std::function<void()>> ways = {
        [this] { pressButton(2); }, [this] { alt(Qt::Key_Q); },
        [this] { QTest::keyClick(dialog.get(), Qt::Key_Escape); }, [this] { dialog->close(); }};
    for (const auto &leave : ways) {
        dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        leave();
        EXPECT_FALSE(dialog->isVisible());
    }
    EXPECT_TRUE(printers.documents.empty());
}

} // namespace
} // namespace boulix
