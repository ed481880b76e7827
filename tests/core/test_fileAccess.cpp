// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/fileAccess.h"

#include "support/boulixTest.h"
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
    EXPECT_EQ(failure->description(), "Disque plein : /dev/full");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(FileAccess, AFullDiskIsSeenByALongWriteAndByAShortOneAtTheEnd) {
    SmallDisk disk(4096);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    replaceFile(disk.file("a"), std::string(4096, 'x')); // fits
    EXPECT_EQ(failureNumber([&disk] { replaceFile(disk.file("b"), "x"); }), 61);
    EXPECT_EQ(failureNumber([&disk] { replaceFile(disk.file("b"), std::string(1 << 20, 'x')); }),
              61);
    EXPECT_EQ(readBytes(disk.file("a")), std::string(4096, 'x'));
    replaceFile(disk.file("a"), std::string(4096, 'y')); // its own room is given back first
    EXPECT_EQ(readBytes(disk.file("a")), std::string(4096, 'y'));
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

TEST_F(FileAccess, AWriterPutsOutMoreThanItsBufferHolds) {
    FileWriter writer(file("a"));
    std::string expected;
    for (int i = 0; i < 10'000; ++i) {
        const std::string line = "ligne " + std::to_string(i) + "\r\n";
        writer.write(line);
        expected += line;
    }
    writer.close();
    EXPECT_EQ(readBytes(file("a")), expected);
}

} // namespace
} // namespace boulix
