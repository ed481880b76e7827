// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/recordingPrinters.h"

#include "core/failure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace boulix::testing_support {

namespace {

class RecordingPaper : public RecordingSurface<Paper> {
  public:
    RecordingPaper(PrintedDocument &document, const RecordingPrinters &printers)
        : RecordingSurface(document), document_(document), printers_(printers) {}
    ~RecordingPaper() override { document_.dropped = !document_.ended; }

    double sheetWidth() const override { return printers_.sheetWidth; }
    double sheetHeight() const override { return printers_.sheetHeight; }
    void newPage() override {
        EXPECT_FALSE(document_.ended) << "a page after the end of the document";
        ++document_.page;
        if (document_.page == printers_.breakAtPage)
            fail(Failure::printerError);
        document_.pages = document_.page;
    }
    void endDocument() override {
        EXPECT_FALSE(document_.ended) << "the document was ended twice";
        document_.ended = true;
    }

  private:
    PrintedDocument &document_;
    const RecordingPrinters &printers_;
};

} // namespace

const PrintedDocument &RecordingPrinters::onlyDocument() const {
    if (documents.size() != 1)
        throw std::runtime_error(std::to_string(documents.size()) + " documents, not one");
    return documents.front();
}

std::unique_ptr<Paper> RecordingPrinters::openDocument(const std::string &printer,
                                                       const std::string &title, Sides sides) {
    if (std::find(names.begin(), names.end(), printer) == names.end())
        fail(Failure::printerError);
    PrintedDocument &document = documents.emplace_back();
    document.printer = printer;
    document.title = title;
    document.sides = sides;
    document.metrics = metrics;
    return std::make_unique<RecordingPaper>(document, *this);
}

std::unique_ptr<Paper> RecordingPrinters::openPdf(const std::string &fileName,
                                                  const std::string &title) {
    PrintedDocument &document = documents.emplace_back();
    document.pdfFile = fileName;
    document.title = title;
    document.metrics = metrics;
    return std::make_unique<RecordingPaper>(document, *this);
}

} // namespace boulix::testing_support
