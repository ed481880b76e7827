// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <string>

namespace boulix {

/// UTF-8 of the logic as a text of the screen.
inline QString toQt(const std::string &utf8) {
    return QString::fromStdString(utf8);
}

/// As `toQt`, with the logic's CR LF turned into the screen's line end.
inline QString linesToQt(const std::string &utf8) {
    return toQt(utf8).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// A text of the screen as UTF-8 for the logic.
inline std::string fromQt(const QString &text) {
    return text.toStdString();
}

} // namespace boulix
