// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/fileAccess.h"

#include "support/boulixTest.h"
#include "support/saveTexts.h"
#include "support/smallDisk.h"

#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace boulix {
namespace {

class FileAccess : public BoulixTest {};

TEST_F(FileAccess, AReplacedFileHoldsTheNewBytesAndNothingOfTheOld) {
    replaceFile(file("a"), std::string("\0\r\n\x1A\xFF", 5));
    EXPECT_EQ(readBytes(file("a")), std::string("\0\r\n\x1A\xFF", 5));
    replaceFile(file("a"), "x");
    EXPECT_EQ(readBytes(file("a")), "x");
    replaceFile(file("a"), "");
    EXPECT_EQ(readBytes(file("a")), "");
}

TEST_F(FileAccess, AFileIsReadWhole) {
    std::string bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes += static_cast<char>(i * 7);
    writeBytes(file("a"), bytes);
    EXPECT_EQ(readFile(file("a")), bytes);
    writeBytes(file("a"), "");
    EXPECT_EQ(readFile(file("a")), "");
}

TEST_F(FileAccess, NamesKeepTheirBlanksAndAccents) {
    for (const char *name : {"mes tirages été.dbl", " a ", "a\\b", "-x", "ça;va.lst"}) {
        replaceFile(file(name), name);
        EXPECT_EQ(readFile(file(name)), name);
        deleteFile(file(name));
        EXPECT_FALSE(fileExists(file(name)));
    }
}

TEST_F(FileAccess, AMissingFileCannotBeReadOrDeleted) {
    EXPECT_EQ(failureNumber([this] { readFile(file("a")); }), 53);
    EXPECT_EQ(failureNumber([this] { deleteFile(file("a")); }), 53);
    EXPECT_EQ(failureNumber([this] { readFile(file("b/a")); }), 76);
    EXPECT_EQ(failureNumber([this] { replaceFile(file("b/a"), ""); }), 76);
}

TEST_F(FileAccess, AFileInPlaceOfAFolderIsAMissingPath) {
    writeBytes(file("a"), "");
    EXPECT_EQ(failureNumber([this] { readFile(file("a/b")); }), 76);
    EXPECT_EQ(failureNumber([this] { replaceFile(file("a/b"), ""); }), 76);
}

TEST_F(FileAccess, AFolderIsNeitherReadNorReplacedNorDeleted) {
    std::filesystem::create_directory(file("a"));
    EXPECT_EQ(failureNumber([this] { readFile(file("a")); }), 75);
    EXPECT_EQ(failureNumber([this] { replaceFile(file("a"), "x"); }), 75);
    EXPECT_EQ(failureNumber([this] { deleteFile(file("a")); }), 75);
    EXPECT_TRUE(std::filesystem::is_directory(file("a")));
}

TEST_F(FileAccess, ANameThatIsTooLongIsAFailure) {
    EXPECT_EQ(failureNumber([this] { replaceFile(file(std::string(300, 'a')), "x"); }), 75);
}

TEST_F(FileAccess, AWriteProtectedFileIsNotReplacedOrDeleted) {
    writeBytes(file("a"), "alt");
    ASSERT_EQ(chmod(file("a").c_str(), 0444), 0);
    EXPECT_EQ(failureNumber([this] { replaceFile(file("a"), "neu"); }), 70);
    EXPECT_EQ(failureNumber([this] { deleteFile(file("a")); }), 70);
    EXPECT_EQ(readBytes(file("a")), "alt");
}

TEST_F(FileAccess, ADeviceIsWrittenWhereItIsAndItsRefusalSeen) {
    if (!std::filesystem::is_character_file("/dev/full"))
        GTEST_SKIP() << "this system has no /dev/full";
    const auto failure = failureOf([] { replaceFile("/dev/full", "x"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 61);
    EXPECT_EQ(failure->description(),
              "Disque plein : /dev/full" + saveTexts::brokenOff + saveTexts::freeRoom);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

/// What the replacement of `name` by `size` bytes ends in: the description of its failure.
std::string replaced(const std::string &name, std::size_t size, char with) {
    const auto failure = failureOf([&] { replaceFile(name, std::string(size, with)); });
    return failure ? failure->description() : "";
}

std::string noRoom(const std::string &name, const std::string &missing) {
    return "Disque plein : " + name + "\r\nIl manque " + missing + " sur le disque." +
           saveTexts::notBegun + saveTexts::freeRoom;
}

TEST_F(FileAccess, WhatDoesNotFitOnTheDiskIsNotBegunAndTheOldFileStays) {
    SmallDisk disk(8192);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    const std::string a = disk.file("a");
    EXPECT_EQ(replaced(a, 4096, 'x'), "");
    EXPECT_EQ(replaced(disk.file("b"), 4097, 'x'), noRoom(disk.file("b"), "4 Ko"));
    EXPECT_FALSE(fileExists(disk.file("b")));
    EXPECT_EQ(replaced(a, 8193, 'y'), noRoom(a, "4 Ko"));
    EXPECT_EQ(replaced(a, 20'000'000, 'y'), noRoom(a, "20 Mo"));
    EXPECT_EQ(readBytes(a), std::string(4096, 'x'));
}

TEST_F(FileAccess, TheRoomThatTheOldFileGivesBackCountsToItsLastBlock) {
    SmallDisk disk(8192);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    const std::string a = disk.file("a");
    EXPECT_EQ(replaced(disk.file("b"), 1, 'b'), ""); // takes a whole block of 4096
    EXPECT_EQ(replaced(a, 10, 'x'), "");
    EXPECT_EQ(replaced(a, 4096, 'y'), "");
    EXPECT_EQ(readBytes(a), std::string(4096, 'y'));
    EXPECT_EQ(replaced(a, 4097, 'z'), noRoom(a, "4 Ko"));
    EXPECT_EQ(readBytes(a), std::string(4096, 'y'));
}

TEST_F(FileAccess, AFileOfTwoNamesOrBehindALinkGivesNoRoomBack) {
    SmallDisk disk(8192);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    EXPECT_EQ(replaced(disk.file("a"), 4096, 'x'), "");
    std::filesystem::create_symlink(disk.file("a"), disk.file("lien"));
    EXPECT_EQ(replaced(disk.file("lien"), 4097, 'y'), noRoom(disk.file("lien"), "4 Ko"));
    std::filesystem::create_hard_link(disk.file("a"), disk.file("b"));
    EXPECT_EQ(replaced(disk.file("b"), 4097, 'y'), noRoom(disk.file("b"), "4 Ko"));
    EXPECT_EQ(readBytes(disk.file("a")), std::string(4096, 'x'));
    EXPECT_EQ(replaced(disk.file("b"), 4096, 'y'), "");
    EXPECT_EQ(readBytes(disk.file("a")), std::string(4096, 'x'));
    EXPECT_EQ(readBytes(disk.file("b")), std::string(4096, 'y'));
}

TEST_F(FileAccess, AWriterThatPromisedTooLittleMeetsTheFullDiskAndSaysWhatHasBecomeOfTheFile) {
    SmallDisk disk(8192);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    const std::string name = disk.file("a");
    EXPECT_EQ(replaced(name, 10, 'x'), "");
    const auto failure = failureOf([&] {
        FileWriter writer(name, 1);
        writer.write(std::string(1 << 20, 'y'));
        writer.close();
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 61);
    EXPECT_EQ(failure->description(),
              "Disque plein : " + name + saveTexts::brokenOff + saveTexts::freeRoom);
}

TEST_F(FileAccess, OnAReadOnlyDiskNothingIsReplacedOrDeletedAndAllIsRead) {
    SmallDisk disk(16'384);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    writeBytes(disk.file("a"), "alt");
    disk.makeReadOnly();
    EXPECT_EQ(failureNumber([&disk] { replaceFile(disk.file("a"), "neu"); }), 70);
    EXPECT_EQ(failureNumber([&disk] { replaceFile(disk.file("b"), "neu"); }), 70);
    EXPECT_EQ(failureNumber([&disk] { deleteFile(disk.file("a")); }), 70);
    EXPECT_EQ(readFile(disk.file("a")), "alt");
}

/// Runs `action` in a child process as a user without rights, and gives its failure number.
int failureNumberAsNobody(const std::function<void()> &action) {
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        if (geteuid() == 0 && setuid(nobody) != 0)
            _exit(255);
        _exit(failureNumber(action));
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(FileAccess, WithoutTheRightsAFileIsNotReadAndAFolderNotWritten) {
    writeBytes(file("a"), "alt");
    ASSERT_EQ(chmod(file("a").c_str(), 0200), 0);
    ASSERT_EQ(chmod(folder().c_str(), 0555), 0);
    EXPECT_EQ(failureNumberAsNobody([this] { readFile(file("a")); }), 70);
    EXPECT_EQ(failureNumberAsNobody([this] { replaceFile(file("a"), "neu"); }), 70);
    EXPECT_EQ(failureNumberAsNobody([this] { replaceFile(file("b"), "neu"); }), 70);
    EXPECT_EQ(failureNumberAsNobody([this] { deleteFile(file("a")); }), 70);
    ASSERT_EQ(chmod(folder().c_str(), 0755), 0);
    ASSERT_EQ(chmod(file("a").c_str(), 0600), 0);
    EXPECT_EQ(readBytes(file("a")), "alt");
    EXPECT_FALSE(fileExists(file("b")));
}

TEST_F(FileAccess, SmallAndLargePiecesKeepTheirOrder) {
    constexpr std::size_t mega = std::size_t{1} << 20U;
    for (const std::size_t large : {mega / 2 - 1, mega / 2, mega - 1, mega, mega + 1, 3 * mega}) {
        const std::string expected = "tete" + std::string(large, 'x') + "fin";
        FileWriter writer(file("a"), expected.size());
        writer.write("tete");
        writer.write(std::string(large, 'x'));
        writer.write("fin");
        writer.close();
        EXPECT_TRUE(readBytes(file("a")) == expected) << large;
    }
}

TEST_F(FileAccess, AWriterPutsOutMoreThanItsBufferHolds) {
    FileWriter writer(file("a"), 5'000'000);
    std::string expected;
    for (int i = 0; i < 300'000; ++i) {
        const std::string line = "ligne " + std::to_string(i) + "\r\n";
        writer.write(line);
        expected += line;
    }
    writer.close();
    EXPECT_EQ(readBytes(file("a")), expected);
}

} // namespace
} // namespace boulix
