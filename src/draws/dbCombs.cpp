// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/dbCombs.h"

#include "core/failure.h"
#include "core/fileAccess.h"
#include "draws/baseNotes.h"
#include "files/slotFile.h"
#include "sill/desktop.h"

#include <algorithm>
#include <string_view>

namespace boulix {

namespace {

constexpr auto fileType = static_cast<std::int32_t>(FileType::drawBase);
constexpr std::int64_t slotLength = 128;
constexpr std::size_t recordLength = 28;

/// The six numbers, the complementary and the true sums; the stored sums are not looked at, which
/// is what repairs those of an import.
lotoComb combFromRecord(std::string_view record) {
    lotoComb comb;
    std::int64_t sum = 0;
    for (int i = 1; i <= lotoComb::size; ++i) {
        comb.num(i, readInt16(record, 8 + 2 * static_cast<std::size_t>(i)));
        sum += comb.num(i);
    }
    comb.compl_(readInt16(record, 22));
    comb.sum(narrow16(sum));
    comb.sumtot(narrow16(sum + comb.compl_()));
    return comb;
}

std::string toRecord(const dbComb &draw) {
    std::string record;
    record.reserve(recordLength);
    appendDouble(record, draw.day());
    appendInt16(record, draw.id());
    for (int i = 1; i <= lotoComb::size; ++i)
        appendInt16(record, draw.comb().num(i));
    appendInt16(record, draw.comb().compl_());
    appendInt16(record, draw.comb().sum());
    appendInt16(record, draw.comb().sumtot());
    return record;
}

/// How many draws a file of `size` bytes holds, whether it ends behind its last record or is
/// filled out to whole slots.
std::int32_t drawCount(std::int64_t size) {
    const auto behindHead = size - static_cast<std::int64_t>(fileHead::recordSize);
    return std::max(0, toInt32(static_cast<double>(behindHead) / slotLength));
}

} // namespace

dbComb &dbCombs::Add(Date day, std::int16_t id, const lotoComb &comb, bool doSave,
                     const std::string & /*key*/) {
    changing().emplace_back(day, id, comb);
    saved_ = false;
    if (doSave)
        save();
    return draws_.back();
}

const drawIndex &dbCombs::index() const {
    if (!index_)
        index_.emplace(draws_);
    return *index_;
}

void dbCombs::Remove(std::int64_t index) {
    const auto offset = static_cast<std::ptrdiff_t>(offsetOf(index));
    changing().erase(draws_.begin() + offset);
    save();
}

void dbCombs::exchange(KeptDraws &other) {
    const bool wasSaved = saved_;
    changing().swap(other.draws);
    try {
        if (other.saved)
            save();
    } catch (...) {
        changing().swap(other.draws);
        throw; // the file can be gone: `saved_` stays false
    }
    saved_ = other.saved;
    other.saved = wasSaved;
}

void dbCombs::load() {
    clear();
    saved_ = true; // from here on nothing is in memory but what was in the file
    dbFile_.head().initialize(fileType);
    if (!dbFile_.exist()) {
        replaceFile(dbFile_.fullName(), dbFile_.head().toRecord());
        return;
    }
    SlotReader reader(dbFile_.fullName(), slotLength);
    dbFile_.head().loadRecord(reader);
    if (!dbFile_.verifyHead(fileType)) {
        tellRefusedBase(dbFile_, reader.fileSize());
        return;
    }
    const std::int32_t count = drawCount(reader.fileSize());
    for (std::int32_t k = 1; k <= count; ++k) {
        desktop().runEvents(); // the splash window stays alive
        const std::string record = reader.read(std::int64_t{k} + 1, recordLength);
        changing().emplace_back(readDouble(record, 0), readInt16(record, 8),
                                combFromRecord(record));
    }
    tellCutBase(dbFile_, reader.fileSize(), count);
}

void dbCombs::save() {
    saved_ = false;
    dbFile_.head().initialize(fileType);
    SlotImage image(slotLength);
    image.reserve(std::int64_t{Count()} + 1);
    image.write(1, dbFile_.head().toRecord());
    std::int64_t slot = 1;
    for (const dbComb &draw : draws_)
        image.write(++slot, toRecord(draw));
    writeImage(image.bytes());
    saved_ = true;
}

/// Writes the file. There is no command that only saves, so a failure tells when it is tried again.
void dbCombs::writeImage(const std::string &image) const {
    try {
        replaceFile(dbFile_.fullName(), image);
    } catch (const RuntimeFailure &failure) {
        throw withLine(
            failure,
            "La base sera enregistrée avec la prochaine modification ; sinon, le programme "
            "proposera de le faire avant de quitter.");
    }
}

} // namespace boulix
