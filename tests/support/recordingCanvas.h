// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "printing/canvas.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace boulix::testing_support {

/// One text, line or box as it was drawn, with the page, colour, pen and font of that moment. A
/// text has its place in x1 and y1, a line or box has no font.
struct Drawn {
    enum Kind { text, line, box };
    Kind kind = text;
    int page = 1;
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    std::string words;
    std::string fontName;
    double points = 0;
    int penWidth = 0;
    Color color = black;
};

/// How a recording surface measures text: every character is `emWidth` times the font size wide,
/// every line `emHeight` times as high. Narrow at first, so that no line of a report is broken
/// unless a test asks for it.
struct TextMetrics {
    double emWidth = 0.2;
    double emHeight = 1.15;
};

/// All that a recording surface was told.
struct Recording {
    std::vector<Drawn> drawn;
    TextMetrics metrics;
    int page = 1;
    int penWidth = 1;
    Color color = black;
    std::string fontName;
    double points = 0;

    std::vector<Drawn> ofKind(Drawn::Kind kind) const;
    /// The texts from top to bottom, those on one height joined to one line.
    std::vector<std::string> lines() const;
    double textWidth(const std::string &text) const;
    double textHeight() const;
    void add(Drawn item);
};

/// A surface of the kind `Base` that writes down what is drawn on it.
template <class Base>
class RecordingSurface : public Base {
  public:
    explicit RecordingSurface(Recording &recording) : recording_(recording) {}

    void color(Color color) override { recording_.color = color; }
    void penWidth(int dots) override { recording_.penWidth = dots; }
    void font(const std::string &name, double points) override {
        recording_.fontName = name;
        recording_.points = points;
    }
    double textWidth(const std::string &text) const override { return recording_.textWidth(text); }
    double textHeight(const std::string &) const override { return recording_.textHeight(); }
    void text(double x, double y, const std::string &words) override {
        Drawn item{Drawn::text, 1, x, y, x, y, words, recording_.fontName, recording_.points, 0};
        recording_.add(item);
    }
    void line(double x1, double y1, double x2, double y2) override {
        recording_.add({Drawn::line, 1, x1, y1, x2, y2, {}, {}, 0, recording_.penWidth});
    }
    void box(double x1, double y1, double x2, double y2) override {
        recording_.add({Drawn::box, 1, x1, y1, x2, y2, {}, {}, 0, recording_.penWidth});
    }

  protected:
    Recording &recording() { return recording_; }

  private:
    Recording &recording_;
};

/// A picture that remembers what is on it, and how often it was cleared.
class RecordingPicture : private Recording, public RecordingSurface<Picture> {
  public:
    RecordingPicture() : RecordingSurface(static_cast<Recording &>(*this)) {}

    const Recording &seen() const { return *this; }
    int clears = 0;

    void clear() override {
        ++clears;
        drawn.clear();
    }
};

} // namespace boulix::testing_support
