// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace boulix {

class SlotReader;

/// The kinds of data files, by the number in their header.
enum class FileType : std::int32_t {
    drawBase = 1,
    gameSet = 2,
    gameDefinition = 3,
    eliminators = 4,
    prizeTable = 5,
    forecasts = 6,
};

/// The header of a data file: which software wrote it, when, of which type, and how long its
/// records are. It has two stored forms, a record of 86 bytes and a text of 256.
class fileHead {
  public:
    static constexpr std::size_t recordSize = 86;
    static constexpr std::size_t textSize = 256;

    /// Record length of the file's data in bytes.
    std::int16_t fileLen() const { return fileLen_; }
    void setFileLen(std::int16_t n) { fileLen_ = n; }

    // The texts fill their widths with blanks: 32 for software and version, 10 for the dates.
    const std::string &modifydate() const { return modifydate_; }
    void modifydate(const std::string &date);
    const std::string &createDate() const { return createDate_; }
    void createDate(const std::string &date);
    std::int32_t typ() const { return typ_; }
    void typ(std::int32_t type) { typ_ = type; }
    const std::string &version() const { return version_; }
    void version(const std::string &version);
    const std::string &software() const { return software_; }
    void software(const std::string &name);

    fileHead copy() const { return *this; }

    /// Prepares the header of a new file: this software, its version, today as both dates.
    void initialize(std::int32_t typ);

    /// The record form, 86 bytes.
    std::string toRecord() const;
    /// Reads the record form; a record that is too short reads as a blank header of type 0.
    void fromRecord(std::string_view bytes);
    /// Reads the record form from slot 1; a file too short for it reads as a blank header.
    void loadRecord(SlotReader &file);
    /// Takes the values of a record form; the texts are cut or filled to their widths and the
    /// record length follows the type.
    void convert(const std::string &software, const std::string &version, std::int16_t typ,
                 const std::string &createDate, const std::string &modifydate);

    /// The text form, 256 bytes, at the stream's position.
    void saveBinary(std::ostream &file) const;
    /// Reads 256 bytes and parses them. What is missing is reported with number 3001; the fields
    /// read so far keep their new values.
    void loadBinary(std::istream &file);

  private:
    void parseText(std::string text);
    void takeText(std::size_t key, const std::string &value);
    void fileLenFromType();

    std::string software_ = std::string(32, ' ');
    std::string version_ = std::string(32, ' ');
    std::string createDate_ = std::string(10, ' ');
    std::string modifydate_ = std::string(10, ' ');
    std::int32_t typ_ = 0;
    std::int16_t fileLen_ = 0;
};

} // namespace boulix
