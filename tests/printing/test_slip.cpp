// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/slip.h"

#include "printing/modPrinter.h"
#include "slipTest.h"

#include <random>

namespace boulix {
namespace {

using namespace testing_support;

constexpr std::int32_t up = modPrinter::directionUp;

class SlipTest : public BoulixTest {
  protected:
    std::vector<Cross> crosses() const { return crossesOf(picture.seen()); }
    /// The one cross of number `n` at `position`.
    Cross crossOf(std::int16_t n, std::int16_t position, slip::Placement placement) {
        picture.clear();
        slip::drawGrid(picture, {n, n, n, n, n, n}, position, placement);
        return crosses().at(0);
    }

    RecordingPicture picture;
};

void expectCross(const Cross &seen, const Cross &expected) {
    EXPECT_TRUE(same(seen, expected)) << seen << " instead of " << expected;
}

TEST_F(SlipTest, NumberOneOfGridOneIsCrossedInItsBox) {
    expectCross(crossOf(1, 1, {slip::onSlip, up}), {1.5, 7, 4.3, 11});
}

TEST_F(SlipTest, FedFromBelowNumberOneGoesToTheOppositeCorner) {
    expectCross(crossOf(1, 1, {slip::onSlip, 3}), {158.5, 113, 155.7, 109});
}

TEST_F(SlipTest, FedFromTheLeftNumberOneIsMirroredAtTheLength) {
    expectCross(crossOf(1, 1, {slip::onSlip, 0}), {153, 1.5, 149, 4.3});
}

TEST_F(SlipTest, FedFromTheRightNumberOneIsMirroredAtTheHeight) {
    expectCross(crossOf(1, 1, {slip::onSlip, 1}), {7, 118.5, 11, 115.7});
}

TEST_F(SlipTest, TensAreColumnsAndUnitsAreRows) {
    const slip::Placement placement{slip::onPicture, up};
    expectCross(crossOf(9, 1, placement), {1.5, 47, 4.3, 51});    // column 0, row 9
    expectCross(crossOf(10, 1, placement), {5.3, 2, 8.1, 6});     // column 1, row 0
    expectCross(crossOf(40, 1, placement), {16.7, 2, 19.5, 6});   // column 4, row 0
    expectCross(crossOf(49, 1, placement), {16.7, 47, 19.5, 51}); // column 4, row 9
}

TEST_F(SlipTest, GridEightBeginsAt134) {
    expectCross(crossOf(10, 8, {slip::onPicture, up}), {134 + 0.5 + 3.8, 2, 134 + 3.3 + 3.8, 6});
}

TEST_F(SlipTest, AGridIsSixCrossesInBlackWithAPenOfFour) {
    slip::drawGrid(picture, {1, 12, 23, 34, 45, 49}, 2, {slip::onPicture, up});
    std::vector<Cross> expected;
    for (const int number : {1, 12, 23, 34, 45, 49})
        expected.push_back(plainBox(2, number));
    expectCrosses(crosses(), expected);
    for (const Drawn &line : picture.seen().drawn)
        EXPECT_EQ(line.penWidth, 4);
}

/// How many items were drawn in black; any other ink fails.
std::size_t drawnInBlack(const RecordingPicture &picture) {
    for (const Drawn &item : picture.seen().drawn)
        EXPECT_EQ(item.color, black);
    return picture.seen().drawn.size();
}

TEST_F(SlipTest, CrossesAndEmptySlipAreBlackWhateverInkWasUsedBefore) {
    RecordingPicture grid;
    static_cast<Canvas &>(grid).color({200, 100, 50});
    slip::drawGrid(grid, {1, 12, 23, 34, 45, 49}, 2, {slip::onPicture, up});
    EXPECT_EQ(drawnInBlack(grid), 6 * 2);
    RecordingPicture empty;
    static_cast<Canvas &>(empty).color({200, 100, 50});
    slip::drawEmptySlip(empty);
    EXPECT_EQ(drawnInBlack(empty), 8 * (2 * 49 + 1));
}

TEST_F(SlipTest, TheEmptySlipIsDrawnWithAThinPenBehindThatOfTheCrosses) {
    static_cast<Canvas &>(picture).penWidth(4);
    slip::drawEmptySlip(picture);
    for (const Drawn::Kind kind : {Drawn::box, Drawn::line})
        for (const Drawn &item : picture.seen().ofKind(kind))
            ASSERT_EQ(item.penWidth, 1);
}

TEST_F(SlipTest, TheOffsetsMoveARealSlipOnly) {
    modPrinter::offset_X = 2.5F;
    modPrinter::offset_Y = -1.25F;
    expectCross(crossOf(1, 1, {slip::onSlip, up}), {4, 5.75, 6.8, 9.75});
    expectCross(crossOf(1, 1, {slip::onSlip, 3}), {161, 111.75, 158.2, 107.75});
    expectCross(crossOf(1, 1, {slip::onPicture, up}), {1.5, 7, 4.3, 11});
    expectCross(crossOf(1, 1, {slip::onCanvas1, up}), {30.5, 54, 33.3, 58});
}

TEST_F(SlipTest, TheCanvasSlotsLieFourAndTwentySevenBehindTheirCorners) {
    expectCross(crossOf(1, 1, {slip::onCanvas1, up}), {25 + 4 + 1.5, 20 + 27 + 7.0, 33.3, 58});
    expectCross(crossOf(1, 1, {slip::onCanvas2, up}), {25 + 4 + 1.5, 150 + 27 + 7.0, 33.3, 188});
}

TEST_F(SlipTest, AnyOtherModeMovesNothing) {
    modPrinter::offset_X = 9;
    for (const std::int16_t mode : std::initializer_list<std::int16_t>{3, 4, -1, 99})
        expectCross(crossOf(1, 1, {mode, up}), {1.5, 7, 4.3, 11});
}

TEST_F(SlipTest, EveryNumberInEveryPlacementLiesWhereCountingPutsIt) {
    std::mt19937 random(20260715);
    std::uniform_int_distribution<int> hundredth(-2000, 2000);
    for (int direction = 0; direction < 4; ++direction) {
        modPrinter::offset_X = static_cast<float>(hundredth(random)) / 100;
        modPrinter::offset_Y = static_cast<float>(hundredth(random)) / 100;
        const std::array<std::array<double, 2>, 4> moves = {
            {{modPrinter::offset_X, modPrinter::offset_Y}, {29, 47}, {29, 177}, {0, 0}}};
        for (std::int16_t mode = 0; mode < 4; ++mode)
            for (std::int16_t position = 1; position <= 8; ++position)
                for (std::int16_t number = 1; number <= 49; ++number) {
                    const auto &move = moves.at(static_cast<std::size_t>(mode));
                    expectCross(
                        crossOf(number, position, {mode, direction}),
                        plainTurned(plainBox(position, number), direction, move[0], move[1]));
                }
    }
}

struct MarkCase {
    const char *name;
    std::function<void(Canvas &, slip::Placement)> draw;
    Cross inFrame;
};

const std::vector<MarkCase> &marks() {
    using slip::Placement;
    static const std::vector<MarkCase> all = {
        {"Tirage Mercredi ou Samedi",
         [](Canvas &c, Placement p) { slip::drawWeekDraws(c, false, p); },
         {55.5, 57, 58.3, 61}},
        {"Tirage Mercredi et Samedi",
         [](Canvas &c, Placement p) { slip::drawWeekDraws(c, true, p); },
         {55.5, 70, 58.3, 61}},
        {"Pas de participation au Joker",
         [](Canvas &c, Placement p) { slip::drawJoker(c, false, p); },
         {99, 78, 101.8, 82}},
        {"Participation au Joker",
         [](Canvas &c, Placement p) { slip::drawJoker(c, true, p); },
         {99, 69, 101.8, 82}},
        {"2 Semaines",
         [](Canvas &c, Placement p) { slip::drawSubscription(c, 1, p); },
         {129, 65, 131.8, 69}},
        {"3 Semaines",
         [](Canvas &c, Placement p) { slip::drawSubscription(c, 2, p); },
         {129, 71, 131.8, 75}},
        {"4 Semaines",
         [](Canvas &c, Placement p) { slip::drawSubscription(c, 3, p); },
         {148, 65, 150.8, 69}},
        {"5 Semaines",
         [](Canvas &c, Placement p) { slip::drawSubscription(c, 4, p); },
         {148, 71, 150.8, 75}},
    };
    return all;
}

TEST_F(SlipTest, EachOptionMarkIsOneCrossInAllDirectionsAndModes) {
    modPrinter::offset_X = 3;
    modPrinter::offset_Y = 4;
    const std::array<std::array<double, 2>, 4> moves = {{{3, 4}, {29, 47}, {29, 177}, {0, 0}}};
    for (const MarkCase &mark : marks())
        for (std::int16_t mode = 0; mode < 4; ++mode)
            for (int direction = 0; direction < 4; ++direction) {
                SCOPED_TRACE(mark.name);
                picture.clear();
                mark.draw(picture, {mode, direction});
                const auto &move = moves.at(static_cast<std::size_t>(mode));
                expectCrosses(crosses(), {plainTurned(mark.inFrame, direction, move[0], move[1])});
            }
}

TEST_F(SlipTest, TheCrossesOfTheSecondChoicesAreTall) {
    slip::drawWeekDraws(picture, true, {slip::onPicture, up});
    slip::drawJoker(picture, true, {slip::onPicture, up});
    const auto tall = crosses();
    ASSERT_EQ(tall.size(), 2U);
    EXPECT_DOUBLE_EQ(tall[0].y1 - tall[0].y2, 9);
    EXPECT_DOUBLE_EQ(tall[1].y2 - tall[1].y1, 13);
}

TEST_F(SlipTest, WithoutSubscriptionThereIsNoMark) {
    for (const std::int16_t option : std::initializer_list<std::int16_t>{0, -1, 5})
        slip::drawSubscription(picture, option, {slip::onSlip, up});
    EXPECT_TRUE(picture.seen().drawn.empty());
}

TEST_F(SlipTest, TheEmptySlipShowsEveryBoxWithItsNumberInTheMiddle) {
    picture.text(1, 1, "ancien");
    slip::drawEmptySlip(picture);
    EXPECT_EQ(picture.clears, 1);
    const auto boxes = picture.seen().ofKind(Drawn::box);
    const auto texts = picture.seen().ofKind(Drawn::text);
    ASSERT_EQ(boxes.size(), 8U * 49U);
    ASSERT_EQ(texts.size(), 8U * 49U);
    std::size_t i = 0;
    for (int position = 1; position <= 8; ++position)
        for (int number = 1; number <= 49; ++number, ++i) {
            expectCross({boxes[i].x1, boxes[i].y1, boxes[i].x2, boxes[i].y2},
                        plainBox(position, number));
            EXPECT_EQ(texts[i].words, std::to_string(number));
            const double width = picture.seen().textWidth(texts[i].words);
            EXPECT_NEAR(texts[i].x1 + width / 2, boxes[i].x1 + 1.4, 1e-9);
            EXPECT_NEAR(texts[i].y1 + picture.seen().textHeight() / 2, boxes[i].y1 + 2, 1e-9);
            EXPECT_EQ(texts[i].fontName, "arial");
            EXPECT_EQ(texts[i].points, 6);
            EXPECT_EQ(boxes[i].penWidth, 1);
        }
}

TEST_F(SlipTest, ASeparatorStandsAtTheRightEdgeOfEachGrid) {
    slip::drawEmptySlip(picture);
    const auto lines = picture.seen().ofKind(Drawn::line);
    ASSERT_EQ(lines.size(), 8U);
    for (std::size_t g = 0; g < lines.size(); ++g) {
        EXPECT_DOUBLE_EQ(lines[g].x1, 20 + 19.0 * static_cast<double>(g));
        EXPECT_DOUBLE_EQ(lines[g].x2, lines[g].x1);
        EXPECT_DOUBLE_EQ(lines[g].y1, 1);
        EXPECT_DOUBLE_EQ(lines[g].y2, 52);
    }
}

} // namespace
} // namespace boulix
