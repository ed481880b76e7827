// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

class QString;
class QWidget;

namespace boulix {

/// Tells Qt how a screen reader sees the program's own controls: lists as tables, boards as grids
/// of numbers, arrows as spin boxes, balls as check boxes, charts as charts. To be called once,
/// before the first window.
void installAccessibility();

/// A screen reader hears `control` as a chart of this name, which it reads as `description`.
void describeChart(QWidget &control, const QString &name, const QString &description);

} // namespace boulix
