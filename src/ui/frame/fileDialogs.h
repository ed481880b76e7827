// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "sill/desktop.h"

#include <QStringList>

#include <string>

class QWidget;

namespace boulix::fileDialogs {

/// The filters of "description|pattern" (or several pairs) in Qt's form "description (patterns)".
/// The pattern "*.*" stands for every file, also one without an extension.
QStringList nameFilters(const std::string &filter);

/// The extension that a filter of a single pattern such as "*.lst" names, without its dot; empty
/// for any other filter.
QString onlyExtension(const std::string &filter);

/// Asks for a file that exists; empty when none was chosen.
std::string open(QWidget *parent, const FileQuestion &question);

/// Asks for a file in a folder that exists; the file itself need not. Empty when none was chosen.
std::string save(QWidget *parent, const FileQuestion &question);

} // namespace boulix::fileDialogs
