// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "core/collectionKeys.h"

#include "support/boulixTest.h"

namespace boulix {
namespace {

TEST(CollectionKeys, LeadToThePositionsTheyWereGiven) {
    collectionKeys keys;
    EXPECT_TRUE(keys.empty());
    keys.add("a", 1);
    keys.add("b", 3);
    EXPECT_FALSE(keys.empty());
    EXPECT_EQ(keys.position("a"), 1);
    EXPECT_EQ(keys.position("b"), 3);
}

TEST(CollectionKeys, AnEmptyKeyIsNone) {
    collectionKeys keys;
    keys.add("", 1);
    keys.add("", 2);
    EXPECT_TRUE(keys.empty());
    EXPECT_EQ(failureNumber([&keys] { keys.position(""); }), 5);
}

TEST(CollectionKeys, AKeyIsGivenOnceAndAnUnknownOneLeadsNowhere) {
    collectionKeys keys;
    keys.add("a", 1);
    EXPECT_EQ(failureNumber([&keys] { keys.add("a", 2); }), 5);
    EXPECT_EQ(keys.position("a"), 1);
    EXPECT_EQ(failureNumber([&keys] { keys.position("A"); }), 5);
}

TEST(CollectionKeys, FollowTheirItemsWhenOthersLeave) {
    collectionKeys keys;
    keys.add("a", 1);
    keys.add("c", 3);
    keys.add("e", 5);
    keys.removed(2); // an item without a key
    EXPECT_EQ(keys.position("a"), 1);
    EXPECT_EQ(keys.position("c"), 2);
    EXPECT_EQ(keys.position("e"), 4);
    keys.removed(2);
    EXPECT_EQ(failureNumber([&keys] { keys.position("c"); }), 5);
    EXPECT_EQ(keys.position("e"), 3);
    keys.add("c", 9); // free again
    keys.clear();
    EXPECT_TRUE(keys.empty());
}

} // namespace
} // namespace boulix
