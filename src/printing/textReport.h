// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "printing/canvas.h"

#include <functional>
#include <memory>
#include <string>

namespace boulix {

/// A report of plain lines on paper. It keeps the current position: each line goes under the last
/// one, and the next page begins when the sheet is full. A line wider than the sheet goes on in
/// the next one, broken at a blank, so that no word is lost at the edge.
///
/// A report is got from `modPrinter::startReport`; one that is dropped before `end` is not
/// printed.
class TextReport {
  public:
    /// The white edge on all four sides, in millimetres.
    static constexpr double margin = 10;

    /// `ended` is called when the report is on its way.
    explicit TextReport(std::unique_ptr<Paper> paper, std::function<void()> ended = {});

    /// The font of the lines to come; name or size alone keeps the other. Arial of size 10 at
    /// the start.
    void fontName(const std::string &name);
    void fontSize(double points);
    /// The width of `text` in the present font, in millimetres.
    double textWidth(const std::string &text) const { return paper_->textWidth(text); }

    /// Prints one line; an empty text prints an empty line.
    void line(const std::string &text = {});
    /// Prints one line of two columns: `label` at the left margin, `value` at `column`
    /// millimetres to the right of it.
    void line(const std::string &label, double column, const std::string &value);

    /// Sends the report on its way.
    void end();

  private:
    void reserveLine();
    void printFrom(double x, std::string text);
    std::size_t fittingLength(const std::string &text, double width) const;

    std::unique_ptr<Paper> paper_;
    std::function<void()> ended_;
    std::string fontName_ = "Arial";
    double fontSize_ = 10;
    double y_ = margin;
};

} // namespace boulix
