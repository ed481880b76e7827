// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/modMaths.h"
#include "eliminators/eliminators.h"
#include "games/modGame.h"
#include "sill/frmNbrSelector.h"
#include "sill/selector.h"
#include "support/quietProgram.h"
#include "support/watchingDesktop.h"
#include "ui/frame/largePages.h"

#include <cstdint>
#include <random>
#include <string>

namespace boulix::bench_support {

/// A program with the carried systems and the eight rules, where chance is chance and where the
/// number dialog gives the first numbers.
class GameWorkplace {
  public:
    GameWorkplace() : program_(desktop), platform_(program_.file("")) {
        setPlatform(&platform_);
        modMaths::precomputeCnk();
        modGame::init();
        gEliminators->init();
    }

    /// The numbers 1 to `count`, as if the user had chosen them.
    selector firstNumbers(std::int16_t count) {
        desktop.chosen = count;
        selector sel;
        sel.setSelect(49, 0);
        sel.selectNbr();
        return sel;
    }
    std::string file(const std::string &name) const { return program_.file(name); }

    class GameDesktop : public WatchingDesktop {
      public:
        std::int16_t chosen = 0;
        bool askYesNo(const std::string &, Icon, const std::string &) override { return true; }
        void runNumberDialog(frmNbrSelector &dialog) override {
            for (std::int16_t n = 1; n <= chosen; ++n)
                dialog.grd.selectNumber(n);
            dialog.clickOK();
        }
    };
    GameDesktop desktop;

  private:
    class ChancePlatform : public QuietPlatform {
      public:
        using QuietPlatform::QuietPlatform;
        float nextRandom() override {
            return static_cast<float>(generator_() >> 8U) / static_cast<float>(1U << 24U);
        }
        void wantLargePages(void *memory, std::size_t bytes) override {
            askForLargePages(memory, bytes);
        }

      private:
        std::mt19937 generator_{1};
    };

    QuietProgram program_;
    ChancePlatform platform_;
};

/// Memory of this process in bytes, as the system counts it: in use now, and the most that was in
/// use since the last `forgetPeak`. Zero where the system does not tell.
std::int64_t memoryInUse();
std::int64_t memoryPeak();
void forgetPeak();

} // namespace boulix::bench_support
