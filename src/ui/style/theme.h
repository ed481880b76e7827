// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPalette>

namespace boulix::theme {

/// The two colours in which the icons are drawn.
inline const QColor neutral{0x3b, 0x42, 0x52};
inline const QColor accent{0x2f, 0x91, 0x60};
/// What went wrong is shown in this one, on light and on dark grounds.
inline const QColor alarm{0xd0, 0x45, 0x3e};

/// The light ground that the splash window and the credits bring along, and the ink on it.
inline const QColor paper{0xf1, 0xf6, 0xf2};
inline const QColor ink{0x26, 0x2c, 0x38};

/// The distances between and around controls, in device-independent pixels.
inline constexpr int gap = 8;
inline constexpr int margin = 12;

QPalette lightPalette();
QPalette darkPalette();
bool isDark(const QPalette &palette);

/// `over` laid on `ground` with the strength `part`, 0 to 1; an opaque colour.
QColor blend(const QColor &ground, const QColor &over, qreal part);

/// Takes the light or the dark palette, whichever is nearer to the one that the desktop has now.
void followDesktop();

} // namespace boulix::theme
