// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/printerSystem.h"

#include <QString>

#include <functional>

namespace boulix {

/// A printer of the evening: what it prints is kept as a PDF document.
class PdfPrinters : public PrinterSystem {
  public:
    /// Called with each finished document, whose file is gone afterwards.
    std::function<void(const QString &fileName)> printed;

    std::vector<std::string> printers() const override { return {"Imprimante PDF"}; }
    std::string defaultPrinter() const override { return "Imprimante PDF"; }
    std::unique_ptr<Paper> openDocument(const std::string &printer, const std::string &title,
                                        Sides sides) override;
    std::unique_ptr<Paper> openPdf(const std::string &fileName, const std::string &title) override;
};

} // namespace boulix
