// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "printing/printerSystem.h"
#include "support/recordingCanvas.h"

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// A document as it was printed, or as far as it came.
struct PrintedDocument : Recording {
    std::string printer;
    std::string pdfFile; ///< where it went in place of a printer
    std::string title;
    Sides sides = Sides::asPrinterIsSet;
    int pages = 1;
    bool ended = false;   ///< sent to the printer
    bool dropped = false; ///< given up before its end
};

/// Printers without paper: a test names them and reads what was printed. One printer, "Bureau",
/// is there at first and is the default.
class RecordingPrinters : public PrinterSystem {
  public:
    std::vector<std::string> names = {"Bureau"};
    std::string standard = "Bureau";
    /// The sheet of all printers, in millimetres.
    double sheetWidth = 210;
    double sheetHeight = 297;
    TextMetrics metrics;
    /// The page at whose beginning the printer breaks down; 0 for never.
    int breakAtPage = 0;
    /// Whether the program may end, and how often it asked.
    bool mayFinish = true;
    int finishings = 0;

    /// All documents that were opened, oldest first; references to them stay good.
    std::deque<PrintedDocument> documents;
    /// The only document there is; any other count of documents fails the test.
    const PrintedDocument &onlyDocument() const;

    std::vector<std::string> printers() const override { return names; }
    std::string defaultPrinter() const override { return standard; }
    std::unique_ptr<Paper> openDocument(const std::string &printer, const std::string &title,
                                        Sides sides) override;
    std::unique_ptr<Paper> openPdf(const std::string &fileName, const std::string &title) override;
    bool finishDocuments() override {
        ++finishings;
        return mayFinish;
    }
};

} // namespace boulix::testing_support
