// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <string>

namespace boulix {

/// One progress bar: its range, where it stands, and whether it is shown.
struct progressBar {
    std::int64_t min = 0;
    std::int64_t max = 100;
    std::int64_t value = 0;
    bool visible = true;

    /// Sets the range and puts the bar at its start; a range that ends before it begins fails
    /// with `Failure::invalidPropertyValue`.
    void range(std::int64_t first, std::int64_t last);
};

/// What the progress window shows. A long computation writes here at each step; the screen reads
/// it whenever the event queue runs, so that a step costs next to nothing.
class frmProgress {
  public:
    std::string caption;
    std::string lblInfo;
    progressBar ProgressBar;  ///< the items
    progressBar ProgressBar2; ///< the stages; hidden in a job of one stage
    bool cancelVisible = true;

    /// The tag of the cancel button: "1" once it was clicked.
    std::string cancelTag = "0";
    bool cancelled() const;
    void clickCancel() { cancelTag = "1"; }
};

/// The progress window for the time of one job: it is there from construction to destruction,
/// whichever way the job ends.
class ProgressShown {
  public:
    /// Shows the window with one bar, the cancel flag reset.
    ProgressShown(const std::string &caption, const std::string &info);
    ~ProgressShown();
    ProgressShown(const ProgressShown &) = delete;
    ProgressShown &operator=(const ProgressShown &) = delete;

    frmProgress *operator->() { return &window_; }
    frmProgress &operator*() { return window_; }
    /// Unloads the window before the end of its scope.
    void unload();

  private:
    frmProgress window_;
    bool loaded_ = true;
};

} // namespace boulix
