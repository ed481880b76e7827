// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The windows of the configuration menu in a running program: graph, printer, grids.

#include "core/globals.h"
#include "core/settings.h"
#include "printing/gridConfig.h"
#include "printing/modPrinter.h"
#include "stats/graphSettings.h"
#include "support/files.h"
#include "ui/printing/qtPrintWindows.h"
#include "ui/support/screenTest.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QWindow>
#include <QtTest/QTest>

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

namespace boulix {
namespace {

class SettingsWindowsTest : public ScreenTest {
  protected:
    SettingsWindowsTest() {
        printers.names = {"Bureau", "Salon"};
        modPrinter::currentPrinter("");
        setPrintWindows(&printWindows);
    }
    ~SettingsWindowsTest() override {
        testing_support::writeBytes(file("boulix.ini"), "");
        modStats::InitGraphTypes();
        modPrinter::loadSettings();
        setPrintWindows(nullptr);
    }

    /// Starts the program once and picks an entry of its menu; the robot does the rest.
    void pick(const char *entry) {
        if (!window)
            window = &start();
        control<QAction>(*window, entry).trigger();
        robot.finish();
    }
    static void type(QWidget &dialog, const char *box, const char *text) {
        control<QLineEdit>(dialog, box).setText(QString::fromUtf8(text));
    }
    static void press(QWidget &dialog, const char *button) {
        click(control<QPushButton>(dialog, button));
    }
    /// A button that is reached by its key is shown pressed for a moment before it acts.
    static constexpr int afterMnemonic = 250; // milliseconds
    static void alt(QWidget &dialog, Qt::Key key) {
        QTest::keyClick(dialog.windowHandle(), key, Qt::AltModifier);
        QTest::qWait(afterMnemonic);
    }
    static std::string plain(QString caption) {
        return caption.remove(QLatin1Char('&')).toStdString();
    }
    static std::string saved(const char *section, const char *key) {
        return settings::read(section, key, "nothing");
    }

    QtPrintWindows printWindows;
    MainWindow *window = nullptr;
};

TEST_F(SettingsWindowsTest, TheGraphWindowsDefaultsAreSavedByOkOnly) {
    robot.in("frmGraphParam", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Paramètres graphiques");
        auto &kinds = control<QComboBox>(dialog, "cmbGraphType");
        EXPECT_EQ(kinds.currentText().toStdString(), "Barres");
        EXPECT_EQ(kinds.count(), 4);
        kinds.setCurrentIndex(3);
        click(control<QCheckBox>(dialog, "chkShowAxes"));
        press(dialog, "CMD_Cancel");
    });
    pick("mnuGraphParam");
    EXPECT_EQ(modStats::graphType, 1);
    EXPECT_EQ(saved("graphique", "type"), "nothing");

    robot.in("frmGraphParam", [](QWidget &dialog) {
        control<QComboBox>(dialog, "cmbGraphType").setCurrentIndex(3);
        click(control<QCheckBox>(dialog, "chkShowAxes"));
        press(dialog, "CMD_OK");
    });
    pick("mnuGraphParam");
    EXPECT_EQ(modStats::graphType, 3);
    EXPECT_EQ(saved("graphique", "type"), "Croix");
    EXPECT_EQ(saved("graphique", "visualisation_axes"), "off");
    EXPECT_EQ(saved("graphique", "visualisation_grille"), "on");
}

TEST_F(SettingsWindowsTest, ThePrinterItsDirectionAndTheOffsetsAreSaved) {
    robot.in("frmPrint", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Sélection de l'imprimante");
        EXPECT_TRUE(control<QRadioButton>(dialog, "optPrintDir_2").isChecked());
        control<QComboBox>(dialog, "cmbPrinter").setCurrentIndex(1);
        control<QRadioButton>(dialog, "optPrintDir_3").click();
        type(dialog, "txtOffsetX", "2,5");
        type(dialog, "txtOffsetY", " -1.25 ");
        press(dialog, "cmdOK");
    });
    pick("mnuPrinter");
    EXPECT_EQ(modPrinter::currentPrinter(), "Salon");
    EXPECT_EQ(saved("impression", "imprimante"), "Salon");
    EXPECT_EQ(saved("impression", "offset_X"), "2.5");
    EXPECT_EQ(saved("impression", "offset_Y"), "-1.25");
    EXPECT_EQ(saved("impression", "Direction"), "BAS");
}

TEST_F(SettingsWindowsTest, AnOffsetInWordsIsToldAndTheWindowStays) {
    robot
        .in("frmPrint",
            [](QWidget &dialog) {
                type(dialog, "txtOffsetX", "deux");
                press(dialog, "cmdOK");
            })
        .in("messageBox",
            [](QWidget &box) {
                EXPECT_EQ(box.windowTitle().toStdString(), "Boulix Erreur système N° 13");
                click(*dynamic_cast<QMessageBox &>(box).button(QMessageBox::Ok));
            })
        .in("frmPrint", [](QWidget &dialog) { press(dialog, "cmdCancel"); });
    pick("mnuPrinter");
    EXPECT_EQ(modPrinter::offset_X, 0);
    EXPECT_EQ(saved("impression", "offset_X"), "nothing");
}

TEST_F(SettingsWindowsTest, WithoutAPrinterTheWindowSaysSoAndCanOnlyBeLeft) {
    printers.names.clear();
    robot
        .box("Aucune imprimante est installée sur votre ordinateur!!!", "boulix: Erreur N° 901",
             QMessageBox::Information)
        .in("frmPrint", [](QWidget &dialog) {
            EXPECT_EQ(control<QComboBox>(dialog, "cmbPrinter").count(), 0);
            EXPECT_FALSE(control<QPushButton>(dialog, "cmdOK").isEnabled());
            press(dialog, "cmdCancel");
        });
    pick("mnuPrinter");
    robot.box("Impossible d'imprimer, aucune imprimante est installée sur votre ordinateur!\nou "
              "l'imprimante est mal configurée.",
              "boulix: Erreur N° 2301", QMessageBox::Information);
    robot.box("Voulez-vous enregistrer le document dans un fichier PDF ?", "boulix",
              QMessageBox::Question, QMessageBox::No);
    pick("mnuPrintCanvas");
    EXPECT_TRUE(printers.documents.empty());
}

TEST_F(SettingsWindowsTest, TheUnitAndThePriceOfAGridAreSaved) {
    robot.in("frmGridParam", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Paramètres des grilles");
        EXPECT_EQ(control<QLineEdit>(dialog, "txtUnit").text().toStdString(), "euro");
        EXPECT_EQ(control<QLineEdit>(dialog, "txtPrice").text().toStdString(), "0.6");
        type(dialog, "txtUnit", "  franc ");
        type(dialog, "txtPrice", "1,2");
        press(dialog, "CMD_OK");
    });
    pick("mnuGrid");
    EXPECT_EQ(gGridConfig->monneyUnit(), "franc");
    EXPECT_EQ(saved("grille", "unite_monnaie"), "franc");
    EXPECT_EQ(saved("grille", "prix_grille"), "1.2");
}

TEST_F(SettingsWindowsTest, AGridWithoutUnitOrPriceIsNotTaken) {
    robot
        .in("frmGridParam",
            [](QWidget &dialog) {
                type(dialog, "txtUnit", "   ");
                press(dialog, "CMD_OK");
            })
        .box("L'unité de monnaie doit être précisée.", "boulix: Erreur N° 601",
             QMessageBox::Information)
        .in("frmGridParam", [](QWidget &dialog) {
            type(dialog, "txtUnit", "franc");
            type(dialog, "txtPrice", "");
            press(dialog, "CMD_OK");
            EXPECT_TRUE(dialog.isVisible()) << "without a word";
            press(dialog, "CMD_Cancel");
        });
    pick("mnuGrid");
    EXPECT_EQ(gGridConfig->monneyUnit(), "euro");
    EXPECT_EQ(saved("grille", "unite_monnaie"), "nothing");
}

TEST_F(SettingsWindowsTest, ThePrinterSettingsAreDrivenByTheirKeys) {
    robot.in("frmPrint", [](QWidget &dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        alt(dialog, Qt::Key_M);
        QTest::keyClick(&control<QComboBox>(dialog, "cmbPrinter"), Qt::Key_Down);
        const std::vector<std::pair<Qt::Key, const char *>> directions = {
            {Qt::Key_B, "optPrintDir_3"},
            {Qt::Key_H, "optPrintDir_2"},
            {Qt::Key_G, "optPrintDir_0"},
            {Qt::Key_D, "optPrintDir_1"}};
        for (const auto &[key, option] : directions) {
            alt(dialog, key);
            EXPECT_TRUE(control<QRadioButton>(dialog, option).isChecked()) << option;
        }
        alt(dialog, Qt::Key_O);
        QTest::keyClicks(dialog.focusWidget(), QStringLiteral("1.5"));
        alt(dialog, Qt::Key_V);
        QTest::keyClicks(dialog.focusWidget(), QStringLiteral("-2"));
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    pick("mnuPrinter");
    EXPECT_EQ(saved("impression", "imprimante"), "Salon");
    EXPECT_EQ(saved("impression", "offset_X"), "1.5");
    EXPECT_EQ(saved("impression", "offset_Y"), "-2");
    EXPECT_EQ(saved("impression", "Direction"), "DROITE");
}

TEST_F(SettingsWindowsTest, EveryControlOfThePrinterSettingsSaysWhatItIs) {
    robot.in("frmPrint", [](QWidget &dialog) {
        const std::vector<std::string> told = {"Impression par la gauche",
                                               "Impression par la droite", "Impression par le haut",
                                               "Impression par le bas"};
        for (std::size_t i = 0; i < told.size(); ++i)
            EXPECT_EQ(
                plain(control<QRadioButton>(dialog, ("optPrintDir_" + std::to_string(i)).c_str())
                          .text()),
                told[i]);
        std::vector<std::string> words;
        for (const QLabel *label : dialog.findChildren<QLabel *>())
            words.push_back(plain(label->text()));
        for (const QGroupBox *frame : dialog.findChildren<QGroupBox *>())
            words.push_back(frame->title().toStdString());
        EXPECT_THAT(words, ::testing::UnorderedElementsAre(
                               "Imprimante", "Sélectionnez le sens d'impression du bulletin",
                               "Décalage horizontal (mm)", "Décalage vertical (mm)",
                               "Direction de l'impression du bulletin",
                               "Paramètres pour l'impression des grilles"));
        EXPECT_EQ(control<QComboBox>(dialog, "cmbPrinter").toolTip().toStdString(),
                  "Sélectionnez votre imprimante ici");
        press(dialog, "cmdCancel");
    });
    pick("mnuPrinter");
}

TEST_F(SettingsWindowsTest, TheGridSettingsAreDrivenByTheirKeys) {
    robot.in("frmGridParam", [](QWidget &dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        alt(dialog, Qt::Key_U);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(dialog.focusWidget(), QStringLiteral("franc"));
        alt(dialog, Qt::Key_P);
        QTest::keyClicks(dialog.focusWidget(), QStringLiteral("2.5"));
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    pick("mnuGrid");
    EXPECT_EQ(saved("grille", "unite_monnaie"), "franc");
    EXPECT_EQ(saved("grille", "prix_grille"), "2.5");
}

TEST_F(SettingsWindowsTest, TheGraphSettingsAreDrivenByTheirKeys) {
    robot.in("frmGraphParam", [](QWidget &dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        alt(dialog, Qt::Key_T);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
        alt(dialog, Qt::Key_X);
        alt(dialog, Qt::Key_G);
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });
    pick("mnuGraphParam");
    EXPECT_EQ(saved("graphique", "type"), "Points");
    EXPECT_EQ(saved("graphique", "visualisation_axes"), "off");
    EXPECT_EQ(saved("graphique", "visualisation_grille"), "off");
}

TEST_F(SettingsWindowsTest, AWindowThatIsLeftSavesAndPrintsNothing) {
    const std::vector<std::pair<const char *, const char *>> windows = {
        {"mnuPrinter", "frmPrint"},
        {"mnuGrid", "frmGridParam"},
        {"mnuGraphParam", "frmGraphParam"}};
    const std::vector<std::function<void(QWidget &)>> ways = {
        [](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](QWidget &dialog) { alt(dialog, Qt::Key_A); },
        [](QWidget &dialog) { dialog.close(); },
    };
    for (const auto &[entry, name] : windows)
        for (const auto &leave : ways) {
            robot.in(name, [&leave](QWidget &dialog) {
                EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
                for (QLineEdit *box : dialog.findChildren<QLineEdit *>())
                    box->setText(QStringLiteral("7"));
                for (QComboBox *box : dialog.findChildren<QComboBox *>())
                    box->setCurrentIndex(box->count() - 1);
                leave(dialog);
                EXPECT_FALSE(dialog.isVisible());
            });
            pick(entry);
        }
    EXPECT_FALSE(testing_support::fileExists(file("boulix.ini")));
    EXPECT_EQ(modPrinter::currentPrinter(), "Bureau");
    EXPECT_EQ(gGridConfig->monneyUnit(), "euro");
    EXPECT_TRUE(printers.documents.empty());
}

} // namespace
} // namespace boulix
