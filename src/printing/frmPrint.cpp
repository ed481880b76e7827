// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/frmPrint.h"

#include "core/text.h"
#include "printing/modPrinter.h"
#include "printing/printerSystem.h"
#include "printing/settingValue.h"
#include "sill/reports.h"
#include "sill/typedField.h"

#include <algorithm>

namespace boulix {

frmPrint::frmPrint()
    : cmbPrinter(printerSystem().printers()), txtOffsetX(plainDecimal(modPrinter::offset_X)),
      txtOffsetY(plainDecimal(modPrinter::offset_Y)), optPrintDir(modPrinter::direction),
      cmdOKEnabled(!cmbPrinter.empty()) {
    if (modPrinter::currentPrinter() == modPrinter::pdfEntry && cmdOKEnabled)
        cmbPrinterIndex = static_cast<int>(cmbPrinter.size());
    const auto current =
        std::find(cmbPrinter.begin(), cmbPrinter.end(), modPrinter::currentPrinter());
    if (current != cmbPrinter.end())
        cmbPrinterIndex = static_cast<int>(current - cmbPrinter.begin());
    if (!cmdOKEnabled)
        reportNumbered(901, "Aucune imprimante est installée sur votre ordinateur!!!");
}

void frmPrint::clickOK() {
    const float x =
        readField({"txtOffsetX", "Décalage horizontal (mm)", offsetHolds}, txtOffsetX, typedNumber);
    const float y =
        readField({"txtOffsetY", "Décalage vertical (mm)", offsetHolds}, txtOffsetY, typedNumber);
    modPrinter::offset_X = x;
    modPrinter::offset_Y = y;
    modPrinter::direction = optPrintDir;
    result_ = 1;
    closed_ = true;
}

void frmPrint::clickCancel() {
    result_ = 0;
    closed_ = true;
}

} // namespace boulix
