// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/failure.h"
#include "core/platform.h"
#include "core/settings.h"
#include "core/text.h"
#include "files/modFileSelector.h"
#include "files/slotFile.h"
#include "files/slotText.h"
#include "files/xFile.h"
#include "games/gameDef.h"

namespace boulix {

namespace {

constexpr auto fileType = static_cast<std::int32_t>(FileType::gameDefinition);

/// What stands in which slot of the file.
enum Slot : std::int64_t {
    headerSlot = 1,
    nameSlot,
    labelSlot,
    nCondSlot,
    nFixedSlot,
    nSelectSlot,
    nWinSlot,
    nCombSlot,
    firstRowSlot,
};

fileHead newHead() {
    fileHead head;
    head.initialize(fileType);
    return head;
}

/// Takes an entry of the settings back while a failure is on its way, which says enough.
void forgetKey(const std::string &section, const std::string &key) {
    try {
        settings::remove(section, key);
    } catch (const RuntimeFailure &) { // NOLINT(bugprone-empty-catch)
    }
}

xFile &fileOf(const std::shared_ptr<xFile> &file) {
    if (!file)
        fail(Failure::objectNotSet);
    return *file;
}

/// What a text export of the definition in the file `name` may be called.
std::string exportName(const std::string &name) {
    return name.substr(0, name.rfind('.')) + ".txt";
}

std::string textRecord(const std::string &text) {
    const std::string bytes = toWestern(text);
    if (bytes.size() > gameDef::maxLabel)
        fail(Failure::badRecordLength);
    std::string record;
    appendText(record, bytes);
    return record;
}

std::string int16Record(std::int16_t value) {
    std::string record;
    appendInt16(record, value);
    return record;
}

std::string int32Record(std::int32_t value) {
    std::string record;
    appendInt32(record, value);
    return record;
}

std::string rowRecord(const gameComb &row) {
    std::string record;
    for (const std::int16_t n : row.numbers())
        appendInt16(record, n);
    appendInt16(record, row.total());
    return record;
}

std::string readLabel(SlotReader &reader, std::int64_t slot) {
    return fromWestern(readText(reader.read(slot, 2 + gameDef::maxLabel), gameDef::maxLabel));
}

/// The row as it is stored, but for its sum, which is made anew.
gameComb readRow(SlotReader &reader, std::int64_t slot) {
    const std::string record = reader.read(slot, std::size_t{2} * gameComb::size);
    gameComb row;
    for (int i = 1; i <= gameComb::size; ++i)
        row.num(i, readInt16(record, 2 * static_cast<std::size_t>(i - 1)));
    row.sum(row.total());
    return row;
}

std::string fullNameOf(const std::string &name) {
    return platform().applicationFolder() + pathSeparator + name;
}

/// How many bytes the file of so many rows has. The last slot is not filled out.
std::int64_t fileSize(std::int32_t rows, std::int64_t slotLength) {
    constexpr std::int64_t countBytes = 4;
    constexpr std::int64_t rowBytes = 2 * (gameComb::size + 1);
    if (rows == 0)
        return (nCombSlot - 1) * slotLength + countBytes;
    return (firstRowSlot + rows - 2) * slotLength + rowBytes;
}

/// The count of rows, when the file is long enough to hold them.
std::int32_t readRowCount(SlotReader &reader, std::int64_t slotLength) {
    const std::int32_t count = readInt32(reader.read(nCombSlot, 4), 0);
    if (count < 0)
        fail(Failure::subscriptOutOfRange);
    const std::int64_t lastSlotStart = (firstRowSlot + std::int64_t{count} - 2) * slotLength;
    if (count > 0 && lastSlotStart >= reader.fileSize())
        fail(Failure::inputPastEnd);
    return count;
}

} // namespace

bool gameDef::save(std::int16_t nReduced, std::int16_t nFixedGame) {
    const std::string label = textRecord(label_); // too long: fails before anything is written
    if (nReduced < 0) {
        write(label);
        return true;
    }
    const bool reduced = nFixed_ == 0;
    const std::string number = std::to_string(reduced ? nReduced : nFixedGame);
    const std::string section = reduced ? "jeux reduits" : "jeux a positions fixes";
    const auto earlier = file_;
    file_ = std::make_shared<xFile>();
    file_->path(platform().applicationFolder());
    file_->name((reduced ? "rgame-" : "fgame-") + number + ".gam");
    try {
        settings::write(section, "jeu" + number, file_->name());
        write(label);
    } catch (...) { // a key without its file would be told as an error at every start
        file_ = earlier;
        forgetKey(section, "jeu" + number);
        throw;
    }
    return true;
}

void gameDef::write(const std::string &label) const {
    const std::string &name = fileOf(file_).name();
    const fileHead head = newHead();

    SlotWriter writer(fullNameOf(name), head.fileLen(), fileSize(nComb(), head.fileLen()));
    writer.write(headerSlot, head.toRecord());
    writer.write(nameSlot, textRecord(name));
    writer.write(labelSlot, label);
    writer.write(nCondSlot, int16Record(nCond_));
    writer.write(nFixedSlot, int16Record(nFixed_));
    writer.write(nSelectSlot, int16Record(nSelect_));
    writer.write(nWinSlot, int16Record(nWin_));
    writer.write(nCombSlot, int32Record(nComb()));
    std::int64_t slot = firstRowSlot;
    for (const GridRef &row : rows_)
        writer.write(slot++, rowRecord(*row));
    writer.close();
}

bool gameDef::load() {
    xFile file = fileOf(file_);
    file.path(platform().applicationFolder());
    return read(file);
}

bool gameDef::loadFile(const std::string &fullName) {
    xFile file;
    file.fullName(fullName);
    if (!file_)
        file_ = std::make_shared<xFile>();
    return read(file);
}

bool gameDef::read(xFile &file) {
    SlotReader reader(file.fullName(), newHead().fileLen());
    file.head().loadRecord(reader);
    if (!file.verifyHead(fileType))
        return false;

    gameDef def;
    const std::string name = readLabel(reader, nameSlot);
    def.label_ = readLabel(reader, labelSlot);
    def.nCond_ = readInt16(reader.read(nCondSlot, 2), 0);
    def.nFixed_ = readInt16(reader.read(nFixedSlot, 2), 0);
    def.nSelect_ = readInt16(reader.read(nSelectSlot, 2), 0);
    def.nWin_ = readInt16(reader.read(nWinSlot, 2), 0);
    const std::int32_t count = readRowCount(reader, file.head().fileLen());
    for (std::int32_t i = 0; i < count; ++i)
        def.rows_.emplace_back(readRow(reader, firstRowSlot + i));

    file.name(name);
    *file_ = file;
    def.file_ = file_;
    *this = def;
    return true;
}

bool gameDef::exportText() const {
    const std::string name =
        modFileSelector::saveDialog("Fichier texte (modèle de jeu Boulix) (*.txt)|*.txt",
                                    "Exportation d'un modèle de jeu au format texte",
                                    file_ ? exportName(file_->name()) : "systeme.txt");
    if (name.empty())
        return false;
    std::string text = toWestern(label_) + crlf;
    for (const GridRef &row : rows_) {
        std::string line;
        for (const std::int16_t n : row->numbers())
            line += (line.empty() ? "" : ";") + zeroPadded(n, 2);
        text += line + crlf;
    }
    replaceFile(name, text);
    return true;
}

} // namespace boulix
