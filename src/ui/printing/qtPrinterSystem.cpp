// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/qtPrinterSystem.h"

#include "core/failure.h"
#include "core/text.h"
#include "ui/printing/pdfPaper.h"
#include "ui/widgets/qtText.h"

#include <QPrinterInfo>
#include <QProcess>
#include <QStringList>

namespace boulix {

namespace {

constexpr int patience = 60000; // milliseconds that the print system may take for a document

// A printer object of Qt would send the document by itself, but it keeps a refusal to itself and
// sends half a document too, and slips must neither get lost nor come out by halves.
void submit(const QStringList &order, const QString &fileName) {
    QProcess lp;
    lp.start(QStringLiteral("lp"), order + QStringList{QStringLiteral("--"), fileName});
    const bool finished = lp.waitForFinished(patience);
    if (finished && lp.exitStatus() == QProcess::NormalExit && lp.exitCode() == 0)
        return;
    const QString complaint = finished ? QString::fromLocal8Bit(lp.readAllStandardError()).trimmed()
                                       : QStringLiteral("lp: ") + lp.errorString();
    fail(Failure::printerError,
         "L'imprimante n'accepte pas le document." + std::string(crlf) + fromQt(complaint));
}

} // namespace

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
    QStringList order = {QStringLiteral("-d"), toQt(printer),
                         QStringLiteral("-t"), toQt(title),
                         QStringLiteral("-o"), QStringLiteral("print-scaling=none")};
    if (sides == Sides::one)
        order << QStringLiteral("-o") << QStringLiteral("sides=one-sided");
    return std::make_unique<PdfPaper>(
        sheet, title, [order](const QString &fileName) { submit(order, fileName); });
}

} // namespace boulix
