// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/printerSystem.h"

namespace boulix {

/// The printers of the desktop's print system.
class QtPrinterSystem : public PrinterSystem {
  public:
    std::vector<std::string> printers() const override;
    std::string defaultPrinter() const override;
    /// The sheet is the printer's own. The document goes to the print system's `lp` in one piece,
    /// with the order not to scale it; what `lp` complains about is the failure's text.
    std::unique_ptr<Paper> openDocument(const std::string &printer, const std::string &title,
                                        Sides sides) override;
};

} // namespace boulix
