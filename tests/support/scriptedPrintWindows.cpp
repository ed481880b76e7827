// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/scriptedPrintWindows.h"

#include "printing/frmPrint.h"
#include "printing/frmPrintGridPreview.h"

#include <gtest/gtest.h>

namespace boulix::testing_support {

void ScriptedPrintWindows::runPrint(frmPrint &window) {
    ++printShowings;
    EXPECT_TRUE(onPrint) << "the printer settings were opened unexpectedly";
    if (onPrint)
        onPrint(window);
    else
        window.clickCancel();
}

void ScriptedPrintWindows::runGridPreview(frmPrintGridPreview &window) {
    ++previewShowings;
    EXPECT_TRUE(onGridPreview) << "the preview was opened unexpectedly";
    if (onGridPreview)
        onGridPreview(window);
    else
        window.clickToolbar(4);
}

} // namespace boulix::testing_support
