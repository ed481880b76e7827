// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "games/systemOptimiser.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace boulix {

class gameDef;

/// The window that searches for a system with fewer grids than the iterative calculation has. The
/// screen draws the public state and hands over what the user does.
class frmOptimiser {
  public:
    static constexpr const char *caption = "Optimiser un système";
    /// How long one search goes on, in seconds.
    static constexpr double longestRun = 60;

    /// A point of the curve: so many grids after so many seconds of search.
    struct CurvePoint {
        double seconds;
        std::int64_t grids;
    };

    /// Begins with `told`, a system that `gameDef::compute` has made.
    explicit frmOptimiser(const gameDef &told);
    frmOptimiser(const frmOptimiser &) = delete;
    frmOptimiser &operator=(const frmOptimiser &) = delete;

    /// The guarantees on offer, in words, and the one in force: an index. Index 0 is the one of
    /// the calculation, each further one asks for one more drawn number.
    const std::vector<std::string> &cmbGuarantee() const { return cmbGuarantee_; }
    int guarantee() const { return guarantee_; }
    /// Takes another guarantee, which begins with what is known to serve it. Not while a search
    /// runs.
    void chooseGuarantee(int index);

    /// What the labels say; each is shown beside its title.
    std::string lblGrids;
    std::string lblCost;
    std::string lblTold;
    std::string lblSaved;
    std::string lblRecord;
    std::string lblBound;
    std::string lblTime;
    std::string lblState;
    /// Of the present guarantee; empty before its first search.
    const std::vector<CurvePoint> &curve() const { return curve_; }
    /// The system that is shown.
    const std::vector<gameComb> &rows() const { return rows_; }

    bool running() const { return running_; }
    bool canStart() const { return !running_ && !atItsEnd_; }
    bool canUse() const { return !running_; }
    bool hidden() const { return hidden_; }

    /// Searches until the bound is reached, the user stops or the time is over, and lets the
    /// event queue run meanwhile. Started again it goes on from there.
    void clickStart();
    /// Ends the search in progress; the best system stays.
    void clickStop() { stopAsked_ = true; }
    /// Hands the system on and hides the window.
    void clickUse();
    /// The window is closed by the user: a search ends first.
    void clickQuit();

    /// Gets the system of "Utiliser".
    std::function<void(const Guarantee &, const std::vector<gameComb> &)> used;
    /// Called when the state has changed.
    std::function<void()> changed;

    /// The clock, in seconds from anywhere, and what examines a system before it is shown.
    std::function<double()> clock;
    std::function<bool(const std::vector<gameComb> &, const Guarantee &)> check = keepsGuarantee;

  private:
    Guarantee present() const;
    std::vector<std::vector<gameComb>> knownSystems() const;
    void begin();
    void searchOn();
    bool takeOver();
    void show();
    void notify() const;

    Guarantee base_;
    std::vector<gameComb> toldRows_;
    std::vector<std::string> cmbGuarantee_;
    int guarantee_ = 0;
    std::vector<std::vector<gameComb>> best_; // by guarantee; empty where none was searched
    std::vector<gameComb> rows_;
    std::vector<CurvePoint> curve_;
    std::unique_ptr<SystemOptimiser> search_;
    double seconds_ = 0; // of all searches for the present guarantee
    bool running_ = false;
    bool atItsEnd_ = false;
    bool stopAsked_ = false;
    bool refused_ = false;
    bool hidden_ = false;
};

} // namespace boulix
