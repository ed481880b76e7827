// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QRect>

#include <string>
#include <vector>

class QWidget;

namespace boulix::testing_support {

/// What a text on a picture of its window looks like.
struct TextOnPicture {
    std::string control; ///< the name of the control that shows it
    std::string text;
    double contrast = 0; ///< of its ink on its ground
    bool inked = false;  ///< its ink was found on the picture
};

/// All texts of `window` that can be seen and belong to controls that are not switched off, each
/// measured on a picture of the window: the ground is the commonest colour of the text's place,
/// the ink the one nearest to what the control drew it with. The letters must have no smoothed
/// edges.
std::vector<TextOnPicture> textsOnPicture(QWidget &window);

/// The contrast of the commonest colour of `place` with the one that stands out most.
double strongestContrast(const QImage &picture, const QRect &place);

} // namespace boulix::testing_support
