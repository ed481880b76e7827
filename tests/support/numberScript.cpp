// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/numberScript.h"

#include <utility>

namespace boulix::testing_support {

NumberScript &NumberScript::click(std::initializer_list<std::int16_t> numbers) {
    return click(std::vector<std::int16_t>(numbers));
}

NumberScript &NumberScript::click(const std::vector<std::int16_t> &numbers) {
    return then([numbers](frmNbrSelector &dialog) {
        for (const std::int16_t n : numbers)
            dialog.grd.click(n);
    });
}

NumberScript &NumberScript::clear() {
    return then([](frmNbrSelector &dialog) { dialog.clickClear(); });
}

NumberScript &NumberScript::selectAll() {
    return then([](frmNbrSelector &dialog) { dialog.clickSelectAll(); });
}

NumberScript &NumberScript::then(std::function<void(frmNbrSelector &)> step) {
    steps_.push_back(std::move(step));
    return *this;
}

NumberScript &NumberScript::ok() {
    return then([](frmNbrSelector &dialog) { dialog.clickOK(); });
}

NumberScript &NumberScript::cancel() {
    return then([](frmNbrSelector &dialog) { dialog.clickCancel(); });
}

void NumberScript::run(frmNbrSelector &dialog) const {
    for (const auto &step : steps_)
        step(dialog);
}

std::vector<std::int16_t> markedNumbers(const NumberBoard &board) {
    std::vector<std::int16_t> numbers;
    for (std::int16_t i = 1; i <= board.selectedCount(); ++i)
        numbers.push_back(board.selectedNumber(i));
    return numbers;
}

} // namespace boulix::testing_support
