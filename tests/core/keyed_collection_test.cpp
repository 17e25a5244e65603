#include "core/keyed_collection.h"

#include <gtest/gtest.h>

namespace zolt {
namespace {

TEST(KeyedCollection, PositionsCountFromOneAndKeysIgnoreCase) {
    KeyedCollection<int> list;
    EXPECT_TRUE(list.Add(10, "MAIN"));
    EXPECT_TRUE(list.Add(20));
    EXPECT_TRUE(list.Add(30, "Net1"));
    EXPECT_FALSE(list.Add(40, "NET1")) << "keys are unique without regard to case";
    EXPECT_EQ(list.Count(), 3u);
    EXPECT_EQ(*list.Item(1), 10);
    EXPECT_EQ(list.Item(0), nullptr);
    EXPECT_EQ(list.Item(4), nullptr);
    EXPECT_EQ(*list.Item("net1"), 30);
    EXPECT_EQ(list.PositionOf("NET1"), 3u);
    EXPECT_EQ(list.PositionOf("none"), 0u);
}

TEST(KeyedCollection, AddsBeforeAPositionAndRemovesByKeyOrPosition) {
    KeyedCollection<int> list;
    list.Add(1, "a");
    list.Add(3, "c");
    list.Add(2, "b", 2);
    EXPECT_EQ(*list.Item(2), 2);
    EXPECT_EQ(list.Remove("A"), 1);
    EXPECT_EQ(list.Remove(5), std::nullopt);
    EXPECT_EQ(list.Remove(2), 3);
    EXPECT_EQ(list.Count(), 1u);
    EXPECT_EQ(*list.KeyAt(1), "b");
}

} // namespace
} // namespace zolt
