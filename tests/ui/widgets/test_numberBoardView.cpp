// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/numberBoard.h"
#include "ui/style/theme.h"
#include "ui/widgets/numberBoardView.h"

#include <QImage>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace boulix {
namespace {

using Numbers = std::vector<std::int16_t>;

class NumberBoardViewTest : public ::testing::Test {
  protected:
    NumberBoardViewTest() {
        view.resize(300, 400);
        view.show();
    }
    void clickNumber(std::int16_t n) {
        QTest::mouseClick(&view, Qt::LeftButton, {}, view.boxOf(n).center().toPoint());
    }
    std::vector<std::int16_t> marked() const {
        std::vector<std::int16_t> numbers;
        for (std::int16_t i = 1; i <= board.selectedCount(); ++i)
            numbers.push_back(board.selectedNumber(i));
        return numbers;
    }
    /// The picture of one box without its number's colour: grey levels only.
    QImage greyBox(std::int16_t n) {
        return view.grab(view.boxOf(n).toRect())
            .toImage()
            .convertToFormat(QImage::Format_Grayscale8);
    }

    NumberBoard board;
    NumberBoardView view{board};
};

TEST_F(NumberBoardViewTest, TheTensStandInColumnsAndTheUnitsInRows) {
    for (std::int16_t n = 1; n <= 49; ++n) {
        const QRectF box = view.boxOf(n);
        EXPECT_TRUE(QRectF(view.rect()).contains(box)) << n;
        if (n + 10 <= 49) {
            EXPECT_LT(box.right(), view.boxOf(static_cast<std::int16_t>(n + 10)).left()) << n;
            EXPECT_EQ(box.top(), view.boxOf(static_cast<std::int16_t>(n + 10)).top()) << n;
        }
        if (n % 10 != 9) {
            EXPECT_LT(box.bottom(), view.boxOf(static_cast<std::int16_t>(n + 1)).top()) << n;
            EXPECT_EQ(box.left(), view.boxOf(static_cast<std::int16_t>(n + 1)).left()) << n;
        }
    }
    EXPECT_EQ(view.boxOf(1).top(), view.boxOf(11).top());
}

TEST_F(NumberBoardViewTest, ThePlaceAboveNumberOneIsEmpty) {
    const QPointF above(view.boxOf(1).center().x(), view.boxOf(10).center().y());
    EXPECT_EQ(view.numberAt(above.toPoint()), 0);
    QTest::mouseClick(&view, Qt::LeftButton, {}, above.toPoint());
    EXPECT_EQ(marked(), Numbers{});
}

TEST_F(NumberBoardViewTest, EveryNumberCanBeClicked) {
    for (std::int16_t n = 1; n <= 49; ++n)
        clickNumber(n);
    EXPECT_EQ(board.selectedCount(), 49);
    clickNumber(17);
    EXPECT_FALSE(board.isSelected(17));
}

TEST_F(NumberBoardViewTest, AClickBeyondTheLimitIsRefused) {
    board.maxSelected(2);
    for (const std::int16_t n : Numbers{5, 6, 7})
        clickNumber(n);
    EXPECT_EQ(marked(), (Numbers{5, 6}));
}

TEST_F(NumberBoardViewTest, AClosedBoardTakesNeitherClicksNorKeys) {
    board.editable(false);
    clickNumber(5);
    QTest::keyClick(&view, Qt::Key_Space);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(marked(), Numbers{});
}

TEST_F(NumberBoardViewTest, TheKeysMoveOverTheBoard) {
    const std::vector<std::pair<Qt::Key, int>> steps = {
        {Qt::Key_Up, 1},        {Qt::Key_Left, 1},    {Qt::Key_Down, 2},    {Qt::Key_Right, 12},
        {Qt::Key_PageDown, 19}, {Qt::Key_PageUp, 10}, {Qt::Key_Up, 9},      {Qt::Key_Home, 1},
        {Qt::Key_PageDown, 9},  {Qt::Key_PageUp, 1},  {Qt::Key_End, 49},    {Qt::Key_Right, 49},
        {Qt::Key_Down, 49},     {Qt::Key_Left, 39},   {Qt::Key_PageUp, 30},
    };
    for (const auto &[key, number] : steps) {
        QTest::keyClick(&view, key);
        EXPECT_EQ(view.currentNumber(), number) << "key " << key;
    }
}

TEST_F(NumberBoardViewTest, SpaceAndEnterMarkTheCurrentNumber) {
    QTest::keyClick(&view, Qt::Key_Space);
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Return);
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Enter);
    EXPECT_EQ(marked(), (Numbers{1, 2, 3}));
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(marked(), (Numbers{1, 2}));
}

TEST_F(NumberBoardViewTest, TypedDigitsGoToTheirNumber) {
    QTest::keyClick(&view, Qt::Key_3);
    EXPECT_EQ(view.currentNumber(), 3);
    QTest::keyClick(&view, Qt::Key_7);
    EXPECT_EQ(view.currentNumber(), 37);
    QTest::keyClick(&view, Qt::Key_5);
    EXPECT_EQ(view.currentNumber(), 5) << "375 is no number: the digit begins a new one";
    QTest::keyClick(&view, Qt::Key_0);
    EXPECT_EQ(view.currentNumber(), 5) << "neither 50 nor 0 is on the board";
}

TEST_F(NumberBoardViewTest, AFreshDigitAfterAPauseBeginsANewNumber) {
    QTest::keyClick(&view, Qt::Key_3);
    QTest::qWait(1000);
    QTest::keyClick(&view, Qt::Key_7);
    EXPECT_EQ(view.currentNumber(), 7);
}

TEST_F(NumberBoardViewTest, ADigitAfterAnotherKeyBeginsANewNumber) {
    QTest::keyClick(&view, Qt::Key_3);
    QTest::keyClick(&view, Qt::Key_Space);
    QTest::keyClick(&view, Qt::Key_7);
    EXPECT_EQ(view.currentNumber(), 7);
}

TEST_F(NumberBoardViewTest, TheThreeLooksDifferWithoutColour) {
    board.selectNumber(22);
    const QImage crossed = greyBox(22);
    board.clearSelection();
    const QImage plain = greyBox(22);
    board.selectComplementary(22);
    const QImage ringed = greyBox(22);
    board.editable(false);
    EXPECT_NE(greyBox(22), ringed) << "a closed board looks closed";
    EXPECT_NE(crossed, plain);
    EXPECT_NE(ringed, plain);
    EXPECT_NE(ringed, crossed);
}

TEST_F(NumberBoardViewTest, TheFocusIsSeenOnTheCurrentNumberOnly) {
    view.clearFocus();
    const QImage without = view.grab().toImage();
    view.activateWindow();
    view.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    const QImage first = view.grab().toImage();
    QTest::keyClick(&view, Qt::Key_End);
    EXPECT_NE(first, without);
    EXPECT_NE(view.grab().toImage(), first);
}

TEST_F(NumberBoardViewTest, AScreenReaderHearsTheMarkedNumbers) {
    board.selectNumber(31);
    board.selectComplementary(34);
    EXPECT_EQ(view.accessibleName().toStdString(), "Grille des numéros 1 à 49");
    EXPECT_EQ(view.accessibleDescription().toStdString(),
              "Numéros marqués : 31, 34 (complémentaire).");
}

TEST_F(NumberBoardViewTest, ChangesOfTheProgramAreTold) {
    int told = 0;
    QObject::connect(&view, &NumberBoardView::changed, &view, [&told] { ++told; });
    board.selectNumber(3);
    board.clearSelection();
    EXPECT_EQ(told, 2);
}

TEST_F(NumberBoardViewTest, AllNumbersFitFromTheSmallestSizeToALargeOne) {
    for (const QSize size : {view.minimumSizeHint(), view.sizeHint(), QSize(1200, 1500)}) {
        view.resize(size);
        const QRectF box = view.boxOf(49);
        EXPECT_TRUE(QRectF(view.rect()).contains(box));
        EXPECT_GE(box.width(), view.fontMetrics().horizontalAdvance(QStringLiteral("49")));
        EXPECT_GE(box.height(), 12);
        EXPECT_LE(box.width(), box.height() * 2);
    }
}

} // namespace
} // namespace boulix
