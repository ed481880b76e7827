// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "ui/printing/paintedCanvas.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

#include <functional>
#include <memory>
#include <string>

namespace boulix {

/// A document that is drawn into a PDF file of vectors and letters, millimetre for millimetre
/// from the corner of the sheet, and handed on when it ends. Until then nothing leaves the
/// computer, so a document that is dropped leaves no trace.
class PdfPaper : public PaintedCanvas<Paper> {
  public:
    /// Takes the finished file, which is gone when its last owner is.
    using Deliver = std::function<void(std::unique_ptr<QTemporaryFile> file)>;

    PdfPaper(const QPageSize &sheet, const std::string &title, Deliver deliver);
    ~PdfPaper() override;
    PdfPaper(const PdfPaper &) = delete;
    PdfPaper &operator=(const PdfPaper &) = delete;

    double sheetWidth() const override;
    double sheetHeight() const override;
    void newPage() override;
    void endDocument() override;

  private:
    [[noreturn]] void failAsFile() const;

    // In the order in which they depend on one another: the painter is the first to go.
    std::unique_ptr<QTemporaryFile> file_ = std::make_unique<QTemporaryFile>();
    QPdfWriter writer_;
    QPainter painter_;
    Deliver deliver_;
};

} // namespace boulix
