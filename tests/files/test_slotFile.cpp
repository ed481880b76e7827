// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/slotFile.h"

#include "support/boulixTest.h"
#include "support/smallDisk.h"

#include <cmath>
#include <filesystem>
#include <limits>
#include <random>

namespace boulix {
namespace {

TEST(RecordBytes, AreLittleEndian) {
    std::string bytes;
    appendInt16(bytes, 0x1234);
    appendInt16(bytes, -2);
    appendInt32(bytes, 0x12345678);
    appendFloat(bytes, 1.0F);
    appendDouble(bytes, -2.0);
    EXPECT_EQ(bytes, std::string("\x34\x12\xFE\xFF\x78\x56\x34\x12\x00\x00\x80\x3F"
                                 "\x00\x00\x00\x00\x00\x00\x00\xC0",
                                 20));
    EXPECT_EQ(readInt16(bytes, 0), 0x1234);
    EXPECT_EQ(readInt16(bytes, 2), -2);
    EXPECT_EQ(readInt32(bytes, 4), 0x12345678);
    EXPECT_EQ(readFloat(bytes, 8), 1.0F);
    EXPECT_EQ(readDouble(bytes, 12), -2.0);
}

TEST(RecordBytes, BehindTheEndAreZero) {
    EXPECT_EQ(readInt16("", 0), 0);
    EXPECT_EQ(readInt16("\x34", 0), 0x34);
    EXPECT_EQ(readInt32("\x01\x02", 0), 0x0201);
    EXPECT_EQ(readDouble("abc", 100), 0.0);
}

TEST(RecordBytes, ComeBackBitForBit) {
    std::mt19937_64 random(6);
    for (int i = 0; i < 10'000; ++i) {
        const auto bits = static_cast<std::int64_t>(random());
        std::string bytes;
        appendInt16(bytes, static_cast<std::int16_t>(bits));
        appendInt32(bytes, static_cast<std::int32_t>(bits));
        appendFloat(bytes, static_cast<float>(bits) / 3);
        appendDouble(bytes, static_cast<double>(bits) / 3);
        ASSERT_EQ(readInt16(bytes, 0), static_cast<std::int16_t>(bits));
        ASSERT_EQ(readInt32(bytes, 2), static_cast<std::int32_t>(bits));
        ASSERT_EQ(readFloat(bytes, 6), static_cast<float>(bits) / 3);
        ASSERT_EQ(readDouble(bytes, 10), static_cast<double>(bits) / 3);
    }
    std::string bytes;
    appendDouble(bytes, std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(std::isnan(readDouble(bytes, 0)));
}

class SlotFile : public BoulixTest {
  protected:
    std::string name() const { return file("a.dat"); }
};

TEST_F(SlotFile, ASlotBeginsAtAMultipleOfItsLengthAndTheLastOneIsNotFilledOut) {
    SlotImage image(8);
    image.write(1, "head");
    image.write(2, "ab");
    image.write(4, "xyz");
    EXPECT_EQ(image.bytes(), std::string("head\0\0\0\0ab\0\0\0\0\0\0\0\0\0\0\0\0\0\0xyz", 27));
    EXPECT_EQ(failureNumber([&image] { image.write(4, "noch einmal"); }), 5);
}

TEST_F(SlotFile, WrittenAsItGoesIsTheSameAsBuiltInMemory) {
    SlotImage image(128);
    SlotWriter writer(name(), 128, 1999 * 128 + 9);
    for (std::int64_t slot : {1, 2, 3, 7, 2000}) {
        const std::string bytes = "slot " + std::to_string(slot);
        image.write(slot, bytes);
        writer.write(slot, bytes);
    }
    EXPECT_EQ(failureNumber([&writer] { writer.write(1, "zu spät"); }), 5);
    writer.close();
    EXPECT_EQ(readBytes(name()), image.bytes());
}

TEST_F(SlotFile, AWriterLeavesNothingOfTheEarlierFile) {
    writeBytes(name(), std::string(1000, 'x'));
    SlotWriter writer(name(), 8, 1);
    writer.write(1, "a");
    writer.close();
    EXPECT_EQ(readBytes(name()), "a");
}

TEST_F(SlotFile, EverySlotIsReadInAnyOrder) {
    SlotImage image(256);
    constexpr std::int64_t slots = 2'000; // half a megabyte: more than one buffer
    for (std::int64_t slot = 1; slot <= slots; ++slot)
        image.write(slot, std::to_string(slot) + "!");
    writeBytes(name(), image.bytes());
    SlotReader reader(name(), 256);
    EXPECT_EQ(reader.fileSize(), 256 * (slots - 1) + 5);
    for (std::int64_t slot = 1; slot <= slots; ++slot) {
        const std::string expected = std::to_string(slot) + "!";
        ASSERT_EQ(reader.read(slot, expected.size()), expected);
    }
    std::mt19937 random(12);
    std::uniform_int_distribution<std::int64_t> pick(1, slots);
    for (int i = 0; i < 5'000; ++i) {
        const std::int64_t slot = pick(random);
        const std::string expected = std::to_string(slot) + "!";
        ASSERT_EQ(reader.read(slot, expected.size()), expected);
    }
}

TEST_F(SlotFile, ARecordMayBeLongerThanTheBuffer) {
    const std::string bytes(200'000, 'x');
    writeBytes(name(), bytes + "y");
    SlotReader reader(name(), 200'001);
    EXPECT_EQ(reader.read(1, 200'001), bytes + "y");
}

TEST_F(SlotFile, MissingBytesOfTheLastSlotReadAsZero) {
    writeBytes(name(), "12345678ab");
    SlotReader reader(name(), 8);
    EXPECT_EQ(reader.read(2, 4), std::string("ab\0\0", 4));
    EXPECT_EQ(reader.read(1, 8), "12345678");
}

TEST_F(SlotFile, ASlotAtOrBehindTheEndIsAFailure) {
    writeBytes(name(), "12345678");
    SlotReader reader(name(), 8);
    const auto failure = failureOf([&reader] { reader.read(2, 4); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 62);
    EXPECT_EQ(failure->description(), "Lecture au-delà de la fin du fichier : " + name());
    EXPECT_EQ(failureNumber([&reader] { reader.read(1000, 4); }), 62);
    EXPECT_EQ(failureNumber([&reader] { reader.read(0, 4); }), 62);
}

TEST_F(SlotFile, TheFirstSlotOfAnEmptyFileReadsAsZeros) {
    writeBytes(name(), "");
    SlotReader reader(name(), 8);
    EXPECT_EQ(reader.fileSize(), 0);
    EXPECT_EQ(reader.read(1, 4), std::string(4, '\0'));
    EXPECT_EQ(failureNumber([&reader] { reader.read(2, 4); }), 62);
}

TEST_F(SlotFile, AFileCutAtAnyByteReadsAsItsBytesAndZeros) {
    SlotImage image(16);
    for (std::int64_t slot = 1; slot <= 5; ++slot)
        image.write(slot, std::string(10, static_cast<char>('0' + slot)));
    for (std::size_t length = 0; length <= image.bytes().size(); ++length) {
        const std::string cut = image.bytes().substr(0, length);
        writeBytes(name(), cut);
        SlotReader reader(name(), 16);
        for (std::int64_t slot = 1; slot <= 6; ++slot) {
            const auto offset = static_cast<std::size_t>((slot - 1) * 16);
            if (slot > 1 && offset >= length) {
                ASSERT_EQ(failureNumber([&] { reader.read(slot, 10); }), 62);
                continue;
            }
            std::string expected = cut.substr(offset, 10);
            expected.resize(10, '\0');
            ASSERT_EQ(reader.read(slot, 10), expected) << length << " slot " << slot;
        }
    }
}

TEST_F(SlotFile, AFileThatIsNoneCannotBeOpened) {
    EXPECT_EQ(failureNumber([this] { SlotReader(name(), 8); }), 53);
    EXPECT_EQ(failureNumber([this] { SlotReader(file("b/a.dat"), 8); }), 76);
    std::filesystem::create_directory(name());
    EXPECT_EQ(failureNumber([this] { SlotReader(name(), 8); }), 75);
    EXPECT_NE(failureNumber([] { SlotReader("/dev/null", 8); }), 0);
}

TEST_F(SlotFile, AFileCutWhileItIsReadIsAFailure) {
    writeBytes(name(), std::string(1'000'000, 'x'));
    SlotReader reader(name(), 1'000);
    reader.read(1, 10);
    std::filesystem::resize_file(name(), 100'000);
    EXPECT_EQ(failureNumber([&reader] { reader.read(900, 10); }), 62);
}

TEST_F(SlotFile, AFullDiskIsSeenByAWriter) {
    SmallDisk disk(8192);
    if (!disk.mounted())
        GTEST_SKIP() << SmallDisk::whyNot;
    const std::int64_t slots = 10'000;
    EXPECT_EQ(failureNumber([&disk] {
                  SlotWriter writer(disk.file("a"), 128, 1); // it lies about its size
                  for (std::int64_t slot = 1; slot <= slots; ++slot)
                      writer.write(slot, "x");
                  writer.close();
              }),
              61);
}

} // namespace
} // namespace boulix
