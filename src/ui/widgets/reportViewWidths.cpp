// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The widths that the user gives the columns of a list: they outlive new columns and the window.

#include "ui/widgets/reportView.h"

#include <QHeaderView>

namespace boulix {

void ReportView::keepUserWidths(int column) {
    const int last = header_->count() - 1;
    if (sizing_ || column >= last)
        return;
    std::vector<int> &widths = userWidths_[header_->count()];
    widths.clear();
    for (int i = 0; i < last; ++i)
        widths.push_back(header_->sectionSize(i));
}

std::vector<std::vector<int>> ReportView::userWidths() const {
    std::vector<std::vector<int>> all;
    for (const auto &[count, widths] : userWidths_)
        all.push_back(widths);
    return all;
}

void ReportView::setUserWidths(const std::vector<std::vector<int>> &widths) {
    for (const std::vector<int> &stretch : widths)
        userWidths_[static_cast<int>(stretch.size()) + 1] = stretch;
    sizeColumns();
}

} // namespace boulix
