// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/settings.h"
#include "files/slotFile.h"
#include "files/xFile.h"
#include "games/gameDef.h"
#include "support/boulixTest.h"

#include <filesystem>
#include <random>

namespace boulix {
namespace {

class GameDefFileTest : public BoulixTest {
  protected:
    GameDefFileTest() {
        def.label("Écart à l'œil");
        def.nSelect(7);
        def.nWin(4);
        def.nCond(5);
        def.addStrComb("1/2/3/4/5/6");
        def.addStrComb("2/3/4/5/6/7");
    }

    /// A definition whose file is `name` in the application folder.
    gameDef placedAt(const std::string &name) const {
        gameDef placed;
        auto where = std::make_shared<xFile>();
        where->path(folder());
        where->name(name);
        placed.file(where);
        placed.label("ancien");
        placed.addStrComb("9/10/11/12/13/14");
        return placed;
    }
    /// Whether the definition is still as `placedAt` made it.
    static bool untouched(const gameDef &placed, const std::string &name) {
        return placed.label() == "ancien" && placed.nComb() == 1 &&
               placed.gameComb(1)->num(1) == 9 && placed.file()->name() == name;
    }
    std::string savedBytes() {
        def.save(0, 0);
        return readBytes(file("rgame-0.gam"));
    }

    gameDef def;
};

TEST_F(GameDefFileTest, AReducedGameGetsItsNumberedFileAndItsKey) {
    EXPECT_TRUE(def.save(3, 8));
    EXPECT_EQ(def.file()->name(), "rgame-3.gam");
    EXPECT_EQ(def.file()->path(), folder());
    EXPECT_TRUE(fileExists(file("rgame-3.gam")));
    EXPECT_EQ(settings::read("jeux reduits", "jeu3", "rien"), "rgame-3.gam");
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu8", "rien"), "rien");
}

TEST_F(GameDefFileTest, AFixedPositionGameGetsTheOtherNameNumberAndSection) {
    def.nFixed(1);
    EXPECT_TRUE(def.save(3, 8));
    EXPECT_EQ(def.file()->name(), "fgame-8.gam");
    EXPECT_TRUE(fileExists(file("fgame-8.gam")));
    EXPECT_EQ(settings::read("jeux a positions fixes", "jeu8", "rien"), "fgame-8.gam");
    EXPECT_EQ(settings::read("jeux reduits", "jeu3", "rien"), "rien");
}

TEST_F(GameDefFileTest, EachItemLiesInItsSlot) {
    def.nFixed(0);
    def.gameComb(1)->sum(999); // is not what is written
    const std::string bytes = savedBytes();
    ASSERT_EQ(bytes.size(), 128U * 9 + 14);
    EXPECT_EQ(readInt16(bytes, 64), 3);
    EXPECT_EQ(readInt16(bytes, 128), 11);
    EXPECT_EQ(bytes.substr(130, 11), "rgame-0.gam");
    EXPECT_EQ(readInt16(bytes, 256), 13);
    EXPECT_EQ(bytes.substr(258, 13), "\xC9"
                                     "cart \xE0 l'\x9C"
                                     "il");
    EXPECT_EQ(readInt16(bytes, 3 * 128), 5);
    EXPECT_EQ(readInt16(bytes, 4 * 128), 0);
    EXPECT_EQ(readInt16(bytes, 5 * 128), 7);
    EXPECT_EQ(readInt16(bytes, 6 * 128), 4);
    EXPECT_EQ(readInt32(bytes, 7 * 128), 2);
    const int rows[2][7] = {{1, 2, 3, 4, 5, 6, 21}, {2, 3, 4, 5, 6, 7, 27}};
    for (std::size_t row = 0; row < 2; ++row)
        for (std::size_t i = 0; i < 7; ++i)
            EXPECT_EQ(readInt16(bytes, (8 + row) * 128 + 2 * i), rows[row][i]);
}

TEST_F(GameDefFileTest, ASaveAndALoadKeepEverything) {
    savedBytes();
    gameDef loaded = placedAt("rgame-0.gam");
    EXPECT_TRUE(loaded.load());
    EXPECT_EQ(loaded.label(), def.label());
    EXPECT_EQ(loaded.nSelect(), 7);
    EXPECT_EQ(loaded.nWin(), 4);
    EXPECT_EQ(loaded.nCond(), 5);
    EXPECT_EQ(loaded.nFixed(), 0);
    ASSERT_EQ(loaded.nComb(), 2);
    EXPECT_EQ(loaded.gameComb(2)->numbers(), def.gameComb(2)->numbers());
    EXPECT_EQ(loaded.file()->name(), "rgame-0.gam");
}

TEST_F(GameDefFileTest, TheSumOfALoadedRowIsMadeAnew) {
    std::string bytes = savedBytes();
    bytes[8 * 128 + 12] = 99;
    writeBytes(file("rgame-0.gam"), bytes);
    gameDef loaded = placedAt("rgame-0.gam");
    loaded.load();
    EXPECT_EQ(loaded.gameComb(1)->sum(), 21);
}

TEST_F(GameDefFileTest, ADefinitionWithoutRowsIsEightRecordsAndLoadsBack) {
    gameDef empty;
    empty.label("vide");
    empty.save(5, 0);
    EXPECT_EQ(readBytes(file("rgame-5.gam")).size(), 7U * 128 + 4);
    gameDef loaded = placedAt("rgame-5.gam");
    EXPECT_TRUE(loaded.load());
    EXPECT_EQ(loaded.nComb(), 0);
    EXPECT_EQ(loaded.label(), "vide");
}

TEST_F(GameDefFileTest, SavingInPlaceTouchesNeitherTheSettingsNorTheFileOfTheDefinition) {
    savedBytes();
    const std::string before = readBytes(file("boulix.ini"));
    const auto place = def.file();
    const std::string fullName = place->fullName();
    def.nWin(6);
    EXPECT_TRUE(def.save(-1, -1));
    EXPECT_EQ(readBytes(file("boulix.ini")), before);
    EXPECT_EQ(def.file(), place);
    EXPECT_EQ(place->fullName(), fullName);
    EXPECT_EQ(readInt16(readBytes(file("rgame-0.gam")), 6 * 128), 6);
}

TEST_F(GameDefFileTest, SavingInPlaceWithoutAFileIsARunTimeFailure) {
    EXPECT_EQ(failureNumber([&] { def.save(-1, -1); }), 91);
}

TEST_F(GameDefFileTest, TheFileIsAlwaysTheOneInTheApplicationFolder) {
    savedBytes();
    std::filesystem::create_directory(file("ailleurs"));
    def.file()->path(file("ailleurs"));
    EXPECT_TRUE(def.save(-1, -1));
    EXPECT_TRUE(std::filesystem::is_empty(file("ailleurs")));
    EXPECT_TRUE(def.load());
    EXPECT_EQ(def.file()->path(), folder());
}

TEST_F(GameDefFileTest, TheNameInTheFileBecomesTheNameOfTheDefinition) {
    savedBytes();
    std::filesystem::rename(file("rgame-0.gam"), file("autre.gam"));
    gameDef loaded = placedAt("autre.gam");
    EXPECT_TRUE(loaded.load());
    EXPECT_EQ(loaded.file()->name(), "rgame-0.gam");
}

TEST_F(GameDefFileTest, RenameAsksForTheLabelAndSavesInPlace) {
    savedBytes();
    desktop.answerText("Tout neuf");
    def.rename();
    EXPECT_EQ(desktop.inputLengths, (std::vector<std::size_t>{126}));
    EXPECT_EQ(desktop.inputs, (std::vector<ShownBox>{{"Donnez le nouveau nom du jeu", Icon::none,
                                                      "Définition du nom du jeu"}}));
    gameDef loaded = placedAt("rgame-0.gam");
    loaded.load();
    EXPECT_EQ(loaded.label(), "Tout neuf");
}

TEST_F(GameDefFileTest, ACancelledRenameGivesTheEmptyLabel) {
    savedBytes();
    desktop.cancelText();
    def.rename();
    EXPECT_EQ(def.label(), "");
}

TEST_F(GameDefFileTest, ALabelOf126BytesFitsALongerOneIsNotSaved) {
    const std::string before = savedBytes();
    def.label(std::string(126, 'a'));
    EXPECT_TRUE(def.save(-1, -1));
    gameDef loaded = placedAt("rgame-0.gam");
    EXPECT_TRUE(loaded.load());
    EXPECT_EQ(loaded.label(), def.label());
    def.label(std::string(127, 'a'));
    EXPECT_EQ(failureNumber([&] { def.save(7, 7); }), 59);
    EXPECT_FALSE(fileExists(file("rgame-7.gam")));
    EXPECT_EQ(settings::read("jeux reduits", "jeu7", "rien"), "rien");
}

TEST_F(GameDefFileTest, AFileOfAnotherTypeIsRefusedAndTheDefinitionStays) {
    for (const int other : {0, 1, 2, 4, 5, 6, 9}) {
        std::string bytes = savedBytes();
        bytes[64] = static_cast<char>(other);
        writeBytes(file("autre.gam"), bytes);
        gameDef loaded = placedAt("autre.gam");
        desktop.messages.clear();
        EXPECT_FALSE(loaded.load());
        EXPECT_TRUE(untouched(loaded, "autre.gam"));
        ASSERT_EQ(desktop.messages.size(), 1U);
        EXPECT_EQ(desktop.messages[0].title, "boulix: Erreur N° 4402");
    }
}

TEST_F(GameDefFileTest, AFileCutAnywhereIsRefusedOrARunTimeFailureAndTheDefinitionStays) {
    const std::string bytes = savedBytes();
    std::vector<std::size_t> lengths;
    for (std::size_t length = 0; length <= 400; ++length)
        lengths.push_back(length);
    std::mt19937 random(1);
    for (int i = 0; i < 60; ++i)
        lengths.push_back(random() % (9 * 128));
    for (const std::size_t length : lengths) {
        writeBytes(file("coupe.gam"), bytes.substr(0, length));
        gameDef loaded = placedAt("coupe.gam");
        bool result = true;
        const int failure = failureNumber([&] { result = loaded.load(); });
        EXPECT_TRUE(failure == 62 || (failure == 0 && !result)) << length;
        EXPECT_TRUE(untouched(loaded, "coupe.gam")) << length;
    }
}

TEST_F(GameDefFileTest, ACountOfRowsThatLiesIsARunTimeFailureBeforeAnythingIsAllocated) {
    const std::pair<std::int32_t, int> lies[] = {
        {-1, 9}, {std::numeric_limits<std::int32_t>::min(), 9}, {3, 62}, {2000000000, 62}};
    for (const auto &[count, number] : lies) {
        std::string bytes = savedBytes();
        std::string lie;
        appendInt32(lie, count);
        bytes.replace(7 * 128, 4, lie);
        writeBytes(file("menteur.gam"), bytes);
        gameDef loaded = placedAt("menteur.gam");
        EXPECT_EQ(failureNumber([&] { loaded.load(); }), number) << count;
        EXPECT_TRUE(untouched(loaded, "menteur.gam"));
    }
}

TEST_F(GameDefFileTest, ATextLengthThatLiesIsARunTimeFailure) {
    for (const std::size_t slot : {1U, 2U})
        for (const int length : {127, 128, 32767, 65535}) {
            std::string bytes = savedBytes();
            std::string lie;
            appendInt16(lie, static_cast<std::int16_t>(length));
            bytes.replace(slot * 128, 2, lie);
            writeBytes(file("menteur.gam"), bytes);
            gameDef loaded = placedAt("menteur.gam");
            EXPECT_EQ(failureNumber([&] { loaded.load(); }), 59) << length;
            EXPECT_TRUE(untouched(loaded, "menteur.gam"));
        }
}

TEST_F(GameDefFileTest, AMissingFileIsARunTimeFailureThatNamesIt) {
    gameDef loaded = placedAt("absent.gam");
    const auto failure = failureOf([&] { loaded.load(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 53);
    EXPECT_NE(failure->description().find("absent.gam"), std::string::npos);
}

TEST_F(GameDefFileTest, NumbersOfALoadedRowAreTakenAsTheyStand) {
    def.gameComb(1)->num(1, -4);
    def.gameComb(1)->num(2, 700);
    savedBytes();
    gameDef loaded = placedAt("rgame-0.gam");
    EXPECT_TRUE(loaded.load());
    EXPECT_EQ(loaded.gameComb(1)->numbers(), def.gameComb(1)->numbers());
}

} // namespace
} // namespace boulix
