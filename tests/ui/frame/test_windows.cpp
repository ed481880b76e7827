// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "sill/appInfo.h"
#include "ui/frame/creditPicture.h"
#include "ui/frame/frmAbout.h"
#include "ui/frame/frmSplash.h"
#include "ui/frame/helpWindow.h"
#include "ui/style/theme.h"
#include "ui/support/screenTest.h"

#include <QAction>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QtTest/QTest>

#include <filesystem>

namespace boulix {
namespace {

using testing_support::writeBytes;

class WindowsTest : public ScreenTest {
  protected:
    WindowsTest() {
        gAppInfo->init("Attention!!! Ce logiciel constitue une aide au jeu mais ne saurait en "
                       "aucun cas garantir les gains.",
                       "Marcel Quillon", "Quillon Logiciels", 2003);
    }
    static bool hasColour(const QImage &image, const QColor &colour) {
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == colour)
                    return true;
        return false;
    }
};

TEST_F(WindowsTest, TheAboutBoxNamesTheProgramAndClosesByItsButton) {
    frmAbout about(*gAppInfo);
    about.show();
    EXPECT_EQ(about.windowTitle().toStdString(), "A propos de boulix");
    EXPECT_FALSE(control<QLabel>(about, "picLogo").pixmap().isNull());
    EXPECT_EQ(control<QTimer>(about, "Timer").interval(), 40);
    EXPECT_TRUE(control<QTimer>(about, "Timer").isActive());
    click(control<QPushButton>(about, "CMD_OK"));
    EXPECT_FALSE(about.isVisible());
}

TEST_F(WindowsTest, TheCreditsSayWhoMadeTheProgramInTheirColours) {
    const frmAbout about(*gAppInfo);
    auto &picture = control<CreditPicture>(about, "picInfo_0");
    const QStringList lines = picture.drawnLines();
    ASSERT_GT(lines.size(), 4);
    EXPECT_EQ(lines[0].toStdString(), "boulix Version 4.0.3");
    EXPECT_EQ(lines[1].toStdString(), "développé par Marcel Quillon");
    EXPECT_EQ(lines[2].toStdString(), "(c) 2003 Quillon Logiciels");
    EXPECT_EQ(lines.mid(3).join(QLatin1Char(' ')).toStdString(), gAppInfo->disclaimer());
    EXPECT_EQ(control<CreditPicture>(about, "picInfo_1").drawnLines(), lines);
    QList<int> sizes(lines.size(), 10);
    sizes[0] = 14;
    EXPECT_EQ(picture.drawnSizes(), sizes);
    EXPECT_EQ(control<CreditPicture>(about, "picInfo_1").drawnSizes(), sizes);
    const QImage image = picture.grab().toImage();
    for (const QColor colour : {QColor(255, 0, 0), QColor(0, 0, 200), QColor(0, 0, 255)})
        EXPECT_TRUE(hasColour(image, colour)) << colour.name().toStdString();
}

TEST_F(WindowsTest, ATextIsCutAtBlanksToFitTheWidth) {
    const QFont font;
    const int width = QFontMetrics(font).horizontalAdvance(QStringLiteral("un deux"));
    EXPECT_EQ(cutAtBlanks(QStringLiteral("un deux trois quatrevingtdixneuf un"), font, width),
              (QStringList{QStringLiteral("un deux"), QStringLiteral("trois"),
                           QStringLiteral("quatrevingtdixneuf"), QStringLiteral("un")}));
    EXPECT_TRUE(cutAtBlanks(QString(), font, width).isEmpty());
}

TEST_F(WindowsTest, TheCreditsClimbWithoutEndAndWithoutAGap) {
    frmAbout about(*gAppInfo);
    about.show();
    control<QTimer>(about, "Timer").stop();
    const QWidget &frame = control<QFrame>(about, "frameInfo");
    const CreditPicture *first = about.activePicture();
    const int startsAt = first->y();
    about.tick();
    EXPECT_EQ(first->y(), startsAt - 2);
    int exchanges = 0;
    for (int tick = 0; tick < 2000; ++tick) {
        const CreditPicture *active = about.activePicture();
        about.tick();
        exchanges += about.activePicture() != active ? 1 : 0;
        const auto &one = control<CreditPicture>(about, "picInfo_0");
        const auto &other = control<CreditPicture>(about, "picInfo_1");
        EXPECT_LE(std::min(one.y(), other.y()), 0);
        EXPECT_GE(std::max(one.geometry().bottom(), other.geometry().bottom()) + 1 + 2,
                  frame.height());
    }
    EXPECT_GT(exchanges, 10);
}

TEST_F(WindowsTest, TheSplashShowsItsTextsAndGoes) {
    gAppInfo->showSplash();
    QWidget *splash = visibleWindow(QStringLiteral("frmSplash"));
    ASSERT_NE(splash, nullptr);
    const std::vector<std::pair<const char *, std::string>> labels = {
        {"lblVersion", "Version 4.0.3"},
        {"lblProductName", "boulix"},
        {"lblCompany", "Quillon Logiciels"},
        {"lblCopyright", "(c) 2003"},
        {"lblPlatform", "Windows 98, ME, NT, 2000, XP"},
        {"lblWarning", gAppInfo->disclaimer()},
    };
    for (const auto &[name, text] : labels)
        EXPECT_EQ(control<QLabel>(*splash, name).text().toStdString(), text) << name;
    EXPECT_FALSE(control<QLabel>(*splash, "imgLogo").pixmap().isNull());
    EXPECT_FALSE(control<QPushButton>(*splash, "cmdClose").isVisible());
    desktop->unloadSplash();
    EXPECT_EQ(visibleWindow(QStringLiteral("frmSplash")), nullptr);
}

TEST_F(WindowsTest, TheSplashKeepsItsDarkInkOnItsLightGround) {
    QApplication::setPalette(theme::darkPalette());
    gAppInfo->showSplash();
    const QWidget &splash = *visibleWindow(QStringLiteral("frmSplash"));
    const auto &name = control<QLabel>(splash, "lblProductName");
    EXPECT_LT(name.palette().color(QPalette::WindowText).lightness(), 100);
    EXPECT_TRUE(hasColour(const_cast<QWidget &>(splash).grab().toImage(), theme::paper));
    QApplication::setPalette(theme::lightPalette());
}

TEST_F(WindowsTest, AfterAFailedStartTheSplashCanBeClosed) {
    gAppInfo->showSplash();
    EXPECT_TRUE(desktop->startEnded());
    QWidget *splash = visibleWindow(QStringLiteral("frmSplash"));
    EXPECT_TRUE(splash->testAttribute(Qt::WA_QuitOnClose)) << "the program must end with it";
    click(control<QPushButton>(*splash, "cmdClose"));
    EXPECT_EQ(visibleWindow(QStringLiteral("frmSplash")), nullptr);
}

TEST_F(WindowsTest, AStartWithoutAnyWindowIsTold) {
    EXPECT_FALSE(desktop->startEnded());
}

TEST_F(WindowsTest, TheHelpPageFollowsTheTargetAndTheContext) {
    EXPECT_EQ(HelpWindow::pageFor("/jeux/boulix.chm>DefaultWindow", {}).toStdString(),
              "/jeux/help/index.html");
    EXPECT_EQ(HelpWindow::pageFor("/jeux/boulix.chm", 12).toStdString(), "/jeux/help/12.html");
}

TEST_F(WindowsTest, AMissingHelpPageIsToldByItsName) {
    robot.box("La page d'aide " + file("help/index.html") + " est introuvable.", "Aide",
              QMessageBox::Information);
    desktop->showHelp(file("boulix.chm") + ">DefaultWindow", {});
}

TEST_F(WindowsTest, TheHelpWindowShowsPagesAndFindsItsWayBack) {
    std::filesystem::create_directory(file("help"));
    writeBytes(file("help/index.html"), "<h1>Sommaire</h1><a href='7.html'>Jeux</a>");
    writeBytes(file("help/7.html"), "<h1>Les jeux</h1>");
    desktop->showHelp(file("boulix.chm") + ">DefaultWindow", {});
    QWidget *help = visibleWindow(QStringLiteral("frmHelp"));
    ASSERT_NE(help, nullptr);
    auto &text = control<QTextBrowser>(*help, "txtHelp");
    EXPECT_TRUE(text.toPlainText().contains(QStringLiteral("Sommaire")));

    desktop->showHelp(file("boulix.chm"), 7);
    EXPECT_EQ(text.toPlainText().toStdString(), "Les jeux");
    control<QAction>(*help, "tbarHelp_1").trigger();
    EXPECT_TRUE(text.toPlainText().contains(QStringLiteral("Sommaire")));
    control<QAction>(*help, "tbarHelp_2").trigger();
    EXPECT_EQ(text.toPlainText().toStdString(), "Les jeux");
    control<QAction>(*help, "tbarHelp_3").trigger();
    EXPECT_TRUE(text.toPlainText().contains(QStringLiteral("Sommaire")));
}

} // namespace
} // namespace boulix
