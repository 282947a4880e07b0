// The bag's rule for what it keeps, and the bag in memory.

#include <gtest/gtest.h>

#include <memory>

#include "vorlex/Font.h"
#include "vorlex/Picture.h"
#include "vorlex/PropertyBag.h"

namespace vorlex {
namespace {

Variant Obj(std::shared_ptr<Object> o) { return Variant(std::move(o)); }

TEST(EqualsDefaultTest, NumbersCompareByValueWhateverTheirWidth) {
  EXPECT_TRUE(EqualsDefault(Variant(int16_t{3}), Variant(int32_t{3})));
  EXPECT_TRUE(EqualsDefault(Variant(900.0f), Variant(int16_t{900})));
  EXPECT_FALSE(EqualsDefault(Variant(int32_t{4}), Variant(int16_t{3})));
  EXPECT_TRUE(EqualsDefault(Variant::Boolean(true), Variant::Boolean(VARIANT_TRUE)));
  EXPECT_FALSE(EqualsDefault(Variant::Boolean(VARIANT_BOOL{1}), Variant::Boolean(VARIANT_TRUE)));
}

TEST(EqualsDefaultTest, TextComparesWithTheDefaultsText) {
  EXPECT_TRUE(EqualsDefault(Variant("0"), Variant(int16_t{0})));
  EXPECT_FALSE(EqualsDefault(Variant("00"), Variant(int16_t{0})));
  EXPECT_FALSE(EqualsDefault(Variant(" 0"), Variant(int16_t{0})));
  EXPECT_TRUE(EqualsDefault(Variant(""), Variant(std::string())));
  EXPECT_FALSE(EqualsDefault(Variant("a"), Variant("A")));
}

TEST(EqualsDefaultTest, ObjectsCompareByIdentity) {
  auto a = std::make_shared<Font>();
  auto b = std::make_shared<Font>();
  EXPECT_TRUE(EqualsDefault(Obj(a), Obj(a)));
  EXPECT_FALSE(EqualsDefault(Obj(a), Obj(b)));
  EXPECT_FALSE(EqualsDefault(Obj(a), Obj(nullptr)));
  EXPECT_TRUE(EqualsDefault(Obj(nullptr), Obj(nullptr)));
  EXPECT_FALSE(EqualsDefault(Obj(nullptr), Variant(int16_t{0})));
}

TEST(EqualsDefaultTest, EmptyPictureCountsAsNoPicture) {
  EXPECT_TRUE(EqualsDefault(Obj(EmptyPicture()), Obj(nullptr)));
}

TEST(MemoryPropertyBagTest, KeepsOnlyValuesThatDifferFromTheirDefaultsInWriteOrder) {
  MemoryPropertyBag bag;
  bag.WriteProperty("B", Variant(int16_t{2}), Variant(int16_t{0}));
  bag.WriteProperty("Same", Variant(int16_t{5}), Variant(int32_t{5}));
  bag.WriteProperty("A", Variant("x"), Variant(""));
  ASSERT_EQ(bag.Size(), 2u);
  const std::vector<PropertyEntry> entries = bag.Entries();
  EXPECT_EQ(entries[0].name, "B");
  EXPECT_EQ(entries[1].name, "A");
  EXPECT_EQ(bag.ReadProperty("B", Variant(int16_t{0})), Variant(int16_t{2}));
  EXPECT_EQ(bag.ReadProperty("Same", Variant(int32_t{7})), Variant(int32_t{7}));
  EXPECT_EQ(bag.LastRead(), "Same");
}

TEST(MemoryPropertyBagTest, WritingTheDefaultAgainForgetsTheKey) {
  MemoryPropertyBag bag;
  bag.WriteProperty("K", Variant(int16_t{2}), Variant(int16_t{0}));
  bag.WriteProperty("K", Variant(int16_t{0}), Variant(int16_t{0}));
  EXPECT_EQ(bag.Find("K"), nullptr);
  EXPECT_EQ(bag.Size(), 0u);
  bag.WriteProperty("K", Variant(int16_t{9}), Variant(int16_t{0}));
  EXPECT_EQ(bag.Find("K")->value, Variant(int16_t{9}));
  EXPECT_EQ(bag.Entries().size(), 1u);
}

}  // namespace
}  // namespace vorlex
