// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/numbers.h"
#include "core/text.h"
#include "forecasts/pronos.h"
#include "sill/reports.h"

#include <optional>
#include <string_view>

namespace boulix {

namespace {

/// A datum in the text of a rule: its key, and what the messages call the key and the value.
struct Datum {
    const char *key;
    const char *keyName;
    const char *valueName;
};

constexpr Datum labelDatum = {"#LABEL#", "Clef Nom du logiciel", "Nom du logiciel"};
constexpr Datum nDatum = {"#N#", "Clef N", "N"};
constexpr Datum pDatum = {"#P#", "Clef P", "P"};
constexpr Datum pointsDatum = {"#POINTS#", "Clef points attribués", "points attribués"};
constexpr Datum typeDatum = {"#TYPE#", "Clef Type", "Type"};
constexpr const char *nFlag = "#ENABLE_N#";
constexpr const char *pFlag = "#ENABLE_P#";

void reportMissing(const char *name) {
    reportNumbered(4553,
                   "Lecture du fichier de pronostique impossible!" + std::string(crlf) + name +
                       " est manquant.",
                   Icon::critical);
}

/// The value of `datum` at the next place where its key stands in `rest`, which is cut up to the
/// "#" behind the value. What is missing is reported.
std::optional<std::string> takeValue(std::string_view &rest, const Datum &datum) {
    const std::string_view key = datum.key;
    const std::size_t at = rest.find(key);
    if (at == std::string_view::npos) {
        reportMissing(datum.keyName);
        return std::nullopt;
    }
    rest.remove_prefix(at + key.size());
    const std::size_t end = rest.find('#');
    if (end == std::string_view::npos) {
        reportMissing(datum.valueName);
        return std::nullopt;
    }
    const std::string value = trimmed(rest.substr(0, end));
    rest.remove_prefix(end);
    return value;
}

} // namespace

std::string pronos::toString(std::int16_t length) const {
    std::string text = labelDatum.key + label_ + nDatum.key + zeroPadded(n_, 6) + pDatum.key +
                       zeroPadded(p_, 6) + pointsDatum.key + zeroPadded(nPoint_, 6) +
                       typeDatum.key + zeroPadded(pronoType_, 2) +
                       (enableN_ ? nFlag : "#DISABLE_N#") + (enableP_ ? pFlag : "#DISABLE_P#");
    const auto taken = static_cast<std::int64_t>(toWestern(text).size());
    if (taken > length) {
        reportNumbered(4552,
                       "Impossible de sauvegarder de pronostique." + std::string(crlf) +
                           "Chaine trop longue!" + crlf + "Contactez le support technique!",
                       Icon::critical);
        return {};
    }
    return text.append(static_cast<std::size_t>(length - taken), ' ');
}

bool pronos::fromString(const std::string &text) {
    std::string_view rest = text;
    const auto label = takeValue(rest, labelDatum);
    if (!label)
        return false;
    label_ = *label;
    const auto n = takeValue(rest, nDatum);
    if (!n)
        return false;
    n_ = toInt16(numericPrefix(*n));
    const auto p = takeValue(rest, pDatum);
    if (!p)
        return false;
    p_ = toInt16(numericPrefix(*p));
    const auto points = takeValue(rest, pointsDatum);
    if (!points)
        return false;
    nPoint_ = toInt32(numericPrefix(*points));
    const auto type = takeValue(rest, typeDatum);
    if (!type)
        return false;
    pronoType_ = toInt32(numericPrefix(*type));
    enableN_ = rest.find(nFlag) != std::string_view::npos;
    enableP_ = rest.find(pFlag) != std::string_view::npos;
    return true;
}

} // namespace boulix
