// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A second start in a folder: when it ends, when it asks, when it goes on.

#include "sill/folderClaim.h"

#include "support/boulixTest.h"

namespace boulix {
namespace {

using Holder = FolderClaim::Holder;

/// A folder that is held as a test says.
class ScriptedClaim : public FolderClaim {
  public:
    explicit ScriptedClaim(Holder holder, bool answers = false)
        : holder_(holder), answers_(answers) {}

    int calls = 0;
    int takeOvers = 0;

    Holder take() override { return holder_; }
    std::string machine() const override { return "grenier"; }
    bool callHolder() override {
        ++calls;
        return answers_;
    }
    void takeOver() override { ++takeOvers; }

  private:
    Holder holder_;
    bool answers_;
};

const ShownBox sameMachine = {
    "Boulix est déjà ouvert dans ce dossier, mais sa fenêtre ne répond pas.\r\n"
    "Deux programmes ouverts dans un même dossier écrasent chacun les fichiers de l'autre.\r\n"
    "Voulez-vous tout de même démarrer?",
    Icon::question, "boulix"};
const ShownBox otherMachine = {
    "Boulix est déjà ouvert dans ce dossier sur l'ordinateur grenier, ou y a été interrompu.\r\n"
    "Deux programmes ouverts dans un même dossier écrasent chacun les fichiers de l'autre.\r\n"
    "Voulez-vous tout de même démarrer?",
    Icon::question, "boulix"};

class FolderClaimTest : public FreshProgramTest {};

TEST_F(FolderClaimTest, AFolderThatIsFreeOrTakesNoClaimIsStartedInWithoutAWord) {
    for (const Holder holder : {Holder::thisProgram, Holder::nobody}) {
        ScriptedClaim claim(holder);
        EXPECT_TRUE(claimFolder(claim));
        EXPECT_EQ(claim.calls, 0);
        EXPECT_EQ(claim.takeOvers, 0);
    }
    EXPECT_TRUE(desktop.questions.empty());
}

TEST_F(FolderClaimTest, WhereTheOtherWindowComesToTheFrontThisStartEndsWithoutAWord) {
    ScriptedClaim claim(Holder::sameMachine, true);
    EXPECT_FALSE(claimFolder(claim));
    EXPECT_EQ(claim.calls, 1);
    EXPECT_EQ(claim.takeOvers, 0);
    EXPECT_TRUE(desktop.questions.empty());
}

TEST_F(FolderClaimTest, WhereTheOtherWindowDoesNotAnswerTheUserDecides) {
    ScriptedClaim refused(Holder::sameMachine);
    desktop.answerNo();
    EXPECT_FALSE(claimFolder(refused));
    EXPECT_EQ(refused.takeOvers, 0);
    ScriptedClaim taken(Holder::sameMachine);
    desktop.answerYes();
    EXPECT_TRUE(claimFolder(taken));
    EXPECT_EQ(taken.takeOvers, 1);
    EXPECT_EQ(desktop.questions, (std::vector<ShownBox>{sameMachine, sameMachine}));
}

TEST_F(FolderClaimTest, AnotherMachineIsNamedAndNotCalledAndTheUserDecides) {
    ScriptedClaim refused(Holder::otherMachine, true);
    desktop.answerNo();
    EXPECT_FALSE(claimFolder(refused));
    ScriptedClaim taken(Holder::otherMachine, true);
    desktop.answerYes();
    EXPECT_TRUE(claimFolder(taken));
    EXPECT_EQ(taken.calls, 0);
    EXPECT_EQ(taken.takeOvers, 1);
    EXPECT_EQ(desktop.questions, (std::vector<ShownBox>{otherMachine, otherMachine}));
}

} // namespace
} // namespace boulix
