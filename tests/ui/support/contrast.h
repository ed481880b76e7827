// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QColor;

namespace boulix::testing_support {

/// The contrast of two colours after WCAG 2: 1 for the same, 21 for black on white.
double contrast(const QColor &one, const QColor &other);

} // namespace boulix::testing_support
