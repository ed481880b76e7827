// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QRect>
#include <QString>

#include <vector>

class QWidget;

namespace boulix::testing_support {

/// A text that a control has drawn.
struct DrawnText {
    QString text;
    QRect place; ///< within the control
    QColor ink;
};

/// All texts that `control` draws by itself, its children left out, found by letting it draw. A
/// text that it keeps as a picture is not among them.
std::vector<DrawnText> drawnTexts(QWidget &control);

} // namespace boulix::testing_support
