// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/gridRef.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace boulix {

class CoverSearch;
class frmProgress;
class xFile;

/// A reusable system of play: rows of six ranks of the numbers that the player will select, with
/// a guarantee. If `nCond` of the drawn numbers lie among the `nSelect` selected ones, at least
/// one row holds `nWin` of them. The first `nFixed` selected numbers stand in every row.
class gameDef {
  public:
    /// The bytes that a label may have in its file.
    static constexpr int maxLabel = 126;

    /// Where the definition lies; nothing for the systems that the program carries. Copies of a
    /// definition share it.
    const std::shared_ptr<xFile> &file() const { return file_; }
    void file(const std::shared_ptr<xFile> &file) { file_ = file; }
    /// The number of rows in use.
    std::int32_t nComb() const { return static_cast<std::int32_t>(rows_.size()); }
    std::int16_t nCond() const { return nCond_; }
    void nCond(std::int16_t n) { nCond_ = n; }
    std::int16_t nFixed() const { return nFixed_; }
    void nFixed(std::int16_t n) { nFixed_ = n; }
    std::int16_t nWin() const { return nWin_; }
    void nWin(std::int16_t n) { nWin_ = n; }
    std::int16_t nSelect() const { return nSelect_; }
    void nSelect(std::int16_t n) { nSelect_ = n; }
    /// The name shown to the user.
    const std::string &label() const { return label_; }
    void label(const std::string &text) { label_ = text; }

    /// Row `i`, 1 to `nComb`; outside that range number 3201 is reported and nothing given.
    boulix::gameComb *gameComb(std::int32_t i) const;
    /// Row `i`, 1 to `nComb`, to be shared; outside `Failure::subscriptOutOfRange`.
    const GridRef &sharedRow(std::int32_t i) const;
    /// Adds a row in text form, see `gameComb::fromString`.
    void addStrComb(const std::string &text);
    /// Adds the given row itself, not a copy.
    void addGameComb(const GridRef &row) { rows_.push_back(row); }

    /// Asks for a file and writes label and rows to it as text. True when it was written.
    bool exportText() const;
    /// Writes the definition to its file in the application folder. With `nReduced` of 0 or more
    /// it gets a new place first: a file numbered `nReduced` (or `nFixedGame` for a fixed-position
    /// game) and a key in the settings. A label above `maxLabel` bytes fails with
    /// `Failure::badRecordLength`, a definition without a file with `Failure::objectNotSet`. A save
    /// that fails leaves neither key nor place behind.
    bool save(std::int16_t nReduced, std::int16_t nFixedGame);
    /// Reads the definition from its file in the application folder. False when the header is
    /// refused; a file that is cut or that lies about its rows is a run-time failure. Both leave
    /// the definition as it was.
    bool load();
    /// The same from a file that lies anywhere.
    bool loadFile(const std::string &fullName);
    /// Prints the definition.
    void printDef() const;
    /// Asks for a new label and saves the definition in its place. A cancelled box gives the
    /// empty label.
    void rename();

    /// Computes the rows of a covering system: every choice of `nWin` ranks out of `nSelect` that
    /// contains the ranks 1 to `nFixed` lies in a row. False after a cancel, with the rows chosen
    /// so far. See gameDefCompute.cpp for the search.
    bool compute(std::int16_t nFixed, std::int16_t nWin, std::int16_t nSelect);

  private:
    bool read(xFile &file);
    static bool announceGrids(frmProgress &progress, std::int32_t grids);
    static bool announcePuplets(frmProgress &progress, std::int32_t puplets);
    bool chooseGrids(frmProgress &progress, std::int32_t grids, std::int32_t puplets);
    bool addBestGrid(CoverSearch &search, frmProgress &progress);
    /// Writes the file; `label` is the record of the label.
    void write(const std::string &label) const;

    std::string label_;
    std::int16_t nSelect_ = 0;
    std::int16_t nWin_ = 0;
    std::int16_t nFixed_ = 0;
    std::int16_t nCond_ = 0;
    std::shared_ptr<xFile> file_;
    std::vector<GridRef> rows_;
};

} // namespace boulix
