// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include "support/saveTexts.h"
#include "support/smallDisk.h"
#include "support/withoutRights.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace boulix {
namespace {

const DrawOf kept = {37632, 1, {2, 3, 5, 7, 11, 13, 17}, 41, 58}; // 11 January 2003
const std::string keptRow = "11/01/2003 (1) 2 3 5 7 11 13 + 17 = 41 58";
const std::string lineB = "33;32;42;16;15;49;37;20030111;2";
const std::string rowB = "11/01/2003 (2) 33 32 42 16 15 49 + 37 = 0 0";

/// A base on a disk of two pages: 8192 bytes hold 63 draws.
class BaseOnASmallDisk : public DrawsTest {
  protected:
    void SetUp() override {
        if (!disk.mounted())
            GTEST_SKIP() << SmallDisk::whyNot;
        gDbCombs->dbFile().path(disk.path());
    }
    std::string diskFile() const { return disk.file("tirages.dbl"); }

    static constexpr int drawsThatFit = 63;
    SmallDisk disk{8192};
};

TEST_F(BaseOnASmallDisk, AFullDiskIsReportedAndTheDrawsStayInMemory) {
    for (int i = 0; i < drawsThatFit; ++i)
        add(kept);
    gDbCombs->saveAgain();
    const auto failure = failureOf([] { gDbCombs->Add(37633, 1, {}, true, ""); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 61);
    EXPECT_EQ(failure->description(),
              "Disque plein : " + diskFile() + "\r\nIl manque 4 Ko sur le disque." +
                  saveTexts::notBegun + saveTexts::freeRoom + saveTexts::baseLater);
    EXPECT_EQ(gDbCombs->Count(), drawsThatFit + 1);
    EXPECT_EQ(readBytes(diskFile()), drawsFile(std::vector<DrawOf>(drawsThatFit, kept)));
    EXPECT_FALSE(gDbCombs->isSaved());
    gDbCombs->Remove(drawsThatFit + 1);
    EXPECT_EQ(readBytes(diskFile()), drawsFile(std::vector<DrawOf>(drawsThatFit, kept)));
    EXPECT_TRUE(gDbCombs->isSaved());
}

TEST_F(BaseOnASmallDisk, AnImportThatDoesNotFitIsMergedInMemoryAndReported) {
    for (int i = 0; i < drawsThatFit; ++i)
        add({37000.0 + i, 1, {}});
    gDbCombs->saveAgain();
    const std::string before = readBytes(diskFile());
    const auto failure = failureOf([&] { importLines({lineB}); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 61);
    EXPECT_EQ(gDbCombs->Count(), drawsThatFit + 1);
    EXPECT_EQ(rowOf(gDbCombs->Item(drawsThatFit + 1)), rowB);
    EXPECT_EQ(readBytes(diskFile()), before);
    EXPECT_FALSE(gDbCombs->isSaved());
    EXPECT_TRUE(desktop.mainWindowEnabled());
}

TEST_F(BaseOnASmallDisk, AnExportThatDoesNotFitOrMayNotBeWrittenIsAFailure) {
    for (int i = 0; i < 400; ++i)
        gDbCombs->Add(37633, 1, {}, false, "");
    const auto exportThere = [&] {
        desktop.answerSave(disk.file("base.txt"));
        return failureNumber([] { gDbCombs->ExportDB(); });
    };
    EXPECT_EQ(exportThere(), 61);
    disk.makeReadOnly();
    EXPECT_EQ(exportThere(), 70);
    EXPECT_EQ(gDbCombs->Count(), 400);
}

TEST_F(BaseOnASmallDisk, AReadOnlyDiskIsReadAndKeepsItsFile) {
    writeBytes(diskFile(), drawsFile({kept}));
    disk.makeReadOnly();
    gDbCombs->load();
    EXPECT_EQ(failureNumber([] { gDbCombs->Add(37633, 1, {}, true, ""); }), 70);
    EXPECT_EQ(failureNumber([&] { importLines({lineB}); }), 70);
    EXPECT_EQ(rows(), (std::vector<std::string>{keptRow, rowB,
                                                "12/01/2003 (1) 0 0 0 0 0 0 + 0 = "
                                                "0 0"}));
    EXPECT_EQ(readBytes(diskFile()), drawsFile({kept}));
}

TEST_F(BaseOnASmallDisk, AReadOnlyDiskWithoutABaseFailsTheLoad) {
    disk.makeReadOnly();
    EXPECT_EQ(failureNumber([] { gDbCombs->load(); }), 70);
    EXPECT_EQ(gDbCombs->Count(), 0);
}

class BaseWithoutRights : public DrawsTest {
  protected:
    BaseWithoutRights() {
        writeBytes(baseFile(), drawsFile({kept}));
        gDbCombs->load();
    }
    ~BaseWithoutRights() override { setRights(folder(), 0755); }

    static void setRights(const std::string &fullName, mode_t rights) {
        EXPECT_EQ(chmod(fullName.c_str(), rights), 0);
    }
    void expectBaseKept() {
        EXPECT_EQ(rows(), std::vector<std::string>{keptRow});
        EXPECT_EQ(baseFileBytes(), drawsFile({kept}));
        EXPECT_TRUE(desktop.mainWindowEnabled());
    }
};

TEST_F(BaseWithoutRights, AnUnreadableFileIsNotImported) {
    writeBytes(file("import.txt"), std::string(plainHeader) + "\r\n" + lineB);
    setRights(file("import.txt"), 0000);
    setRights(folder(), 0755);
    desktop.answerOpen(file("import.txt"));
    const auto failure = failureOf([] {
        const WithoutRights user;
        gDbCombs->ImportFdjFile();
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 70);
    EXPECT_EQ(failure->description(), "Permission refusée : " + file("import.txt"));
    expectBaseKept();
}

TEST_F(BaseWithoutRights, AFolderThatCannotBeWrittenTakesNoExport) {
    setRights(folder(), 0555);
    desktop.answerSave(file("base.txt"));
    const auto failure = failureOf([] {
        const WithoutRights user;
        gDbCombs->ExportDB();
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 70);
    EXPECT_EQ(failure->description(),
              "Permission refusée : " + file("base.txt") + "\r\nLe dossier " + folder() +
                  " est protégé en écriture: copiez-le à un endroit où vous pouvez écrire, puis "
                  "démarrez Boulix depuis cette copie." +
                  saveTexts::notBegun);
    expectBaseKept();
}

TEST_F(BaseWithoutRights, AFolderThatCannotBeWrittenKeepsItsBase) {
    setRights(folder(), 0555);
    EXPECT_EQ(failureNumber([] {
                  const WithoutRights user;
                  gDbCombs->Remove(1);
              }),
              70);
    EXPECT_EQ(gDbCombs->Count(), 0);
    EXPECT_EQ(baseFileBytes(), drawsFile({kept}));
    gDbCombs->load();
    expectBaseKept();
}

TEST_F(BaseWithoutRights, AnUnreadableBaseFailsTheLoadAndStays) {
    setRights(folder(), 0755);
    setRights(baseFile(), 0000);
    EXPECT_EQ(failureNumber([] {
                  const WithoutRights user;
                  gDbCombs->load();
              }),
              70);
    EXPECT_EQ(gDbCombs->Count(), 0);
    setRights(baseFile(), 0600);
    gDbCombs->load();
    expectBaseKept();
}

} // namespace
} // namespace boulix
