// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"

#include "support/boulixTest.h"

#include <cerrno>

namespace boulix {
namespace {

struct Described {
    Failure failure;
    int number;
    const char *description;
};

constexpr Described allFailures[] = {
    {Failure::invalidCall, 5, "Appel de procédure ou argument incorrect"},
    {Failure::overflow, 6, "Dépassement de capacité"},
    {Failure::outOfMemory, 7, "Mémoire insuffisante"},
    {Failure::subscriptOutOfRange, 9, "L'indice n'appartient pas à la sélection"},
    {Failure::divisionByZero, 11, "Division par zéro"},
    {Failure::typeMismatch, 13, "Incompatibilité de type"},
    {Failure::badFileName, 52, "Nom ou numéro de fichier incorrect"},
    {Failure::fileNotFound, 53, "Fichier introuvable"},
    {Failure::deviceError, 57, "Erreur d'entrée/sortie de périphérique"},
    {Failure::diskFull, 61, "Disque plein"},
    {Failure::inputPastEnd, 62, "Lecture au-delà de la fin du fichier"},
    {Failure::permissionDenied, 70, "Permission refusée"},
    {Failure::pathAccess, 75, "Erreur d'accès au chemin/fichier"},
    {Failure::pathNotFound, 76, "Chemin d'accès introuvable"},
    {Failure::objectNotSet, 91, "Variable objet non définie"},
    {Failure::invalidPropertyValue, 380, "Valeur de propriété non valide"},
    {Failure::printerError, 482, "Erreur d'impression"},
};

TEST(Failures, EachHasItsNumberAndItsDescription) {
    for (const Described &expected : allFailures) {
        const auto failure = failureOf([&expected] { fail(expected.failure); });
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->number(), expected.number);
        EXPECT_EQ(failure->description(), expected.description);
        EXPECT_STREQ(failure->what(), expected.description);
    }
}

TEST(Failures, ADescriptionOfOnesOwnTakesThePlaceOfTheUsualOne) {
    const auto failure = failureOf([] { fail(Failure::overflow, "trop grand"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 6);
    EXPECT_EQ(failure->description(), "trop grand");
}

struct ErrorCase {
    int error;
    int number;
};

TEST(Failures, AnErrorOfTheSystemBecomesTheFailureThatStandsForIt) {
    constexpr ErrorCase cases[] = {{ENOENT, 53}, {ENOTDIR, 76},      {EACCES, 70}, {EPERM, 70},
                                   {EROFS, 70},  {EISDIR, 75},       {ENOSPC, 61}, {EDQUOT, 61},
                                   {EFBIG, 61},  {ENAMETOOLONG, 75}, {EIO, 57},    {EMFILE, 57}};
    for (const ErrorCase &expected : cases)
        EXPECT_EQ(failureNumber([&expected] { failForFile(expected.error, "/tmp/x"); }),
                  expected.number)
            << "errno " << expected.error;
}

TEST(Failures, AFailureOfAFileNamesTheFile) {
    const auto failure = failureOf([] { failForFile(ENOSPC, "/tmp/tirages.dbl"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->description(), "Disque plein : /tmp/tirages.dbl");
}

TEST(Failures, AFailureKnownByItsNumberCanNameItsFileToo) {
    const auto failure = failureOf([] { failForFile(Failure::inputPastEnd, "/tmp/a.lst"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 62);
    EXPECT_EQ(failure->description(), "Lecture au-delà de la fin du fichier : /tmp/a.lst");
}

TEST(Failures, ALineMoreGoesUnderTheDescriptionAndTheNumberStays) {
    const RuntimeFailure failure = withLine(RuntimeFailure(Failure::overflow), "Tirage n° 3.");
    EXPECT_EQ(failure.number(), 6);
    EXPECT_EQ(failure.description(), "Dépassement de capacité\r\nTirage n° 3.");
}

TEST(Failures, AMissingFolderIsToldApartFromAMissingFile) {
    EXPECT_EQ(failureNumber([] { failForFile(ENOENT, "/tmp/no such file"); }), 53);
    EXPECT_EQ(failureNumber([] { failForFile(ENOENT, "/no such folder/file"); }), 76);
    EXPECT_EQ(failureNumber([] { failForFile(ENOENT, "no folder at all"); }), 53);
}

} // namespace
} // namespace boulix
