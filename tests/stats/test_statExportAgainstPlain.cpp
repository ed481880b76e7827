// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The exported file of each type, compared whole with one that is written line by line from the
// plain statistics.

#include "core/globals.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "stats/modStats.h"
#include "stats/plainStats.h"
#include "stats/statReport.h"
#include "stats/statTypes.h"
#include "stats/statsTest.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <random>

namespace boulix {
namespace {

using testing_support::PlainStats;
using Chosen = std::vector<std::int16_t>;

std::string plain(std::int64_t value) {
    return std::to_string(value);
}

std::string twoDigits(std::int64_t value) {
    return value < 10 ? "0" + plain(value) : plain(value);
}

/// The file of one statistic, as a list of its lines.
class PlainExport {
  public:
    PlainExport(const PlainStats &stats, int type, Chosen chosen)
        : stats_(stats), type_(type), chosen_(std::move(chosen)) {}

    /// Everything from the head line of the table to the sentence.
    std::vector<std::string> table() {
        lines_ = {headLine()};
        if (type_ == 11 || type_ == 12)
            addTriplets();
        else if (type_ >= 13 && type_ <= 16)
            addPeriods();
        else
            addEntries();
        lines_.push_back(std::string(60, '-'));
        lines_.push_back(sentence());
        return lines_;
    }

  private:
    std::string headLine() const {
        static const std::vector<std::string> heads = {
            "Numéro Fréquence",
            "Numéro 01 Numéro 02 Fréquence",
            "Numéro 01 Numéro 02 Numéro 03 Fréquence",
            "Numéro 01 Numéro 02 Numéro 03 Numéro 04 Fréquence",
            "Numéro 01 Numéro 02 Numéro 03 Numéro 04 Numéro 05 Fréquence",
            "Somme   Fréquence",
            "Numéro Dernière Sortie",
            "Numéro Consécutifs",
            "Numéro Max sans sortir",
            "Numéro Max consécutifs",
            "Numéro 01  Numéro 02  Numéro 03",
            "Numéro 01  Numéro 02  Numéro 03",
            "Période  Nombre d'absences",
            "Période  Nombre d'absences",
            "Période  Nombre d'absences",
            "Période  Nombre d'absences",
            "Nombre de numéros pairs   Fréquence"};
        return heads.at(static_cast<std::size_t>(type_ - 1));
    }

    void addTriplets() {
        for (const auto &[triplet, flag] : stats_.tripletTable)
            if (flag == 0) {
                lines_.push_back(twoDigits(triplet[0]) + "       " + twoDigits(triplet[1]) +
                                 "       " + twoDigits(triplet[2]));
                ++triplets_;
            }
    }

    void addPeriods() {
        for (int i = 1; i <= stats_.nStatPeriods; ++i) {
            char period[16];
            std::snprintf(period, sizeof period, "%-9d", i);
            lines_.push_back(period + plain(stats_.statPeriods.at(i)));
            note(i, stats_.statPeriods.at(i));
        }
    }

    void addEntries() {
        const int last = type_ == 6 || type_ == 17 ? stats_.nStatResult : 49;
        for (int i = 1; i <= last; ++i) {
            const std::int32_t value = stats_.statResult.at(i);
            note(i, value);
            if (type_ == 17)
                lines_.push_back(plain(i - 1) + "                       " + plain(value));
            else if (type_ >= 2 && type_ <= 5 && value > 0)
                lines_.push_back(chosen("", "      ", twoDigits) + "      " + twoDigits(i) +
                                 "      " + twoDigits(value));
            else if ((type_ < 2 || type_ > 6) || (type_ == 6 && value > 0))
                lines_.push_back(twoDigits(i) + "     " + twoDigits(value));
        }
    }

    void note(int at, std::int32_t value) {
        if (value >= best_) {
            best_ = value;
            bestAt_ = at;
        }
    }

    std::string chosen(const std::string &start, const std::string &between,
                       std::string (*format)(std::int64_t)) const {
        std::string text = start;
        for (std::size_t i = 0; i < chosen_.size(); ++i)
            text += (i > 0 ? between : "") + format(chosen_[i]);
        return text;
    }

    std::string sentence() const {
        const std::string times = " (" + plain(best_) + " fois)";
        const std::string draws = plain(bestAt_) + " (" + plain(best_) + " tirages)";
        const std::string partners = " - " + twoDigits(bestAt_) + times;
        const std::string absent = ": " + plain(best_) + " tirages";
        if (type_ >= 2 && type_ <= 5 && best_ < 1)
            return "";
        switch (type_) {
        case 1:
            return "Numéro le plus sorti: " + twoDigits(bestAt_) + times;
        case 2:
            return chosen("Couple le plus sorti: ", " - ", twoDigits) + partners;
        case 3:
            return chosen("Triplet le plus sorti: ", " - ", twoDigits) + partners;
        case 4:
        case 5:
            return chosen("Quadruplet le plus sorti: ", " - ", twoDigits) + partners;
        case 6:
            return "Somme la plus fréquente: " + plain(bestAt_) + times;
        case 7:
            return "Numéro le plus en retard: " + draws;
        case 8:
            return "Numéro le plus en répété: " + draws;
        case 9:
            return "Numéro avec le record de retard: " + draws;
        case 10:
            return "Numéro avec le record de répétition: " + draws;
        case 13:
            return chosen("Absence maxi pour le numéro ", "", plain) + absent;
        case 14:
            return chosen("Absence maxi pour le couple (", ",", plain) + ")" + absent;
        case 15:
            return chosen("Absence maxi pour le triplet (", ",", plain) + ")" + absent;
        case 16:
            return chosen("Absence maxi pour le quadruplet (", ",", plain) + ")" + absent;
        case 17:
            return "Meilleur compromis: " + plain(bestAt_ - 1) + " numéros pairs" + times;
        default:
            return plain(triplets_) + " triplets non sortis";
        }
    }

    const PlainStats &stats_;
    int type_;
    Chosen chosen_;
    std::vector<std::string> lines_;
    int triplets_ = 0;
    std::int32_t best_ = 0;
    int bestAt_ = 0;
};

class StatExportAgainstPlain : public StatsTest {
  protected:
    /// Exports every type over these draws and compares each file whole.
    void compareAll(int withCompl, std::int32_t first, std::int32_t last) {
        for (int type = 1; type <= modStats::statTypeCount; ++type) {
            SCOPED_TRACE("type " + plain(type) + ", compl " + plain(withCompl) + ", " +
                         plain(first) + " to " + plain(last));
            compare(type, withCompl, first, last);
        }
    }

  private:
    void compare(int type, int withCompl, std::int32_t first, std::int32_t last) {
        const Chosen numbers = numbersOfOneDraw(modStats::statTypes(type).nNumbers);
        if (!numbers.empty())
            desktop.answerNumbers(NumberScript().click(numbers).ok());
        desktop.answerSave(file("stat.txt"));
        modStats::ExportStats(static_cast<std::int16_t>(type), static_cast<std::int16_t>(withCompl),
                              first, last, chooser);
        stats.compute(type, withCompl, first, last, {numbers.begin(), numbers.end()});
        std::string text = headOf(type, withCompl, first, last);
        for (const std::string &line : PlainExport(stats, type, numbers).table())
            text += line + "\r\n";
        text += std::string(60, '-') + "\r\n";
        ASSERT_EQ(fromWestern(readBytes(file("stat.txt"))), text);
    }

    /// Numbers of any draw in any order, so that they are found together at least there.
    Chosen numbersOfOneDraw(int n) {
        std::uniform_int_distribution<std::int32_t> anyDraw(1, gDbCombs->Count());
        const lotoComb comb = gDbCombs->Item(anyDraw(random)).comb();
        Chosen numbers = {comb.num(1), comb.num(2), comb.num(3),
                          comb.num(4), comb.num(5), comb.num(6)};
        std::shuffle(numbers.begin(), numbers.end(), random);
        numbers.resize(static_cast<std::size_t>(n));
        return numbers;
    }

    static std::string headOf(int type, int withCompl, std::int32_t first, std::int32_t last) {
        const std::string dashes = std::string(60, '-') + "\r\n";
        const auto draw = [](std::int32_t at) {
            const dbComb &shown = gDbCombs->Item(at);
            return plain(at) + " (" + shortDate(shown.day()) + " - " + plain(shown.id()) + ") ";
        };
        const bool with = withCompl == 1;
        return "Fichier de statistiques généré par boulix Version 4.0.3\r\n" + dashes +
               modStats::statTypes(type).name +
               (with ? " (Avec complémentaire)\r\n" : " (Sans complémentaire)\r\n") + dashes +
               modStats::statTypes(type).description +
               (with ? " (Ce calcul tient compte du numéro complémentaire)\r\n"
                     : " (Ce calcul ne tient pas compte du numéro complémentaire)\r\n") +
               dashes + "Analyse réalisée pour du tirage N° " + draw(first) + " au tirage N° " +
               draw(last) + "\r\n" + dashes;
    }

    PlainStats stats;
    std::mt19937 random{177};
};

TEST_F(StatExportAgainstPlain, EachTypeOverAMadeBaseIsTheFileWrittenLineByLine) {
    std::mt19937 made(9);
    testing_support::addRandomDraws(150, made);
    for (const int withCompl : {0, 1}) {
        compareAll(withCompl, 1, 150);
        compareAll(withCompl, 40, 90);
        compareAll(withCompl, 77, 77);
    }
}

TEST_F(StatExportAgainstPlain, EachTypeOverTheRealHistoryIsTheFileWrittenLineByLine) {
    if (!importHistory())
        GTEST_SKIP() << noHistory;
    for (const int withCompl : {0, 1}) {
        compareAll(withCompl, 1, 4858);
        compareAll(withCompl, 1, 1000);
        compareAll(withCompl, 2000, 3500);
        compareAll(withCompl, 4800, 4858);
    }
}

} // namespace
} // namespace boulix
