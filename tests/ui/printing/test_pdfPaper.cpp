// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/printing/pdfPaper.h"

#include "fullDisk.h"
#include "support/boulixTest.h"

#include <QFile>

namespace boulix {
namespace {

using testing_support::FullDisk;

class PdfPaperTest : public ::testing::Test {
  protected:
    PdfPaper newPaper() {
        return PdfPaper(QPageSize(QPageSize::A4), "essai",
                        [this](auto finished) { deliver(finished->fileName()); });
    }
    void deliver(const QString &fileName) {
        QFile file(fileName);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        name = fileName;
        delivered.push_back(file.readAll());
    }

    QString name;
    std::vector<QByteArray> delivered;
};

TEST_F(PdfPaperTest, IsDeliveredWholeAtItsEndAndGoneAfterwards) {
    {
        auto paper = newPaper();
        paper.line(10, 10, 20, 20);
        paper.newPage();
        EXPECT_TRUE(delivered.empty());
        paper.endDocument();
    }
    ASSERT_EQ(delivered.size(), 1U);
    EXPECT_TRUE(delivered[0].startsWith("%PDF-"));
    EXPECT_TRUE(delivered[0].trimmed().endsWith("%%EOF"));
    EXPECT_FALSE(QFile::exists(name));
}

TEST_F(PdfPaperTest, ADroppedDocumentIsNotDelivered) {
    newPaper().line(10, 10, 20, 20);
    EXPECT_TRUE(delivered.empty());
}

TEST_F(PdfPaperTest, AFullDiskIsAFailureAndNothingIsDelivered) {
    const auto failure = failureOf([this] {
        auto paper = newPaper();
        const FullDisk disk(2000);
        for (int page = 0; page < 50; ++page) {
            for (int i = 0; i < 100; ++i)
                paper.line(10 + i, 10, 20, 20.0 + i);
            paper.newPage();
        }
        paper.endDocument();
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 61);
    EXPECT_TRUE(delivered.empty());
}

} // namespace
} // namespace boulix
