// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/qtPrinterSystem.h"

#include "core/failure.h"
#include "ui/printing/pdfFile.h"
#include "ui/printing/pdfPaper.h"
#include "ui/printing/printQueue.h"
#include "ui/widgets/qtText.h"

#include <QPrinterInfo>
#include <QStringList>

#include <utility>

namespace boulix {

QtPrinterSystem::QtPrinterSystem() : queue_(std::make_unique<PrintQueue>()) {}

QtPrinterSystem::~QtPrinterSystem() = default;

std::vector<std::string> QtPrinterSystem::printers() const {
    std::vector<std::string> names;
    for (const QString &name : QPrinterInfo::availablePrinterNames())
        names.push_back(fromQt(name));
    return names;
}

std::string QtPrinterSystem::defaultPrinter() const {
    return fromQt(QPrinterInfo::defaultPrinterName());
}

std::unique_ptr<Paper> QtPrinterSystem::openDocument(const std::string &printer,
                                                     const std::string &title, Sides sides) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(toQt(printer));
    if (info.isNull())
        fail(Failure::printerError, "L'imprimante " + printer + " n'est pas disponible.");
    QPageSize sheet = info.defaultPageSize();
    if (!sheet.isValid())
        sheet = QPageSize(QPageSize::A4);
    QStringList options = {QStringLiteral("-o"), QStringLiteral("print-scaling=none")};
    if (sides == Sides::one)
        options << QStringLiteral("-o") << QStringLiteral("sides=one-sided");
    return std::make_unique<PdfPaper>(
        sheet, title, [this, printer, title, options](std::unique_ptr<QTemporaryFile> file) {
            queue_->add({std::move(file), toQt(printer), toQt(title), options});
        });
}

std::unique_ptr<Paper> QtPrinterSystem::openPdf(const std::string &fileName,
                                                const std::string &title) {
    return openPdfFile(fileName, title);
}

bool QtPrinterSystem::finishDocuments() {
    return queue_->finish();
}

} // namespace boulix
