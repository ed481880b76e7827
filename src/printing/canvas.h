// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace boulix {

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Color &) const = default;
};

inline constexpr Color black{};

/// A surface to draw on. All positions and sizes are millimetres, counted from the top left
/// corner of the sheet itself, y downwards: no margin of the device is added anywhere.
class Canvas {
  public:
    virtual ~Canvas() = default;

    /// The colour of lines, boxes and texts.
    virtual void color(Color color) = 0;
    /// The width of lines and boxes in dots: pixels of a picture, 1/300 inch on paper.
    virtual void penWidth(int dots) = 0;
    /// The font of texts: its name and its size in points.
    virtual void font(const std::string &name, double points) = 0;

    /// How wide `text` is in the present font, and how high a line is.
    virtual double textWidth(const std::string &text) const = 0;
    virtual double textHeight(const std::string &text) const = 0;

    /// Draws `text` (UTF-8, one line); (x, y) is the top left corner of its cell.
    virtual void text(double x, double y, const std::string &text) = 0;
    virtual void line(double x1, double y1, double x2, double y2) = 0;
    /// The outline of the box with these opposite corners.
    virtual void box(double x1, double y1, double x2, double y2) = 0;
};

/// A picture on the screen.
class Picture : public Canvas {
  public:
    /// Takes away all that was drawn; colour, pen and font stay.
    virtual void clear() = 0;
};

/// A document on its way to the printer, opened on its first page. A document that is dropped
/// before `endDocument` is not printed. Colour, pen and font hold from page to page.
class Paper : public Canvas {
  public:
    /// The size of the sheet, as a reader of the text holds it.
    virtual double sheetWidth() const = 0;
    virtual double sheetHeight() const = 0;

    virtual void newPage() = 0;
    /// Sends the document to the printer; nothing may be drawn any more. A disk that has no room
    /// for it fails with `Failure::diskFull`, here or at any earlier step. A printer that does not
    /// take it may take its time to say so: the user is told when it does.
    virtual void endDocument() = 0;
};

} // namespace boulix
