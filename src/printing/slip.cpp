// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/slip.h"

#include "printing/modPrinter.h"
#include "printing/orientedPoint.h"

#include <string>

namespace boulix::slip {

namespace {

/// A corner of a box on the slip, in millimetres.
struct Corner {
    double x;
    double y;
};

constexpr double gridWidth = 19;
constexpr double gridTop = 1;
constexpr double separatorBottom = 52;
constexpr double columnWidth = 3.8;
constexpr double rowHeight = 5;
constexpr double boxWidth = 2.8;
constexpr double boxHeight = 4;

/// The first box of a slip that lies on the canvas sheet is that far from the slip's outline.
constexpr float canvasShiftX = 4;
constexpr float canvasShiftY = 27;

constexpr int crossPen = 4;

double gridLeft(std::int16_t position) {
    return (position - 1) * gridWidth + 1;
}

/// The top left corner of the box of `number`: a column for each ten, a row for each last digit.
Corner boxCorner(std::int16_t position, std::int16_t number) {
    const int column = number / 10;
    const int row = number % 10;
    return {column * columnWidth + gridLeft(position) + 0.5, row * rowHeight + gridTop + 1};
}

orientedPoint placed(Corner corner, Placement placement) {
    orientedPoint point;
    point.setRefPoint(static_cast<float>(corner.x), static_cast<float>(corner.y));
    orientedPoint turned = point.getRelPoint(placement.direction);
    if (placement.mode == onSlip) {
        turned.translate(modPrinter::offset_X, modPrinter::offset_Y);
    } else if (placement.mode == onCanvas1 || placement.mode == onCanvas2) {
        const auto &slot = modPrinter::canvasSlots.at(placement.mode == onCanvas1 ? 0 : 1);
        turned.translate(slot.x + canvasShiftX, slot.y + canvasShiftY);
    }
    return turned;
}

void drawCross(Canvas &target, Corner first, Corner second, Placement placement) {
    const orientedPoint p1 = placed(first, placement);
    const orientedPoint p2 = placed(second, placement);
    const double x1 = p1.xRef();
    const double y1 = p1.yRef();
    const double x2 = p2.xRef();
    const double y2 = p2.yRef();
    target.line(x1, y1, x2, y2);
    target.line(x2, y1, x1, y2);
}

void drawEmptyGrid(Picture &picture, std::int16_t position) {
    for (std::int16_t number = 1; number <= 49; ++number) {
        const Corner box = boxCorner(position, number);
        picture.box(box.x, box.y, box.x + boxWidth, box.y + boxHeight);
        const std::string text = std::to_string(number);
        picture.text(box.x + boxWidth / 2 - picture.textWidth(text) / 2,
                     box.y + boxHeight / 2 - picture.textHeight(text) / 2, text);
    }
    const double right = gridLeft(position) + gridWidth;
    picture.line(right, gridTop, right, separatorBottom);
}

} // namespace

void drawGrid(Canvas &target, const GridNumbers &numbers, std::int16_t position,
              Placement placement) {
    target.color(black);
    target.penWidth(crossPen);
    for (const std::int16_t number : numbers) {
        const Corner box = boxCorner(position, number);
        drawCross(target, box, {box.x + boxWidth, box.y + boxHeight}, placement);
    }
}

// Of the two boxes of an option the second one's mark begins in its own box and ends in the first
// one's: a tall cross over both. The slips have been marked like that from the start.

void drawWeekDraws(Canvas &target, bool wedAndSat, Placement placement) {
    drawCross(target, {55.5, wedAndSat ? 70.0 : 57.0}, {58.3, 61}, placement);
}

void drawJoker(Canvas &target, bool plays, Placement placement) {
    drawCross(target, {99, plays ? 69.0 : 78.0}, {101.8, 82}, placement);
}

void drawSubscription(Canvas &target, std::int16_t option, Placement placement) {
    if (option < 1 || option > 4)
        return;
    const double x = option <= 2 ? 129 : 148;
    const double y = option % 2 == 1 ? 65 : 71;
    drawCross(target, {x, y}, {x + boxWidth, y + boxHeight}, placement);
}

void drawEmptySlip(Picture &picture) {
    picture.clear();
    picture.color(black);
    picture.font("arial", 6);
    picture.penWidth(1);
    for (std::int16_t position = 1; position <= gridsPerSlip; ++position)
        drawEmptyGrid(picture, position);
}

} // namespace boulix::slip
