// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "forecasts/pronostics.h"

#include "core/numbers.h"
#include "core/text.h"
#include "sill/reports.h"

namespace boulix {

namespace {

struct RuleKind {
    PronoType type;
    const char *label;
    bool enableP;
};

constexpr std::array<RuleKind, 4> ruleKinds = {{
    {PronoType::outButNotLately,
     "Le numéro est sorti au cours de N derniers tirages, mais pas dans les P derniers précédents",
     true},
    {PronoType::absent, "Le numéro n'est pas sorti depuis plus de N tirages", false},
    {PronoType::absentCouple,
     "Le numéro appartient à un couple qui n'est pas sorti depuis N tirages", false},
    {PronoType::rare, "Le numéro est sorti moins de N fois au cours de P derniers tirages", true},
}};

void reportRule(int number, std::int64_t position, const char *problem) {
    reportNumbered(number, "Impossible d'initialiser le pronostique numéro " +
                               std::to_string(position) + "." + crlf + problem);
}

std::size_t place(std::int64_t number) {
    return static_cast<std::size_t>(number - 1);
}

} // namespace

void pronostics::init() {
    for (const RuleKind &kind : ruleKinds) {
        pronos rule;
        rule.label(kind.label);
        rule.pronoType(static_cast<std::int32_t>(kind.type));
        rule.enableN(true);
        rule.enableP(kind.enableP);
        Add(rule);
    }
}

pronos &pronostics::Add(const pronos &source, const std::string &key) {
    keys_.add(key, Count() + 1);
    pronos &rule = rules_.emplace_back();
    rule.label(source.label());
    rule.n(source.n());
    rule.p(source.p());
    rule.nPoint(source.nPoint());
    rule.pronoType(source.pronoType());
    rule.enableN(source.enableN());
    rule.enableP(source.enableP());
    computed_ = false;
    return rule;
}

pronos &pronostics::Item(std::int64_t index) {
    return rules_[place(checkedIndex(index, 1, Count()))];
}

void pronostics::Remove(std::int64_t index) {
    rules_.erase(rules_.begin() + (checkedIndex(index, 1, Count()) - 1));
    keys_.removed(index);
}

void pronostics::clear() {
    computed_ = false;
    rules_.clear();
    keys_.clear();
}

bool pronostics::compute(bool checkFirst) {
    if (computed_)
        return true;
    if (checkFirst && !check())
        return false;
    nbrPoint_.fill(0);
    for (pronos &rule : rules_) {
        rule.compute();
        for (std::int16_t number = 1; number <= lastNumber; ++number) {
            std::int32_t &points = nbrPoint_[place(number)];
            points = toInt32(static_cast<double>(points) + rule.nbrPoint(number));
        }
    }
    computed_ = true;
    return true;
}

/// Whether every rule has the parameters that it uses; the first fault is reported.
bool pronostics::check() const {
    std::int64_t position = 0;
    for (const pronos &rule : rules_) {
        ++position;
        if (rule.enableN() && rule.n() <= 0) {
            reportRule(4501, position, "N n'a pas été défini!!!");
            return false;
        }
        if (rule.enableP() && rule.p() <= 0) {
            reportRule(4502, position, "P n'a pas été défini!!!");
            return false;
        }
        if (rule.nPoint() <= 0) {
            reportRule(4503, position, "Le nombre de points à attribuer n'a pas été défini!!!");
            return false;
        }
    }
    return true;
}

std::int32_t pronostics::nbrPoint(std::int32_t number) const {
    if (number >= 1 && number <= lastNumber)
        return nbrPoint_[place(number)];
    reportNumbered(4504, "Impossible d'accéder au compteur de point du numéro " +
                             std::to_string(number) + "!");
    return 0;
}

void pronostics::selNbr(std::int16_t number) {
    nSelected_ = narrow16(nSelected_ + 1); // counted before its place is looked at
    selected_[place(checkedIndex(nSelected_, 1, lastNumber))] = number;
}

std::int16_t pronostics::Selected(std::int16_t i) const {
    return selected_[place(checkedIndex(i, 1, lastNumber))];
}

std::int16_t pronostics::nFound(std::int32_t i) const {
    return nFound_[place(checkedIndex(i, 1, maxSearched()))];
}

} // namespace boulix
