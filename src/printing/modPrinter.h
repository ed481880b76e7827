// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/printerSystem.h"
#include "printing/textReport.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

/// The printing settings, and the helpers that every printing routine starts with.
namespace boulix::modPrinter {

/// The side of the slip that goes first into the printer, by direction 0 to 3.
inline constexpr std::array<const char *, 4> directionTable = {"GAUCHE", "DROITE", "HAUT", "BAS"};
inline constexpr std::int32_t directionUp = 2; ///< "HAUT"

/// Where the two slips lie on the canvas sheet: their top left corners, in millimetres.
struct CanvasSlot {
    float x;
    float y;
};
inline constexpr std::array<CanvasSlot, 2> canvasSlots = {{{25, 20}, {25, 150}}};

/// Stands behind the printers in the list of the printer settings: documents go into PDF files.
inline constexpr const char *pdfEntry = "Enregistrer en PDF...";

/// Where a document goes: as the printer settings say, or into a PDF file whatever they say.
enum class Outlet { asSet, pdf };

/// The shift of all slip marks, in millimetres.
inline float offset_X = 0;
inline float offset_Y = 0;
/// The direction in which slips are fed, an index of the table.
inline std::int32_t direction = directionUp;

/// The printer that is printed on: the one chosen, else the system's default, else the first one;
/// empty where no printer is installed. `pdfEntry` where PDF files were chosen.
std::string currentPrinter();
/// Chooses a printer by its device name; empty for the system's default.
void currentPrinter(const std::string &deviceName);

/// The start-up: reads the settings and chooses the saved printer. A direction that is not in the
/// table is reported with number 2302 and taken as "HAUT"; a saved printer that is gone leaves
/// the system's default.
void loadSettings();

/// Lets the user change the settings, and saves what was confirmed.
void printerDialog();

/// The first step of every printing routine: -1, after the message of number 2301, when there is
/// no printer, else 0.
std::int16_t printerCheck();

/// The printer check, and behind its message the offer of a PDF file in place of paper; nothing
/// when the user does not want one.
std::optional<Outlet> chooseOutlet();

/// Opens a document, whose name in the print queue is that of the program and `title`. On its way
/// into a PDF file the user is asked for the file: nothing when he names none.
std::unique_ptr<Paper> openDocument(const std::string &title, Sides sides, Outlet outlet);

/// Ends the document that was opened last, and announces where it went.
void endDocument(Paper &paper);

/// The head of a text report: the application's name between two lines of stars.
void printBanner(TextReport &report);

/// Outlet, document and banner of a text report in one; nothing when there is none to print on.
std::optional<TextReport> startReport(const std::string &title);

/// Prints the canvas: the two slip outlines on which the user lays real slips.
void printCanvas();

} // namespace boulix::modPrinter
