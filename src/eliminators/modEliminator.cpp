// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "eliminators/modEliminator.h"

#include "core/failure.h"
#include "core/text.h"
#include "eliminators/eliminator.h"
#include "files/slotFile.h"
#include "files/slotText.h"

namespace boulix::modEliminator {

std::string toRecord(const eliminator &rule) {
    std::string record;
    appendText(record, toWestern(rule.label()));
    for (const std::int16_t field : {rule.Value(), rule.ValMin(), rule.ValMax(), rule.status()})
        appendInt16(record, field);
    if (record.size() > slotSize)
        fail(Failure::badRecordLength);
    return record;
}

eliminator fromRecord(const std::string &slot) {
    constexpr std::size_t lengthSize = 2;
    constexpr std::size_t fieldsSize = 8;
    const std::string label = readText(slot, slotSize - lengthSize - fieldsSize);
    const std::size_t fields = lengthSize + label.size();
    eliminator rule;
    rule.label(fromWestern(label));
    rule.Value(readInt16(slot, fields));
    rule.ValMin(readInt16(slot, fields + 2));
    rule.ValMax(readInt16(slot, fields + 4));
    rule.status(readInt16(slot, fields + 6));
    return rule;
}

} // namespace boulix::modEliminator
