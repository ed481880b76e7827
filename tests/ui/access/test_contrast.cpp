// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The contrast of every text, measured on pictures of the windows.

#include "everyWindow.h"
#include "textsOnPicture.h"
#include "ui/style/theme.h"
#include "ui/support/contrast.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest/QTest>

namespace boulix {
namespace {

using testing_support::contrast;
using testing_support::EveryWindowTest;
using testing_support::strongestContrast;
using testing_support::textsOnPicture;

constexpr double readable = 4.5;
constexpr double readableWhenLarge = 3;

/// The credits keep their own red and blue in both palettes, the red one in large letters.
bool isCredit(const testing_support::TextOnPicture &text) {
    return text.control.starts_with("picInfo_");
}

/// Letters without smoothed edges: each of their pixels has the colour of the ink.
QFont sharpFont() {
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

class ContrastTest : public EveryWindowTest, public ::testing::WithParamInterface<bool> {
  protected:
    ContrastTest() : usual_(QApplication::font()) {
        QApplication::setFont(sharpFont());
        QApplication::setPalette(GetParam() ? theme::darkPalette() : theme::lightPalette());
    }
    ~ContrastTest() override {
        QApplication::setFont(usual_);
        QApplication::setPalette(theme::lightPalette());
    }

    void expectReadable(QWidget &shown, const std::string &name) {
        const auto texts = textsOnPicture(shown);
        EXPECT_FALSE(texts.empty()) << name;
        for (const auto &text : texts) {
            EXPECT_TRUE(text.inked) << name << ": " << text.control << ": " << text.text;
            EXPECT_GE(text.contrast, isCredit(text) ? readableWhenLarge : readable)
                << name << ": " << text.control << ": " << text.text;
        }
        measured_ += texts.size();
    }

    /// One row in each list is on the colour of what is selected.
    static void selectARow(QWidget &page) {
        for (auto *list : page.findChildren<QAbstractItemView *>())
            if (list->isVisible() && list->selectionModel())
                list->selectionModel()->select(list->model()->index(1, 0),
                                               QItemSelectionModel::ClearAndSelect |
                                                   QItemSelectionModel::Rows);
    }

    std::size_t measured_ = 0;

  private:
    QFont usual_;
};

TEST_P(ContrastTest, EveryTextOfThePagesStandsOutFromItsGround) {
    lookAtEveryPage([this](QWidget &page, const std::string &name) {
        selectARow(page);
        expectReadable(page, name);
    });
    EXPECT_GT(measured_, 2000U);
}

TEST_P(ContrastTest, EveryTextOfTheMenusStandsOutFromItsGround) {
    for (QMenu *menu : window.findChildren<QMenu *>()) {
        if (menu->isEmpty())
            continue;
        for (QAction *entry : menu->actions())
            entry->setEnabled(true); // an entry that is off may be pale
        menu->popup(window.pos());
        menu->setActiveAction(menu->actions().front());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
        expectReadable(*menu, menu->title().toStdString());
        menu->close();
    }
    EXPECT_GT(measured_, 8U);
}

TEST_P(ContrastTest, EveryTextOfTheDialogsStandsOutFromItsGround) {
    lookAtEveryDialog(
        [this](QWidget &dialog, const std::string &name) { expectReadable(dialog, name); });
    EXPECT_GT(measured_, 500U);
}

/// The curve is drawn into a picture of its own, its letters too.
TEST_P(ContrastTest, TheLettersOfTheGraphStandOutFromItsGround) {
    lookAtEveryDialog([](QWidget &dialog, const std::string &name) {
        if (name != "frmGraph")
            return;
        auto &plot = control<QWidget>(dialog, "PlotPane");
        const int line = plot.fontMetrics().height();
        const QRect title(plot.width() / 4, plot.height() - line - 5, plot.width() / 2, line);
        EXPECT_GE(strongestContrast(plot.grab().toImage(), title), readable);
    });
}

INSTANTIATE_TEST_SUITE_P(Palettes, ContrastTest, ::testing::Bool(),
                         [](const auto &palette) { return palette.param ? "Dark" : "Light"; });

/// A window with a text in a colour of its own.
struct Sample {
    explicit Sample(const QColor &ink) {
        QPalette colours;
        colours.setColor(QPalette::Window, Qt::white);
        colours.setColor(QPalette::WindowText, ink);
        window.setPalette(colours);
        window.setFont(sharpFont());
        label->setText(QStringLiteral("Numéro"));
        auto *column = new QVBoxLayout(&window);
        column->addWidget(label);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    QWidget window;
    QLabel *label = new QLabel(&window);
};

TEST(ContrastOnPictures, IsThatOfTheInkOnTheGround) {
    EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(contrast(Qt::white, Qt::white), 1);
    Sample sample(QColor(0x80, 0x80, 0x80));
    const auto texts = textsOnPicture(sample.window);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].text, "Numéro");
    EXPECT_TRUE(texts[0].inked);
    EXPECT_NEAR(texts[0].contrast, 3.95, 0.01);
}

TEST(ContrastOnPictures, LeavesOutWhatIsSwitchedOffOrCovered) {
    Sample sample(Qt::black);
    sample.label->setEnabled(false);
    EXPECT_TRUE(textsOnPicture(sample.window).empty());
    sample.label->setEnabled(true);
    QWidget cover(&sample.window);
    cover.setAutoFillBackground(true);
    cover.setGeometry(sample.window.rect());
    cover.show();
    EXPECT_TRUE(textsOnPicture(sample.window).empty());
}

TEST(ContrastOnPictures, FindsALetterThatIsNotThere) {
    Sample sample(QColor(0, 0, 0, 0));
    const auto texts = textsOnPicture(sample.window);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_FALSE(texts[0].inked);
}

} // namespace
} // namespace boulix
