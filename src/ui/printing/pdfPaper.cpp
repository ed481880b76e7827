// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/pdfPaper.h"

#include "core/failure.h"
#include "ui/widgets/qtText.h"

#include <QPageLayout>

#include <utility>

namespace boulix {

namespace {

constexpr int dotsPerInch = 1200;
constexpr double millimetresPerInch = 25.4;
constexpr int paperDotsPerInch = 300; // the dots that pens are measured in

QIODevice *opened(QTemporaryFile &file) {
    if (!file.open())
        fail(Failure::pathAccess, fromQt(file.errorString()));
    return &file;
}

} // namespace

PdfPaper::PdfPaper(const QPageSize &sheet, const std::string &title, Deliver deliver)
    : PaintedCanvas(painter_, {dotsPerInch / millimetresPerInch,
                               static_cast<double>(dotsPerInch) / paperDotsPerInch,
                               {}}),
      writer_(opened(*file_)), deliver_(std::move(deliver)) {
    writer_.setPageLayout(QPageLayout(sheet, QPageLayout::Portrait, QMarginsF()));
    writer_.setResolution(dotsPerInch);
    writer_.setTitle(toQt(title));
    if (!painter_.begin(&writer_))
        fail(Failure::printerError);
}

PdfPaper::~PdfPaper() = default;

double PdfPaper::sheetWidth() const {
    return writer_.pageLayout().fullRect(QPageLayout::Millimeter).width();
}

double PdfPaper::sheetHeight() const {
    return writer_.pageLayout().fullRect(QPageLayout::Millimeter).height();
}

void PdfPaper::newPage() {
    if (!writer_.newPage())
        failAsFile();
}

void PdfPaper::endDocument() {
    if (!painter_.end() || !file_->flush() || file_->error() != QFileDevice::NoError)
        failAsFile();
    deliver_(std::move(file_));
}

/// The document could not be written on: most likely its file could not.
void PdfPaper::failAsFile() const {
    if (file_->error() != QFileDevice::NoError)
        fail(Failure::diskFull, fromQt(file_->errorString()));
    fail(Failure::printerError);
}

} // namespace boulix
