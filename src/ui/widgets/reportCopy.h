// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

class QAbstractItemModel;
class QItemSelection;

namespace boulix::reportCopy {

/// The selected rows from top to bottom, one to a line, their columns parted by tabs.
QString selectedRows(const QAbstractItemModel &model, QItemSelection selection);

/// The header and all rows in the same form.
QString allRows(const QAbstractItemModel &model);

} // namespace boulix::reportCopy
