// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "sill/undo.h"

#include "core/failure.h"

#include <gtest/gtest.h>

#include <utility>

namespace boulix {
namespace {

/// A value that commands change.
class Undo : public ::testing::Test {
  protected:
    Undo() {
        list.changed = [this] { ++changes; };
    }

    void change(const std::string &name, int to, std::size_t bytes = 0) {
        list.record({name, [this, kept = value]() mutable { std::swap(value, kept); }, bytes});
        value = to;
    }

    UndoList list;
    int value = 0;
    int changes = 0;
};

TEST_F(Undo, WithoutACommandThereIsNothingToTakeBack) {
    EXPECT_FALSE(list.canUndo());
    EXPECT_FALSE(list.canRedo());
    EXPECT_EQ(list.undoName(), "");
    EXPECT_EQ(list.redoName(), "");
    list.undo();
    list.redo();
    EXPECT_EQ(changes, 0);
}

TEST_F(Undo, CommandsAreTakenBackFromTheLastOneOnAndDoneAgainInOrder) {
    change("un", 1);
    change("deux", 2);
    EXPECT_EQ(list.undoName(), "deux");
    list.undo();
    EXPECT_EQ(value, 1);
    EXPECT_EQ(list.undoName(), "un");
    EXPECT_EQ(list.redoName(), "deux");
    list.undo();
    EXPECT_EQ(value, 0);
    EXPECT_FALSE(list.canUndo());
    list.redo();
    EXPECT_EQ(value, 1);
    list.redo();
    EXPECT_EQ(value, 2);
    EXPECT_FALSE(list.canRedo());
    EXPECT_EQ(changes, 6);
}

TEST_F(Undo, ANewCommandEndsWhatCouldBeDoneAgain) {
    change("un", 1);
    change("deux", 2);
    list.undo();
    change("trois", 3);
    EXPECT_FALSE(list.canRedo());
    list.undo();
    EXPECT_EQ(value, 1);
    list.undo();
    EXPECT_EQ(value, 0);
}

TEST_F(Undo, AStepThatFailsStaysWhereItIs) {
    change("un", 1);
    bool full = true;
    list.record({"deux", [&full, this] {
                     if (full)
                         fail(Failure::diskFull);
                     value = 1;
                 }});
    value = 2;
    EXPECT_THROW(list.undo(), RuntimeFailure);
    EXPECT_EQ(value, 2);
    EXPECT_EQ(list.undoName(), "deux");
    EXPECT_FALSE(list.canRedo());
    full = false;
    list.undo();
    EXPECT_EQ(value, 1);
    EXPECT_EQ(list.redoName(), "deux");
}

TEST_F(Undo, TheOldestStepsGoWhereAllHoldTooMuchMemory) {
    change("un", 1, UndoList::mostBytes / 2);
    change("deux", 2, UndoList::mostBytes / 2);
    change("trois", 3, 1);
    list.undo();
    list.undo();
    EXPECT_EQ(value, 1) << "the first one is beyond recall";
    EXPECT_FALSE(list.canUndo());
}

TEST_F(Undo, TheNewestStepStaysHoweverMuchMemoryItHolds) {
    change("un", 1);
    change("deux", 2, 2 * UndoList::mostBytes);
    EXPECT_EQ(list.undoName(), "deux");
    list.undo();
    EXPECT_EQ(value, 1);
    EXPECT_FALSE(list.canUndo());
}

TEST_F(Undo, AClearedListKnowsNoStep) {
    change("un", 1);
    change("deux", 2);
    list.undo();
    list.clear();
    EXPECT_FALSE(list.canUndo());
    EXPECT_FALSE(list.canRedo());
    EXPECT_EQ(value, 1) << "what was done stays done";
}

} // namespace
} // namespace boulix
