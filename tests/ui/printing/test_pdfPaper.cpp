// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/printing/pdfPaper.h"

#include "support/boulixTest.h"

#include <QFile>

#include <csignal>
#include <sys/resource.h>

namespace boulix {
namespace {

/// No file of this process can grow beyond some bytes for a while, as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

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
