// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/files.h"

#include <string>
#include <vector>

namespace boulix::testing_support {

/// A line of text on a page of a PDF.
struct PrintedLine {
    int page;
    std::string text;
    double points; ///< the size of its font
};

/// A word on a page, by the box around it in millimetres from the sheet's top left corner.
struct PrintedWord {
    int page;
    std::string text;
    double left;
    double top;
    double right;
    double bottom;
};

/// A drawn path of straight lines: its corners one after the other, in millimetres from the
/// sheet's top left corner. A closed path names its first corner again.
struct PrintedPath {
    struct Point {
        double x;
        double y;
    };
    std::vector<Point> points;
    double width; ///< of the pen, in millimetres
};

/// Reads a printed document back with the tools of another maker. What can not be read throws
/// std::runtime_error.
class PrintedPages {
  public:
    /// `pdf` holds the bytes of the document.
    explicit PrintedPages(const std::string &pdf);

    int count() const { return count_; }
    double sheetWidth() const { return sheetWidth_; }
    double sheetHeight() const { return sheetHeight_; }
    /// All texts, in the order in which they are printed.
    const std::vector<PrintedLine> &lines() const { return lines_; }
    const std::vector<PrintedWord> &words() const { return words_; }
    /// The paths of one page, in the order in which they are drawn.
    std::vector<PrintedPath> paths(int page) const;

  private:
    std::string file() const { return folder_.file("printed.pdf"); }
    void readWords();
    void readLines();

    TemporaryFolder folder_;
    std::vector<PrintedLine> lines_;
    std::vector<PrintedWord> words_;
    int count_ = 0;
    double sheetWidth_ = 0;
    double sheetHeight_ = 0;
};

} // namespace boulix::testing_support
