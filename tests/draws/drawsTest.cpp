// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "draws/drawsTest.h"

#include <bit>

namespace boulix::testing_support {

namespace {

/// `value` in `count` bytes, the lowest first.
std::string littleEndian(std::uint64_t value, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
    return bytes;
}

std::string int16Bytes(int value) {
    return littleEndian(static_cast<std::uint64_t>(value), 2);
}

std::string widened(const std::string &text, std::size_t width) {
    return (text + std::string(width, ' ')).substr(0, width);
}

} // namespace

DrawsTest::DrawsTest() {
    gDbCombs->dbFile().path(folder());
    gDbCombs->dbFile().name("tirages.dbl");
}

void DrawsTest::add(const DrawOf &draw) {
    lotoComb comb = combOf(draw.numbers);
    comb.sum(static_cast<std::int16_t>(draw.sum));
    comb.sumtot(static_cast<std::int16_t>(draw.sumtot));
    gDbCombs->Add(draw.day, static_cast<std::int16_t>(draw.id), comb, false, "");
}

std::vector<std::string> DrawsTest::rows() {
    std::vector<std::string> rows;
    for (const dbComb &draw : *gDbCombs)
        rows.push_back(rowOf(draw));
    return rows;
}

bool DrawsTest::importBytes(const std::string &bytes) {
    writeBytes(file("import.txt"), bytes);
    desktop.answerOpen(file("import.txt"));
    return gDbCombs->ImportFdjFile();
}

bool DrawsTest::importLines(const std::vector<std::string> &lines, const std::string &header) {
    std::string bytes = header + "\r\n";
    for (const std::string &line : lines)
        bytes += line + "\r\n";
    return importBytes(bytes);
}

lotoComb combOf(const std::array<int, 7> &numbers) {
    lotoComb comb;
    for (int i = 1; i <= lotoComb::size; ++i)
        comb.num(i, static_cast<std::int16_t>(numbers[static_cast<std::size_t>(i - 1)]));
    comb.compl_(static_cast<std::int16_t>(numbers.back()));
    return comb;
}

std::string rowOf(const dbComb &draw) {
    std::string row =
        (isValidDate(draw.day()) ? longDate(draw.day()) : std::to_string(draw.day())) + " (" +
        std::to_string(draw.id()) + ")";
    for (int i = 1; i <= lotoComb::size; ++i)
        row += " " + std::to_string(draw.comb().num(i));
    return row + " + " + std::to_string(draw.comb().compl_()) + " = " +
           std::to_string(draw.comb().sum()) + " " + std::to_string(draw.comb().sumtot());
}

std::string headBytes(const HeadOf &head) {
    return widened(head.software, 32) + widened(head.version, 32) + int16Bytes(head.typ) +
           head.date + head.date;
}

std::string recordBytes(const DrawOf &draw) {
    std::string bytes = littleEndian(std::bit_cast<std::uint64_t>(draw.day), 8);
    bytes += int16Bytes(draw.id);
    for (const int n : draw.numbers)
        bytes += int16Bytes(n);
    return bytes + int16Bytes(draw.sum) + int16Bytes(draw.sumtot);
}

std::string drawsFile(const std::vector<DrawOf> &draws, const HeadOf &head) {
    std::string bytes = headBytes(head);
    for (std::size_t k = 1; k <= draws.size(); ++k) {
        bytes.resize(k * 128);
        bytes += recordBytes(draws[k - 1]);
    }
    return bytes;
}

} // namespace boulix::testing_support
