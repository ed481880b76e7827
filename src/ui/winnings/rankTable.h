// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QFont>
#include <QStringList>

class QGridLayout;
class QWidget;

namespace boulix {

/// The look that the tables of the eleven ranks share.
namespace rankTable {

/// Lays out `table` as a grid with these headers in row 0. The first column takes the width that
/// the others leave.
QGridLayout *make(QWidget &table, const QStringList &headers);
/// The row of the rank at `index`, from 0.
int rowOf(std::size_t index);
/// `font` in bold.
QFont strong(QFont font);

} // namespace rankTable
} // namespace boulix
