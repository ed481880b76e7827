// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/platform.h"
#include "sill/desktop.h"

#include <string>
#include <utility>

namespace boulix::bench_support {

/// A desktop that shows nothing and answers every question with no; a file dialog gives the name
/// that was laid down.
class QuietDesktop : public Desktop {
  public:
    std::string fileName;

    void showMessage(const std::string &, Icon, const std::string &) override {}
    bool askYesNo(const std::string &, Icon, const std::string &) override { return false; }
    bool askToErase(const std::string &text, Icon icon, const std::string &title) override {
        return askYesNo(text, icon, title);
    }
    std::size_t askChoice(const std::string &, Icon, const std::string &,
                          const std::vector<std::string> &answers) override {
        return answers.size() - 1;
    }
    std::optional<std::string> askText(const std::string &, const std::string &,
                                       const std::string &, std::size_t) override {
        return std::nullopt;
    }
    void announce(const std::string &) override {}
    void focusField(const std::string &) override {}
    std::string openFile(const FileQuestion &) override { return fileName; }
    std::string saveFile(const FileQuestion &) override { return fileName; }
    void runNumberDialog(frmNbrSelector &) override {}
    std::optional<DrawDate> runDateDialog(const std::optional<DrawDate> &) override {
        return DrawDate{platform().today(), 1};
    }
    void progressLoaded(frmProgress &) override {}
    void progressUnloaded() override {}
    void runEvents() override {}
    void showSplash(const SplashTexts &) override {}
    void unloadSplash() override {}
    void showMainWindow() override {}
    void unloadOtherWindows() override {}
    void showHelp(const std::string &, std::optional<std::int32_t>) override {}
};

/// A system on which it is always the same day, without chance.
class QuietPlatform : public Platform {
  public:
    explicit QuietPlatform(std::string folder) : folder_(std::move(folder)) {}

    Date today() const override { return dateOf({2026, 11, 15}); }
    std::string shortDate(Date date) const override { return longDate(date); }
    std::string applicationFolder() const override { return folder_; }
    std::string commandLine() const override { return {}; }
    void seedRandomFromClock() override {}
    float nextRandom() override { return 0; }

  private:
    std::string folder_;
};

} // namespace boulix::bench_support
