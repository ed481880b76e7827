// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/fileAccess.h"
#include "core/text.h"
#include "support/quietProgram.h"
#include "support/ratio.h"
#include "support/watchingDesktop.h"

#include <fstream>
#include <vector>

namespace boulix {
namespace {

using bench_support::measureRatio;
using bench_support::WatchingDesktop;

constexpr int historyDraws = 4858; // as many as the operator ever published
constexpr int manyDraws = 200'000;

/// A line in the operator's form with its 30 columns; two draws a day, counted back from 2008.
std::string historyLine(int i) {
    const CalendarDay day = calendarDay(dateOf({2008, 10, 4}) - i / 2);
    const std::string date =
        zeroPadded(day.year, 4) + zeroPadded(day.month, 2) + zeroPadded(day.day, 2);
    std::string line = "2008080;" + std::to_string(2 - i % 2) + ";SA;" + date + ";20081204;";
    for (int k = 0; k < 7; ++k)
        line += std::to_string((i * 5 + k * 7) % 49 + 1) + ";";
    return line + "15-16-32-33-42-49;;2;904940;8;10953,9;213;1400,3;589;61,6;11911;30,8;20552;"
                  "5,4;255211;2,7;7 523 262;eur";
}

/// A program with histories to import.
class Workplace {
  public:
    std::string file(const std::string &name) const { return program_.file(name); }

    /// Writes a history of `draws` lines and gives its name.
    std::string history(int draws) const {
        std::string text = "annee_numero_de_tirage;1er_ou_2eme_tirage;jour;date_de_tirage;"
                           "date_de_forclusion;boule1;boule2;boule3;boule4;boule5;boule6;"
                           "boule_complementaire;combinaison;joker\r\n";
        for (int i = 0; i < draws; ++i)
            text += historyLine(i) + "\r\n";
        const std::string name = file("history-" + std::to_string(draws) + ".txt");
        replaceFile(name, text);
        return name;
    }
    void import(const std::string &fileName) {
        desktop.fileName = fileName;
        gDbCombs->ImportFdjFile();
    }
    void importIntoEmptyBase(const std::string &fileName) {
        gDbCombs->clear();
        import(fileName);
    }

    WatchingDesktop desktop;

  private:
    bench_support::QuietProgram program_{desktop};
};

/// The whole way of an import, of many lines against the lines of the operator's history.
void ImportOfManyLines(benchmark::State &state) {
    Workplace place;
    const std::string few = place.history(historyDraws);
    const std::string many = place.history(manyDraws);
    measureRatio(
        state, 60, [&] { place.importIntoEmptyBase(many); },
        [&] { place.importIntoEmptyBase(few); });
}

/// The same over a base that has all of these draws already: every second one is a double.
void ImportOfManyLinesOverThemselves(benchmark::State &state) {
    Workplace place;
    const std::string few = place.history(historyDraws);
    const std::string many = place.history(manyDraws);
    const auto twice = [&](const std::string &fileName) {
        place.importIntoEmptyBase(fileName);
        place.import(fileName);
    };
    measureRatio(
        state, 60, [&] { twice(many); }, [&] { twice(few); });
}

/// The longest time without a turn of the event queue in an import of many lines over themselves,
/// in milliseconds; the median of all runs, as a busy machine can hold up any one of them.
void WaitInAnImportOfManyLines(benchmark::State &state) {
    Workplace place;
    const std::string many = place.history(manyDraws);
    std::vector<double> waits;
    for (auto _ : state) {
        place.importIntoEmptyBase(many);
        place.import(many);
        waits.push_back(place.desktop.longestGapMilliseconds());
    }
    state.counters["milliseconds"] = bench_support::medianOf(waits);
    state.counters["goal"] = 100;
}

/// Reads the file in the plainest way and adds its bytes up.
unsigned sumOfBytes(const std::string &fileName) {
    std::ifstream file(fileName, std::ios::binary);
    std::vector<char> block(1U << 16U);
    unsigned sum = 0;
    while (file) {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        for (std::streamsize i = 0; i < file.gcount(); ++i)
            sum += static_cast<unsigned char>(block[static_cast<std::size_t>(i)]);
    }
    return sum;
}

void LoadOfManyDraws(benchmark::State &state) {
    Workplace place;
    place.importIntoEmptyBase(place.history(manyDraws));
    measureRatio(
        state, 3, [] { gDbCombs->load(); },
        [&] { benchmark::DoNotOptimize(sumOfBytes(place.file("tirages.dbl"))); });
}

void SaveOfManyDraws(benchmark::State &state) {
    Workplace place;
    place.importIntoEmptyBase(place.history(manyDraws));
    const std::string bytes = readFile(place.file("tirages.dbl"));
    measureRatio(
        state, 3, [] { gDbCombs->Add(40000, 1, {}, true, ""); },
        [&] {
            std::ofstream file(place.file("plain.dbl"), std::ios::binary | std::ios::trunc);
            file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        });
}

BENCHMARK(ImportOfManyLines)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(ImportOfManyLinesOverThemselves)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(WaitInAnImportOfManyLines)->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadOfManyDraws)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveOfManyDraws)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace boulix
