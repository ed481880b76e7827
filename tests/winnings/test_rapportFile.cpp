// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/rapport.h"

#include "files/slotFile.h"
#include "support/boulixTest.h"

#include <array>
#include <bit>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace boulix {
namespace {

using testing_support::fileExists;
using testing_support::readBytes;
using testing_support::writeBytes;

constexpr std::size_t slot = 128;

class RapportFileTest : public BoulixTest {
  protected:
    rapport table;

    void fill(float first) {
        for (std::int16_t i = 0; i < rapport::size; ++i)
            table.Value(i, first + static_cast<float>(i) * 0.1F);
    }
    bool holds(float first) const {
        for (std::int16_t i = 0; i < rapport::size; ++i)
            if (table.Value(i) != first + static_cast<float>(i) * 0.1F)
                return false;
        return true;
    }
    /// The bytes of a table file with amounts from `first` on.
    std::string savedBytes(float first) {
        rapport other;
        for (std::int16_t i = 0; i < rapport::size; ++i)
            other.Value(i, first + static_cast<float>(i) * 0.1F);
        other.save(file("modele.rap"));
        std::string bytes = readBytes(file("modele.rap"));
        std::filesystem::remove(file("modele.rap"));
        return bytes;
    }
    bool loadBytes(const std::string &bytes) {
        writeBytes(file("essai.rap"), bytes);
        desktop.answerOpen(file("essai.rap"));
        return table.load();
    }
    ShownBox missing(const std::string &name) const {
        return {"Erreur lors de l'accès au fichier " + name + ".", Icon::information,
                "boulix: Erreur N° 4204"};
    }
    ShownBox refusal(int number, const std::string &reason) const {
        return {"Impossible de charger le fichier essai.rap du répertoire " + folder() + "/\r\n" +
                    reason,
                Icon::information, "boulix: Erreur N° " + std::to_string(number)};
    }
};

TEST_F(RapportFileTest, ANewFileIsAHeaderAndElevenSlots) {
    fill(1);
    table.save(file("gains.rap"));
    const std::string bytes = readBytes(file("gains.rap"));
    ASSERT_EQ(bytes.size(), 1412U);
    EXPECT_EQ(bytes.substr(0, 86), "boulix" + std::string(26, ' ') + "4.0.3" +
                                       std::string(27, ' ') + std::string("\x05\x00", 2) +
                                       "15/11/202615/11/2026");
    for (std::size_t i = 0; i < 11; ++i)
        EXPECT_EQ(readFloat(bytes, slot * (i + 1)), 1 + static_cast<float>(i) * 0.1F);
    EXPECT_EQ(desktop.questions.size(), 0U);
}

TEST_F(RapportFileTest, AnAmountComesBackBitForBit) {
    const std::array<float, 11> amounts = {0.1F,     -0.0F,    1e-45F,        3.4028235e38F,
                                           1.0F / 3, 16777216, -12.5F,        99.99F,
                                           0,        INFINITY, std::nanf("7")};
    for (std::int16_t i = 0; i < 11; ++i)
        table.Value(i, amounts[static_cast<std::size_t>(i)]);
    table.save(file("gains.rap"));
    rapport other;
    desktop.answerOpen(file("gains.rap"));
    ASSERT_TRUE(other.load());
    for (std::int16_t i = 0; i < 11; ++i)
        EXPECT_EQ(std::bit_cast<std::uint32_t>(other.Value(i)),
                  std::bit_cast<std::uint32_t>(amounts[static_cast<std::size_t>(i)]));
}

TEST_F(RapportFileTest, LoadAsksForAFileOfItsKind) {
    desktop.cancelOpen();
    EXPECT_FALSE(table.load());
    ASSERT_EQ(desktop.openQuestions.size(), 1U);
    EXPECT_EQ(desktop.openQuestions[0].title, "Ouverture d'un fichier de rapport");
    EXPECT_EQ(desktop.openQuestions[0].filter, "Fichier de rapport Boulix (*.rap)|*.rap");
    EXPECT_EQ(desktop.openQuestions[0].folder, lastUsedFolder());
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(RapportFileTest, TheDefaultFileIsReplacedWithoutAQuestion) {
    fill(1);
    table.save(file("defrapp.rap"));
    fill(2);
    table.save(file("defrapp.rap"));
    EXPECT_EQ(desktop.questions.size(), 0U);
    EXPECT_EQ(readFloat(readBytes(file("defrapp.rap")), slot), 2.0F);
}

TEST_F(RapportFileTest, AFileNamedAsTheDefaultOneIsReplacedWithoutAQuestionInAnyFolder) {
    std::filesystem::create_directory(file("ailleurs"));
    writeBytes(file("ailleurs/defrapp.rap"), "ancien");
    table.save(file("ailleurs/defrapp.rap"));
    EXPECT_EQ(readBytes(file("ailleurs/defrapp.rap")).size(), 1412U);
}

TEST_F(RapportFileTest, AnyOtherFileIsReplacedOnlyAfterAYes) {
    for (const char *name : {"gains.rap", "DEFRAPP.RAP", "Defrapp.rap", "defrapp.rap.rap"}) {
        writeBytes(file(name), "ancien");
        desktop.questions.clear();
        desktop.answerNo();
        table.save(file(name));
        EXPECT_EQ(readBytes(file(name)), "ancien");
        ASSERT_EQ(desktop.questions.size(), 1U);
        EXPECT_EQ(desktop.questions[0],
                  (ShownBox{std::string("Le fichier ") + name +
                                " existe déjà. Etes-vous sûr de vouloir le remplacer?",
                            Icon::question, "boulix"}));
        desktop.answerYes();
        table.save(file(name));
        EXPECT_EQ(readBytes(file(name)).size(), 1412U);
    }
}

TEST_F(RapportFileTest, AFileOfAnotherTypeIsRefusedAndTheAmountsStay) {
    std::string bytes = savedBytes(9);
    fill(1);
    for (int type = 0; type <= 7; ++type) {
        if (type == 5)
            continue;
        bytes[64] = static_cast<char>(type);
        desktop.messages.clear();
        EXPECT_FALSE(loadBytes(bytes));
        EXPECT_TRUE(holds(1));
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0], refusal(4402, "Le type de fichier n'est pas correct!"));
    }
}

TEST_F(RapportFileTest, AFileOfAnotherSoftwareIsRefused) {
    std::string bytes = savedBytes(9);
    bytes.replace(0, 6, "autre!");
    fill(1);
    EXPECT_FALSE(loadBytes(bytes));
    EXPECT_TRUE(holds(1));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0],
              refusal(4401, "Il ne s'agit pas d'un fichier au format reconnu par boulix"));
}

TEST_F(RapportFileTest, AVersionWithoutADotIsAFaultOfTheFile) {
    std::string bytes = savedBytes(9);
    bytes.replace(32, 5, "four!");
    fill(1);
    EXPECT_FALSE(loadBytes(bytes));
    EXPECT_TRUE(holds(1));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], missing("essai.rap"));
}

TEST_F(RapportFileTest, AMissingDefaultFileGivesOneMessageAndATableOfZeros) {
    table.loadDefFile();
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], missing("defrapp.rap"));
    for (std::int16_t i = 0; i < 11; ++i)
        EXPECT_EQ(table.Value(i), 0.0F);
    EXPECT_FALSE(fileExists(file("defrapp.rap")));
}

TEST_F(RapportFileTest, TheDefaultFileIsReadFromTheApplicationFolderOnly) {
    table.save(lastUsedFolder() + "defrapp.rap");
    rapport saved;
    saved.Value(10, 1234.5F);
    saved.save(file("defrapp.rap"));
    table.loadDefFile();
    EXPECT_EQ(table.Value(10), 1234.5F);
    EXPECT_EQ(desktop.messages.size(), 0U);
}

TEST_F(RapportFileTest, AFileThatIsGoneGivesTheMessageWithItsName) {
    fill(1);
    desktop.answerOpen(file("parti.rap"));
    EXPECT_FALSE(table.load());
    EXPECT_TRUE(holds(1));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], missing("parti.rap"));
}

TEST_F(RapportFileTest, AFolderInPlaceOfAFileGivesTheMessage) {
    fill(1);
    std::filesystem::create_directory(file("dossier.rap"));
    desktop.answerOpen(file("dossier.rap"));
    EXPECT_FALSE(table.load());
    EXPECT_TRUE(holds(1));
    ASSERT_EQ(desktop.messages.size(), 1U);
    EXPECT_EQ(desktop.messages[0], missing("dossier.rap"));
}

TEST_F(RapportFileTest, AFileCutAnywhereChangesAllAmountsOrNone) {
    const std::string whole = savedBytes(9);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        fill(1);
        desktop.messages.clear();
        const bool loaded = loadBytes(whole.substr(0, length));
        // The last slot begins at 1408: of its amount, missing bytes read as zero.
        EXPECT_EQ(loaded, length > 1408) << length;
        if (loaded) {
            EXPECT_EQ(table.Value(9), 9 + 9 * 0.1F) << length;
        } else {
            EXPECT_TRUE(holds(1)) << length;
            ASSERT_EQ(desktop.messages.size(), 1U) << length;
            EXPECT_EQ(desktop.messages[0].title,
                      length < 86 ? "boulix: Erreur N° 4401" : "boulix: Erreur N° 4204")
                << length;
        }
    }
}

TEST_F(RapportFileTest, BytesBehindTheLastAmountAreOfNoMatter) {
    std::string bytes = savedBytes(9);
    bytes.resize(12 * slot, 'x');
    EXPECT_TRUE(loadBytes(bytes + "et encore"));
    EXPECT_TRUE(holds(9));
}

TEST_F(RapportFileTest, GarbageIsRefused) {
    std::mt19937 random(7);
    fill(1);
    for (int round = 0; round < 50; ++round) {
        std::string bytes(random() % 3000, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(random());
        EXPECT_FALSE(loadBytes(bytes));
        EXPECT_TRUE(holds(1));
    }
    EXPECT_EQ(desktop.messages.size(), 50U);
}

TEST_F(RapportFileTest, ASaveIntoAFolderThatIsNotThereIsARunTimeFailure) {
    EXPECT_EQ(failureNumber([&] { table.save(file("nulle/part.rap")); }), 76);
}

} // namespace
} // namespace boulix
