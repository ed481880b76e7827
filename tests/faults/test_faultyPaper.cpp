// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A printed document on its way through its temporary file, once for each system call, which fails:
// it is delivered whole, or the user is told and nothing is delivered.

#include "faultySystem.h"
#include "support/boulixTest.h"
#include "ui/printing/pdfPaper.h"

#include <QFile>
#include <QTemporaryFile>

#include <cerrno>
#include <filesystem>
#include <memory>

namespace boulix {
namespace {

using testing_support::FaultySystem;

class FaultyPaper : public ::testing::Test {
  protected:
    FaultyPaper() { qputenv("TMPDIR", QByteArray::fromStdString(folder.path())); }
    ~FaultyPaper() override { qunsetenv("TMPDIR"); }

    void print() {
        PdfPaper paper(
            QPageSize(QPageSize::A4), "essai", [this](std::unique_ptr<QTemporaryFile> made) {
                if (broken)
                    broken->failAt(0, 0, false); // how the print system reads is its own matter
                QFile file(made->fileName());
                ASSERT_TRUE(file.open(QIODevice::ReadOnly));
                delivered.push_back(file.readAll());
            });
        for (int page = 0; page < 20; ++page) {
            for (int i = 0; i < 200; ++i)
                paper.line(10 + i, 10, 20, 20.0 + i * page);
            paper.newPage();
        }
        paper.endDocument();
    }

    testing_support::TemporaryFolder folder;
    std::vector<QByteArray> delivered;
    FaultySystem *broken = nullptr;
};

TEST_F(FaultyPaper, IsDeliveredWholeOrNotAtAllAndThenTheUserIsTold) {
    std::vector<std::string> calls;
    {
        const FaultySystem system(folder.path());
        print();
        calls = system.calls();
    }
    ASSERT_EQ(delivered.size(), 1U);
    const qsizetype whole = delivered[0].size();
    ASSERT_GE(calls.size(), 5U);
    for (const int error : {ENOSPC, EIO})
        for (std::size_t n = 1; n <= calls.size(); ++n) {
            SCOPED_TRACE(calls[n - 1] + " fails with " + std::to_string(error));
            delivered.clear();
            std::optional<RuntimeFailure> failure;
            std::size_t made = 0;
            {
                FaultySystem system(folder.path());
                system.failAt(n, error, true);
                broken = &system;
                failure = failureOf([this] { print(); });
                made = system.calls().size();
                broken = nullptr;
            }
            EXPECT_GE(made, n);
            if (!failure) {
                ASSERT_EQ(delivered.size(), 1U);
                EXPECT_EQ(delivered[0].size(), whole);
                EXPECT_TRUE(delivered[0].trimmed().endsWith("%%EOF"));
                EXPECT_NE(calls[n - 1].rfind("write", 0), 0U) << "a write that fails is told";
            } else {
                EXPECT_TRUE(delivered.empty());
                EXPECT_NE(failure->description(), "");
            }
            for (const auto &left : std::filesystem::directory_iterator(folder.path()))
                std::filesystem::remove(left); // where the removal itself was what failed
        }
}

} // namespace
} // namespace boulix
