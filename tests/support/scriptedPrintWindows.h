// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "printing/printerSystem.h"

#include <functional>

namespace boulix::testing_support {

/// The two windows of the printing routines, used by a script in place of a user. A window that
/// opens without a script fails the test and is left at once.
class ScriptedPrintWindows : public PrintWindows {
  public:
    std::function<void(frmPrint &)> onPrint;
    std::function<void(frmPrintGridPreview &)> onGridPreview;
    int printShowings = 0;
    int previewShowings = 0;

    void runPrint(frmPrint &window) override;
    void runGridPreview(frmPrintGridPreview &window) override;
};

} // namespace boulix::testing_support
