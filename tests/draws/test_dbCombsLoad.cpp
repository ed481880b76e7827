// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace boulix {
namespace {

constexpr Date day1 = 37632; // 11 January 2003
constexpr Date day2 = 37636; // 15 January 2003
const std::vector<DrawOf> twoDraws = {{day1, 2, {2, 3, 5, 7, 11, 13, 17}, 41, 58},
                                      {day2, 1, {1, 4, 22, 30, 41, 49, 8}, 147, 155}};
const std::vector<std::string> twoRows = {"11/01/2003 (2) 2 3 5 7 11 13 + 17 = 41 58",
                                          "15/01/2003 (1) 1 4 22 30 41 49 + 8 = 147 155"};

class DrawBaseLoad : public DrawsTest {
  protected:
    int load(const std::string &bytes) {
        writeBytes(baseFile(), bytes);
        return load();
    }
    static int load() {
        return failureNumber([] { gDbCombs->load(); });
    }
    /// The report of a refused header.
    ShownBox refusal(int number, const std::string &reason) const {
        return {"Impossible de charger le fichier tirages.dbl du répertoire " + folder() + "\r\n" +
                    reason,
                Icon::information, "boulix: Erreur N° " + std::to_string(number)};
    }
    ShownBox foreignFile() const {
        return refusal(4401, "Il ne s'agit pas d'un fichier au format reconnu par boulix");
    }
    /// What the user is told behind the report about a refused file of `size` bytes.
    ShownBox emptyBase(std::size_t size) const {
        std::string text;
        if (size < 86)
            text = "Le fichier tirages.dbl du répertoire " + folder() + " est trop court: il a " +
                   std::to_string(size) + " octets, et son en-tête seul en a 86.\r\n";
        return {text + "La base des tirages est vide. Le fichier tirages.dbl reste comme il est "
                       "jusqu'au premier changement de la base, qui le remplacera: mettez-le "
                       "d'abord en lieu sûr.",
                Icon::information, "boulix"};
    }
    /// What the user is told about a file that ends in the middle of draw `number`.
    ShownBox cutBase(std::size_t number, bool counted) const {
        return {"Le fichier tirages.dbl du répertoire " + folder() +
                    " est trop court: il finit au milieu du tirage n° " + std::to_string(number) +
                    (counted ? ".\r\nCe qui manque à ce tirage compte pour 0: corrigez-le ou "
                               "supprimez-le."
                             : ".\r\nCe tirage n'est pas repris dans la base."),
                Icon::information, "boulix"};
    }
    /// The file was refused with this report and the reminder behind it: no draw in memory, the
    /// file as it was.
    void expectRefused(const std::string &bytes, const ShownBox &report) {
        desktop.messages.clear();
        add(twoDraws[0]);
        EXPECT_EQ(load(bytes), 0);
        EXPECT_EQ(desktop.messages, (std::vector<ShownBox>{report, emptyBase(bytes.size())}));
        EXPECT_EQ(gDbCombs->Count(), 0);
        EXPECT_EQ(baseFileBytes(), bytes);
    }
};

TEST_F(DrawBaseLoad, WithoutAFileTheBaseIsEmptyAndAFileOfEightySixBytesIsMade) {
    add(twoDraws[0]);
    EXPECT_EQ(load(), 0);
    EXPECT_EQ(gDbCombs->Count(), 0);
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_EQ(baseFileBytes(), headBytes());
    EXPECT_EQ(baseFileBytes().size(), 86U);
}

TEST_F(DrawBaseLoad, AFileWithoutDrawsGivesAnEmptyBase) {
    EXPECT_EQ(load(headBytes()), 0);
    EXPECT_EQ(gDbCombs->Count(), 0);
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_EQ(baseFileBytes(), headBytes());
}

TEST_F(DrawBaseLoad, TakesTheDrawsInTheOrderOfTheFile) {
    EXPECT_EQ(load(drawsFile({twoDraws[1], twoDraws[0]})), 0);
    EXPECT_EQ(rows(), (std::vector<std::string>{twoRows[1], twoRows[0]}));
}

TEST_F(DrawBaseLoad, ReplacesWhatWasInMemory) {
    add(twoDraws[0]);
    EXPECT_EQ(load(drawsFile(twoDraws)), 0);
    EXPECT_EQ(load(drawsFile(twoDraws)), 0);
    EXPECT_EQ(rows(), twoRows);
}

TEST_F(DrawBaseLoad, AFileFilledOutToWholeSlotsHoldsTheSameDraws) {
    std::string bytes = drawsFile(twoDraws);
    bytes.resize(3 * 128, 'x');
    EXPECT_EQ(load(bytes), 0);
    EXPECT_EQ(rows(), twoRows);
}

TEST_F(DrawBaseLoad, ComputesTheTrueSumsWhateverTheFileSays) {
    DrawOf wrong = twoDraws[0];
    wrong.sum = -1;
    wrong.sumtot = 12345;
    EXPECT_EQ(load(drawsFile({wrong})), 0);
    EXPECT_EQ(rows(), std::vector<std::string>{twoRows[0]});
}

TEST_F(DrawBaseLoad, LetsTheEventQueueRunOncePerRecord) {
    std::vector<int> counts;
    desktop.onEvents = [&counts] { counts.push_back(gDbCombs->Count()); };
    EXPECT_EQ(load(drawsFile(twoDraws)), 0);
    EXPECT_EQ(counts, (std::vector<int>{0, 1}));
}

TEST_F(DrawBaseLoad, RefusesAFileOfAnotherSoftware) {
    for (const char *software : {"autre", "Boulix", "boulix2", "", " boulix2"})
        expectRefused(drawsFile(twoDraws, {.software = software}), foreignFile());
}

TEST_F(DrawBaseLoad, AddingADrawReplacesARefusedFile) {
    expectRefused(drawsFile(twoDraws, {.software = "autre"}), foreignFile());
    gDbCombs->Add(day1, 2, combOf(twoDraws[0].numbers), true, "");
    EXPECT_EQ(baseFileBytes(), drawsFile({{day1, 2, twoDraws[0].numbers}}));
}

TEST_F(DrawBaseLoad, AcceptsASoftwareNameWithBlanksAroundIt) {
    EXPECT_EQ(load(drawsFile(twoDraws, {.software = "  boulix "})), 0);
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_EQ(rows(), twoRows);
}

TEST_F(DrawBaseLoad, RefusesAFileOfAnotherType) {
    for (const int typ : {0, 2, 3, 4, 5, 6, 7, -1})
        expectRefused(drawsFile(twoDraws, {.typ = typ}),
                      refusal(4402, "Le type de fichier n'est pas correct!"));
}

TEST_F(DrawBaseLoad, RefusesAFileOfALaterMajorVersion) {
    expectRefused(drawsFile(twoDraws, {.version = "5.0.0"}),
                  refusal(4403, "Le fichier ne peut être lu qu'à partir de la version 5!"));
}

TEST_F(DrawBaseLoad, AcceptsEveryEarlierOrEqualMajorVersion) {
    for (const char *version : {"3.2.1", "4.9.9", "4.0.3", "0.1"}) {
        EXPECT_EQ(load(drawsFile(twoDraws, {.version = version})), 0) << version;
        EXPECT_EQ(rows(), twoRows) << version;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(DrawBaseLoad, FailsOnAVersionWithoutADot) {
    for (const char *version : {"4", "", "version"}) {
        const std::string bytes = drawsFile(twoDraws, {.version = version});
        EXPECT_EQ(load(bytes), 5) << version;
        EXPECT_EQ(gDbCombs->Count(), 0) << version;
        EXPECT_EQ(baseFileBytes(), bytes) << version;
    }
}

/// The rows that a base of draws cut at `bytes` is to give, worked out from the bytes alone:
/// what is missing counts as zero bytes.
std::vector<std::string> rowsOfCutFile(std::string bytes) {
    const double slots = (static_cast<double>(bytes.size()) - 86) / 128;
    const auto draws = static_cast<std::size_t>(std::max(0.0, std::nearbyint(slots)));
    bytes.resize(128 * (draws + 1), '\0');
    const auto int16At = [&bytes](std::size_t at) {
        const int value =
            static_cast<unsigned char>(bytes[at]) + 256 * static_cast<unsigned char>(bytes[at + 1]);
        return value < 32768 ? value : value - 65536;
    };
    std::vector<std::string> rows;
    for (std::size_t slot = 128; slot < bytes.size(); slot += 128) {
        double day = 0;
        std::copy_n(bytes.data() + slot, 8, reinterpret_cast<char *>(&day));
        std::string row = longDate(day) + " (" + std::to_string(int16At(slot + 8)) + ")";
        int sum = 0;
        for (std::size_t i = 0; i < 6; ++i) {
            row += " " + std::to_string(int16At(slot + 10 + 2 * i));
            sum += int16At(slot + 10 + 2 * i);
        }
        const int complementary = int16At(slot + 22);
        rows.push_back(row + " + " + std::to_string(complementary) + " = " + std::to_string(sum) +
                       " " + std::to_string(sum + complementary));
    }
    return rows;
}

TEST_F(DrawBaseLoad, AFileCutShorterThanItsHeaderIsRefusedAsForeign) {
    const std::string whole = drawsFile(twoDraws);
    for (std::size_t length = 0; length < 86; ++length)
        expectRefused(whole.substr(0, length), foreignFile());
}

TEST_F(DrawBaseLoad, AFileCutBehindItsHeaderGivesTheDrawsThatAreMoreThanHalfThere) {
    std::string whole = drawsFile(twoDraws);
    whole.resize(384);
    for (std::size_t length = 86; length <= 300; ++length) {
        const std::string cut = whole.substr(0, length);
        desktop.messages.clear();
        EXPECT_EQ(load(cut), 0) << length;
        EXPECT_EQ(rows(), rowsOfCutFile(cut)) << length;
        EXPECT_EQ(baseFileBytes(), cut) << length;
        std::vector<ShownBox> told;
        for (const std::size_t draw : {1U, 2U}) // the draw's first byte is there, its last is not
            if (length > 128 * draw && length < 128 * draw + 28)
                told.push_back(cutBase(draw, rows().size() >= draw));
        EXPECT_EQ(desktop.messages, told) << length;
    }
}

TEST_F(DrawBaseLoad, CountsHalfASlotToTheEvenNumberOfDraws) {
    struct {
        std::size_t length;
        int draws;
    } const table[] = {{86, 0},  {128, 0}, {150, 0}, {151, 1}, {156, 1}, {277, 1},
                       {278, 2}, {284, 2}, {405, 2}, {406, 2}, {407, 3}};
    std::string whole = drawsFile(std::vector<DrawOf>(4, twoDraws[0]));
    for (const auto &row : table) {
        EXPECT_EQ(load(whole.substr(0, row.length)), 0) << row.length;
        EXPECT_EQ(gDbCombs->Count(), row.draws) << row.length;
    }
}

TEST_F(DrawBaseLoad, TakesDaysThatAreNoDatesAsTheyStand) {
    const double days[] = {std::numeric_limits<double>::quiet_NaN(),
                           std::numeric_limits<double>::infinity(), -1e300, 1e9, 37632.75};
    for (const double day : days) {
        DrawOf draw = twoDraws[0];
        draw.day = day;
        const std::string bytes = drawsFile({draw, twoDraws[1]});
        EXPECT_EQ(load(bytes), 0) << day;
        ASSERT_EQ(gDbCombs->Count(), 2) << day;
        EXPECT_EQ(recordBytes({gDbCombs->Item(1).day()}), recordBytes({day})) << day;
        EXPECT_EQ(rowOf(gDbCombs->Item(2)), twoRows[1]) << day;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(DrawBaseLoad, FailsOnNumbersWhoseSumIsBeyondSixteenBits) {
    const DrawOf tooMuch = {day1, 1, {30000, 2000, 767, 1, 0, 0, -1}};
    const DrawOf justFits = {day1, 1, {30000, 2000, 767, 0, 0, 0, 0}};
    const DrawOf tooMuchInAll = {day1, 1, {30000, 2000, 767, 0, 0, 0, 1}};
    EXPECT_EQ(load(drawsFile({justFits})), 0);
    EXPECT_EQ(gDbCombs->Item(1).comb().sum(), 32767);
    EXPECT_EQ(load(drawsFile({justFits, tooMuch})), 6);
    EXPECT_EQ(gDbCombs->Count(), 1);
    EXPECT_EQ(load(drawsFile({tooMuchInAll})), 6);
    EXPECT_EQ(gDbCombs->Count(), 0);
}

TEST_F(DrawBaseLoad, FailsOnAFolderInPlaceOfTheFile) {
    std::filesystem::create_directory(baseFile());
    add(twoDraws[0]);
    EXPECT_NE(load(), 0);
    EXPECT_EQ(gDbCombs->Count(), 0);
}

TEST_F(DrawBaseLoad, GivesBackWhatWasSaved) {
    std::mt19937 random(128);
    std::uniform_int_distribution<int> day(-700000, 2900000);
    std::uniform_int_distribution<int> number(-4000, 4000);
    for (int round = 0; round < 50; ++round) {
        gDbCombs->clear();
        for (int k = 0; k < round; ++k) {
            DrawOf draw = {static_cast<double>(day(random)), number(random), {}};
            for (int &n : draw.numbers)
                n = number(random);
            for (std::size_t i = 0; i < 6; ++i)
                draw.sum += draw.numbers[i];
            draw.sumtot = draw.sum + draw.numbers[6];
            add(draw);
        }
        gDbCombs->Add(day1, 1, {}, true, "");
        const std::vector<std::string> saved = rows();
        gDbCombs->load();
        ASSERT_EQ(rows(), saved) << "round " << round;
    }
}

} // namespace
} // namespace boulix
