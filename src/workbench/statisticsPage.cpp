// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "workbench/statisticsPage.h"

#include "core/globals.h"
#include "core/numbers.h"
#include "core/platform.h"
#include "core/text.h"
#include "draws/dbCombs.h"
#include "sill/reports.h"
#include "stats/modStats.h"
#include "stats/statMeasure.h"
#include "stats/statReport.h"
#include "stats/statStores.h"
#include "stats/statTable.h"
#include "stats/statTypes.h"
#include "workbench/windowFrame.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace boulix {

namespace {

bool hasGraph(std::int16_t type) {
    return type != 11 && type != 12 && type != 17;
}

/// The text as a whole number of 16 bits; nothing where it is none.
std::optional<std::int16_t> wholeNumber16(const std::string &text) {
    std::string number = trimmed(text);
    if (!number.empty() && number.front() == '+')
        number.erase(0, 1);
    std::int16_t value = 0;
    const char *end = number.data() + number.size();
    const auto result = std::from_chars(number.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

std::string dateLabel(std::int32_t position) {
    const dbComb &draw = gDbCombs->Item(position);
    return shortDate(draw.day()) + " (" + std::to_string(draw.id()) + ")";
}

/// The ordinates of the curve of `type`; empty for the types without one. Sums are drawn to the
/// end of the store, whatever part of it the result has.
std::vector<double> curveOf(std::int16_t type) {
    std::vector<double> values;
    if (type >= 13 && type <= 16) {
        const auto first = modStats::statPeriods.begin() + 1;
        values.assign(first, first + modStats::nStatPeriods);
    } else if (hasGraph(type)) {
        const std::int32_t size = type == 6 ? modStats::maxSumTot : modStats::lastNumber;
        for (std::int32_t i = 1; i <= size; ++i)
            values.push_back(modStats::statResult(i));
    }
    return values;
}

} // namespace

statisticsPage::statisticsPage(windowFrame &window) : window_(window) {
    updStatStart.changed = [this] {
        updStatEnd.range(updStatStart.value(), updStatEnd.max());
        showRangeDates();
    };
    updStatEnd.changed = [this] {
        updStatStart.range(updStatStart.min(), updStatEnd.value());
        showRangeDates();
    };
    grdStatNbrSelector.selectionChanged = [this] { ShowSelectedCount(); };
}

std::string statisticsPage::menuText(std::int16_t type) {
    return modStats::statTypes(type).name;
}

void statisticsPage::init() {
    type_ = 1;
    graphButton_ = 0;
    withCompl_ = 0;
    graphButtonEnabled = true;
    frameStatsRangeEnabled = true;
    showLabels();
    followBase();
}

void statisticsPage::followBase() {
    ++baseChanges_;
    sayWhenEmpty();
    const std::int32_t count = gDbCombs->Count();
    updStatStart.enabled = count > 0;
    updStatEnd.enabled = count > 0;
    if (count > 0) {
        updStatStart.range(1, count);
        updStatEnd.range(1, count);
        updStatStart.set(1);
        updStatEnd.set(count);
        // Where the values were these already, their handlers did not run.
        updStatStart.range(1, count);
        updStatEnd.range(1, count);
    }
    showRangeDates();
}

void statisticsPage::pickType(std::int16_t type) {
    if (type == type_ || !modStats::isStatType(type))
        return;
    type_ = type;
    showLabels();
    if (!hasGraph(type_))
        closeGraph();
    graphButtonEnabled = hasGraph(type_);
    if (type_ != 17) // this one leaves the box as the type before it did
        frameStatsRangeEnabled = type_ != 7 && type_ != 8;
    followChoice();
    refresh();
}

void statisticsPage::clickButton(int index, bool down) {
    runCommand([&] { runButton(index, down); });
    refresh();
}

void statisticsPage::runButton(int index, bool down) {
    switch (index) {
    case computeType:
        compute();
        break;
    case showGraph:
        setGraphButton(down);
        break;
    case withComplementary:
        withCompl_ = down ? 1 : 0;
        showLabels();
        followChoice();
        break;
    case exportResult:
        modStats::ExportStats(type_, withCompl_, updStatStart.value(), updStatEnd.value(),
                              selector_);
        break;
    case printResult:
        modStats::PrintStats(type_, withCompl_, updStatStart.value(), updStatEnd.value(),
                             selector_);
        break;
    case erase:
        grdStatNbrSelector.clearSelection();
        ShowSelectedCount();
        break;
    case playNumbers:
        if (canPlay() && numbersToPlay)
            numbersToPlay();
        break;
    default:
        break;
    }
}

void statisticsPage::compute() {
    modStats::ComputeStat(type_, withCompl_, updStatStart.value(), updStatEnd.value(), selector_);
    computed_ = choice();
    sayWhenEmpty();
    ShowStatResult();
    if (graphButton_ == 1 && graphButtonEnabled)
        ShowStatGraph();
}

void statisticsPage::setGraphButton(bool down) {
    graphButton_ = down ? 1 : 0;
    if (down)
        ShowStatGraph();
    else
        closeGraph();
}

void statisticsPage::closeGraph() {
    if (!graph_)
        return;
    if (view_)
        modStats::graphWindowPos = view_->closeGraph();
    graph_.reset();
}

void statisticsPage::leaveStart(const std::string &text) {
    leaveBox(text, updStatStart, txtStatStart);
}

void statisticsPage::leaveEnd(const std::string &text) {
    leaveBox(text, updStatEnd, txtStatEnd);
}

void statisticsPage::leaveBox(const std::string &text, upDown &control, std::string &box) {
    const std::optional<std::int16_t> number = wholeNumber16(text);
    if (number && control.enabled)
        control.set(*number); // brought between the limits
    box = std::to_string(control.value());
    refresh();
}

void statisticsPage::clickHeader(int column) {
    if (lvwStatsResult.rowCount() > 0)
        lvwStatsResult.sortByText(column);
}

void statisticsPage::clickList() {
    if (!view_)
        return;
    std::vector<std::int16_t> numbers;
    const auto add = [&numbers](std::int16_t n) {
        const bool known = std::find(numbers.begin(), numbers.end(), n) != numbers.end();
        if (!known && numbers.size() < NumberBoard::lastNumber)
            numbers.push_back(n);
    };
    for (std::int16_t i = 1; i <= grdStatNbrSelector.selectedCount(); ++i)
        add(grdStatNbrSelector.selectedNumber(i));
    for (const std::int64_t row : view_->selectedRows())
        for (const std::int16_t n : numbersOfRow(row - 1))
            add(n);
    grdStatNbrSelector.clearSelection();
    for (const std::int16_t n : numbers)
        grdStatNbrSelector.toggle(n);
    ShowSelectedCount();
}

/// The lottery numbers in a row of the list, by the current type: the labels can already speak of
/// another one than the list.
std::vector<std::int16_t> statisticsPage::numbersOfRow(std::int64_t row) const {
    const auto columns = static_cast<int>(lvwStatsResult.columns().size());
    int last = 0;
    if (type_ == 1 || (type_ >= 7 && type_ <= 10))
        last = std::min(columns, 1);
    else if (type_ >= 2 && type_ <= 5)
        last = columns - 1; // all but the frequency
    else if (type_ == 11 || type_ == 12)
        last = columns;
    std::vector<std::int16_t> numbers;
    for (int column = 0; column < last; ++column)
        numbers.push_back(toInt16(numericPrefix(lvwStatsResult.text(row, column))));
    return numbers;
}

void statisticsPage::ShowStatResult() {
    const auto table =
        std::make_shared<const modStats::StatTable>(modStats::statTable(type_, selector_));
    lvwStatsResult.columns(table->columns);
    measureNote_.clear();
    if (table->columns.empty())
        return followChoice();
    lvwStatsResult.rows(table->rowCount(),
                        [table](std::int64_t row, int column) { return table->text(row, column); });
    measure(table);
    followChoice();
    lblStatsStatus = modStats::statSummary(type_, selector_);
    refresh();
}

/// Bars for the values of the list, with their mean.
void statisticsPage::measure(const std::shared_ptr<const modStats::StatTable> &table) {
    const std::optional<modStats::StatMeasure> measured = modStats::statMeasure(type_, *table);
    if (!measured)
        return;
    const int column = measured->column;
    lvwStatsResult.bars({column,
                         [table, column](std::int64_t row) { return table->value(row, column); },
                         static_cast<double>(measured->largest), measured->mean});
    measureNote_ = "Moyenne de la liste : " + modStats::measureText(measured->mean) +
                   " (le trait dans chaque ligne)";
}

statisticsPage::Choice statisticsPage::choice() const {
    return {type_, withCompl_, updStatStart.value(), updStatEnd.value(), baseChanges_};
}

/// The labels can speak of another type, stretch or base than the list, which then looks outdated.
void statisticsPage::followChoice() {
    const bool outdated = computed_.type != 0 && choice() != computed_;
    lvwStatsResult.outdated(outdated);
    lblStatsNote = outdated ? "Ce résultat est celui d'avant : cliquez sur « Type » pour calculer."
                            : measureNote_;
}

void statisticsPage::sayWhenEmpty() {
    if (gDbCombs->Count() == 0)
        lvwStatsResult.whenEmpty({"La base est vide : importez d'abord des tirages."});
    else if (computed_.type == 0)
        lvwStatsResult.whenEmpty({"Choisissez un type de statistique, puis cliquez sur « Type ».",
                                  "Calculer", [this] { clickButton(computeType); }});
    else
        lvwStatsResult.whenEmpty({"Ce calcul n'a pas de résultat."});
}

void statisticsPage::ShowStatGraph() {
    if (!graph_)
        graph_ = std::make_unique<frmGraph>();
    if (view_)
        view_->openGraph(*graph_);
    graph_->plot.clearCurves();
    if (lvwStatsResult.rowCount() == 0)
        return;
    std::vector<double> y = curveOf(type_);
    if (y.size() < 2)
        return;
    std::vector<double> x;
    for (std::size_t i = 1; i <= y.size(); ++i)
        x.push_back(static_cast<double>(i));
    nameAxes();
    if (computed_.type == type_)
        graph_->plot.expected(modStats::expectedFrequency(
            type_, computed_.withCompl, std::int64_t{computed_.last} - computed_.first + 1));
    graph_->plot.addCurve(std::move(x), std::move(y));
}

/// The axes are called as the columns of the curve's own type: the list can still be that of
/// another one.
void statisticsPage::nameAxes() const {
    if (type_ <= 5) {
        graph_->plot.titles("N°", "Fréquence");
        return;
    }
    const std::vector<ReportColumn> columns = modStats::statTable(type_, selector_).columns;
    graph_->plot.titles(columns.front().header, columns.back().header);
}

void statisticsPage::ShowSelectedCount() {
    const std::int16_t count = grdStatNbrSelector.selectedCount();
    window_.showSelectedCount(std::to_string(count) +
                              (count > 1 ? " numéros sélectionés" : " numéro sélectioné"));
    refresh(); // whether there are numbers to play
}

void statisticsPage::showLabels() {
    lblStatType = modStats::statTitle(type_, withCompl_);
    lblStatDesc = modStats::statDescription(type_, withCompl_);
}

void statisticsPage::showRangeDates() {
    txtStatStart = std::to_string(updStatStart.value());
    txtStatEnd = std::to_string(updStatEnd.value());
    followChoice();
    const std::int32_t count = gDbCombs->Count();
    const auto isDraw = [count](std::int32_t n) { return n >= 1 && n <= count; };
    if (isDraw(updStatStart.value()) && isDraw(updStatEnd.value())) {
        lblStatStartDate = dateLabel(updStatStart.value());
        lblStatEndDate = dateLabel(updStatEnd.value());
    }
    refresh();
}

void statisticsPage::refresh() const {
    if (view_)
        view_->refresh();
}

} // namespace boulix
