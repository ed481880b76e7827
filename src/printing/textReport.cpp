// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/textReport.h"

#include <utility>

namespace boulix {

namespace {

/// The end of the UTF-8 character that begins at `start`.
std::size_t nextCharacter(const std::string &text, std::size_t start) {
    std::size_t end = start + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        ++end;
    return end;
}

} // namespace

TextReport::TextReport(std::unique_ptr<Paper> paper, std::function<void()> ended)
    : paper_(std::move(paper)), ended_(std::move(ended)) {
    paper_->font(fontName_, fontSize_);
}

void TextReport::fontName(const std::string &name) {
    fontName_ = name;
    paper_->font(fontName_, fontSize_);
}

void TextReport::fontSize(double points) {
    fontSize_ = points;
    paper_->font(fontName_, fontSize_);
}

void TextReport::line(const std::string &text) {
    reserveLine();
    printFrom(margin, text);
}

void TextReport::line(const std::string &label, double column, const std::string &value) {
    reserveLine();
    paper_->text(margin, y_, label);
    printFrom(margin + column, value);
}

/// Begins the next page when one more line does not fit on this one. The first line of a page
/// always fits: a sheet lower than a line would otherwise never end.
void TextReport::reserveLine() {
    const double bottom = paper_->sheetHeight() - margin;
    if (y_ > margin && y_ + paper_->textHeight({}) > bottom) {
        paper_->newPage();
        y_ = margin;
    }
}

/// Prints `text` from the abscissa `x` on, in as many lines as it needs, and leaves the current
/// position under the last one. Room for the first line is there.
void TextReport::printFrom(double x, std::string text) {
    const double width = paper_->sheetWidth() - margin - x;
    while (true) {
        const std::size_t length = fittingLength(text, width);
        paper_->text(x, y_, text.substr(0, length));
        y_ += paper_->textHeight({});
        const std::size_t rest = text.find_first_not_of(' ', length);
        if (rest == std::string::npos)
            return;
        text.erase(0, rest);
        reserveLine();
    }
}

/// How many bytes of `text` go on a line of `width`: the whole text, or up to the last blank
/// behind a word that fits, or, for a word that is too long, the characters that fit, at least
/// one.
std::size_t TextReport::fittingLength(const std::string &text, double width) const {
    if (text.empty() || paper_->textWidth(text) <= width)
        return text.size();
    std::size_t fits = nextCharacter(text, 0);
    std::size_t wordEnd = 0;
    for (std::size_t end = fits; end < text.size(); end = nextCharacter(text, end)) {
        if (paper_->textWidth(text.substr(0, end)) > width)
            break;
        fits = end;
        if (text[end] == ' ' && text[end - 1] != ' ')
            wordEnd = end;
    }
    return wordEnd > 0 ? wordEnd : fits;
}

void TextReport::end() {
    paper_->endDocument();
    if (ended_)
        ended_();
}

} // namespace boulix
