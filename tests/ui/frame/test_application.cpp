// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "ui/frame/application.h"
#include "ui/style/iconLoader.h"
#include "ui/style/theme.h"
#include "ui/support/screenTest.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPushButton>
#include <QStyle>
#include <QTimer>
#include <QtTest/QTest>

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

} // namespace
} // namespace boulix
