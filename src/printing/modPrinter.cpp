// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/modPrinter.h"

#include "core/globals.h"
#include "core/modMaths.h"
#include "core/settings.h"
#include "core/text.h"
#include "files/modFileSelector.h"
#include "files/xFile.h"
#include "printing/frmPrint.h"
#include "printing/printerSystem.h"
#include "printing/settingValue.h"
#include "sill/appInfo.h"
#include "sill/desktop.h"
#include "sill/reports.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace boulix::modPrinter {

namespace {

constexpr const char *section = "impression";
constexpr const char *printerKey = "imprimante";
constexpr const char *offsetXKey = "offset_X";
constexpr const char *offsetYKey = "offset_Y";
constexpr const char *directionKey = "Direction";

constexpr std::size_t bannerWidth = 40;

/// A slip's outline and the place of its text on the canvas sheet, in millimetres.
constexpr double slipWidth = 160;
constexpr double slipHeight = 120;
constexpr double sheetMiddle = 105;

/// The printer that the settings name, while nobody has asked yet whether the system has it: a
/// print system can take seconds to answer, and the start does not wait for it.
std::optional<std::string> savedPrinter;
std::string chosenPrinter; // empty: the system's default

/// What is announced when the document under way ends.
std::string arrival;

bool sameDevice(const std::string &a, const std::string &b) {
    return upperCased(trimmed(a)) == upperCased(trimmed(b));
}

/// The first printer of the system with the saved name; empty where there is none.
std::string findSavedPrinter() {
    if (sameDevice(pdfEntry, *savedPrinter))
        return pdfEntry;
    for (const std::string &name : printerSystem().printers())
        if (sameDevice(name, *savedPrinter))
            return name;
    return {};
}

void loadDirection() {
    const std::string word = upperCased(trimmed(settings::read(section, directionKey, "haut")));
    direction = directionUp;
    const auto entry = std::find(directionTable.begin(), directionTable.end(), word);
    if (entry != directionTable.end())
        direction = static_cast<std::int32_t>(entry - directionTable.begin());
    else
        reportNumbered(2302, std::string("Erreur de syntaxe dans le fichier boulix.ini:") + crlf +
                                 word + " valeur innatendue!!!");
}

void announceArrival() {
    desktop().announce(arrival);
}

/// `title` without what no file name may hold.
std::string asFileName(std::string title) {
    for (char &c : title)
        if (std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos)
            c = '-';
    return title;
}

std::unique_ptr<Paper> openPdf(const std::string &title) {
    const std::string fullName = modFileSelector::saveDialog(
        "Document PDF (*.pdf)|*.pdf", "Enregistrement en PDF", asFileName(title) + ".pdf");
    if (fullName.empty())
        return nullptr;
    xFile file;
    file.fullName(fullName);
    if (!modFileSelector::mayReplace(file, gAppInfo->name()))
        return nullptr;
    arrival = "Document enregistré dans " + file.name();
    return printerSystem().openPdf(fullName, "Boulix - " + title);
}

/// How many characters `text` (UTF-8) has.
std::size_t characterCount(const std::string &text) {
    return toWestern(text).size();
}

} // namespace

std::string currentPrinter() {
    if (savedPrinter)
        currentPrinter(findSavedPrinter());
    if (!chosenPrinter.empty())
        return chosenPrinter;
    std::string standard = printerSystem().defaultPrinter();
    if (!standard.empty())
        return standard;
    const auto printers = printerSystem().printers();
    return printers.empty() ? std::string() : printers.front();
}

void currentPrinter(const std::string &deviceName) {
    chosenPrinter = deviceName;
    savedPrinter.reset();
}

void loadSettings() {
    savedPrinter = settings::read(section, printerKey, "no_printer");
    offset_X = settingNumber(section, offsetXKey, "0.");
    offset_Y = settingNumber(section, offsetYKey, "0.");
    loadDirection();
}

void printerDialog() {
    frmPrint window;
    printWindows().runPrint(window);
    if (window.result() == 0)
        return;
    if (window.pdfChosen())
        currentPrinter(pdfEntry);
    else if (window.cmbPrinterIndex >= 0)
        currentPrinter(window.cmbPrinter.at(static_cast<std::size_t>(window.cmbPrinterIndex)));
    settings::write(section, printerKey, currentPrinter());
    settings::write(section, offsetXKey, plainDecimal(offset_X));
    settings::write(section, offsetYKey, plainDecimal(offset_Y));
    settings::write(section, directionKey, directionTable.at(static_cast<std::size_t>(direction)));
}

std::int16_t printerCheck() {
    if (!printerSystem().printers().empty())
        return 0;
    reportNumbered(2301, std::string("Impossible d'imprimer, aucune imprimante est installée sur "
                                     "votre ordinateur!") +
                             crlf + "ou l'imprimante est mal configurée.");
    return -1;
}

std::optional<Outlet> chooseOutlet() {
    if (printerCheck() == 0)
        return Outlet::asSet;
    const bool wanted =
        desktop().askYesNo("Voulez-vous enregistrer le document dans un fichier PDF ?",
                           Icon::question, gAppInfo->name());
    return wanted ? std::optional(Outlet::pdf) : std::nullopt;
}

std::unique_ptr<Paper> openDocument(const std::string &title, Sides sides, Outlet outlet) {
    const std::string printer = outlet == Outlet::pdf ? pdfEntry : currentPrinter();
    if (printer == pdfEntry)
        return openPdf(title);
    arrival = "Document « " + title + " » remis à l'imprimante " + printer;
    return printerSystem().openDocument(printer, "Boulix - " + title, sides);
}

void endDocument(Paper &paper) {
    paper.endDocument();
    announceArrival();
}

void printBanner(TextReport &report) {
    report.fontName("Arial");
    report.fontSize(10);
    const std::string stars(bannerWidth, '*');
    const std::string &name = gAppInfo->name();
    const std::size_t length = modMaths::minOf(characterCount(name), bannerWidth);
    report.line(stars);
    report.line(std::string((bannerWidth - length) / 2, ' ') + name);
    report.line(stars);
    report.line();
}

std::optional<TextReport> startReport(const std::string &title) {
    const auto outlet = chooseOutlet();
    if (!outlet)
        return std::nullopt;
    auto paper = openDocument(title, Sides::asPrinterIsSet, *outlet);
    if (!paper)
        return std::nullopt;
    TextReport report(std::move(paper), announceArrival);
    printBanner(report);
    return report;
}

void printCanvas() {
    const auto outlet = chooseOutlet();
    if (!outlet)
        return;
    const auto paper = openDocument("canevas", Sides::one, *outlet);
    if (!paper)
        return;
    const std::string hint = "Haut de la grille ici";
    paper->color(black);
    paper->penWidth(2);
    paper->font("Arial", 10);
    for (const CanvasSlot &slot : canvasSlots) {
        const double x = slot.x;
        const double y = slot.y;
        paper->text(sheetMiddle - paper->textWidth(hint) / 2, y + 2 * paper->textHeight(hint),
                    hint);
        paper->box(x, y, x + slipWidth, y + slipHeight);
    }
    endDocument(*paper);
}

} // namespace boulix::modPrinter
