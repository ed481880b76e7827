// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/printerSystem.h"

namespace boulix {

/// The windows of the printing routines, over whichever window is active.
class QtPrintWindows : public PrintWindows {
  public:
    void runPrint(frmPrint &window) override;
    void runGridPreview(frmPrintGridPreview &window) override;
};

} // namespace boulix
