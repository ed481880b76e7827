// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "core/modMaths.h"
#include "files/modFileSelector.h"
#include "files/slotFile.h"
#include "files/xFile.h"
#include "games/game.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/frmProgress.h"

#include <optional>

namespace boulix {

namespace {

constexpr auto fileFilter = "Fichier jeu Boulix (*.lst)|*.lst";
constexpr auto fileType = static_cast<std::int32_t>(FileType::gameSet);

constexpr std::size_t numberBytes = std::size_t{2} * gameComb::size;
constexpr std::size_t gridBytes = numberBytes + 2; // and the sum
/// How many slots are written together: a megabyte.
constexpr std::size_t slotsPerBlock = 8192;

void putInt16(std::string &bytes, std::size_t offset, std::int16_t value) {
    bytes[offset] = static_cast<char>(value & 0xFF);
    bytes[offset + 1] = static_cast<char>(value >> 8);
}

void putGrid(std::string &bytes, std::size_t offset, const gameComb &grid) {
    for (const std::int16_t n : grid.numbers()) {
        putInt16(bytes, offset, n);
        offset += 2;
    }
    putInt16(bytes, offset, grid.sum());
}

/// The progress window over a save. It cannot be cancelled: the earlier file is gone by then.
class SavingShown {
  public:
    explicit SavingShown(std::int64_t count) {
        window_->cancelVisible = false;
        window_->ProgressBar.range(1, modMaths::maxOf<std::int64_t>(count, 2));
    }
    void moveTo(std::int64_t grid) {
        window_->ProgressBar.value = grid;
        desktop().runEvents();
    }

  private:
    ProgressShown window_{"Sauvegarde d'un jeu", "Sauvegarde du jeu en cours..."};
};

/// Writes the grids from slot 2 on, by way of `block`. The last one is not filled out to its slot.
void writeGrids(const game &grids, SlotWriter &writer, std::string &block) {
    const std::size_t slotLength = block.size() / slotsPerBlock;
    SavingShown progress(grids.Count());
    std::int64_t written = 0;
    std::size_t slots = 0;
    const auto writeBlock = [&](std::size_t length) {
        writer.write(written + 2, std::string_view(block).substr(0, length));
        written += static_cast<std::int64_t>(slots);
        slots = 0;
        progress.moveTo(written);
    };
    for (const gameComb &grid : grids) {
        if (slots == slotsPerBlock)
            writeBlock(slots * slotLength);
        putGrid(block, slots * slotLength, grid);
        ++slots;
    }
    if (slots > 0)
        writeBlock((slots - 1) * slotLength + gridBytes);
}

/// How many bytes the file of so many grids has.
std::int64_t fileSize(std::int32_t count, std::int64_t slotLength) {
    constexpr auto headBytes = static_cast<std::int64_t>(fileHead::recordSize);
    constexpr auto lastBytes = static_cast<std::int64_t>(gridBytes);
    return count == 0 ? headBytes : count * slotLength + lastBytes;
}

/// The numbers of the grid in a slot. The slot behind a last one that was filled out does not
/// exist any more; it counts as a grid of zeros.
gameComb readGrid(SlotReader &reader, std::int64_t slot, std::int64_t slotLength) {
    gameComb grid;
    if ((slot - 1) * slotLength >= reader.fileSize())
        return grid;
    const std::string record = reader.read(slot, numberBytes);
    for (int i = 1; i <= gameComb::size; ++i)
        grid.num(i, readInt16(record, 2 * static_cast<std::size_t>(i - 1)));
    return grid;
}

/// The grids of a file of `count`, nothing when the user cancels.
std::optional<std::vector<GridRef>> readGrids(SlotReader &reader, std::int64_t count,
                                              std::int64_t slotLength) {
    ProgressShown progress("Chargement d'un jeu", "Chargement du jeu en cours...");
    progress->ProgressBar.range(1, modMaths::maxOf<std::int64_t>(count + 1, 2));
    std::vector<GridRef> grids;
    for (std::int64_t i = 1; i <= count; ++i) {
        if (i % 10 == 0) {
            desktop().runEvents();
            if (progress->cancelled())
                return std::nullopt;
            progress->ProgressBar.value = i;
        }
        grids.emplace_back(readGrid(reader, i + 1, slotLength));
    }
    return grids;
}

} // namespace

std::string game::save(const std::string &name) const {
    xFile file;
    file.fullName(modFileSelector::saveDialog(fileFilter, "Sauvegarde d'un fichier jeu", name));
    if (file.fullName().empty() || !modFileSelector::mayReplace(file, gAppInfo->name()))
        return {};
    file.head().initialize(fileType);
    const std::int64_t slotLength = file.head().fileLen();
    std::string block(slotsPerBlock * static_cast<std::size_t>(slotLength), '\0');
    SlotWriter writer(file.fullName(), slotLength, fileSize(Count(), slotLength));
    writer.write(1, file.head().toRecord());
    writeGrids(*this, writer, block);
    writer.close();
    return file.fullName();
}

GameLoad game::load() {
    xFile file;
    file.fullName(modFileSelector::openDialog(fileFilter, "Ouverture d'un fichier jeu"));
    if (file.fullName().empty())
        return {};
    file.head().initialize(fileType);
    const std::int64_t slotLength = file.head().fileLen();
    SlotReader reader(file.fullName(), slotLength);
    file.head().loadRecord(reader);
    if (!file.verifyHead(fileType))
        return {};
    // The count of grids is not stored: it follows from the length, rounded. A single grid is
    // less than half a slot more than the header, so its file gives none.
    const std::int64_t count = static_cast<std::int64_t>(
        roundHalfEven(static_cast<double>(reader.fileSize()) / static_cast<double>(slotLength)));
    if (count <= 1)
        return {file.fullName()};
    auto grids = readGrids(reader, count, slotLength);
    if (!grids) {
        clear();
        return {file.fullName(), 0, true};
    }
    if (grids_.empty())
        grids_ = std::move(*grids);
    else
        grids_.insert(grids_.end(), grids->begin(), grids->end());
    return {file.fullName(), static_cast<std::int32_t>(count)};
}

} // namespace boulix
