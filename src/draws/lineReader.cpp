// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/lineReader.h"

#include "core/failure.h"

#include <algorithm>
#include <cerrno>

namespace boulix {

namespace {

constexpr std::size_t blockSize = 1U << 16U;

bool endsLine(char c) {
    return c == '\r' || c == '\n';
}

} // namespace

LineReader::LineReader(const std::string &fullName)
    : name_(fullName), file_(openForReading(fullName)), block_(blockSize) {
    std::setvbuf(file_.get(), nullptr, _IONBF, 0); // it has a buffer of its own
}

bool LineReader::eof() {
    if (at_ < filled_)
        return false;
    filled_ = std::fread(block_.data(), 1, block_.size(), file_.get());
    at_ = 0;
    if (std::ferror(file_.get()))
        failForFile(errno, name_);
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
