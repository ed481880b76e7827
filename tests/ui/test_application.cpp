// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "ui/application.h"
#include "ui/iconLoader.h"
#include "ui/support/screenTest.h"
#include "ui/theme.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QtTest/QTest>

#include <cmath>
#include <functional>
#include <new>
#include <utility>

namespace boulix {
namespace {

class ApplicationTest : public ScreenTest {};

/// An object whose event fails. It is no click on a button: an exception on its way through the
/// mouse handling of Qt leaves memory behind there.
class FailingObject : public QObject {
  public:
    explicit FailingObject(std::function<void()> action) : action_(std::move(action)) {}

    bool event(QEvent *) override {
        action_();
        return true;
    }
    void trigger() {
        QEvent user(QEvent::User);
        QCoreApplication::sendEvent(this, &user);
    }

  private:
    std::function<void()> action_;
};

TEST_F(ApplicationTest, AFailureThatNoCommandTookIsShownAndTheProgramLivesOn) {
    MainWindow &window = start();
    robot.in("messageBox", [](QWidget &box) {
        EXPECT_EQ(box.windowTitle().toStdString(), "Boulix Erreur système N° 61");
        click(*box.findChild<QPushButton *>());
    });
    FailingObject([] { fail(Failure::diskFull); }).trigger();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ApplicationTest, MemoryThatRunsOutIsShownInTheSameForm) {
    robot.in("messageBox", [](QWidget &box) {
        EXPECT_EQ(box.windowTitle().toStdString(), "Boulix Erreur système N° 7");
        click(*box.findChild<QPushButton *>());
    });
    FailingObject([] { throw std::bad_alloc(); }).trigger();
}

TEST_F(ApplicationTest, TheBoxesHaveIconsOfTheFamily) {
    const auto drawn = [](const QIcon &icon) { return icon.pixmap(QSize(40, 40)).toImage(); };
    const auto boxIcon = [&](QStyle::StandardPixmap icon) {
        return drawn(QApplication::style()->standardIcon(icon));
    };
    EXPECT_EQ(boxIcon(QStyle::SP_MessageBoxInformation), drawn(loadIcon(QStringLiteral("about"))));
    EXPECT_EQ(boxIcon(QStyle::SP_MessageBoxQuestion), drawn(loadIcon(QStringLiteral("help"))));
    EXPECT_EQ(boxIcon(QStyle::SP_MessageBoxCritical),
              drawn(loadIconIn(QStringLiteral("cancel"), theme::alarm)));
}

/// The contrast of two colours after WCAG 2: 1 for the same, 21 for black on white.
double contrast(const QColor &one, const QColor &other) {
    const auto channel = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [&](const QColor &c) {
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) +
               0.0722 * channel(c.blueF());
    };
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

TEST(Theme, TextsCanBeReadInBothPalettes) {
    for (const QPalette &palette : {theme::lightPalette(), theme::darkPalette()}) {
        const auto colour = [&](QPalette::ColorRole role) {
            return palette.color(QPalette::Active, role);
        };
        for (const auto ground : {QPalette::Window, QPalette::Base, QPalette::AlternateBase,
                                  QPalette::Button, QPalette::ToolTipBase}) {
            EXPECT_GE(contrast(colour(QPalette::Text), colour(ground)), 7) << "role " << ground;
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

} // namespace
} // namespace boulix
