// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/globals.h"
#include "keep.h"
#include "printing/frmGridParam.h"
#include "printing/frmPrint.h"
#include "printing/frmPrintGridPreview.h"
#include "printing/gridConfig.h"
#include "support/recordingPrinters.h"
#include "ui/printing/gridParamDialog.h"
#include "ui/printing/gridPreviewDialog.h"
#include "ui/printing/printDialog.h"

#include <QString>

using namespace boulix;

void keepPrintWindows() {
    testing_support::RecordingPrinters printers;
    printers.names = {"Bureau", "Imprimante du salon"};
    setPrinterSystem(&printers);

    frmPrint settings;
    PrintDialog print(settings);
    keep(print, QStringLiteral("frmPrint"));

    gGridConfig->load();
    frmGridParam grid;
    GridParamDialog gridWindow(grid);
    keep(gridWindow, QStringLiteral("frmGridParam"));

    frmPrintGridPreview preview(
        20, [](std::int32_t i, std::int16_t position, Canvas &target, slip::Placement placement) {
            slip::GridNumbers numbers{};
            for (std::size_t k = 0; k < numbers.size(); ++k)
                numbers[k] = static_cast<std::int16_t>((i * 7 + static_cast<int>(k) * 8) % 49 + 1);
            slip::drawGrid(target, numbers, position, placement);
        });
    preview.clickAbon(true);
    GridPreviewDialog previewWindow(preview);
    keep(previewWindow, QStringLiteral("frmPrintGridPreview"));
}
