// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/fileAccess.h"
#include "core/numbers.h"
#include "core/text.h"
#include "files/fileHead.h"
#include "forecasts/pronostics.h"

#include <algorithm>
#include <sstream>

namespace boulix {

namespace {

/// Takes the texts of a file one after the other.
class BlockReader {
  public:
    /// The blocks begin at `at` and are `length` bytes long each.
    BlockReader(const std::string &bytes, std::size_t at, std::int16_t length)
        : bytes_(bytes), at_(std::min(at, bytes.size())),
          length_(static_cast<std::size_t>(std::max<std::int16_t>(length, 0))) {}

    /// The next block; the last one may be cut, and behind it there are only empty ones.
    std::string next() {
        const std::string block = bytes_.substr(at_, length_);
        at_ += block.size();
        return fromWestern(block);
    }

  private:
    const std::string &bytes_;
    std::size_t at_;
    std::size_t length_;
};

} // namespace

void pronostics::load(const std::string &fileName) {
    clear();
    const std::string bytes = readFile(fileName);
    std::istringstream file(bytes);
    fileHead head; // what cannot be read of it leaves blocks of length 0
    head.loadBinary(file);
    BlockReader blocks(bytes, fileHead::textSize, head.fileLen());
    const std::int32_t count = toInt32(numericPrefix(blocks.next()));
    for (std::int32_t i = 1; i <= count; ++i) {
        const std::string block = blocks.next();
        if (block.empty())
            break;
        pronos rule;
        if (rule.fromString(block))
            Add(rule);
    }
    computed_ = false;
}

void pronostics::save(const std::string &fileName) const {
    fileHead head;
    head.initialize(static_cast<std::int32_t>(FileType::forecasts));
    const std::int16_t length = head.fileLen();
    std::ostringstream file;
    head.saveBinary(file);
    std::string count = std::to_string(Count());
    count.resize(static_cast<std::size_t>(length), ' ');
    file << count;
    for (const pronos &rule : rules_) {
        const std::string text = rule.toString(length);
        if (text.empty())
            break;
        file << toWestern(text);
    }
    replaceFile(fileName, file.str());
}

} // namespace boulix
