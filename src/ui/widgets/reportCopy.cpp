// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/widgets/reportCopy.h"

#include <QItemSelection>
#include <QStringList>

#include <algorithm>

namespace boulix::reportCopy {

namespace {

void appendRows(QString &text, const QAbstractItemModel &model, int first, int last) {
    const int columns = model.columnCount();
    for (int row = first; row <= last; ++row)
        for (int column = 0; column < columns; ++column)
            text += model.index(row, column).data().toString() +
                    (column + 1 < columns ? QLatin1Char('\t') : QLatin1Char('\n'));
}

} // namespace

QString selectedRows(const QAbstractItemModel &model, QItemSelection selection) {
    std::sort(selection.begin(), selection.end(),
              [](const auto &a, const auto &b) { return a.top() < b.top(); });
    QString text;
    for (const QItemSelectionRange &range : selection)
        appendRows(text, model, range.top(), range.bottom());
    return text;
}

QString allRows(const QAbstractItemModel &model) {
    QStringList headers;
    for (int column = 0; column < model.columnCount(); ++column)
        headers << model.headerData(column, Qt::Horizontal).toString();
    QString text = headers.join(QLatin1Char('\t')) + QLatin1Char('\n');
    appendRows(text, model, 0, model.rowCount() - 1);
    return text;
}

} // namespace boulix::reportCopy
