// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tour/pdfPrinters.h"

#include "ui/printing/pdfFile.h"
#include "ui/printing/pdfPaper.h"

namespace boulix {

std::unique_ptr<Paper> PdfPrinters::openDocument(const std::string &, const std::string &title,
                                                 Sides) {
    return std::make_unique<PdfPaper>(
        QPageSize(QPageSize::A4), title,
        [this](std::unique_ptr<QTemporaryFile> file) { printed(file->fileName()); });
}

std::unique_ptr<Paper> PdfPrinters::openPdf(const std::string &fileName, const std::string &title) {
    return openPdfFile(fileName, title);
}

} // namespace boulix
