// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The heavy commands of every page in a process that is given little memory: the want of it is a
// failure like any other, and what was in memory before is there afterwards.

#include "faultTest.h"
#include "printing/modPrinter.h"
#include "sill/modMain.h"
#include "stats/modStats.h"
#include "stats/statStores.h"
#include "stats/statTypes.h"
#include "workbench/frmMain.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#define BOULIX_UNDER_ASAN
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define BOULIX_UNDER_ASAN
#endif
#endif

namespace boulix {
namespace {

constexpr std::size_t mega = std::size_t{1} << 20U;

void limitAddressSpace(std::size_t bytes) {
    rlimit limits{};
    getrlimit(RLIMIT_AS, &limits);
    limits.rlim_cur = bytes;
    if (setrlimit(RLIMIT_AS, &limits) != 0)
        std::abort();
}

/// Leaves the process no more than so much memory: first it uses up what lies free in its heap.
void limitMemory(std::size_t more) {
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const std::size_t now = pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    limitAddressSpace(now);
    for (const std::size_t size : {std::size_t{1} << 15U, std::size_t{1} << 12U, std::size_t{512}})
        while (std::malloc(size) != nullptr) { // for good: the process ends after its command
        }
    limitAddressSpace(now + more);
}

/// How a command ended in a process with little memory.
enum Ending { succeeded = 10, outOfMemory, wrong };

class FullMemory : public FaultTest {
  protected:
    void SetUp() override {
#ifdef BOULIX_UNDER_ASAN
        GTEST_SKIP() << "AddressSanitizer takes more address space than any limit leaves";
#endif
        // Large pieces come from the system and go back to it, so that the limit is felt.
        mallopt(M_MMAP_THRESHOLD, 1 << 16);
        startAfresh();
    }

    /// Runs `command` with a little memory, then with more and more. It has to fail for want of it
    /// at first, and each time one message tells so and `memory` is what it was, or the command
    /// succeeds. `afterwards` is what `memory` may be, too, where a command has done its work and
    /// then cannot show it.
    void expectKept(const std::function<void()> &command,
                    const std::function<std::string()> &memory,
                    const std::string &afterwards = "") {
        const std::vector<std::string> allowed = {memory(), afterwards};
        std::vector<int> endings;
        for (const std::size_t more : {mega / 2, 2 * mega, 8 * mega, 32 * mega, 96 * mega}) {
            endings.push_back(endingOf(more, command, memory, allowed));
            EXPECT_NE(endings.back(), wrong) << more;
        }
        EXPECT_EQ(endings.front(), outOfMemory);
    }

  private:
    int endingOf(std::size_t more, const std::function<void()> &command,
                 const std::function<std::string()> &memory,
                 const std::vector<std::string> &allowed) {
        const pid_t child = fork();
        if (child == 0) {
            limitMemory(more);
            desktop.messages.clear();
            runCommand(command);
            _exit(endingNow(memory, allowed));
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    int endingNow(const std::function<std::string()> &memory,
                  const std::vector<std::string> &allowed) {
        const auto isWant = [](const ShownBox &box) {
            return box ==
                   ShownBox{"Mémoire insuffisante", Icon::critical, "Boulix Erreur système N° 7"};
        };
        const bool wanted = !desktop.messages.empty() && isWant(desktop.messages.front());
        if (!wanted)
            return succeeded;
        const bool kept = std::find(allowed.begin(), allowed.end(), memory()) != allowed.end();
        return desktop.messages.size() == 1 && kept ? outOfMemory : wrong;
    }
};

std::string counts() {
    return std::to_string(gDbCombs->Count()) + " draws, " + std::to_string(currentGame->Count()) +
           " grids, " + std::to_string(constructionGame->Count()) + " new ones, " +
           std::to_string(gEliminators->Count()) + " rules";
}

/// A selection of all numbers.
selector allNumbers(testing_support::ScriptedDesktop &desktop) {
    selector all;
    all.setSelect(49, 0);
    desktop.answerNumbers(NumberScript().selectAll().ok());
    all.selectNbr();
    return all;
}

void fillGame(game &grids, std::int32_t count) {
    grids.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i)
        grids.Add(GridRef({1, 2, 3, 4, 5, 6}, 21));
}

TEST_F(FullMemory, AManualGameOfAllNumbersLeavesTheGameAsItWas) {
    const selector all = allNumbers(desktop);
    expectKept([&] { currentGame->ComputeManualGame(all); }, counts);
}

TEST_F(FullMemory, ARandomGameLeavesTheGameAsItWas) {
    const selector all = allNumbers(desktop);
    expectKept([&] { currentGame->ComputeRandomGame(3'000'000, all); }, counts);
}

TEST_F(FullMemory, AGameThatIsLoadedLeavesTheGameAsItWas) {
    desktop.answerSave(file("jeu.lst"));
    currentGame->save();
    std::filesystem::resize_file(file("jeu.lst"), std::uintmax_t{4'000'000} * 128); // no real bytes
    expectKept(
        [this] {
            desktop.answerOpen(file("jeu.lst"));
            currentGame->load();
        },
        counts);
}

TEST_F(FullMemory, AddingALargeGameToAnotherAddsAllOfItOrNothing) {
    fillGame(*constructionGame, 2'000'000);
    mainWindow->games.init();
    modGame::init();
    expectKept([] { mainWindow->games.design.clickButton(gameDesign::addGame); }, counts,
               "40 draws, 2000040 grids, 2000000 new ones, 8 rules");
}

TEST_F(FullMemory, AnEliminationLeavesTheGameAsItWas) {
    fillGame(*currentGame, 6'000'000);
    gEliminators->Item(3).status(eliminator::on);
    expectKept([] { currentGame->EliminComb(); }, counts);
}

TEST_F(FullMemory, AnEliminationThatCanNotBeNotedForItsUndoLeavesTheGameAsItWas) {
    fillGame(*currentGame, 6'000'000);
    mainWindow->games.init();
    mainWindow->elimination.tick(2, true);
    mainWindow->elimination.txtEliminator[2] = "21";
    mainWindow->games.tickUpdateList(false); // the desktop of the tests notes each step
    expectKept([] { mainWindow->games.clickButton(gamePage::eliminateGrids); }, counts);
}

TEST_F(FullMemory, ASaveLeavesTheOldFile) {
    fillGame(*currentGame, 100'000);
    writeBytes(file("jeu.lst"), "vieux");
    expectKept(
        [this] {
            desktop.answerSave(file("jeu.lst"));
            desktop.answerYes();
            currentGame->save();
        },
        [this] {
            const std::string bytes = bytesOf("jeu.lst");
            return counts() + (bytes == "vieux" ? " vieux" : " " + std::to_string(bytes.size()));
        });
}

TEST_F(FullMemory, TheBaseIsSavedWholeOrNotAtAllAndItsExportToo) {
    std::mt19937 random(5);
    addRandomDraws(60'000, random);
    writeBytes(file("tirages.dbl"), "vieux");
    writeBytes(file("base.txt"), "vieux");
    expectKept([] { gDbCombs->saveAgain(); }, [this] { return counts() + bytesOf("tirages.dbl"); });
    expectKept(
        [this] {
            desktop.answerSave(file("base.txt"));
            gDbCombs->ExportDB();
        },
        [this] { return counts() + bytesOf("base.txt"); });
}

TEST_F(FullMemory, APrintedBaseAndAPrintedGameLeaveBoth) {
    std::mt19937 random(5);
    addRandomDraws(15'000, random);
    fillGame(*currentGame, 40'000);
    modPrinter::currentPrinter("Bureau");
    expectKept([] { gDbCombs->PrintDB(); }, counts);
    expectKept([] { currentGame->PrintGameList(); }, counts);
}

TEST_F(FullMemory, AStatisticLeavesTheBase) {
    std::mt19937 random(5);
    addRandomDraws(200'000, random);
    modStats::InitStatTypes();
    modStats::InitTripletTable();
    selector nobody;
    expectKept(
        [&] {
            modStats::ComputeStat(6, 0, 1, gDbCombs->Count(), nobody);
            modStats::ComputeStat(1, 0, 1, gDbCombs->Count(), nobody);
        },
        counts);
}

TEST_F(FullMemory, AnImportKeepsTheDrawsOfBefore) {
    std::string lines = "BOULE1;BOULE2;BOULE3;BOULE4;BOULE5;BOULE6;BOULE_COMPLEMENTAIRE;"
                        "DATE_DE_TIRAGE;1ER_OU_2EME_TIRAGE";
    for (int i = 0; i < 100'000; ++i)
        lines += "\r\n1;2;3;4;5;6;7;" + std::to_string(20000101 + i % 28) + ";1";
    writeBytes(file("import.txt"), lines);
    gDbCombs->saveAgain();
    expectKept(
        [this] {
            desktop.answerOpen(file("import.txt"));
            gDbCombs->ImportFdjFile();
        },
        [] { return draws().substr(0, 300); });
}

TEST_F(FullMemory, TheStartEndsInItsHandlerWithTheLogClosed) {
    std::mt19937 random(5);
    addRandomDraws(60'000, random);
    gDbCombs->saveAgain();
    gRapport->save(file("defrapp.rap"));
    resetGlobals();
    platform.arguments = "-debug";
    expectKept(
        [this] {
            modMain::Main();
            // Lines that come after a handler has closed the log are failures in their turn.
            if (desktop.messages.size() > 1 &&
                desktop.messages[1].title == "Boulix Erreur système N° 52")
                desktop.messages.resize(1);
        },
        [] { return modMain::gLogFile.is_open() ? "open" : "closed"; });
}

} // namespace
} // namespace boulix
