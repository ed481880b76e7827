// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/canvas.h"

#include <memory>
#include <string>
#include <vector>

namespace boulix {

class frmPrint;
class frmPrintGridPreview;

/// Whether the pages of a document may share a sheet: one page a sheet, or as the printer is set.
enum class Sides { one, asPrinterIsSet };

/// The printers of the system. The screens give the real one, the tests a recording one.
class PrinterSystem {
  public:
    virtual ~PrinterSystem() = default;

    /// The device names of all printers as they are installed now, in the system's order.
    virtual std::vector<std::string> printers() const = 0;
    /// The device name of the system's default printer, empty where there is none.
    virtual std::string defaultPrinter() const = 0;
    /// Opens a document on the printer with this device name. `title` is what the queue shows.
    /// A printer that is not there any more fails with `Failure::printerError`.
    virtual std::unique_ptr<Paper> openDocument(const std::string &printer,
                                                const std::string &title, Sides sides) = 0;
    /// Opens a document on sheets of A4 that becomes the PDF file `fileName` when it ends, in place
    /// of an earlier one. A file that cannot be written is a failure of the end; the earlier one
    /// stays then.
    virtual std::unique_ptr<Paper> openPdf(const std::string &fileName,
                                           const std::string &title) = 0;
    /// For the end of the program: waits until the ended documents are out of the house. False
    /// when the program must stay: a document was refused, or the user wants to. At once true
    /// where `Paper::endDocument` already waits.
    virtual bool finishDocuments() { return true; }
};

/// The printers in use; `setPrinterSystem` comes first, and keeps a reference only.
PrinterSystem &printerSystem();
void setPrinterSystem(PrinterSystem *system);

/// The modal windows that a printing routine opens by itself.
class PrintWindows {
  public:
    virtual ~PrintWindows() = default;

    /// Shows the printer settings until they are confirmed or left.
    virtual void runPrint(frmPrint &window) = 0;
    /// Shows the preview until the user prints or cancels.
    virtual void runGridPreview(frmPrintGridPreview &window) = 0;
};

/// The windows in use; `setPrintWindows` comes first, and keeps a reference only.
PrintWindows &printWindows();
void setPrintWindows(PrintWindows *windows);

} // namespace boulix
