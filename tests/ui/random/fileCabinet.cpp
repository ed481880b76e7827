// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ui/random/fileCabinet.h"

#include "support/files.h"
#include "support/locations.h"

#include <algorithm>
#include <stdexcept>

namespace boulix::testing_support {

namespace fs = std::filesystem;

namespace {

constexpr auto nobodyMay = fs::perms::none;
constexpr auto readOnly = fs::perms::owner_read;

/// ".lst" of the filter "Fichier jeu Boulix (*.lst)|*.lst"; ".txt" where it names no extension.
std::string extensionOf(const std::string &filter) {
    const std::size_t star = filter.rfind("*.");
    const std::string extension = star == std::string::npos ? "" : filter.substr(star + 1);
    return extension.size() < 2 || extension == ".*" ? ".txt" : extension;
}

/// Two lines beside each other in a base of the operator: the head and so many draws.
std::string shortHistory(std::size_t draws) {
    const std::string all = readBytes(sampleHistory().string());
    std::size_t end = 0;
    for (std::size_t line = 0; line <= draws && end != std::string::npos; ++line)
        end = all.find('\n', end + 1);
    return all.substr(0, end == std::string::npos ? end : end + 1);
}

} // namespace

FileCabinet::FileCabinet(const fs::path &folder, Dice &dice)
    : folder_(folder / "fichiers"), dice_(dice) {
    fs::create_directory(folder_);
    takeSamples();
}

void FileCabinet::takeSamples() {
    for (const auto &entry : fs::recursive_directory_iterator(checkoutFolder() / "fuzz")) {
        const fs::path &file = entry.path();
        if (entry.is_regular_file() && file.parent_path().filename().string().ends_with("Seeds"))
            writeBytes(folder_ / file.filename(), readBytes(file));
    }
    for (const std::size_t draws : {1U, 2U, 30U, 600U})
        writeBytes(folder_ / ("tirages" + std::to_string(draws) + ".txt"), shortHistory(draws));
    writeBytes(folder_ / "vide.txt", "");
    for (const std::string extension : {".lst", ".elm", ".pro", ".rap", ".gam", ".txt", ".png"}) {
        const fs::path kept = folder_ / ("protégé" + extension);
        writeBytes(kept, "rien");
        fs::permissions(kept, readOnly);
        const fs::path closed = folder_ / ("fermé" + extension);
        writeBytes(closed, "rien");
        fs::permissions(closed, nobodyMay);
        fs::create_directory(folder_ / ("dossier" + extension));
    }
    fs::create_directory(folder_ / "interdit");
    fs::permissions(folder_ / "interdit", fs::perms::owner_read | fs::perms::owner_exec);
}

std::string FileCabinet::toRead(const std::string &filter) {
    tidy();
    lastWasBad_ = false;
    if (dice_.onceIn(8))
        return {};
    const std::string extension = extensionOf(filter);
    if (dice_.onceIn(10)) {
        lastWasBad_ = true;
        return handOut(unusable(extension));
    }
    const fs::path file = named(extension, dice_.onceIn(8));
    // Even a sample can be bad: the fuzz targets keep what is on the edge.
    lastWasBad_ = true;
    return handOut(dice_.onceIn(5) ? damaged(file) : file);
}

std::string FileCabinet::toWrite(const std::string &filter) {
    tidy();
    lastWasBad_ = false;
    if (dice_.onceIn(8))
        return {};
    const std::string extension = extensionOf(filter);
    lastWasBad_ = dice_.onceIn(8);
    static const std::vector<std::string> names = {"un",    "deux",    "L'été des œufs à 3 €",
                                                   "x.y.z", " blanc ", "日本"};
    const fs::path file = lastWasBad_       ? unusable(extension)
                          : dice_.onceIn(9) ? folder_ / dice_.oneOf(names)
                                            : folder_ / (dice_.oneOf(names) + extension);
    return handOut(file);
}

/// One of the files that are there, of the kind asked for or of any kind.
fs::path FileCabinet::named(const std::string &extension, bool anyKind) {
    std::vector<fs::path> files;
    for (const auto &entry : fs::directory_iterator(folder_))
        if (entry.is_regular_file() && (anyKind || entry.path().extension() == extension))
            files.push_back(entry.path());
    if (files.empty())
        return folder_ / ("absent" + extension);
    std::sort(files.begin(), files.end()); // a folder has no order of its own
    return dice_.oneOf(files);
}

/// A copy of the file, cut short or with some bytes changed.
fs::path FileCabinet::damaged(const fs::path &original) {
    const fs::path copy = folder_ / ("abîmé" + original.extension().string());
    std::string bytes;
    try {
        bytes = readBytes(original);
    } catch (const std::runtime_error &) {
        return original;
    }
    if (dice_.onceIn(2))
        bytes.resize(static_cast<std::size_t>(dice_.below(static_cast<int>(bytes.size() + 1))));
    for (int changes = dice_.below(6); changes > 0 && !bytes.empty(); --changes)
        bytes.at(static_cast<std::size_t>(dice_.below(static_cast<int>(bytes.size())))) =
            static_cast<char>(dice_.below(256));
    writeBytes(copy, bytes);
    return copy;
}

/// Something that can neither be read nor written as a file.
fs::path FileCabinet::unusable(const std::string &extension) {
    const std::vector<fs::path> all = {
        folder_ / ("fermé" + extension),
        folder_ / ("protégé" + extension),
        folder_ / ("dossier" + extension),
        folder_ / ("absent" + extension),
        folder_ / "interdit" / ("fichier" + extension),
        folder_ / "nulle part" / ("fichier" + extension),
        folder_ / (std::string(300, 'n') + extension),
    };
    return dice_.oneOf(all);
}

std::string FileCabinet::handOut(const fs::path &file) const {
    const fs::path inside = file.lexically_normal().lexically_relative(folder_);
    if (inside.empty() || *inside.begin() == "..")
        throw std::logic_error("a file outside the folder: " + file.string());
    return file.string();
}

/// Keeps the folder small: what the player wrote goes when there is too much of it.
void FileCabinet::tidy() {
    std::vector<fs::path> own;
    for (const auto &entry : fs::directory_iterator(folder_))
        if (entry.is_regular_file() && entry.file_size() > 1'000'000)
            own.push_back(entry.path());
    for (const fs::path &file : own)
        fs::remove(file);
}

} // namespace boulix::testing_support
