// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/fileHead.h"

#include "core/globals.h"
#include "core/text.h"
#include "files/slotFile.h"
#include "sill/appInfo.h"
#include "support/boulixTest.h"

#include <random>
#include <sstream>

namespace boulix {
namespace {

std::string padded(const std::string &text, std::size_t width) {
    return text + std::string(width - text.size(), ' ');
}

class FileHead : public BoulixTest {
  protected:
    static std::string textForm(const fileHead &head) {
        std::ostringstream file;
        head.saveBinary(file);
        return file.str();
    }
    static void load(fileHead &head, const std::string &bytes) {
        std::istringstream file(bytes);
        head.loadBinary(file);
    }
};

void expectSame(const fileHead &a, const fileHead &b) {
    EXPECT_EQ(a.software(), b.software());
    EXPECT_EQ(a.version(), b.version());
    EXPECT_EQ(a.typ(), b.typ());
    EXPECT_EQ(a.createDate(), b.createDate());
    EXPECT_EQ(a.modifydate(), b.modifydate());
    EXPECT_EQ(a.fileLen(), b.fileLen());
}

TEST_F(FileHead, InitializeNamesThisProgramAndTodayTwice) {
    fileHead head;
    head.initialize(1);
    EXPECT_EQ(head.software(), padded("boulix", 32));
    EXPECT_EQ(head.version(), padded("4.0.3", 32));
    EXPECT_EQ(head.typ(), 1);
    EXPECT_EQ(head.createDate(), "15/11/2026");
    EXPECT_EQ(head.modifydate(), "15/11/2026");
    EXPECT_EQ(head.fileLen(), 128);
}

TEST_F(FileHead, TheTypeDecidesTheRecordLength) {
    constexpr std::int16_t lengths[] = {128, 128, 128, 256, 128, 256};
    fileHead head;
    for (std::int32_t typ = 1; typ <= 6; ++typ) {
        head.initialize(typ);
        EXPECT_EQ(head.fileLen(), lengths[typ - 1]) << typ;
    }
}

TEST_F(FileHead, AnUnknownTypeKeepsTheEarlierRecordLength) {
    fileHead head;
    head.setFileLen(77);
    for (const std::int32_t typ : {0, 7, -1, 100'000}) {
        head.initialize(typ);
        EXPECT_EQ(head.fileLen(), 77);
        EXPECT_EQ(head.typ(), typ);
    }
    head.convert("a", "b", 9, "c", "d");
    EXPECT_EQ(head.fileLen(), 77);
}

TEST_F(FileHead, TextsAreCutOrFilledToTheirWidths) {
    fileHead head;
    head.convert(std::string(40, 'x'), "4.0.3", 1, "01/02/2003 et plus", "");
    EXPECT_EQ(head.software(), std::string(32, 'x'));
    EXPECT_EQ(head.version(), padded("4.0.3", 32));
    EXPECT_EQ(head.createDate(), "01/02/2003");
    EXPECT_EQ(head.modifydate(), std::string(10, ' '));
}

TEST_F(FileHead, ACopyHasTheSameSixValuesAndIsIndependent) {
    fileHead head;
    head.initialize(4);
    head.createDate("01/02/2003");
    fileHead copy = head.copy();
    expectSame(copy, head);
    copy.typ(5);
    EXPECT_EQ(head.typ(), 4);
}

TEST_F(FileHead, TheRecordFormIsLaidOutByteByByte) {
    fileHead head;
    head.initialize(5);
    head.software("Été");
    head.createDate("01/02/2003");
    EXPECT_EQ(head.toRecord(), padded("\xC9t\xE9", 32) + padded("4.0.3", 32) +
                                   std::string("\x05\x00", 2) + "01/02/2003" + "15/11/2026");
    EXPECT_EQ(head.toRecord().size(), 86U);
}

TEST_F(FileHead, ARecordFormReadBackGivesTheSameSixValues) {
    fileHead head;
    head.initialize(1);
    fileHead back;
    back.fromRecord(head.toRecord());
    expectSame(back, head);
    EXPECT_EQ(back.fileLen(), 128);
}

TEST_F(FileHead, ARecordFormReadByConvertGivesTheSameSixValues) {
    fileHead head;
    head.initialize(1);
    const std::string record = head.toRecord();
    fileHead back;
    back.convert(trimmed(record.substr(0, 32)), trimmed(record.substr(32, 32)), 1,
                 record.substr(66, 10), record.substr(76, 10));
    expectSame(back, head);
}

TEST_F(FileHead, ATypeBeyond16BitsHasNoRecordForm) {
    fileHead head;
    head.initialize(100'000);
    EXPECT_EQ(failureNumber([&head] { head.toRecord(); }), 6);
}

TEST_F(FileHead, ARecordThatIsTooShortReadsAsABlankHeader) {
    fileHead full;
    full.initialize(1);
    const std::string record = full.toRecord();
    for (std::size_t length = 0; length < fileHead::recordSize; ++length) {
        fileHead head = full;
        head.fromRecord(record.substr(0, length));
        EXPECT_EQ(trimmed(head.software()), "");
        EXPECT_EQ(head.typ(), 0);
        EXPECT_EQ(head.software().size(), 32U);
    }
}

TEST_F(FileHead, AFileThatIsTooShortReadsAsABlankHeader) {
    fileHead full;
    full.initialize(1);
    const std::string record = full.toRecord();
    for (std::size_t length = 0; length <= fileHead::recordSize; ++length) {
        writeBytes(file("a.dbl"), record.substr(0, length));
        SlotReader reader(file("a.dbl"), 128);
        fileHead head;
        head.loadRecord(reader);
        EXPECT_EQ(trimmed(head.software()), length < fileHead::recordSize ? "" : "boulix");
    }
}

TEST_F(FileHead, WhatFollowsTheHeaderInItsSlotIsNotLookedAt) {
    fileHead full;
    full.initialize(1);
    writeBytes(file("a.dbl"), full.toRecord() + std::string(42, '\xFF') + "drawdrawdraw");
    SlotReader reader(file("a.dbl"), 128);
    fileHead head;
    head.loadRecord(reader);
    expectSame(head, full);
}

TEST_F(FileHead, TheTextFormIs256BytesLongAndEndsAtItsLastDigit) {
    fileHead head;
    head.initialize(6);
    head.createDate("01/02/2003");
    EXPECT_EQ(textForm(head), std::string(106, ' ') + "#SOFTWARE#" + padded("boulix", 32) +
                                  "#VERSION#" + padded("4.0.3", 32) +
                                  "#TYPE#06#CREATEDATE#01/02/2003#MODIFYDATE#15/11/2026"
                                  "#DATALEN#000256");
    EXPECT_EQ(textForm(head).size(), 256U);
}

TEST_F(FileHead, ATextFormSurvivesAWriteAndARead) {
    fileHead head;
    head.initialize(6);
    head.software("Été à 1 €");
    fileHead back;
    load(back, textForm(head));
    expectSame(back, head);
    EXPECT_EQ(textForm(back), textForm(head));
}

TEST_F(FileHead, TheTextFormStandsWhereTheCallerStands) {
    fileHead head;
    head.initialize(6);
    std::stringstream file;
    file << "devant";
    head.saveBinary(file);
    file << "derriere";
    file.seekg(6);
    fileHead back;
    back.loadBinary(file);
    expectSame(back, head);
    std::string rest;
    file >> rest;
    EXPECT_EQ(rest, "derriere");
}

TEST_F(FileHead, BothFormsComeBackForAnyValues) {
    std::mt19937 random(4);
    const std::string letters = "abcXYZ 0123456789./-\xE9\x80";
    std::uniform_int_distribution<std::size_t> pick(0, letters.size() - 1);
    std::uniform_int_distribution<std::size_t> lengths(0, 40);
    std::uniform_int_distribution<int> types(-32'768, 32'767);
    const auto text = [&] {
        std::string bytes(lengths(random), ' ');
        for (char &c : bytes)
            c = letters[pick(random)];
        return trimmed(fromWestern(bytes));
    };
    for (int i = 0; i < 2'000; ++i) {
        fileHead head;
        head.setFileLen(static_cast<std::int16_t>(types(random)));
        head.convert(text(), text(), static_cast<std::int16_t>(types(random)), text(), text());
        fileHead fromRecord;
        fromRecord.setFileLen(head.fileLen());
        fromRecord.fromRecord(head.toRecord());
        expectSame(fromRecord, head);
        fileHead fromText;
        load(fromText, textForm(head));
        expectSame(fromText, head);
    }
    EXPECT_TRUE(desktop.messages.empty());
}

struct MissingCase {
    const char *key;
    const char *keyLabel;
    const char *valueLabel; ///< nothing for the last key, whose value is all that follows
};

constexpr MissingCase missingCases[] = {
    {"#SOFTWARE#", "Clef Nom du logiciel", "Nom du logiciel"},
    {"#VERSION#", "Clef version", "version"},
    {"#TYPE#", "Clef type de fichier", "type de fichier"},
    {"#CREATEDATE#", "Clef date de création", "date de création"},
    {"#MODIFYDATE#", "Clef date de modification", "date de modification"},
    {"#DATALEN#", "Clef longueur du champ de données", nullptr},
};

ShownBox missing(const std::string &label) {
    return {"Lecture de l'en-tête du fichier impossible!\r\n" + label + " est manquant.",
            Icon::critical, "boulix: Erreur N° 3001"};
}

class FileHeadMissing : public FileHead {
  protected:
    FileHeadMissing() {
        fileHead head;
        head.initialize(6);
        whole = textForm(head);
    }
    void expectReport(const std::string &bytes, const std::string &label) {
        desktop.messages.clear();
        fileHead head;
        load(head, bytes);
        EXPECT_EQ(desktop.messages, std::vector<ShownBox>{missing(label)});
    }
    std::string whole;
};

TEST_F(FileHeadMissing, AKeyOfTheTextFormIsReportedByItsLabel) {
    for (const MissingCase &expected : missingCases) {
        std::string bytes = whole;
        bytes[bytes.find(expected.key) + 1] = 'x';
        expectReport(bytes, expected.keyLabel);
    }
}

TEST_F(FileHeadMissing, AValueOfTheTextFormIsReportedByItsLabel) {
    for (const MissingCase &expected : missingCases) {
        const std::size_t valueAt = whole.find(expected.key) + std::string(expected.key).size();
        if (expected.valueLabel)
            expectReport(whole.substr(0, valueAt + 1), expected.valueLabel);
    }
}

TEST_F(FileHead, FieldsReadBeforeTheMissingOneKeepTheirNewValues) {
    fileHead full;
    full.initialize(6);
    full.software("autre");
    std::string bytes = textForm(full);
    bytes[bytes.find("#TYPE#") + 1] = 'x';
    fileHead head;
    head.initialize(1);
    load(head, bytes);
    EXPECT_EQ(trimmed(head.software()), "autre");
    EXPECT_EQ(trimmed(head.version()), "4.0.3");
    EXPECT_EQ(head.typ(), 1);
    EXPECT_EQ(head.fileLen(), 128);
}

TEST_F(FileHead, AnEmptyFileMissesItsFirstKey) {
    fileHead head;
    load(head, "");
    EXPECT_EQ(desktop.messages, std::vector<ShownBox>{missing("Clef Nom du logiciel")});
}

TEST_F(FileHead, TheNumbersOfTheTextFormAreNumericPrefixes) {
    fileHead head;
    load(head, "#SOFTWARE#a#VERSION#b#TYPE# 6x #CREATEDATE#c#MODIFYDATE#d#DATALEN# 256 octets#");
    EXPECT_EQ(head.typ(), 6);
    EXPECT_EQ(head.fileLen(), 256);
    EXPECT_TRUE(desktop.messages.empty());
    EXPECT_EQ(failureNumber([&head] {
                  load(head, "#SOFTWARE#a#VERSION#b#TYPE#6#CREATEDATE#c#MODIFYDATE#d"
                             "#DATALEN#99999");
              }),
              6);
}

TEST_F(FileHead, AKeyOfTheTextFormIsFoundBehindWhateverStandsBeforeIt) {
    fileHead head;
    load(head, "debris#SOFTWARE#a#debris#VERSION#b#debris#TYPE#6#debris#CREATEDATE#c"
               "#debris#MODIFYDATE#d#debris#DATALEN#256");
    EXPECT_TRUE(desktop.messages.empty());
    fileHead expected;
    expected.setFileLen(256);
    expected.convert("a", "b", 6, "c", "d");
    expectSame(head, expected);
}

TEST_F(FileHead, TheValuesOfTheTextFormAreTrimmedOnBothSides) {
    fileHead head;
    load(head, "#SOFTWARE#  boulix  #VERSION#   4.0.3 #TYPE#  6 #CREATEDATE# 1/2/2003"
               "#MODIFYDATE#  3/4/2005  #DATALEN#   256 ");
    EXPECT_TRUE(desktop.messages.empty());
    fileHead expected;
    expected.setFileLen(256);
    expected.convert("boulix", "4.0.3", 6, "1/2/2003", "3/4/2005");
    expectSame(head, expected);
}

TEST_F(FileHead, TheTextFormIsNotStoppedByBytesOfAnyKind) {
    std::mt19937 random(8);
    std::uniform_int_distribution<int> bytes(0, 255);
    fileHead full;
    full.initialize(6);
    for (int i = 0; i < 3'000; ++i) {
        std::string text = textForm(full);
        for (int k = 0; k < 5; ++k)
            text[static_cast<std::size_t>(bytes(random))] = static_cast<char>(bytes(random));
        fileHead head;
        const int number = failureNumber([&] { load(head, text); });
        ASSERT_TRUE(number == 0 || number == 6) << number;
    }
}

} // namespace
} // namespace boulix
