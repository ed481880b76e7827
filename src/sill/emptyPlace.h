// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <string>

namespace boulix {

/// What stands in a list or a board that has nothing to show: one quiet sentence that says what
/// brings something, and a link behind it where one click helps.
struct EmptyPlace {
    std::string sentence;
    std::string link = {};             ///< the words to click; empty: no link
    std::function<void()> follow = {}; ///< what the link does
    std::string otherLink = {};        ///< a second one under it; empty: none
    std::function<void()> followOther = {};
};

} // namespace boulix
