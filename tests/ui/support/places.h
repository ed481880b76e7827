// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <iosfwd>
#include <string>
#include <vector>

class QWidget;

namespace boulix::testing_support {

/// A page of the main window, a sub-tab of the game page, or a method on its last sub-tab.
struct Place {
    int page = 0;    ///< index of the tab
    int side = -1;   ///< index of the sub-tab, -1 on a page without any
    int method = -1; ///< index of the method, -1 where there is none

    void goThere(QWidget &mainWindow) const;
};
std::ostream &operator<<(std::ostream &stream, const Place &place);

/// All of them, in the order of the tabs.
std::vector<Place> placesOfMainWindow();

/// The object name of a control, of its action where it is a button of a toolbar, of its field
/// where it is an arrow; "nothing" without a control.
std::string nameOf(const QWidget *control);

} // namespace boulix::testing_support
