// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/printing/qtPrintWindows.h"

#include "ui/printing/gridPreviewDialog.h"
#include "ui/printing/printDialog.h"

#include <QApplication>

namespace boulix {

void QtPrintWindows::runPrint(frmPrint &window) {
    PrintDialog(window, QApplication::activeWindow()).exec();
}

void QtPrintWindows::runGridPreview(frmPrintGridPreview &window) {
    GridPreviewDialog(window, QApplication::activeWindow()).exec();
}

} // namespace boulix
