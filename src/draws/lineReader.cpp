// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/lineReader.h"

#include <algorithm>

namespace boulix {

namespace {

constexpr std::size_t blockSize = 1U << 16U;

bool endsLine(char c) {
    return c == '\r' || c == '\n';
}

} // namespace

LineReader::LineReader(const std::string &fullName) : file_(fullName), block_(blockSize) {}

bool LineReader::eof() {
    if (at_ < filled_)
        return false;
    filled_ = file_.read(block_.data(), block_.size());
    at_ = 0;
    return filled_ == 0;
}

void LineReader::readLine(std::string &line) {
    line.clear();
    while (!eof()) {
        const char *from = block_.data() + at_;
        const char *blockEnd = block_.data() + filled_;
        const char *end = std::find_if(from, blockEnd, endsLine);
        line.append(from, end);
        at_ += static_cast<std::size_t>(end - from);
        if (end == blockEnd)
            continue;
        ++at_;
        if (!eof())
            ++at_;
        return;
    }
}

} // namespace boulix
