// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "winnings/rapport.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/platform.h"
#include "files/modFileSelector.h"
#include "files/slotFile.h"
#include "files/xFile.h"
#include "sill/appInfo.h"
#include "sill/reports.h"

namespace boulix {

namespace {

constexpr auto fileType = static_cast<std::int32_t>(FileType::prizeTable);
/// The slot of the first amount, behind the header.
constexpr std::int64_t firstSlot = 2;

constexpr std::array<const char *, rapport::size> labels = {
    "1 numéro",  "1 numéro + complémentaire",  "2 numéros", "2 numéros + complémentaire",
    "3 numéros", "3 numéros + complémentaire", "4 numéros", "4 numéros + complémentaire",
    "5 numéros", "5 numéros + complémentaire", "6 numéros",
};

bool isIndex(std::int16_t index) {
    return index >= 0 && index < rapport::size;
}

void reportIndex(int number, std::int16_t index, const char *access) {
    reportNumbered(number, "Tentative d'accès à l'élément " + std::to_string(index) +
                               " d'un objet rapport (" + access + ")!");
}

} // namespace

std::string rapport::label(std::int16_t index) const {
    if (isIndex(index))
        return labels[static_cast<std::size_t>(index)];
    reportIndex(4201, index, "Get Label");
    return {};
}

float rapport::Value(std::int16_t index) const {
    if (isIndex(index))
        return values_[static_cast<std::size_t>(index)];
    reportIndex(4203, index, "Get Value");
    return 0;
}

void rapport::Value(std::int16_t index, float amount) {
    if (isIndex(index))
        values_[static_cast<std::size_t>(index)] = amount;
    else
        reportIndex(4202, index, "Let Value");
}

void rapport::loadDefFile() {
    xFile file;
    file.path(platform().applicationFolder());
    file.name(defaultName);
    read(file);
}

bool rapport::load() {
    const std::string name = modFileSelector::openDialog("Fichier de rapport Boulix (*.rap)|*.rap",
                                                         "Ouverture d'un fichier de rapport");
    if (name.empty())
        return false;
    xFile file;
    file.fullName(name);
    return read(file);
}

/// Whatever is wrong with the file itself ends in one message: the start-up reads it, too, and
/// must go on.
bool rapport::read(xFile &file) {
    file.head().initialize(fileType);
    try {
        if (file.exist())
            return readAmounts(file);
    } catch (const RuntimeFailure &) { // a file that cannot be read, or is too short
    }
    reportNumbered(4204, "Erreur lors de l'accès au fichier " + file.name() + ".");
    return false;
}

bool rapport::readAmounts(xFile &file) {
    SlotReader reader(file.fullName(), file.head().fileLen());
    file.head().loadRecord(reader);
    if (!file.verifyHead(fileType))
        return false;
    std::array<float, size> amounts{};
    std::int64_t slot = firstSlot;
    for (float &amount : amounts)
        amount = readFloat(reader.read(slot++, sizeof amount), 0);
    values_ = amounts;
    return true;
}

bool rapport::save(const std::string &fileName) const {
    xFile file;
    file.fullName(fileName);
    if (file.name() != defaultName && !modFileSelector::mayReplace(file, gAppInfo->name()))
        return false;
    file.head().initialize(fileType);
    SlotImage image(file.head().fileLen());
    image.write(1, file.head().toRecord());
    std::int64_t slot = firstSlot;
    for (const float amount : values_) {
        std::string record;
        appendFloat(record, amount);
        image.write(slot++, record);
    }
    replaceFile(file.fullName(), image.bytes());
    return true;
}

} // namespace boulix
