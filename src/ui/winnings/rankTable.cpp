// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/winnings/rankTable.h"

#include "ui/style/theme.h"
#include "workbench/winningsPage.h"

#include <QGridLayout>
#include <QLabel>

namespace boulix::rankTable {

QGridLayout *make(QWidget &table, const QStringList &headers) {
    auto *grid = new QGridLayout(&table);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(theme::gap);
    grid->setVerticalSpacing(theme::gap / 2);
    grid->setColumnStretch(0, 1);
    // Rows without a button or a box are still apart enough to be followed with the eye.
    for (int row = 1; row <= winningsPage::ranks; ++row)
        grid->setRowMinimumHeight(row, table.fontMetrics().height() * 3 / 2);
    // Room for the largest count and the longest usual amount, so that no result moves the table.
    const int numbers = table.fontMetrics().horizontalAdvance(QStringLiteral("0000000.00"));
    for (int column = 0; column < headers.size(); ++column) {
        if (column > 0)
            grid->setColumnMinimumWidth(column, numbers);
        auto *header = new QLabel(headers[column], &table);
        header->setWordWrap(true); // in a narrow window two lines
        header->setForegroundRole(QPalette::PlaceholderText);
        header->setAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        grid->addWidget(header, 0, column);
    }
    return grid;
}

int rowOf(std::size_t index) {
    return static_cast<int>(index) + 1;
}

QFont strong(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace boulix::rankTable
