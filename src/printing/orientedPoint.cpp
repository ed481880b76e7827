// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/orientedPoint.h"

namespace boulix {

namespace {

// The length and the height of the slip. The two sideways directions use one of them each: the
// offsets of the users are tuned against that.
constexpr float slipLength = 160;
constexpr float slipHeight = 120;

} // namespace

void orientedPoint::setRefPoint(float x, float y) {
    x_ = x;
    y_ = y;
}

void orientedPoint::translate(float dx, float dy) {
    x_ += dx;
    y_ += dy;
}

orientedPoint orientedPoint::getRelPoint(std::int32_t direction) const {
    orientedPoint turned;
    switch (direction) {
    case 0:
        turned.setRefPoint(slipLength - y_, x_);
        break;
    case 1:
        turned.setRefPoint(y_, slipHeight - x_);
        break;
    case 2:
        turned.setRefPoint(x_, y_);
        break;
    case 3:
        turned.setRefPoint(slipLength - x_, slipHeight - y_);
        break;
    default:
        break;
    }
    return turned;
}

} // namespace boulix
