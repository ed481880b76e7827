// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/xFile.h"

#include "core/globals.h"
#include "files/slotFile.h"
#include "sill/appInfo.h"
#include "support/boulixTest.h"

#include <filesystem>
#include <sys/stat.h>

namespace boulix {
namespace {

/// `text` with the separator of this platform where "\" stands.
std::string native(std::string text) {
    for (char &c : text)
        if (c == '\\')
            c = pathSeparator;
    return text;
}

TEST(XFileNames, PathAndNameMakeTheFullName) {
    xFile file;
    file.path(native("C:\\data\\"));
    EXPECT_EQ(file.path(), native("C:\\data"));
    EXPECT_EQ(file.fullName(), ""); // no name yet
    file.name("a.lst");
    EXPECT_EQ(file.fullName(), native("C:\\data\\a.lst"));
    file.path(native("D:\\"));
    EXPECT_EQ(file.fullName(), native("D:\\a.lst"));
}

TEST(XFileNames, AFullNameKeepsTheSeparatorInItsPath) {
    xFile file;
    file.fullName(native("C:\\data\\a.lst"));
    EXPECT_EQ(file.path(), native("C:\\data\\"));
    EXPECT_EQ(file.name(), "a.lst");
    EXPECT_EQ(file.fullName(), native("C:\\data\\a.lst"));
}

TEST(XFileNames, BlanksAtTheEndsAreTrimmedAndOthersKept) {
    xFile file;
    file.fullName(native("  C:\\mes données\\le jeu.lst  "));
    EXPECT_EQ(file.fullName(), native("C:\\mes données\\le jeu.lst"));
    EXPECT_EQ(file.path(), native("C:\\mes données\\"));
    EXPECT_EQ(file.name(), "le jeu.lst");
    file.name("  b c.lst ");
    EXPECT_EQ(file.name(), "b c.lst");
    file.path(native(" C:\\d e\\ "));
    EXPECT_EQ(file.path(), native("C:\\d e"));
    EXPECT_EQ(file.fullName(), native("C:\\d e\\b c.lst"));
}

TEST(XFileNames, ATextWithoutASeparatorGivesItsFirstCharacterToThePath) {
    xFile file;
    file.fullName("jeu.lst");
    EXPECT_EQ(file.path(), "j");
    EXPECT_EQ(file.name(), "eu.lst");
    EXPECT_EQ(file.fullName(), "jeu.lst");
}

TEST(XFileNames, AnEmptyFullNameEmptiesPathAndName) {
    xFile file;
    file.fullName(native("C:\\data\\a.lst"));
    file.fullName("   ");
    EXPECT_EQ(file.fullName(), "");
    EXPECT_EQ(file.path(), "");
    EXPECT_EQ(file.name(), "");
}

TEST(XFileNames, OneTrailingSeparatorIsTakenAway) {
    xFile file;
    file.path(native("C:\\data\\\\"));
    EXPECT_EQ(file.path(), native("C:\\data\\"));
}

TEST(XFileNames, TheRootFolderStaysAFolder) {
    xFile file;
    file.path(native("\\"));
    file.name("a.lst");
    EXPECT_EQ(std::filesystem::path(file.fullName()).lexically_normal(), native("\\a.lst"));
}

class XFile : public BoulixTest {
  protected:
    XFile() {
        data.fullName(file("a.dbl"));
        data.head().initialize(1);
    }
    ShownBox refusal(int number, const std::string &reason) const {
        return {"Impossible de charger le fichier a.dbl du répertoire " + data.path() + "\r\n" +
                    reason,
                Icon::information, "boulix: Erreur N° " + std::to_string(number)};
    }
    xFile data;
};

TEST_F(XFile, ExistsOnceItsFileIsThere) {
    EXPECT_FALSE(data.exist());
    writeBytes(file("a.dbl"), "");
    EXPECT_TRUE(data.exist());
    xFile byParts;
    byParts.path(folder());
    byParts.name("a.dbl");
    EXPECT_TRUE(byParts.exist());
}

TEST_F(XFile, AFolderOfItsNameIsNoFile) {
    std::filesystem::create_directory(file("a.dbl"));
    EXPECT_FALSE(data.exist());
}

TEST_F(XFile, RemoveDeletesTheFile) {
    writeBytes(file("a.dbl"), "x");
    data.Remove();
    EXPECT_FALSE(data.exist());
}

TEST_F(XFile, AFileThatCannotBeRemovedIsARunTimeFailureAndNoReport) {
    EXPECT_EQ(failureNumber([this] { data.Remove(); }), 53);
    writeBytes(file("a.dbl"), "x");
    ASSERT_EQ(chmod(file("a.dbl").c_str(), 0444), 0);
    EXPECT_EQ(failureNumber([this] { data.Remove(); }), 70);
    EXPECT_TRUE(data.exist());
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(XFile, AHeaderGivenIsTheHeaderRead) {
    fileHead head;
    head.initialize(4);
    data.head(head);
    EXPECT_EQ(data.head().typ(), 4);
}

TEST_F(XFile, OfThisProgramAndTheExpectedTypeIsAccepted) {
    EXPECT_TRUE(data.verifyHead(1));
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(XFile, OfAnotherSoftwareIsRefused) {
    for (const char *software : {"autre", "Boulix", "BOULIX", "boulix2", "", "bou lix"}) {
        desktop.messages.clear();
        data.head().software(software);
        EXPECT_FALSE(data.verifyHead(1));
        EXPECT_EQ(desktop.messages,
                  std::vector<ShownBox>{
                      refusal(4401, "Il ne s'agit pas d'un fichier au format reconnu par boulix")});
    }
}

TEST_F(XFile, BlanksAroundTheSoftwareNameDoNotCount) {
    data.head().software("  boulix   ");
    EXPECT_TRUE(data.verifyHead(1));
    data.head().software("boulix");
    gAppInfo->name("boulix  ");
    EXPECT_TRUE(data.verifyHead(1));
}

TEST_F(XFile, OfAnotherTypeIsRefused) {
    EXPECT_FALSE(data.verifyHead(2));
    EXPECT_EQ(desktop.messages,
              std::vector<ShownBox>{refusal(4402, "Le type de fichier n'est pas correct!")});
}

TEST_F(XFile, OfANewerMajorVersionIsRefused) {
    const std::pair<const char *, const char *> versions[] = {
        {"5.0.0", "5"}, {"10.2", "10"}, {"05.", "5"}, {"99999.1.1", "99999"}};
    for (const auto &[version, major] : versions) {
        desktop.messages.clear();
        data.head().version(version);
        EXPECT_FALSE(data.verifyHead(1));
        EXPECT_EQ(desktop.messages,
                  std::vector<ShownBox>{
                      refusal(4403, "Le fichier ne peut être lu qu'à partir de la version " +
                                        std::string(major) + "!")});
    }
}

TEST_F(XFile, OfThisOrAnOlderMajorVersionIsAccepted) {
    for (const char *version : {"3.2.1", "4.9.9", "4.0.3", "0.1", "4."}) {
        data.head().version(version);
        EXPECT_TRUE(data.verifyHead(1)) << version;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(XFile, AVersionThatIsNoneIsARunTimeFailure) {
    for (const char *version : {"4", "", "quatre"}) {
        data.head().version(version);
        EXPECT_EQ(failureNumber([this] { data.verifyHead(1); }), 5) << version;
    }
    for (const char *version : {"v4.0", ".4", "x.y"}) {
        data.head().version(version);
        EXPECT_EQ(failureNumber([this] { data.verifyHead(1); }), 13) << version;
    }
    EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(XFile, TheFailureOfAVersionKeepsItsFirstLineAndNamesFileAndVersion) {
    const std::pair<const char *, const char *> versions[] = {
        {"4", "Appel de procédure ou argument incorrect"},
        {"", "Appel de procédure ou argument incorrect"},
        {"x.1", "Incompatibilité de type"},
        {"99999999999.1", "Dépassement de capacité"}};
    for (const auto &[version, firstLine] : versions) {
        data.head().version(version);
        const auto failure = failureOf([this] { data.verifyHead(1); });
        ASSERT_TRUE(failure) << version;
        EXPECT_EQ(failure->description(), firstLine + ("\r\nLa version \"" + std::string(version)) +
                                              "\" du fichier " + data.name() + " du répertoire " +
                                              data.path() + " est illisible.");
    }
}

TEST_F(XFile, TheSoftwareIsLookedAtBeforeTheTypeAndTheTypeBeforeTheVersion) {
    data.head().software("autre");
    data.head().version("5.0.0");
    EXPECT_FALSE(data.verifyHead(2));
    EXPECT_EQ(desktop.messages.at(0).title, "boulix: Erreur N° 4401");
    data.head().software("boulix");
    EXPECT_FALSE(data.verifyHead(2));
    EXPECT_EQ(desktop.messages.at(1).title, "boulix: Erreur N° 4402");
    EXPECT_FALSE(data.verifyHead(1));
    EXPECT_EQ(desktop.messages.at(2).title, "boulix: Erreur N° 4403");
}

} // namespace
} // namespace boulix
