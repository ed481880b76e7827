// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/settings.h"

#include "support/boulixTest.h"
#include "support/smallDisk.h"

#include <chrono>
#include <filesystem>
#include <random>
#include <sys/stat.h>

namespace boulix {
namespace {

class Settings : public BoulixTest {
  protected:
    std::string ini() const { return file("boulix.ini"); }
};

TEST_F(Settings, WithoutAFileEveryReadGivesItsDefaultAndMakesNone) {
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "0.6");
    EXPECT_EQ(settings::read("grille", "unite_monnaie", "euro"), "euro");
    EXPECT_FALSE(fileExists(ini()));
}

TEST_F(Settings, AValueWrittenIsFoundByTheNextRead) {
    settings::write("grille", "unite_monnaie", "écu");
    settings::write("grille", "prix_grille", "0.75");
    settings::write("impression", "imprimante", "");
    EXPECT_EQ(settings::read("grille", "unite_monnaie", "euro"), "écu");
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "0.75");
    EXPECT_EQ(settings::read("impression", "imprimante", "no_printer"), "");
    EXPECT_EQ(readBytes(ini()), "[grille]\r\nunite_monnaie=\xE9"
                                "cu\r\nprix_grille=0.75\r\n"
                                "[impression]\r\nimprimante=\r\n");
}

TEST_F(Settings, SeveralValuesAreWrittenAtOnceAndOnlyWhereTheyDiffer) {
    writeBytes(ini(), "; mine\n[b]\ny=2\n");
    settings::write({{"a", "x", "1"}, {"b", "y", "3"}, {"a", "z", "4"}});
    EXPECT_EQ(readBytes(ini()), "; mine\n[b]\ny=3\n[a]\nx=1\nz=4\n");
    const auto then = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    std::filesystem::last_write_time(ini(), then);
    settings::write({{"a", "x", "1"}, {"b", "y", "3"}});
    EXPECT_EQ(std::filesystem::last_write_time(ini()), then);
}

TEST_F(Settings, AFileChangedBySomebodyElseIsReadAnew) {
    writeBytes(ini(), "[grille]\nprix_grille=1\n");
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "1");
    writeBytes(ini(), "[grille]\nprix_grille=2\n");
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "2");
}

TEST_F(Settings, ARemovedKeyGivesItsDefaultAgain) {
    settings::write("jeux reduits", "jeu0", "a.gam");
    settings::write("jeux reduits", "jeu1", "b.gam");
    settings::remove("jeux reduits", "jeu0");
    EXPECT_EQ(settings::read("jeux reduits", "jeu0", "rien"), "rien");
    EXPECT_EQ(settings::read("jeux reduits", "jeu1", "rien"), "b.gam");
}

TEST_F(Settings, RemovingWhatIsNotThereTouchesNothing) {
    settings::remove("jeux reduits", "jeu0");
    EXPECT_FALSE(fileExists(ini()));
}

TEST_F(Settings, AValueIsReadThroughABufferOf1023CharactersUpToAZeroByte) {
    writeBytes(ini(), "[s]\nlong=" + std::string(2000, '\xE9') + "\nzero=ab" + '\0' + "cd\n");
    std::string expected;
    for (int i = 0; i < 1023; ++i)
        expected += "é";
    EXPECT_EQ(settings::read("s", "long", ""), expected);
    EXPECT_EQ(settings::read("s", "zero", ""), "ab");
}

TEST_F(Settings, AFolderInPlaceOfTheFileGivesTheDefaultsAndCannotBeWritten) {
    std::filesystem::create_directory(ini());
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "0.6");
    EXPECT_EQ(failureNumber([] { settings::write("grille", "prix_grille", "1"); }), 75);
    EXPECT_EQ(failureNumber([] { settings::remove("grille", "prix_grille"); }), 75);
    EXPECT_TRUE(std::filesystem::is_directory(ini()));
}

TEST_F(Settings, BinaryGarbageIsNoSettingAndSurvivesAWrite) {
    std::mt19937 random(17);
    std::uniform_int_distribution<int> bytes(0, 255);
    std::string garbage(100'000, ' ');
    for (char &c : garbage)
        c = static_cast<char>(bytes(random));
    garbage += "\n";
    writeBytes(ini(), garbage);
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "0.6");
    settings::write("grille", "prix_grille", "1");
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "1");
    EXPECT_EQ(readBytes(ini()).substr(0, garbage.size()), garbage);
}

TEST_F(Settings, ALineOfTenMegabytesIsNoObstacle) {
    const std::string line(10'000'000, 'x');
    writeBytes(ini(), "[grille]\n" + line + "=" + line + "\n" + line + "\nprix_grille=2\n");
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "2");
    settings::write("grille", "prix_grille", "3");
    EXPECT_EQ(readBytes(ini()),
              "[grille]\n" + line + "=" + line + "\n" + line + "\nprix_grille=3\n");
}

TEST_F(Settings, AWriteProtectedFileIsReadButNotReplaced) {
    writeBytes(ini(), "[grille]\nprix_grille=1\n");
    ASSERT_EQ(chmod(ini().c_str(), 0444), 0);
    EXPECT_EQ(settings::read("grille", "prix_grille", "0.6"), "1");
    EXPECT_EQ(failureNumber([] { settings::write("grille", "prix_grille", "2"); }), 70);
    EXPECT_EQ(readBytes(ini()), "[grille]\nprix_grille=1\n");
}

} // namespace
} // namespace boulix
