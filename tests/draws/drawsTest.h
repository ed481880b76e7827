// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/globals.h"
#include "draws/dbCombs.h"
#include "support/boulixTest.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// A draw as a test writes it down: the day, the draw of the day, six numbers and the
/// complementary, the two sums.
struct DrawOf {
    Date day = 0;
    int id = 1;
    std::array<int, 7> numbers{};
    int sum = 0;
    int sumtot = 0;
};

/// A program whose draw base lies in the application folder.
class DrawsTest : public BoulixTest {
  protected:
    DrawsTest();

    std::string baseFile() const { return file("tirages.dbl"); }
    std::string baseFileBytes() const { return readBytes(baseFile()); }

    void add(const DrawOf &draw);
    /// The draws in memory, one text each: "11/01/2003 (1) 2 3 5 7 11 13 + 17 = 41 58".
    static std::vector<std::string> rows();

    /// Imports a file with these bytes. What `ImportFdjFile` answers.
    bool importBytes(const std::string &bytes);
    /// Imports `header` and `lines`, each ended by CR LF.
    bool importLines(const std::vector<std::string> &lines,
                     const std::string &header = plainHeader);

    static constexpr const char *plainHeader =
        "BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;BOULE6;BOULE_COMPLEMENTAIRE;DATE_DE_TIRAGE;"
        "1ER_OU_2EME_TIRAGE";
};

lotoComb combOf(const std::array<int, 7> &numbers);
std::string rowOf(const dbComb &draw);

/// The header of a draw base, byte by byte; the draw base of `drawsFile` has it too.
struct HeadOf {
    std::string software = "boulix";
    std::string version = "4.0.3";
    int typ = 1;
    std::string date = "15/11/2026";
};
std::string headBytes(const HeadOf &head = {});
/// The 28 bytes of a draw.
std::string recordBytes(const DrawOf &draw);
/// A whole draw base: every record at the start of its slot of 128 bytes, zeros between.
std::string drawsFile(const std::vector<DrawOf> &draws, const HeadOf &head = {});

} // namespace boulix::testing_support

namespace boulix {
using testing_support::combOf;
using testing_support::DrawOf;
using testing_support::drawsFile;
using testing_support::DrawsTest;
using testing_support::headBytes;
using testing_support::HeadOf;
using testing_support::readBytes;
using testing_support::recordBytes;
using testing_support::rowOf;
using testing_support::writeBytes;
} // namespace boulix
