// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/printing/qtPicture.h"

#include "printing/modPrinter.h"
#include "printing/slip.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace boulix {
namespace {

constexpr double pixelsPerMillimetre = 10;

/// A picture of 160 by 60 millimetres at (20, 30) on a grey image.
class QtPictureTest : public ::testing::Test {
  protected:
    QtPictureTest() { image.fill(Qt::gray); }
    bool isDark(double x, double y) const {
        const QPointF at = area.topLeft() + QPointF(x, y) * pixelsPerMillimetre;
        return qGray(image.pixel(at.toPoint())) < 100;
    }
    bool isWhite(double x, double y) const {
        const QPointF at = area.topLeft() + QPointF(x, y) * pixelsPerMillimetre;
        return image.pixelColor(at.toPoint()) == Qt::white;
    }

    QImage image{1700, 700, QImage::Format_RGB32};
    QRectF area{20, 30, 1600, 600};
};

TEST_F(QtPictureTest, ClearingMakesItsAreaWhiteAndNothingElse) {
    QPainter painter(&image);
    QtPicture(painter, area, pixelsPerMillimetre).clear();
    painter.end();
    EXPECT_TRUE(isWhite(0, 0));
    EXPECT_TRUE(isWhite(159.8, 59.8));
    EXPECT_EQ(image.pixelColor(19, 29), QColor(Qt::gray));
    EXPECT_EQ(image.pixelColor(1621, 631), QColor(Qt::gray));
}

TEST_F(QtPictureTest, ACrossIsInTheMiddleOfItsBox) {
    QPainter painter(&image);
    QtPicture picture(painter, area, pixelsPerMillimetre);
    picture.clear();
    slip::drawGrid(picture, {1, 12, 23, 34, 45, 49}, 2, {slip::onPicture, modPrinter::directionUp});
    painter.end();
    for (const int number : {1, 12, 23, 34, 45, 49}) {
        const double left = 20.5 + number / 10 * 3.8;
        const double top = 2 + number % 10 * 5;
        EXPECT_TRUE(isDark(left + 1.4, top + 2)) << number;
        EXPECT_TRUE(isDark(left + 0.2, top + 0.3)) << number;
        EXPECT_TRUE(isDark(left + 2.6, top + 0.3)) << number;
        EXPECT_TRUE(isWhite(left + 0.1, top + 2)) << number;
    }
    EXPECT_TRUE(isWhite(20.5 + 1.4, 4)) << "no cross in a box without a number";
}

TEST_F(QtPictureTest, ALargerPictureHasLargerLettersOfTheSameMeasure) {
    QPainter painter(&image);
    QtPicture small(painter, area, 4);
    QtPicture large(painter, area, 12);
    small.font("arial", 6);
    large.font("arial", 6);
    EXPECT_DOUBLE_EQ(small.textWidth("49"), large.textWidth("49"));
    EXPECT_DOUBLE_EQ(small.textHeight("49"), large.textHeight("49"));
    constexpr double em = 6 * 25.4 / 72;
    EXPECT_NEAR(large.textWidth("49"), 2 * 0.556 * em, 0.2) << "about two digits";
    EXPECT_GT(large.textHeight("49"), em);
    EXPECT_LT(large.textHeight("49"), 1.5 * em);
}

TEST_F(QtPictureTest, ThePenOfAPictureIsAPixelAtItsNaturalSize) {
    QPainter painter(&image);
    QtPicture picture(painter, area, pixelsPerMillimetre);
    picture.clear();
    picture.penWidth(4);
    picture.line(10, 10, 30, 10);
    painter.end();
    // Four dots of 1/96 inch are 1.06 mm.
    EXPECT_TRUE(isDark(20, 10.4));
    EXPECT_TRUE(isDark(20, 9.6));
    EXPECT_TRUE(isWhite(20, 10.7));
    EXPECT_TRUE(isWhite(20, 9.3));
}

} // namespace
} // namespace boulix
