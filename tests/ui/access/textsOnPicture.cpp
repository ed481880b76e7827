// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "textsOnPicture.h"

#include "drawnTexts.h"
#include "ui/support/contrast.h"
#include "ui/support/places.h"

#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace boulix::testing_support {

namespace {

constexpr int veil = 0x30; // by so much a channel of the ink may differ

std::map<QRgb, int> coloursIn(const QImage &picture, const QRect &place) {
    std::map<QRgb, int> counts;
    const QRect inside = place & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            ++counts[picture.pixel(x, y) | qRgba(0, 0, 0, 0xff)];
    return counts;
}

/// The sum over the channels.
int distance(QRgb one, QRgb other) {
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
           std::abs(qBlue(one) - qBlue(other));
}

/// The colour that comes nearest to `wanted`: a focus frame lies on its letters like a thin veil.
QRgb nearestTo(QRgb wanted, const std::map<QRgb, int> &counts) {
    QRgb nearest = counts.begin()->first;
    for (const auto &[colour, count] : counts)
        if (distance(colour, wanted) < distance(nearest, wanted))
            nearest = colour;
    return nearest;
}

/// The commonest colour but `ink`: bold letters can cover more than what lies behind them.
QColor groundOf(const std::map<QRgb, int> &counts, QRgb ink) {
    QRgb ground = ink;
    int most = 0;
    for (const auto &[colour, count] : counts)
        if (colour != ink && count > most) {
            ground = colour;
            most = count;
        }
    return QColor::fromRgb(ground);
}

/// The letters are fully in sight: they are neither scrolled away nor covered. The room above and
/// below them may be cut.
bool isInSight(const QWidget &control, const QRect &place) {
    const QRect letters = place.adjusted(1, place.height() / 4, -1, -place.height() / 4);
    return QRegion(letters).subtracted(control.visibleRegion()).isEmpty();
}

void measure(QWidget &control, const QImage &picture, std::vector<TextOnPicture> &found) {
    const QWidget &window = *control.window();
    for (const DrawnText &drawn : drawnTexts(control)) {
        if (!isInSight(control, drawn.place))
            continue;
        const QRect seen = drawn.place & control.rect();
        const QRect place(control.mapTo(&window, seen.topLeft()), seen.size());
        const auto counts = coloursIn(picture, place);
        if (counts.empty())
            continue;
        const QRgb ink = nearestTo(drawn.ink.rgb(), counts);
        found.push_back({nameOf(&control), drawn.text.toStdString(),
                         contrast(QColor::fromRgb(ink), groundOf(counts, ink)),
                         distance(ink, drawn.ink.rgb()) < 3 * veil});
    }
}

} // namespace

std::vector<TextOnPicture> textsOnPicture(QWidget &window) {
    const QImage picture = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    std::vector<TextOnPicture> found;
    measure(window, picture, found);
    for (QWidget *control : window.findChildren<QWidget *>())
        if (control->isVisible() && control->isEnabled() && control->window() == &window)
            measure(*control, picture, found);
    return found;
}

double strongestContrast(const QImage &picture, const QRect &place) {
    const auto counts = coloursIn(picture, place);
    const auto commonest =
        std::max_element(counts.begin(), counts.end(), [](const auto &one, const auto &other) {
            return one.second < other.second;
        });
    double strongest = 1;
    for (const auto &[colour, count] : counts)
        strongest = std::max(strongest,
                             contrast(QColor::fromRgb(colour), QColor::fromRgb(commonest->first)));
    return strongest;
}

} // namespace boulix::testing_support
