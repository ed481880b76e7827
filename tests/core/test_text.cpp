// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/text.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace boulix {
namespace {

TEST(Trimming, TakesBlanksAwayAndNothingElse) {
    EXPECT_EQ(trimmed("  a b  "), "a b");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed("   "), "");
    EXPECT_EQ(trimmed("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(trimmed(std::string(" a\0 ", 4)), std::string("a\0", 2));
}

TEST(Capitals, KnowTheLettersOfTheCodePage) {
    EXPECT_EQ(upperCased("Date de clôture n° 1"), "DATE DE CLÔTURE N° 1");
    EXPECT_EQ(upperCased("àâäæçéèêëîïôöœùûüÿñøþ"), "ÀÂÄÆÇÉÈÊËÎÏÔÖŒÙÛÜŸÑØÞ");
    EXPECT_EQ(upperCased("šž"), "ŠŽ");
    EXPECT_EQ(upperCased("ß÷×ŒŸ€{}@[`"), "ß÷×ŒŸ€{}@[`");
}

TEST(Splitting, KeepsEmptyPieces) {
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(split("a;b;c", ';'), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(split("", ';'), (Pieces{""}));
    EXPECT_EQ(split("a;", ';'), (Pieces{"a", ""}));
    EXPECT_EQ(split(";;", ';'), (Pieces{"", "", ""}));
    EXPECT_EQ(split("abc", ';'), (Pieces{"abc"}));
}

TEST(ZeroPadding, FillsUpAndNeverCuts) {
    EXPECT_EQ(zeroPadded(7, 2), "07");
    EXPECT_EQ(zeroPadded(128, 6), "000128");
    EXPECT_EQ(zeroPadded(1234, 2), "1234");
    EXPECT_EQ(zeroPadded(-7, 2), "-07");
    EXPECT_EQ(zeroPadded(0, 0), "0");
}

TEST(PlainDecimals, AreShortAndReadBackTheSame) {
    EXPECT_EQ(plainDecimal(0.6F), "0.6");
    EXPECT_EQ(plainDecimal(0.0F), "0");
    EXPECT_EQ(plainDecimal(-1.5F), "-1.5");
    EXPECT_EQ(plainDecimal(16777216.0F), "16777216");
    EXPECT_EQ(plainDecimal(0.00001F), "0.00001");
    std::mt19937 random(5);
    std::uniform_real_distribution<float> values(-1e6F, 1e6F);
    for (int i = 0; i < 20'000; ++i) {
        const float value = values(random);
        ASSERT_EQ(std::strtof(plainDecimal(value).c_str(), nullptr), value);
    }
    for (const float value : {std::numeric_limits<float>::max(), std::numeric_limits<float>::min(),
                              std::numeric_limits<float>::denorm_min()}) {
        const std::string text = plainDecimal(value);
        EXPECT_EQ(text.find('e'), std::string::npos);
        EXPECT_EQ(std::strtof(text.c_str(), nullptr), value);
    }
}

bool isUndefined(int byte) {
    return byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
}

TEST(PlainAmount, ShowsSevenDigitsWithoutZerosAtTheEnd) {
    const std::pair<float, const char *> amounts[] = {
        {0.0F, "0"},
        {0.6F, "0.6"},
        {0.6F * 28, "16.8"},
        {0.6F * 18, "10.8"},
        {5.0F, "5"},
        {1234.5F, "1234.5"},
        {0.1F + 0.2F, "0.3"},
        {123456.7F, "123456.7"},
        {8390289.5F, "8390290"},
        {13983816.0F, "13983816"},
        {-2.25F, "-2.25"},
        {1e10F, "10000000000"},
    };
    for (const auto &[amount, text] : amounts)
        EXPECT_EQ(plainAmount(amount), text);
}

TEST(CodePage, EveryByteComesBackAsItWas) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string stored(1, static_cast<char>(byte));
        EXPECT_EQ(toWestern(fromWestern(stored)), isUndefined(byte) ? "?" : stored) << byte;
    }
}

TEST(PlainDecimal, AZeroHasNoSign) {
    EXPECT_EQ(plainDecimal(-0.0F), "0");
    EXPECT_EQ(plainDecimal(-0.5F), "-0.5");
    EXPECT_EQ(plainAmount(-0.0F), "0");
    EXPECT_EQ(plainAmount(-0.0000001F), "0"); // rounded to the digits that are shown
    EXPECT_EQ(plainAmount(-0.000001F), "-0.000001");
}

TEST(CodePage, HasTheCharactersOfTheWindowsWesternOne) {
    std::string bytes;
    for (int byte = 0x80; byte < 0xA0; ++byte)
        if (!isUndefined(byte))
            bytes += static_cast<char>(byte);
    EXPECT_EQ(fromWestern(bytes), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
    EXPECT_EQ(fromWestern("\xE9\xE8\xE0\xE7\xB0"), "éèàç°");
    EXPECT_EQ(toWestern("Complémentaire"), "Compl\xE9mentaire");
    EXPECT_EQ(fromWestern("\x81"), "\uFFFD");
}

TEST(CodePage, ACharacterThatDoesNotExistThereBecomesAQuestionMark) {
    EXPECT_EQ(toWestern("Ωа日𝄞"), "????");
    EXPECT_EQ(toWestern("a\uFFFDz"), "a?z");
    EXPECT_EQ(toWestern("\u0081"), "?");
}

TEST(CodePage, EachByteThatIsNoUtf8BecomesAQuestionMark) {
    EXPECT_EQ(toWestern("a\xE9z"), "a?z");            // code page 1252 taken for UTF-8
    EXPECT_EQ(toWestern("\xE2\x82"), "??");           // cut off
    EXPECT_EQ(toWestern("\x80\xBF"), "??");           // begins in the middle
    EXPECT_EQ(toWestern("\xC1\x81"), "??");           // an A in two bytes
    EXPECT_EQ(toWestern("\xE0\x81\x81"), "???");      // an A in three bytes
    EXPECT_EQ(toWestern("\xED\xA0\x80"), "???");      // half of a pair
    EXPECT_EQ(toWestern("\xF4\x90\x80\x80"), "????"); // behind the last character
    EXPECT_EQ(toWestern("\xFF\xFE"), "??");           // no lead byte at all
    EXPECT_EQ(toWestern(std::string("\0a", 2)), std::string("\0a", 2));
}

TEST(CodePage, AnyBytesTurnIntoUtf8ThatTurnsBack) {
    std::mt19937 random(11);
    std::uniform_int_distribution<int> bytes(0, 255);
    for (int i = 0; i < 5'000; ++i) {
        std::string stored(40, ' ');
        for (char &c : stored)
            c = static_cast<char>(bytes(random));
        const std::string text = toWestern(stored); // nonsense, but single bytes
        ASSERT_EQ(toWestern(fromWestern(text)), text);
    }
}

} // namespace
} // namespace boulix
