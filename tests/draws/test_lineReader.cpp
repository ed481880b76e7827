// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/lineReader.h"

#include "support/boulixTest.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace boulix {
namespace {

/// A line, and whether the file was at its end behind it.
using Lines = std::vector<std::pair<std::string, bool>>;

class LineReading : public BoulixTest {
  protected:
    /// All lines of a file with these bytes, as long as the file is not at its end.
    Lines linesOf(const std::string &bytes) {
        testing_support::writeBytes(file("lines.txt"), bytes);
        LineReader reader(file("lines.txt"));
        Lines lines;
        while (!reader.eof()) {
            std::string line = "left over";
            reader.readLine(line);
            lines.emplace_back(line, reader.eof());
        }
        return lines;
    }
};

/// The same, character by character.
Lines plainLinesOf(const std::string &bytes) {
    Lines lines;
    std::size_t at = 0;
    while (at < bytes.size()) {
        std::string line;
        while (at < bytes.size()) {
            const char c = bytes[at++];
            if (c == '\r' || c == '\n') {
                if (at < bytes.size())
                    ++at;
                break;
            }
            line += c;
        }
        lines.emplace_back(line, at == bytes.size());
    }
    return lines;
}

TEST_F(LineReading, EndsLinesAtCrLf) {
    EXPECT_EQ(linesOf("a\r\nbc\r\n"), (Lines{{"a", false}, {"bc", true}}));
}

TEST_F(LineReading, TakesALastLineWithoutAnEnd) {
    EXPECT_EQ(linesOf("a\r\nbc"), (Lines{{"a", false}, {"bc", true}}));
}

TEST_F(LineReading, LosesTheFirstCharacterBehindALoneLf) {
    EXPECT_EQ(linesOf("a\nbc\nde\n"), (Lines{{"a", false}, {"c", false}, {"e", true}}));
}

TEST_F(LineReading, LosesTheFirstCharacterBehindALoneCr) {
    EXPECT_EQ(linesOf("a\rbc\rde"), (Lines{{"a", false}, {"c", false}, {"e", true}}));
}

TEST_F(LineReading, DropsALineEndBehindALineEndToo) {
    EXPECT_EQ(linesOf("a\n\nb"), (Lines{{"a", false}, {"b", true}}));
    EXPECT_EQ(linesOf("\r\n\r\n"), (Lines{{"", false}, {"", true}}));
    EXPECT_EQ(linesOf("\n"), (Lines{{"", true}}));
}

TEST_F(LineReading, KeepsNullBytes) {
    const std::string line("a\0b", 3);
    EXPECT_EQ(linesOf(line + "\r\n"), (Lines{{line, true}}));
}

TEST_F(LineReading, GivesAnEmptyLineAtTheEndOfTheFile) {
    testing_support::writeBytes(file("empty.txt"), "");
    LineReader reader(file("empty.txt"));
    EXPECT_TRUE(reader.eof());
    std::string line = "left over";
    reader.readLine(line);
    EXPECT_EQ(line, "");
    EXPECT_TRUE(reader.eof());
}

TEST_F(LineReading, FindsLineEndsAnywhereInALongFile) {
    // The two characters of a line end fall apart where a block of the reader ends.
    for (const std::size_t before : {65534U, 65535U, 65536U, 65537U, 131071U, 262143U}) {
        const std::string bytes = std::string(before, 'x') + "\r\nyz\r\n";
        EXPECT_EQ(linesOf(bytes), plainLinesOf(bytes)) << before;
    }
    const std::string longLine(10'000'000, 'x');
    EXPECT_EQ(linesOf(longLine), (Lines{{longLine, true}}));
}

TEST_F(LineReading, AgreesWithAReaderOfSingleCharacters) {
    std::mt19937 random(13);
    std::uniform_int_distribution<std::size_t> pick(0, 3);
    for (int round = 0; round < 500; ++round) {
        std::string bytes;
        for (int i = 0; i < round % 40; ++i)
            bytes += "\r\nab"[pick(random)];
        ASSERT_EQ(linesOf(bytes), plainLinesOf(bytes)) << "round " << round;
    }
}

TEST_F(LineReading, FailsOnAFileThatIsNotThere) {
    const auto failure = failureOf([&] { LineReader reader(file("nowhere.txt")); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 53);
    EXPECT_EQ(failure->description(), "Fichier introuvable : " + file("nowhere.txt"));
}

TEST_F(LineReading, FailsOnAFolder) {
    const auto failure = failureOf([&] {
        LineReader reader(folder());
        std::string line;
        reader.readLine(line);
    });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 75);
    EXPECT_EQ(failure->description(), "Erreur d'accès au chemin/fichier : " + folder());
}

} // namespace
} // namespace boulix
