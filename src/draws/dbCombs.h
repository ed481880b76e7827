// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/numbers.h"
#include "draws/dbComb.h"
#include "draws/drawIndex.h"
#include "files/xFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace boulix {

class frmProgress;
class game;
class gameResult;
class gameWin;
struct progressBar;

/// The draws of the base as they were at some time, and whether the file held them.
struct KeptDraws {
    std::vector<dbComb> draws;
    bool saved = true;
};

/// All past draws in memory, and the only reader and writer of their file. A draw is numbered by
/// its position from 1, the oldest first after a sort. References to draws hold until the
/// collection changes.
class dbCombs {
  public:
    const xFile &dbFile() const { return dbFile_; }
    xFile &dbFile() { return dbFile_; }
    void dbFile(const xFile &file) { dbFile_ = file; }

    /// Appends a draw, and saves the base when asked to. No check of doubles. The key of the
    /// collection is not used by anybody and stays empty.
    dbComb &Add(Date day, std::int16_t id, const lotoComb &comb, bool doSave,
                const std::string &key);
    /// The draw at `index`, 1 to `Count`; any other fails with `Failure::subscriptOutOfRange`.
    /// Who changes a draw fetches it for that: a reference that is older than the last use of
    /// `index` is for reading only.
    const dbComb &Item(std::int64_t index) const { return draws_[offsetOf(index)]; }
    dbComb &Item(std::int64_t index) { return changing()[offsetOf(index)]; }
    std::int32_t Count() const { return static_cast<std::int32_t>(draws_.size()); }

    /// Where each number stands in the draws. It is made when it is first asked for, and anew
    /// after whatever may have changed a draw.
    const drawIndex &index() const;

    // The draws in collection order.
    auto begin() const { return draws_.begin(); }
    auto end() const { return draws_.end(); }

    /// Lets the user enter a new draw; it goes to the end and the base is saved.
    void AddNewDBComb();
    /// Whether the file holds all that this program has changed in memory. False after a save that
    /// failed and after an import that was broken off.
    bool isSaved() const { return saved_; }
    /// Writes the file, as every change of a draw does by itself.
    void saveAgain() { save(); }

    /// A copy of the draws, to be given back to `exchange`.
    KeptDraws kept() const { return {draws_, saved_}; }
    /// Takes the draws of `other` and gives it those that were there. The file follows, unless it
    /// did not hold them when they were kept. Where it cannot be written the draws stay as they
    /// are.
    void exchange(KeptDraws &other);

    /// Removes the draw at `index` and saves.
    void Remove(std::int64_t index);
    /// Lets the user change the draw at `index`, then sorts and saves, also after a cancel.
    void modify(std::int32_t index);

    /// Prints all draws, three to a line; nothing after the message when there is no printer.
    void PrintDB();
    /// Asks for a file and writes all draws into it as text. A file that is there is replaced
    /// without a question; one that cannot be written is a run-time failure.
    void ExportDB();

    /// Removes all draws, in memory only.
    void clear() { changing().clear(); }
    /// Orders the draws with the exchange sort of this class; an empty base fails.
    void sort();
    /// Reads the file. A missing file is made, a refused one leaves the base empty.
    void load();
    /// Asks for a file of the operator and merges it. True when the base was merged and saved.
    bool ImportFdjFile();
    /// The same for a file that needs no asking.
    bool ImportFrom(const std::string &fileName);
    /// How many draws the last import has read, up to its end or its cancel.
    std::int64_t importedDraws() const { return importedDraws_; }

    /// Checks the game against every draw, moving the bar. `wins[rank][k]` is the k-th draw that
    /// won at the rank, k from 1 to `winsCount[rank]`; both tables are made anew.
    gameResult VerifyGame(const game &grids, progressBar &bar,
                          std::vector<std::vector<gameWin>> &wins,
                          std::vector<std::int32_t> &winsCount);

  private:
    std::size_t offsetOf(std::int64_t index) const {
        return static_cast<std::size_t>(checkedIndex(index, 1, Count()) - 1);
    }
    /// The draws on their way to a change: what was known of them does not hold any longer.
    std::vector<dbComb> &changing() {
        index_.reset();
        return draws_;
    }
    void quickSort(std::int64_t first, std::int64_t last);
    void save();
    void writeImage(const std::string &image) const;
    /// Appends the draws of the operator's file; false when it was refused or cancelled.
    bool readImport(const std::string &fileName, frmProgress &progress);
    void restoreOrder();
    /// Strikes the draws that follow one of the same day and draw of the day; false when it was
    /// cancelled, and the base is then to be loaded again.
    bool removeDoubles(frmProgress &progress);

    std::vector<dbComb> draws_;
    mutable std::optional<drawIndex> index_;
    xFile dbFile_;
    bool saved_ = true;
    std::int64_t importedDraws_ = 0;
};

} // namespace boulix
