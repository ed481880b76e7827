// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/slipRun.h"

#include "core/modMaths.h"
#include "printing/frmPrintGridPreview.h"
#include "printing/modPrinter.h"
#include "printing/printerSystem.h"

namespace boulix::slipRun {

namespace {

void drawSlipGrids(Canvas &target, std::int32_t first, std::int32_t last, std::int32_t slipNumber,
                   slip::Placement placement, const GridDrawer &drawGrid) {
    const std::int32_t start = first + (slipNumber - 1) * slip::gridsPerSlip;
    const std::int32_t end = modMaths::minOf(start + slip::gridsPerSlip - 1, last);
    for (std::int32_t i = start; i <= end; ++i)
        drawGrid(i, static_cast<std::int16_t>(i - start + 1), target, placement);
}

slip::Placement placementOf(std::int32_t slipNumber, Sheets sheets) {
    if (sheets == Sheets::slips)
        return {slip::onSlip, modPrinter::direction};
    return {slipNumber % 2 == 1 ? slip::onCanvas1 : slip::onCanvas2, modPrinter::directionUp};
}

} // namespace

std::int32_t slipCount(std::int32_t first, std::int32_t last) {
    const std::int32_t grids = last - first + 1;
    return grids / slip::gridsPerSlip + (grids % slip::gridsPerSlip != 0 ? 1 : 0);
}

void displaySlip(Picture &picture, std::int32_t first, std::int32_t last, std::int32_t page,
                 const GridDrawer &drawGrid) {
    slip::drawEmptySlip(picture);
    drawSlipGrids(picture, first, last, page, {slip::onPicture, modPrinter::directionUp}, drawGrid);
}

void printSlips(Paper &paper, const Choice &choice, Sheets sheets, const GridDrawer &drawGrid) {
    const std::int32_t slips = slipCount(choice.first, choice.last);
    for (std::int32_t k = 1; k <= slips; ++k) {
        if (sheets == Sheets::slips && k > 1)
            paper.newPage();
        const slip::Placement placement = placementOf(k, sheets);
        drawSlipGrids(paper, choice.first, choice.last, k, placement, drawGrid);
        slip::drawWeekDraws(paper, choice.wedAndSat, placement);
        slip::drawJoker(paper, choice.joker, placement);
        slip::drawSubscription(paper, choice.weekOption, placement);
        if (sheets == Sheets::canvas && k % 2 == 0)
            paper.newPage();
    }
    modPrinter::endDocument(paper);
}

void run(std::int32_t count, Sheets sheets, const GridDrawer &drawGrid) {
    if (count < 1)
        return;
    const auto outlet = modPrinter::chooseOutlet();
    if (!outlet)
        return;
    frmPrintGridPreview window(count, drawGrid);
    printWindows().runGridPreview(window);
    if (window.answer() == 0)
        return;
    const auto paper = modPrinter::openDocument("grilles", Sides::one,
                                                window.asPdf() ? modPrinter::Outlet::pdf : *outlet);
    if (!paper)
        return;
    printSlips(*paper, window.choice(), sheets, drawGrid);
}

} // namespace boulix::slipRun
