// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The graph window: the plot under the mouse, its picture as a file, its limits.

#include "core/text.h"
#include "stats/frmGraph.h"
#include "stats/graphSettings.h"
#include "support/boulixTest.h"
#include "support/saveTexts.h"
#include "support/smallDisk.h"
#include "support/withoutRights.h"
#include "ui/stats/graphWindow.h"
#include "ui/stats/plotView.h"
#include "ui/support/robot.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QRadioButton>
#include <QWheelEvent>
#include <QXmlStreamReader>
#include <QtTest/QTest>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace boulix {
namespace {

using testing_support::click;
using testing_support::control;

/// The graph window with a curve of three points.
class GraphWindowTest : public BoulixTest {
  protected:
    GraphWindowTest() {
        modStats::InitGraphTypes();
        rules.emplace();
        rules->plot.titles("Période", "Absences");
        rules->plot.addCurve({1, 2, 3}, {40, 100, 60});
        window.emplace(*rules);
        window->resize(800, 500);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&*window));
        QApplication::processEvents();
    }
    ~GraphWindowTest() override { modStats::InitGraphTypes(); }

    PlotView &view() { return control<PlotView>(*window, "PlotPane"); }
    /// The widget that takes the mouse.
    QWidget &plot() { return *view().findChild<QWidget *>(); }
    PlotRange range() const { return rules->plot.range(); }
    void trigger(const char *entry) { control<QAction>(*window, entry).trigger(); }
    /// Chooses `entry` of the menu and answers its file dialog with `name`.
    std::string keep(const char *entry, const std::string &name) {
        desktop.answerSave(name);
        trigger(entry);
        return name;
    }
    void wheel(int notches) {
        const QPointF middle = plot().rect().center();
        QWheelEvent event(middle, plot().mapToGlobal(middle), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&plot(), &event);
        QApplication::processEvents();
    }
    void drag(QPoint by) {
        const QPoint from = plot().rect().center();
        QTest::mousePress(&plot(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&plot(), from + by);
        QTest::mouseRelease(&plot(), Qt::LeftButton, {}, from + by);
        QApplication::processEvents();
    }
    /// How many pixels of the curve's red a picture has.
    static int redPixels(const QImage &picture) {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                count += color.red() > 200 && color.green() < 170 && color.blue() < 170;
            }
        return count;
    }
    QImage picture() { return view().grab().toImage(); }

    std::optional<frmGraph> rules;
    std::optional<GraphWindow> window;
};

TEST_F(GraphWindowTest, EachKindDrawsTheCurveInItsOwnWay) {
    std::vector<QImage> pictures;
    for (std::int16_t kind = 0; kind < 4; ++kind) {
        rules->selectGraphType(kind);
        QApplication::processEvents();
        pictures.push_back(picture());
        EXPECT_GT(redPixels(pictures.back()), 20) << "kind " << kind;
        for (std::size_t i = 0; i + 1 < pictures.size(); ++i)
            EXPECT_NE(pictures[i], pictures.back());
    }
    rules->plot.clearCurves();
    QApplication::processEvents();
    EXPECT_EQ(redPixels(picture()), 0);
}

TEST_F(GraphWindowTest, AxesAndGridCanBeHidden) {
    const QImage both = picture();
    rules->clickShowGrid(false);
    QApplication::processEvents();
    const QImage axesOnly = picture();
    EXPECT_NE(axesOnly, both);
    rules->clickShowAxes(false);
    QApplication::processEvents();
    EXPECT_NE(picture(), axesOnly);
}

TEST_F(GraphWindowTest, ThousandsOfPeriodsAreSeenInEveryKind) {
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 1; i <= 4858; ++i) {
        x.push_back(i);
        y.push_back(i % 37 + 1);
    }
    rules->plot.clearCurves();
    rules->plot.addCurve(x, y);
    for (std::int16_t kind = 0; kind < 4; ++kind) {
        rules->selectGraphType(kind);
        QApplication::processEvents();
        EXPECT_GT(redPixels(picture()), 5000) << "kind " << kind;
    }
    EXPECT_EQ(view().valueAt(4858).toStdString(), "Période 4858 : absences 12");
}

TEST_F(GraphWindowTest, TheWheelZoomsAndTheMouseDragsAndTheWholeCurveComesBack) {
    const PlotRange whole = {0, 4, 0, 105};
    ASSERT_EQ(range(), whole);
    wheel(1);
    EXPECT_GT(range().xMin, 0.1F);
    EXPECT_LT(range().xMax, 3.9F);
    EXPECT_LT(range().yMax, 104.0F);
    const PlotRange zoomed = range();
    drag({60, 0});
    EXPECT_LT(range().xMin, zoomed.xMin) << "what is to the left comes into sight";
    EXPECT_EQ(range().yMin, zoomed.yMin);
    trigger("mnuGraphAll");
    EXPECT_EQ(range(), whole);
    wheel(1);
    QTest::mouseDClick(&plot(), Qt::LeftButton, {}, plot().rect().center());
    EXPECT_EQ(range(), whole);
}

TEST_F(GraphWindowTest, ZoomingHasAnEndInBothDirections) {
    const auto extent = [this] { return range().xMax - range().xMin; };
    for (int i = 0; i < 400; ++i)
        wheel(-10);
    EXPECT_GT(extent(), 1e6F);
    EXPECT_LT(extent(), 2e9F);
    wheel(1);
    const float less = extent();
    wheel(1);
    EXPECT_LT(extent(), less) << "and the way back is open";
    trigger("mnuGraphAll");
    for (int i = 0; i < 400; ++i)
        wheel(10);
    EXPECT_GE(extent(), 0);
    EXPECT_FALSE(picture().isNull());
    trigger("mnuGraphAll");
    EXPECT_EQ(range(), (PlotRange{0, 4, 0, 105}));
}

TEST_F(GraphWindowTest, TheRangeZoomedToIsTheManualOne) {
    wheel(2);
    const PlotRange zoomed = range();
    click(control<QRadioButton>(*window, "optManualRange"));
    EXPECT_EQ(range(), zoomed);
    EXPECT_EQ(modStats::graphXMin, zoomed.xMin);
    EXPECT_EQ(modStats::graphYMax, zoomed.yMax);
    wheel(1);
    const PlotRange nearer = range();
    EXPECT_NE(nearer, zoomed);
    const std::pair<const char *, float> limits[] = {{"txtXMin", nearer.xMin},
                                                     {"txtXMax", nearer.xMax},
                                                     {"txtYMin", nearer.yMin},
                                                     {"txtYMax", nearer.yMax}};
    for (const auto &[box, limit] : limits) {
        EXPECT_EQ(control<QLineEdit>(*window, box).text().toStdString(), plainDecimal(limit));
        QTest::keyClick(&control<QLineEdit>(*window, box), Qt::Key_Return);
    }
    EXPECT_EQ(range(), nearer) << "the boxes have followed";
}

TEST_F(GraphWindowTest, ImpossibleLimitsAreDrawnAndTheWindowLivesOn) {
    click(control<QRadioButton>(*window, "optManualRange"));
    const auto type = [&](const char *box, const char *text) {
        auto &limit = control<QLineEdit>(*window, box);
        limit.selectAll();
        QTest::keyClick(&limit, Qt::Key_Delete);
        QTest::keyClicks(&limit, QString::fromUtf8(text));
        QTest::keyClick(&limit, Qt::Key_Return);
        QApplication::processEvents();
    };
    type("txtXMin", "");
    EXPECT_EQ(range().xMin, 0) << "an empty limit changes nothing";
    type("txtXMin", "50");
    type("txtXMax", "10");
    EXPECT_EQ(range().xMin, 50) << "crossed";
    EXPECT_EQ(range().xMax, 10);
    EXPECT_FALSE(picture().isNull());
    type("txtXMax", "50");
    type("txtYMin", "dix");
    type("txtYMax", "0");
    EXPECT_EQ(range(), (PlotRange{50, 50, 0, 0})) << "equal";
    EXPECT_FALSE(picture().isNull());
    EXPECT_TRUE(desktop.messages.empty());
    type("txtYMax", std::string(50, '9').c_str());
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 6");
    EXPECT_EQ(range().yMax, 0);
}

TEST_F(GraphWindowTest, ThePictureIsKeptAsPng) {
    const std::string name = keep("mnuGraphPng", file("graphe.png"));
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].title, "Enregistrement du graphe au format PNG");
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Image PNG (*.png)|*.png");
    const QImage kept(QString::fromStdString(name), "PNG");
    EXPECT_EQ(kept.size(), QSize(1200, 800));
    EXPECT_GT(redPixels(kept), 1000);
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(GraphWindowTest, ThePictureIsKeptAsSvgWithItsWords) {
    writeBytes(file("graphe.svg"), std::string(1000000, 'x'));
    keep("mnuGraphSvg", file("graphe.svg"));
    ASSERT_EQ(desktop.saveQuestions.size(), 1U);
    EXPECT_EQ(desktop.saveQuestions[0].title, "Enregistrement du graphe au format SVG");
    EXPECT_EQ(desktop.saveQuestions[0].filter, "Image SVG (*.svg)|*.svg");
    QXmlStreamReader reader(QByteArray::fromStdString(readBytes(file("graphe.svg"))));
    QString words;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::Characters)
            words += reader.text();
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_TRUE(words.contains(QStringLiteral("Période")));
    EXPECT_TRUE(words.contains(QStringLiteral("Absences")));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(GraphWindowTest, TheExpectedValueIsALineWithAWordOverTheGraphAndInItsPictures) {
    const auto picture = [this] { return readBytes(keep("mnuGraphSvg", file("graphe.svg"))); };
    const auto hasLegend = [](const std::string &svg) {
        return svg.find("valeur attendue du hasard : 66,7") != std::string::npos;
    };
    const std::string without = picture();
    EXPECT_FALSE(hasLegend(without));
    rules->plot.expected(66.667);
    const std::string with = picture();
    EXPECT_TRUE(hasLegend(with));
    const auto dashedLines = [](const std::string &svg) {
        int count = 0;
        for (std::size_t at = svg.find("stroke-dasharray"); at != std::string::npos;
             at = svg.find("stroke-dasharray", at + 1))
            ++count;
        return count;
    };
    EXPECT_EQ(dashedLines(with), dashedLines(without) + 1);
    rules->plot.clearCurves();
    rules->plot.addCurve({1, 2, 3}, {40, 100, 60});
    const std::string after = picture();
    EXPECT_FALSE(hasLegend(after)) << "it goes with the curve";
    EXPECT_EQ(dashedLines(after), dashedLines(without));
}

TEST_F(GraphWindowTest, ADismissedFileDialogKeepsNoPicture) {
    for (const char *entry : {"mnuGraphPng", "mnuGraphSvg"}) {
        desktop.cancelSave();
        trigger(entry);
    }
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_FALSE(fileExists(file("graphe.png")));
}

TEST_F(GraphWindowTest, APlaceThatTakesNoPictureIsOneMessageThatNamesIt) {
    for (const char *entry : {"mnuGraphPng", "mnuGraphSvg"})
        for (const std::string &place : {folder(), file("nowhere/graphe")}) {
            desktop.messages.clear();
            keep(entry, place);
            ASSERT_EQ(desktop.messages.size(), 1U) << entry << " " << place;
            EXPECT_EQ(desktop.messages[0].title.rfind("Boulix Erreur système N° ", 0), 0U);
            EXPECT_NE(desktop.messages[0].text.find(place), std::string::npos)
                << desktop.messages[0].text;
        }
}

TEST_F(GraphWindowTest, AFolderWithoutPermissionIsOneMessage) {
    std::filesystem::permissions(folder(), std::filesystem::perms(0555));
    for (const char *entry : {"mnuGraphPng", "mnuGraphSvg"}) {
        const WithoutRights user;
        keep(entry, file("graphe"));
    }
    std::filesystem::permissions(folder(), std::filesystem::perms(0755));
    const std::string text = "Permission refusée : " + file("graphe") + "\r\nLe dossier " +
                             folder() +
                             " est protégé en écriture: copiez-le à un endroit où vous pouvez "
                             "écrire, puis démarrez Boulix depuis cette copie." +
                             saveTexts::notBegun;
    EXPECT_EQ(desktop.messages,
              std::vector<ShownBox>(2, {text, Icon::critical, "Boulix Erreur système N° 70"}));
    EXPECT_FALSE(fileExists(file("graphe")));
}

TEST_F(GraphWindowTest, AFullOrReadOnlyDiskIsOneMessage) {
    SmallDisk disk(4096);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    keep("mnuGraphPng", disk.file("graphe.png"));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0].title, "Boulix Erreur système N° 61");
    disk.makeReadOnly();
    keep("mnuGraphSvg", disk.file("graphe.svg"));
    EXPECT_EQ(desktop.messages.size(), 2U);
    wheel(1);
    EXPECT_NE(range(), (PlotRange{0, 4, 0, 105})) << "the window lives on";
}

TEST_F(GraphWindowTest, TheEntriesOfTheMenuHaveKeys) {
    QApplication::setActiveWindow(&*window);
    desktop.cancelSave();
    QTest::keyClick(&*window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(desktop.saveQuestions.size(), 1U);
    wheel(1);
    QTest::keyClick(&*window, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(range(), (PlotRange{0, 4, 0, 105}));
    EXPECT_EQ(plot().contextMenuPolicy(), Qt::ActionsContextMenu);
    EXPECT_EQ(plot().actions().size(), 3);
}

} // namespace
} // namespace boulix
