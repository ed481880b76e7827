// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The underlined letters: of two alike on one page Qt would only go from the one to the other.

#include "core/globals.h"
#include "support/lottery.h"
#include "ui/support/everyDialog.h"
#include "ui/support/places.h"
#include "ui/support/screenTest.h"
#include "workbench/frmMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>

#include <gmock/gmock.h>

#include <map>

namespace boulix {
namespace {

using testing_support::forEveryDialog;
using testing_support::Place;
using testing_support::placesOfMainWindow;

/// Each mnemonic that works in the window as it is now, with the texts that have it.
std::map<std::string, QStringList> mnemonics(const QWidget &window) {
    std::map<std::string, QStringList> found;
    const auto add = [&](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            found[key.toString().toStdString()] << text;
    };
    for (const QWidget *part : window.findChildren<QWidget *>()) {
        if (!part->isVisible() || part->window() != &window)
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(part))
            add(button->text());
        else if (const auto *label = qobject_cast<const QLabel *>(part); label && label->buddy())
            add(label->text());
        else if (const auto *group = qobject_cast<const QGroupBox *>(part))
            add(group->title());
        else if (const auto *tabs = qobject_cast<const QTabBar *>(part))
            for (int tab = 0; tab < tabs->count(); ++tab)
                add(tabs->tabText(tab));
        else if (const auto *menus = qobject_cast<const QMenuBar *>(part))
            for (const QAction *menu : menus->actions())
                add(menu->text());
    }
    return found;
}

std::vector<std::string> doubles(const QWidget &window) {
    std::vector<std::string> found;
    for (const auto &[key, texts] : mnemonics(window))
        if (texts.size() > 1)
            found.push_back(key + ": " + texts.join(QStringLiteral(", ")).toStdString());
    return found;
}

class MnemonicsTest : public ScreenTest {
  protected:
    MnemonicsTest() : window(start()) {
        addDraw({1, 2, 3, 4, 5, 6, 7});
        addDraw({10, 20, 30, 40, 41, 42, 43});
        mainWindow->frmUpdateDBList();
    }
    MainWindow &window;
};

TEST_F(MnemonicsTest, NoTwoAreAlikeOnOnePage) {
    for (const Place &place : placesOfMainWindow()) {
        place.goThere(window);
        QApplication::processEvents();
        EXPECT_THAT(doubles(window), ::testing::IsEmpty()) << place;
    }
}

TEST_F(MnemonicsTest, NoTwoAreAlikeInOneDialog) {
    forEveryDialog([](QWidget &dialog) {
        EXPECT_THAT(doubles(dialog), ::testing::IsEmpty()) << dialog.objectName().toStdString();
    });
}

TEST(Mnemonics, TwoAlikeAreFound) {
    QWidget window;
    QLabel label(QStringLiteral("&Un"), &window);
    QLabel other(QStringLiteral("A&utre, sans champ"), &window);
    QAbstractButton *button = new QPushButton(QStringLiteral("De&ux"), &window);
    label.setBuddy(button);
    window.show();
    EXPECT_EQ(doubles(window), std::vector<std::string>{"Alt+U: &Un, De&ux"});
}

} // namespace
} // namespace boulix
