// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/slotText.h"

#include "support/boulixTest.h"

namespace boulix {
namespace {

TEST(SlotTexts, AreALengthAndTheBytes) {
    std::string record = "x";
    appendText(record, "ab\xE9");
    appendText(record, "");
    EXPECT_EQ(record, std::string("x\x03\x00"
                                  "ab\xE9\x00\x00",
                                  8));
    EXPECT_EQ(readText(record.substr(1), 126), "ab\xE9");
    EXPECT_EQ(readText(record.substr(6), 126), "");
}

TEST(SlotTexts, ALengthBeyondItsRoomIsAFailure) {
    EXPECT_EQ(failureNumber([] {
                  readText(std::string("\x05\x00"
                                       "abcde",
                                       7),
                           4);
              }),
              59);
    EXPECT_EQ(failureNumber([] { readText("\xFF\xFF", 126); }), 59);
    std::string record;
    EXPECT_EQ(failureNumber([&record] { appendText(record, std::string(65'536, 'x')); }), 59);
    appendText(record, std::string(65'535, 'x'));
    EXPECT_EQ(readText(record, 65'535).size(), 65'535U);
}

TEST(SlotTexts, BytesThatAreMissingReadAsZero) {
    EXPECT_EQ(readText(std::string("\x04\x00"
                                   "ab",
                                   4),
                       126),
              std::string("ab\0\0", 4));
    EXPECT_EQ(readText("\x02", 126), std::string(2, '\0'));
    EXPECT_EQ(readText("", 126), "");
}

} // namespace
} // namespace boulix
