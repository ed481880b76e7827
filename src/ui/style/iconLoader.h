// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace boulix {

/// The icon `name` of the program's family (`import`, `print` ...), in the colours of the
/// palette in use when it is drawn. A name that does not exist gives a null icon.
QIcon loadIcon(const QString &name);

/// The same with every line in `colour`, except when it is disabled or selected.
QIcon loadIconIn(const QString &name, const QColor &colour);

/// The program's logo, for title bars and task bars.
QIcon logoIcon();

/// The picture `name` in its own colours, `size` device-independent pixels large, sharp at the
/// device pixel ratio `ratio`.
QPixmap loadPicture(const QString &name, const QSize &size, qreal ratio);

} // namespace boulix
