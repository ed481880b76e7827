// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/fileHead.h"

#include "core/globals.h"
#include "core/numbers.h"
#include "core/platform.h"
#include "core/text.h"
#include "files/slotFile.h"
#include "sill/appInfo.h"
#include "sill/reports.h"

#include <array>
#include <istream>
#include <ostream>

namespace boulix {

namespace {

constexpr std::size_t nameWidth = 32;
constexpr std::size_t dateWidth = 10;

// Where the fields of the record form begin.
constexpr std::size_t versionAt = nameWidth;
constexpr std::size_t typAt = versionAt + nameWidth;
constexpr std::size_t createDateAt = typAt + 2;
constexpr std::size_t modifydateAt = createDateAt + dateWidth;

/// A key of the text form, and what the user is told when it or its value is missing.
struct TextKey {
    const char *key;
    const char *keyLabel;
    const char *valueLabel;
};

constexpr std::array<TextKey, 6> textKeys = {{
    {"#SOFTWARE#", "Clef Nom du logiciel", "Nom du logiciel"},
    {"#VERSION#", "Clef version", "version"},
    {"#TYPE#", "Clef type de fichier", "type de fichier"},
    {"#CREATEDATE#", "Clef date de création", "date de création"},
    {"#MODIFYDATE#", "Clef date de modification", "date de modification"},
    {"#DATALEN#", "Clef longueur du champ de données", nullptr}, // the rest is its value
}};

/// `text` cut or filled with blanks to `width` single-byte characters.
std::string fixedWidth(const std::string &text, std::size_t width) {
    std::string bytes = toWestern(text);
    bytes.resize(width, ' ');
    return fromWestern(bytes);
}

void reportMissing(const char *label) {
    reportNumbered(3001,
                   std::string("Lecture de l'en-tête du fichier impossible!") + crlf + label +
                       " est manquant.",
                   Icon::critical);
}

} // namespace

void fileHead::modifydate(const std::string &date) {
    modifydate_ = fixedWidth(date, dateWidth);
}

void fileHead::createDate(const std::string &date) {
    createDate_ = fixedWidth(date, dateWidth);
}

void fileHead::version(const std::string &version) {
    version_ = fixedWidth(version, nameWidth);
}

void fileHead::software(const std::string &name) {
    software_ = fixedWidth(name, nameWidth);
}

void fileHead::initialize(std::int32_t typ) {
    software(gAppInfo->name());
    version(gAppInfo->version());
    typ_ = typ;
    createDate(longDate(platform().today()));
    modifydate(createDate_);
    fileLenFromType();
}

std::string fileHead::toRecord() const {
    std::string bytes = toWestern(software_) + toWestern(version_);
    appendInt16(bytes, narrow16(typ_));
    return bytes + toWestern(createDate_) + toWestern(modifydate_);
}

void fileHead::fromRecord(std::string_view bytes) {
    if (bytes.size() < recordSize) {
        convert("", "", 0, "", "");
        return;
    }
    const auto text = [bytes](std::size_t at, std::size_t width) {
        return fromWestern(bytes.substr(at, width));
    };
    convert(text(0, nameWidth), text(versionAt, nameWidth), readInt16(bytes, typAt),
            text(createDateAt, dateWidth), text(modifydateAt, dateWidth));
}

void fileHead::loadRecord(SlotReader &file) {
    const bool whole = file.fileSize() >= static_cast<std::int64_t>(recordSize);
    fromRecord(whole ? file.read(1, recordSize) : "");
}

void fileHead::convert(const std::string &software, const std::string &version, std::int16_t typ,
                       const std::string &createDate, const std::string &modifydate) {
    this->software(software);
    this->version(version);
    typ_ = typ;
    this->createDate(createDate);
    this->modifydate(modifydate);
    fileLenFromType();
}

void fileHead::saveBinary(std::ostream &file) const {
    const std::array<std::string, 6> values = {
        software_, version_, zeroPadded(typ_, 2), createDate_, modifydate_, zeroPadded(fileLen_, 6),
    };
    std::string text;
    for (std::size_t i = 0; i < textKeys.size(); ++i)
        text += textKeys[i].key + toWestern(values[i]);
    file << std::string(textSize - text.size(), ' ') << text;
}

void fileHead::loadBinary(std::istream &file) {
    std::string bytes(textSize, ' ');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    parseText(trimmed(fromWestern(bytes)));
}

void fileHead::parseText(std::string text) {
    for (std::size_t i = 0; i < textKeys.size(); ++i) {
        const TextKey &key = textKeys[i];
        const std::size_t keyAt = text.find(key.key);
        if (keyAt == std::string::npos) {
            reportMissing(key.keyLabel);
            return;
        }
        text.erase(0, keyAt + std::string_view(key.key).size());
        const std::size_t end = key.valueLabel ? text.find('#') : text.size();
        if (end == std::string::npos) {
            reportMissing(key.valueLabel);
            return;
        }
        takeText(i, trimmed(text.substr(0, end)));
        text.erase(0, end);
    }
}

/// Stores the value of the `key`-th key of the text form.
void fileHead::takeText(std::size_t key, const std::string &value) {
    switch (key) {
    case 0:
        return software(value);
    case 1:
        return version(value);
    case 2:
        return typ(toInt32(numericPrefix(value)));
    case 3:
        return createDate(value);
    case 4:
        return modifydate(value);
    default:
        return setFileLen(toInt16(numericPrefix(value)));
    }
}

void fileHead::fileLenFromType() {
    switch (static_cast<FileType>(typ_)) {
    case FileType::drawBase:
    case FileType::gameSet:
    case FileType::gameDefinition:
    case FileType::prizeTable:
        fileLen_ = 128;
        break;
    case FileType::eliminators:
    case FileType::forecasts:
        fileLen_ = 256;
        break;
    }
}

} // namespace boulix
