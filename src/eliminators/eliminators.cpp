// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "eliminators/eliminators.h"

#include "core/modMaths.h"
#include "core/numbers.h"
#include "core/text.h"
#include "eliminators/modEliminator.h"
#include "files/modFileSelector.h"
#include "files/slotFile.h"
#include "sill/reports.h"

#include <array>

namespace boulix {

namespace {

struct RuleText {
    const char *label;
    std::int16_t valMin;
    std::int16_t valMax;
    const char *problem; ///< first line of the message when the threshold is out of range
};

// 21 and 279 are the smallest and the largest sum of six different numbers.
constexpr std::array<RuleText, eliminators::ruleCount> ruleTexts = {{
    {"Eliminer les combinaisons contenant plus de N numéros de la même dizaine", 2, 6,
     "Problème sur la définition de l'éliminateur de dizaines:"},
    {"Eliminer les combinaisons contenant plus de N numéros de la même septaine", 2, 6,
     "Problème sur la définition de l'éliminateur de septaines:"},
    {"Eliminer les combinaisons dont la somme des numéros est inférieure à", 21, 279,
     "Problème sur la définition de l'éliminateur de somme mini:"},
    {"Eliminer les combinaisons dont la somme des numéros est supérieure à", 21, 279,
     "Problème sur la définition de l'éliminateur de somme maxi:"},
    {"Eliminer les combinaisons contenant au moins N numéros pairs", 2, 6,
     "Problème sur la définition de l'éliminateur de nombres pairs:"},
    {"Eliminer les combinaisons contenant au moins N numéros impairs", 2, 6,
     "Problème sur la définition de l'éliminateur de nombres impairs:"},
    {"Eliminer les combinaisons contenant au moins N numéros consécutifs", 2, 6,
     "Problème sur la définition de l'éliminateur de numéros consécutifs:"},
    {"Eliminer les combinaisons contenant au moins l'un des numéros de la liste", 0, 0, ""},
}};

constexpr auto fileFilter = "Fichier éliminateur Boulix (*.elm)|*.elm";
constexpr auto fileType = static_cast<std::int32_t>(FileType::eliminators);
/// The tag of a boolean in a self-describing value, which stands before each flag in the file.
constexpr std::int16_t booleanTag = 11;
/// Where `load` looks for the first flag, whatever the count of rules.
constexpr std::int64_t firstFlagSlot = 2 + eliminators::ruleCount;

void reportRange(std::size_t rule, std::int16_t valMin, std::int16_t valMax) {
    reportNumbered(2901 + static_cast<int>(rule), std::string(ruleTexts[rule].problem) + crlf +
                                                      "La valeur doit être comprise entre " +
                                                      std::to_string(valMin) + " et " +
                                                      std::to_string(valMax));
}

std::string flagRecord(std::int16_t word) {
    std::string record;
    appendInt16(record, booleanTag);
    appendInt16(record, word == eliminator::off ? eliminator::off : eliminator::on);
    return record;
}

} // namespace

void eliminators::init() {
    for (const RuleText &text : ruleTexts)
        Add(text.label, 0, text.valMin, text.valMax, eliminator::off);
}

eliminator &eliminators::Add(const std::string &label, std::int16_t Value, std::int16_t ValMin,
                             std::int16_t ValMax, std::int16_t status, const std::string &key) {
    keys_.add(key, Count() + 1);
    eliminator &rule = rules_.emplace_back();
    rule.status(status);
    rule.ValMax(ValMax);
    rule.ValMin(ValMin);
    rule.Value(Value);
    rule.label(label);
    return rule;
}

eliminator &eliminators::Item(std::int64_t index) {
    return rules_[static_cast<std::size_t>(checkedIndex(index, 1, Count()) - 1)];
}

const eliminator &eliminators::Item(std::int64_t index) const {
    return rules_[static_cast<std::size_t>(checkedIndex(index, 1, Count()) - 1)];
}

void eliminators::Remove(std::int64_t index) {
    rules_.erase(rules_.begin() + (checkedIndex(index, 1, Count()) - 1));
    keys_.removed(index);
}

void eliminators::clear() {
    rules_.clear();
    keys_.clear();
}

int eliminators::firstOutOfRange() const {
    for (int index = 1; index < listRule && index <= Count(); ++index) {
        const eliminator &rule = Item(index);
        const bool inRange = rule.Value() >= rule.ValMin() && rule.Value() <= rule.ValMax();
        if (rule.status() != eliminator::off && !inRange)
            return index;
    }
    return 0;
}

bool eliminators::verify() const {
    const int index = firstOutOfRange();
    if (index == 0)
        return true;
    const eliminator &rule = Item(index);
    reportRange(static_cast<std::size_t>(index - 1), rule.ValMin(), rule.ValMax());
    return false;
}

bool eliminators::save() {
    const std::string name =
        modFileSelector::saveDialog(fileFilter, "Sauvegarde d'un fichier éliminateur",
                                    file_.name().empty() ? "eliminateurs.elm" : file_.name());
    if (name.empty())
        return false;
    file_.fullName(name);
    file_.head().initialize(fileType);
    SlotImage image(file_.head().fileLen());
    image.write(1, file_.head().toRecord());
    std::int64_t slot = 2;
    for (const eliminator &rule : rules_)
        image.write(slot++, modEliminator::toRecord(rule));
    const eliminator &list = Item(listRule);
    for (int n = 1; n <= eliminator::lastNumber; ++n)
        image.write(Count() + 1 + n, flagRecord(list.eliminNbr(n)));
    replaceFile(name, image.bytes());
    return true;
}

bool eliminators::load() {
    const std::string name =
        modFileSelector::openDialog(fileFilter, "Ouverture d'un fichier éliminateurs");
    if (name.empty())
        return false;
    file_.fullName(name);
    clear();
    file_.head().initialize(fileType);
    SlotReader reader(name, file_.head().fileLen());
    file_.head().loadRecord(reader);
    if (!file_.verifyHead(fileType))
        return false;
    readRules(reader);
    return true;
}

void eliminators::readRules(SlotReader &reader) {
    for (int i = 1; i <= ruleCount; ++i) {
        const eliminator rule =
            modEliminator::fromRecord(reader.read(i + 1, modEliminator::slotSize));
        Add(rule.label(), rule.Value(), rule.ValMin(), rule.ValMax(), rule.status());
    }
    // A flag's slot begins with the tag of a boolean, and the tag is what is read here: older
    // files and programs agree on it, so every number of a loaded list is set.
    for (int n = 1; n <= eliminator::lastNumber; ++n)
        Item(listRule).eliminNbr(n, readInt16(reader.read(firstFlagSlot + n - 1, 2), 0));
}

} // namespace boulix
