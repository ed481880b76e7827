// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/style/theme.h"
#include "ui/support/contrast.h"
#include "ui/support/screenTest.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabWidget>
#include <QWindow>
#include <QtTest/QTest>

#include <algorithm>
#include <vector>

namespace boulix {
namespace {

using testing_support::contrast;

class ThemeTest : public ScreenTest {
  protected:
    ~ThemeTest() override { QApplication::setPalette(theme::lightPalette()); }

    /// The six pages as they are on the screen.
    std::vector<QImage> pictures(MainWindow &window) {
        auto &tabs = control<QTabWidget>(window, "TabStrip");
        std::vector<QImage> pages;
        for (int tab = 0; tab < tabs.count(); ++tab) {
            tabs.setCurrentIndex(tab);
            QApplication::processEvents();
            pages.push_back(window.grab().toImage());
        }
        return pages;
    }
};

TEST(Theme, TextsCanBeReadInBothPalettes) {
    for (const QPalette &palette : {theme::lightPalette(), theme::darkPalette()}) {
        const auto colour = [&](QPalette::ColorRole role) {
            return palette.color(QPalette::Active, role);
        };
        for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase,
                                  QPalette::Button, QPalette::ToolTipBase}) {
            EXPECT_GE(contrast(colour(QPalette::Text), colour(ground)), 7) << "role " << ground;
            EXPECT_GE(contrast(colour(QPalette::PlaceholderText), colour(ground)), 4.5)
                << "role " << ground;
            EXPECT_GE(contrast(palette.color(QPalette::Disabled, QPalette::Text), colour(ground)),
                      2.7)
                << "role " << ground;
        }
        EXPECT_GE(contrast(colour(QPalette::HighlightedText), colour(QPalette::Highlight)), 4.5);
        EXPECT_GE(contrast(colour(QPalette::Link), colour(QPalette::Base)), 4.5);
        EXPECT_GE(contrast(theme::accent, colour(QPalette::Window)), 3);
        EXPECT_GE(contrast(theme::alarm, colour(QPalette::Window)), 3);
    }
    EXPECT_GE(contrast(theme::ink, theme::paper), 7);
}

TEST(Theme, TheTwoPalettesAreToldApart) {
    EXPECT_FALSE(theme::isDark(theme::lightPalette()));
    EXPECT_TRUE(theme::isDark(theme::darkPalette()));
}

TEST(Theme, ABlendLiesBetweenItsColours) {
    EXPECT_EQ(theme::blend(Qt::black, Qt::white, 0.0), QColor(Qt::black));
    EXPECT_EQ(theme::blend(Qt::black, Qt::white, 1.0), QColor(Qt::white));
    EXPECT_EQ(theme::blend(QColor(0, 100, 200), QColor(100, 200, 0), 0.5), QColor(50, 150, 100));
}

TEST_F(ThemeTest, AWindowTakesTheDarkPaletteWhileItIsOnTheScreen) {
    MainWindow &before = start();
    QApplication::setPalette(theme::darkPalette());
    const std::vector<QImage> changed = pictures(before);
    forget();
    const std::vector<QImage> fresh = pictures(start());
    ASSERT_EQ(changed.size(), fresh.size());
    for (std::size_t page = 0; page < fresh.size(); ++page)
        EXPECT_TRUE(changed[page] == fresh[page]) << "page " << page;
}

TEST_F(ThemeTest, TheDesktopIsFollowedWhenItChangesItsTheme) {
    const MainWindow &window = start();
    QApplication::setPalette(theme::darkPalette()); // the desktop of the tests is light
    QEvent changed(QEvent::ThemeChange);
    QCoreApplication::sendEvent(window.windowHandle(), &changed);
    EXPECT_EQ(QApplication::palette(), theme::lightPalette());
}

TEST(Style, TheOutlinesOfChecksAndRadioButtonsShowOnADarkGround) {
    for (const auto mark : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        QStyleOptionButton option;
        option.rect = {0, 0, 15, 15};
        option.palette = theme::darkPalette();
        option.state = QStyle::State_Enabled | QStyle::State_Off;
        QImage picture(15, 15, QImage::Format_RGB32);
        const QColor ground = option.palette.color(QPalette::Window);
        picture.fill(ground);
        QPainter painter(&picture);
        QApplication::style()->drawPrimitive(mark, &option, &painter);
        painter.end();
        const double best = std::max(contrast(picture.pixelColor(0, 7), ground),
                                     contrast(picture.pixelColor(1, 7), ground));
        EXPECT_GE(best, 3) << "mark " << mark;
    }
}

TEST_F(ThemeTest, TheButtonWithTheFocusHasARing) {
    QWidget window;
    QPushButton plain(QStringLiteral("Un"), &window);
    QPushButton focused(QStringLiteral("Deux"), &window);
    plain.setGeometry(10, 10, 100, 30);
    focused.setGeometry(10, 50, 100, 30);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    focused.setFocus();
    const QColor ink = window.palette().color(QPalette::WindowText);
    EXPECT_EQ(focused.grab().toImage().pixelColor(1, 15), ink);
    EXPECT_NE(plain.grab().toImage().pixelColor(1, 15), ink);
}

TEST_F(ThemeTest, TheDefaultButtonStandsOutUnlessItIsDisabled) {
    QPushButton button(QStringLiteral("OK"));
    const auto ground = [&] { return button.grab().toImage().pixelColor(6, 6); };
    const QColor plain = ground();
    button.setDefault(true);
    EXPECT_EQ(ground(), button.palette().color(QPalette::Highlight));
    button.setEnabled(false);
    EXPECT_NE(ground(), button.palette().color(QPalette::Highlight));
    EXPECT_NE(ground(), plain) << "disabled";
}

} // namespace
} // namespace boulix
