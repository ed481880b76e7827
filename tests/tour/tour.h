// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "tour/pdfPrinters.h"
#include "ui/printing/qtPrintWindows.h"
#include "ui/support/screenTest.h"

#include <QString>

namespace boulix {

class NumberBoardView;
class ReportView;

/// One evening of a player with the real windows, from an empty folder on. Each chapter is a
/// function in a file of its own that gets the tour where the chapter before has left it: the
/// data stay in the folder, the window stays open. A step that does not come out as expected
/// fails the tour.
class Tour : public ScreenTest {
  public:
    Tour();
    ~Tour() override { setPrintWindows(nullptr); }

    /// The full name of `name` in the folder of this evening.
    std::string inFolder(const std::string &name) const { return file(name); }
    /// The player's hand in the dialogs to come.
    testing_support::Robot &player() { return robot; }
    /// The main window, while the program runs.
    MainWindow &window() const { return mainWindowOnScreen(); }
    /// Starts the program in the folder of this evening.
    void startProgram();
    /// Ends it after its last window was closed.
    void endProgram();

    /// Keeps what is on the screen as the next numbered picture. `name` is French, in letters
    /// and hyphens.
    void picture(const char *name);

    /// Names the next document that will be printed: it is kept among the pictures, as a PDF and
    /// as a picture of its first page.
    void nextDocument(const char *name) { documentName_ = name; }

    /// Goes to the page or tab at `index` of the tab strip `tabs`.
    void turnTo(const char *tabs, int index);
    /// Types `text` over what the box `box` of `window` holds.
    static void type(const QWidget &window, const std::string &box, const char *text);
    /// Clicks the toolbar button `action` of the visible page.
    void press(const char *action);
    /// Clicks a row of a list, counted from 1.
    static void clickRow(ReportView &list, int row);
    /// Clicks numbers of a board.
    static void clickNumbers(NumberBoardView &board, std::initializer_list<std::int16_t> numbers);
    /// A row of a list, its cells parted by blanks.
    static std::string rowText(const ReportView &list, int row);
    /// The text of the label `name` in the main window.
    std::string label(const char *name) const;
    /// The list `name` of the main window.
    ReportView &list(const char *name) const;

  private:
    std::string nextName(const char *name);
    void keepDocument(const QString &fileName);

    PdfPrinters pdfPrinters_;
    QtPrintWindows printWindows_;
    const char *documentName_ = nullptr;
    int pictures_ = 0;
};

} // namespace boulix
