// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/frmNbrSelector.h"
#include "sill/selector.h"
#include "ui/frame/fileDialogs.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/numberBoardView.h"
#include "ui/widgets/upDownView.h"

#include <QCalendarWidget>
#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>
#include <QtTest/QTest>

namespace boulix {
namespace {

using testing_support::readBytes;
using testing_support::writeBytes;

class DialogsTest : public ScreenTest {
  protected:
    static void mark(QWidget &dialog, std::initializer_list<std::int16_t> numbers) {
        auto &board = control<NumberBoardView>(dialog, "grd");
        for (const std::int16_t n : numbers)
            QTest::mouseClick(&board, Qt::LeftButton, {}, board.boxOf(n).center().toPoint());
    }
    static std::string status(const QWidget &dialog) {
        return control<QLabel>(dialog, "lblStatus").text().toStdString();
    }
    static std::string captionOf(const QWidget &dialog, const char *button) {
        return control<QPushButton>(dialog, button).text().remove(QLatin1Char('&')).toStdString();
    }
    /// A button that is reached by its key is shown pressed for a moment before it acts.
    static constexpr int afterMnemonic = 250; // milliseconds
    static void alt(QWidget &dialog, Qt::Key key) {
        QTest::keyClick(dialog.windowHandle(), key, Qt::AltModifier);
        QTest::qWait(afterMnemonic);
    }
    static void press(Qt::Key key) { QTest::keyClick(QApplication::activeModalWidget(), key); }
};

std::vector<std::int16_t> numbersOf(const selector &chosen) {
    std::vector<std::int16_t> numbers;
    for (std::int16_t i = 1; i <= chosen.nSelectedNbr(); ++i)
        numbers.push_back(chosen.selectedNbr(i));
    return numbers;
}

using Numbers = std::vector<std::int16_t>;

TEST_F(DialogsTest, AMessageHasItsTextItsTitleItsIconAndOneButton) {
    robot.in("messageBox", [](QWidget &window) {
        auto &box = dynamic_cast<QMessageBox &>(window);
        EXPECT_EQ(box.text().toStdString(), "Erreur fatale!!!\nVeuillez <b>contacter</b>");
        EXPECT_EQ(box.windowTitle().toStdString(), "boulix: Erreur N° 4301");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.buttons().size(), 1);
        click(*box.button(QMessageBox::Ok));
    });
    desktop->showMessage("Erreur fatale!!!\r\nVeuillez <b>contacter</b>", Icon::critical,
                         "boulix: Erreur N° 4301");
}

TEST_F(DialogsTest, AQuestionIsAnsweredInFrench) {
    for (const bool yes : {true, false}) {
        robot.in("messageBox", [yes](QWidget &window) {
            auto &box = dynamic_cast<QMessageBox &>(window);
            EXPECT_EQ(box.icon(), QMessageBox::Question);
            EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove(QLatin1Char('&')).toStdString(),
                      "Oui");
            EXPECT_EQ(box.button(QMessageBox::No)->text().remove(QLatin1Char('&')).toStdString(),
                      "Non");
            click(*box.button(yes ? QMessageBox::Yes : QMessageBox::No));
        });
        EXPECT_EQ(desktop->askYesNo("Sûr?", Icon::question, "boulix"), yes);
    }
}

TEST_F(DialogsTest, EscapeOnAQuestionMeansNo) {
    robot.in("messageBox", [](QWidget &) { press(Qt::Key_Escape); });
    EXPECT_FALSE(desktop->askYesNo("Sûr?", Icon::question, "boulix"));
}

TEST_F(DialogsTest, ASaveDialogProposesItsName) {
    robot.in("comDiag", [](QWidget &dialog) {
        EXPECT_EQ(control<QLineEdit>(dialog, "fileNameEdit").text().toStdString(), "jeu.lst");
        press(Qt::Key_Escape);
    });
    EXPECT_EQ(desktop->saveFile({"Fichier jeu Boulix (*.lst)|*.lst", "Jeux", file(""), "jeu.lst"}),
              "");
}

TEST_F(DialogsTest, EnterOnAQuestionMeansYesButNotWhereSomethingIsErased) {
    robot.in("messageBox", [](QWidget &) { press(Qt::Key_Return); });
    EXPECT_TRUE(desktop->askYesNo("Sûr?", Icon::question, "boulix"));
    robot.in("messageBox", [](QWidget &) { press(Qt::Key_Return); });
    EXPECT_FALSE(desktop->askToErase("Sûr?", Icon::question, "boulix"));
    robot.in("messageBox", [](QWidget &window) {
        auto &box = dynamic_cast<QMessageBox &>(window);
        EXPECT_EQ(box.text().toStdString(), "Sûr?");
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.buttons().size(), 2);
        click(*box.button(QMessageBox::Yes));
    });
    EXPECT_TRUE(desktop->askToErase("Sûr?", Icon::question, "boulix"));
}

TEST_F(DialogsTest, TheInputBoxBeginsWithThePresentTextWhichTypingReplaces) {
    robot.in("inputBox", [](QWidget &) { press(Qt::Key_Return); });
    EXPECT_EQ(desktop->askText("Nom du jeu", "Boulix", "Dimanche", 126), "Dimanche");
    robot.in("inputBox", [](QWidget &window) {
        QTest::keyClicks(window.findChild<QLineEdit *>(), QStringLiteral("Lundi"));
        press(Qt::Key_Return);
    });
    EXPECT_EQ(desktop->askText("Nom du jeu", "Boulix", "Dimanche", 126), "Lundi");
}

TEST_F(DialogsTest, TheInputBoxGivesWhatWasTypedAndNothingWhenCancelled) {
    robot.in("inputBox", [](QWidget &window) {
        auto &box = dynamic_cast<QInputDialog &>(window);
        EXPECT_EQ(box.labelText().toStdString(), "Nom du jeu");
        box.setTextValue(QStringLiteral("été à l'œuvre"));
        press(Qt::Key_Return);
    });
    EXPECT_EQ(desktop->askText("Nom du jeu", "Boulix", "", 126), "été à l'œuvre");
    robot.in("inputBox", [](QWidget &) { press(Qt::Key_Escape); });
    EXPECT_EQ(desktop->askText("Nom du jeu", "Boulix", "", 126), std::nullopt);
}

TEST_F(DialogsTest, TheInputBoxTakesNoMoreCharactersThanItWasGiven) {
    robot.in("inputBox", [](QWidget &window) {
        auto &line = *window.findChild<QLineEdit *>();
        QGuiApplication::clipboard()->setText(QString(130, QChar(0xE9)));
        line.paste();
        EXPECT_EQ(line.text(), QString(126, QChar(0xE9)));
        QTest::keyClick(&line, Qt::Key_X);
        press(Qt::Key_Return);
    });
    EXPECT_EQ(desktop->askText("Nom du jeu", "Boulix", "", 126),
              QString(126, QChar(0xE9)).toStdString());
}

TEST_F(DialogsTest, ConfirmedNumbersComeBackInTheOrderOfMarking) {
    robot.in("frmNbrSelector", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Selecteur");
        EXPECT_EQ(status(dialog), "0 numéros");
        mark(dialog, {34, 2, 19});
        EXPECT_EQ(status(dialog), "3 numéros");
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    selector chosen;
    chosen.setSelect(0, 0);
    chosen.selectNbr();
    EXPECT_EQ(numbersOf(chosen), (Numbers{34, 2, 19}));
}

TEST_F(DialogsTest, TheButtonsOfTheNumberDialogSayWhatTheyDo) {
    robot.in("frmNbrSelector", [](QWidget &dialog) {
        const std::vector<std::pair<const char *, const char *>> captions = {
            {"cmdOK", "Valider la sélection"},
            {"cmdCancel", "Annuler"},
            {"cmdClear", "Tout Effacer"},
            {"cmdSelectAll", "Tout sélectionner"}};
        for (const auto &[name, caption] : captions)
            EXPECT_EQ(captionOf(dialog, name), caption);
        click(control<QPushButton>(dialog, "cmdCancel"));
    });
    selector chosen;
    chosen.selectNbr();
}

TEST_F(DialogsTest, TheNumberDialogIsDrivenByItsKeys) {
    robot.in("frmNbrSelector", [](QWidget &dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        alt(dialog, Qt::Key_S);
        EXPECT_EQ(status(dialog), "49 numéros");
        alt(dialog, Qt::Key_E);
        EXPECT_EQ(status(dialog), "0 numéros");
        mark(dialog, {12});
        alt(dialog, Qt::Key_V);
        EXPECT_FALSE(dialog.isVisible());
    });
    selector chosen;
    chosen.setSelect(49, 0);
    chosen.selectNbr();
    EXPECT_EQ(numbersOf(chosen), (Numbers{12}));
    robot.in("frmNbrSelector", [](QWidget &dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        mark(dialog, {12});
        alt(dialog, Qt::Key_A);
        EXPECT_FALSE(dialog.isVisible());
    });
    selector left;
    left.setSelect(49, 0);
    left.selectNbr();
    EXPECT_EQ(left.nSelectedNbr(), 0);
}

TEST_F(DialogsTest, TooFewNumbersBringTheDialogBackWithItsMarks) {
    robot.in("frmNbrSelector",
             [](QWidget &dialog) {
                 mark(dialog, {1, 2, 3, 4, 5, 6});
             })
        .clickIn("frmNbrSelector", "cmdOK")
        .box("Vous devez sélectionner au moins 7 numéros!!!", "boulix: Erreur N° 4303",
             QMessageBox::Information)
        .in("frmNbrSelector", [](QWidget &dialog) {
            EXPECT_EQ(status(dialog), "6 numéros");
            mark(dialog, {49, 10});
            EXPECT_EQ(status(dialog), "7 numéros") << "the eighth is refused";
            click(control<QPushButton>(dialog, "cmdOK"));
        });
    selector chosen;
    chosen.setSelect(7, 7);
    chosen.selectNbr();
    EXPECT_EQ(numbersOf(chosen), (Numbers{1, 2, 3, 4, 5, 6, 49}));
}

TEST_F(DialogsTest, TheNumberDialogIsCancelledByItsButtonByEscapeAndByItsCloseBox) {
    const std::vector<std::function<void(QWidget &)>> ways = {
        [](QWidget &dialog) { click(control<QPushButton>(dialog, "cmdCancel")); },
        [](QWidget &) { press(Qt::Key_Escape); },
        [](QWidget &dialog) { dialog.close(); },
    };
    for (const auto &way : ways) {
        robot.in("frmNbrSelector", [&](QWidget &dialog) {
            mark(dialog, {1, 2});
            way(dialog);
        });
        selector chosen;
        chosen.setSelect(7, 0);
        chosen.selectNbr();
        EXPECT_EQ(chosen.nSelectedNbr(), 0);
    }
}

TEST_F(DialogsTest, SelectAllMarksAllNumbersOrSaysWhyNot) {
    robot.clickIn("frmNbrSelector", "cmdSelectAll")
        .box("Impossible de sélectionner tous les numéros, vous ne pouvez en sélectionner que 7",
             "boulix: Erreur N° 801", QMessageBox::Information)
        .clickIn("frmNbrSelector", "cmdCancel");
    selector few;
    few.setSelect(7, 7);
    few.selectNbr();

    robot.clickIn("frmNbrSelector", "cmdSelectAll")
        .in("frmNbrSelector",
            [](QWidget &dialog) {
                EXPECT_EQ(status(dialog), "49 numéros");
                click(control<QPushButton>(dialog, "cmdClear"));
                EXPECT_EQ(status(dialog), "0 numéros");
            })
        .clickIn("frmNbrSelector", "cmdSelectAll")
        .clickIn("frmNbrSelector", "cmdOK");
    selector all;
    all.setSelect(49, 0);
    all.selectNbr();
    EXPECT_EQ(all.nSelectedNbr(), 49);
}

TEST_F(DialogsTest, TheDateDialogOpensOnTodayAndTheFirstDraw) {
    robot.in("frmSelDate", [](QWidget &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(), "Sélection de la date");
        EXPECT_EQ(control<QCalendarWidget>(dialog, "mvwDate").selectedDate(), QDate(2026, 11, 15));
        EXPECT_EQ(control<QLabel>(dialog, "lblTirage").text().toStdString(), "1");
        EXPECT_EQ(control<QLabel>(dialog, "lblTirageTitle").text().toStdString(), "Tirage");
        EXPECT_EQ(captionOf(dialog, "cmdOK"), "Utiliser la date définie");
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    const auto answer = desktop->runDateDialog(std::nullopt);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->day, platform.day);
    EXPECT_EQ(answer->id, 1);
}

TEST_F(DialogsTest, TheDateDialogGivesTheChosenDayAndDraw) {
    robot.in("frmSelDate", [](QWidget &dialog) {
        control<QCalendarWidget>(dialog, "mvwDate").setSelectedDate(QDate(1976, 5, 19));
        auto &draw = control<UpDownView>(dialog, "updTirage");
        for (const auto &[key, text] : {std::pair{Qt::Key_Up, "2"},
                                        {Qt::Key_Up, "2"},
                                        {Qt::Key_Down, "1"},
                                        {Qt::Key_Down, "1"},
                                        {Qt::Key_Up, "2"}}) {
            QTest::keyClick(&draw, key);
            EXPECT_EQ(control<QLabel>(dialog, "lblTirage").text().toStdString(), text);
        }
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    const auto answer = desktop->runDateDialog(std::nullopt);
    ASSERT_TRUE(answer);
    EXPECT_EQ(longDate(answer->day), "19/05/1976");
    EXPECT_EQ(answer->id, 2);
}

TEST_F(DialogsTest, TheDateDialogIsDrivenByItsKeys) {
    robot.in("frmSelDate", [](QWidget &dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        auto &calendar = control<QCalendarWidget>(dialog, "mvwDate");
        auto &days = control<QWidget>(dialog, "qt_calendar_calendarview");
        days.setFocus();
        QTest::keyClick(&days, Qt::Key_Right);
        EXPECT_EQ(calendar.selectedDate(), QDate(2026, 11, 16));
        QTest::keyClick(&days, Qt::Key_Up);
        EXPECT_EQ(calendar.selectedDate(), QDate(2026, 11, 9));
        alt(dialog, Qt::Key_U);
        EXPECT_FALSE(dialog.isVisible());
    });
    const auto answer = desktop->runDateDialog(std::nullopt);
    ASSERT_TRUE(answer);
    EXPECT_EQ(longDate(answer->day), "09/11/2026");
    EXPECT_EQ(answer->id, 1);
}

TEST_F(DialogsTest, TheDateDialogIsLeftWithoutAnAnswerByEscapeByItsButtonAndByItsCloseBox) {
    const std::vector<std::function<void(QWidget &)>> ways = {
        [](QWidget &dialog) { click(control<QPushButton>(dialog, "cmdCancel")); },
        [](QWidget &) { press(Qt::Key_Escape); },
        [](QWidget &dialog) { dialog.close(); },
    };
    for (const auto &way : ways) {
        robot.in("frmSelDate", [&](QWidget &dialog) {
            control<QCalendarWidget>(dialog, "mvwDate").setSelectedDate(QDate(1976, 5, 19));
            way(dialog);
        });
        EXPECT_FALSE(desktop->runDateDialog(std::nullopt));
    }
}

TEST_F(DialogsTest, TheDateDialogNamesTheDrawThatIsChangedAndGivesItsDateBackAtOneClick) {
    robot.in("frmSelDate", [](QWidget &dialog) {
        EXPECT_EQ(control<QLabel>(dialog, "lblChanged").text().toStdString(),
                  "Tirage à modifier : n° 2 du 19-05-1976");
        EXPECT_EQ(control<QCalendarWidget>(dialog, "mvwDate").selectedDate(), QDate(2026, 11, 15));
        click(control<QPushButton>(dialog, "cmdOwnDate"));
        EXPECT_EQ(control<QLabel>(dialog, "lblTirage").text().toStdString(), "2");
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    const auto answer = desktop->runDateDialog(DrawDate{dateOf({1976, 5, 19}), 2});
    ASSERT_TRUE(answer);
    EXPECT_EQ(longDate(answer->day), "19/05/1976");
    EXPECT_EQ(answer->id, 2);
}

TEST_F(DialogsTest, ADrawWithoutAValidDateHasNoneToOffer) {
    robot.in("frmSelDate", [](QWidget &dialog) {
        EXPECT_EQ(dialog.findChild<QLabel *>(QStringLiteral("lblChanged")), nullptr);
        click(control<QPushButton>(dialog, "cmdOK"));
    });
    EXPECT_TRUE(desktop->runDateDialog(DrawDate{1e9, 1}));
}

TEST_F(DialogsTest, NumbersAreTypedInALineThatHoldsWhatTheBoardShows) {
    robot.in("frmNbrSelector", [](QWidget &dialog) {
        auto &line = control<QLineEdit>(dialog, "txtNumbers");
        const auto told = [&](const char *label) {
            return control<QLabel>(dialog, label).text().toStdString();
        };
        EXPECT_EQ(line.text().toStdString(), "31 8");
        EXPECT_EQ(told("lblWanted"), "7 numéros à cocher, encore 5.");
        mark(dialog, {17});
        EXPECT_EQ(line.text().toStdString(), "31 8 17");
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, QStringLiteral("1 8 13 17 22 50 "));
        EXPECT_EQ(status(dialog), "5 numéros");
        EXPECT_EQ(told("lblRefused"), "« 50 » n'est pas un numéro de 1 à 49.");
        EXPECT_EQ(line.text().toStdString(), "1 8 13 17 22 50 ") << "not while it is typed";
        QTest::keyClicks(&line, QStringLiteral("30 9"));
        EXPECT_EQ(told("lblWanted"), "7 numéros à cocher.");
        mark(dialog, {49});
        EXPECT_EQ(told("lblRefused"),
                  "Le 49 n'est pas coché : 7 numéros au plus. Décochez-en un d'abord.");
        EXPECT_EQ(line.text().toStdString(), "1 8 13 17 22 30 9");
        line.setFocus();
        QTest::keyClick(&line, Qt::Key_Return);
    });
    selector chosen;
    chosen.setSelect(7, 7);
    chosen.setPrevSelect(2, {31, 8});
    chosen.selectNbr();
    EXPECT_EQ(numbersOf(chosen), (Numbers{1, 8, 13, 17, 22, 30, 9}));
}

TEST(FileDialogs, FiltersAreUnderstoodAsThePlatformsWere) {
    const std::vector<std::pair<const char *, QStringList>> table = {
        {"Fichier jeu Boulix (*.lst)|*.lst", {QStringLiteral("Fichier jeu Boulix (*.lst)")}},
        {"Fichiers texte|*.txt;*.csv", {QStringLiteral("Fichiers texte (*.txt *.csv)")}},
        {"Tous les fichiers (*.*)|*.*", {QStringLiteral("Tous les fichiers (*)")}},
        {"Texte|*.txt|Tout|*.*", {QStringLiteral("Texte (*.txt)"), QStringLiteral("Tout (*)")}},
    };
    for (const auto &[filter, expected] : table)
        EXPECT_EQ(fileDialogs::nameFilters(filter), expected) << filter;
}

TEST(FileDialogs, OnlyAFilterOfOnePatternNamesAnExtension) {
    EXPECT_EQ(fileDialogs::onlyExtension("Jeu (*.lst)|*.lst").toStdString(), "lst");
    for (const char *filter : {"Tous (*.*)|*.*", "A|*.a|B|*.b", "A|*.a;*.b", ""})
        EXPECT_TRUE(fileDialogs::onlyExtension(filter).isEmpty()) << filter;
}

TEST_F(DialogsTest, TheOpenDialogShowsFilterTitleAndFolderAndGivesTheFile) {
    const std::string name = file("tirages d'été.txt");
    writeBytes(name, "x");
    robot
        .in("comDiag",
            [this](QWidget &window) {
                auto &dialog = dynamic_cast<QFileDialog &>(window);
                EXPECT_EQ(dialog.windowTitle().toStdString(), "Choisir");
                EXPECT_EQ(dialog.nameFilters(), QStringList(QStringLiteral("Texte (*.txt)")));
                EXPECT_EQ(dialog.directory().absolutePath().toStdString(),
                          platform.applicationFolder());
            })
        .chooseFile(name);
    EXPECT_EQ(desktop->openFile({"Texte (*.txt)|*.txt", "Choisir", platform.applicationFolder()}),
              name);
}

TEST_F(DialogsTest, TheOpenDialogTakesNoFileThatIsNotThere) {
    robot.chooseFile(file("absent.txt")).in("comDiag", [](QWidget &dialog) {
        EXPECT_TRUE(dialog.isVisible());
        press(Qt::Key_Escape);
    });
    EXPECT_EQ(desktop->openFile({"Tout|*.*", "Choisir", platform.applicationFolder()}), "");
}

TEST_F(DialogsTest, TheSaveDialogAsksNothingAboutAFileThatIsThere) {
    const std::string name = file("jeu.lst");
    writeBytes(name, "x");
    robot.chooseFile(name);
    EXPECT_EQ(desktop->saveFile({"Jeu (*.lst)|*.lst", "Sauver", platform.applicationFolder()}),
              name);
    EXPECT_EQ(readBytes(name), "x");
}

TEST_F(DialogsTest, TheSaveDialogAddsTheOnlyExtensionToANameWithoutOne) {
    robot.chooseFile(file("mon jeu"));
    EXPECT_EQ(desktop->saveFile({"Jeu (*.lst)|*.lst", "Sauver", platform.applicationFolder()}),
              file("mon jeu.lst"));
    robot.chooseFile(file("mon jeu"));
    EXPECT_EQ(desktop->saveFile({"Tout (*.*)|*.*", "Sauver", platform.applicationFolder()}),
              file("mon jeu"));
}

TEST_F(DialogsTest, TheSaveDialogDemandsAFolderThatIsThere) {
    robot.chooseFile(file("nulle part/jeu.lst"))
        .box("Le dossier " + file("nulle part") + " n'existe pas.", "Sauver",
             QMessageBox::Information)
        .in("comDiag", [](QWidget &) { press(Qt::Key_Escape); });
    EXPECT_EQ(desktop->saveFile({"Jeu (*.lst)|*.lst", "Sauver", platform.applicationFolder()}), "");
}

} // namespace
} // namespace boulix
