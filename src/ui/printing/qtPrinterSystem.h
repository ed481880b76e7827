// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/printerSystem.h"

namespace boulix {

class PrintQueue;

/// The printers of the desktop's print system.
class QtPrinterSystem : public PrinterSystem {
  public:
    QtPrinterSystem();
    ~QtPrinterSystem() override;

    std::vector<std::string> printers() const override;
    std::string defaultPrinter() const override;
    /// The sheet is the printer's own. The document goes to the print system's `lp` in one piece,
    /// with the order not to scale it, while the program goes on. A printer object of Qt would send
    /// it by itself, but it keeps a refusal to itself and sends half a document too, and slips must
    /// neither get lost nor come out by halves.
    std::unique_ptr<Paper> openDocument(const std::string &printer, const std::string &title,
                                        Sides sides) override;
    std::unique_ptr<Paper> openPdf(const std::string &fileName, const std::string &title) override;
    bool finishDocuments() override;

  private:
    std::unique_ptr<PrintQueue> queue_;
};

} // namespace boulix
