// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/pdfFile.h"

#include "core/failure.h"
#include "core/fileAccess.h"
#include "ui/printing/pdfPaper.h"
#include "ui/widgets/qtText.h"

namespace boulix {

namespace {

QByteArray bytesOf(QTemporaryFile &file) {
    file.seek(0);
    const QByteArray bytes = file.readAll();
    if (bytes.size() != file.size())
        fail(Failure::deviceError, fromQt(file.errorString()));
    return bytes;
}

} // namespace

std::unique_ptr<Paper> openPdfFile(const std::string &fileName, const std::string &title) {
    return std::make_unique<PdfPaper>(
        QPageSize(QPageSize::A4), title, [fileName](std::unique_ptr<QTemporaryFile> file) {
            const QByteArray bytes = bytesOf(*file);
            replaceFile(fileName, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
        });
}

} // namespace boulix
