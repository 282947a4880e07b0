// The binary form of a property bag: every kind of value comes back as it was
// written, and bytes that are not a whole stream of this version are refused
// with error 321, never half read.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "error_matchers.h"
#include "samples.h"
#include "vorlex/BagStream.h"
#include "vorlex/Font.h"
#include "vorlex/Picture.h"

namespace vorlex {
namespace {

MemoryPropertyBag EveryKind() {
  MemoryPropertyBag bag;
  bag.Put("Empty", Variant());
  bag.Put("Integer", Variant(int16_t{-1234}));
  bag.Put("Long", Variant(int32_t{16777215}));
  bag.Put("Single", Variant(1.5f));
  bag.Put("Double", Variant(-2.25));
  bag.Put("True", Variant::Boolean(true));
  bag.Put("Odd", Variant::Boolean(int16_t{1}));
  bag.Put("Text", Variant(std::string("Gr\xC3\xBC\xC3\x9F"
                                      "e\r\nline two")));
  auto font = std::make_shared<Font>("Arial", 12.5);
  font->SetItalic(true);
  font->SetStrikethrough(true);
  font->SetWeight(700);
  font->SetCharset(2);
  bag.Put("Font", Variant(std::shared_ptr<Object>(font)));
  const picture_test::Bytes bmp = picture_test::Bmp3x2();
  bag.Put("Picture", Variant(std::shared_ptr<Object>(LoadPictureFromMemory(bmp.data(), bmp.size()))));
  bag.Put("NoPicture", Variant(std::shared_ptr<Object>(EmptyPicture())));
  bag.Put("Nothing", Variant(std::shared_ptr<Object>()));
  return bag;
}

TEST(BagStream, EveryKindOfValueReadsBackAsWritten) {
  const MemoryPropertyBag bag = EveryKind();
  const std::vector<uint8_t> bytes = WriteBagStream(bag);
  const MemoryPropertyBag read = ReadBagStream(bytes.data(), bytes.size());
  const std::vector<PropertyEntry> written = bag.Entries();
  const std::vector<PropertyEntry> back = read.Entries();
  ASSERT_EQ(back.size(), written.size());
  for (size_t i = 0; i < back.size(); ++i) {
    SCOPED_TRACE(written[i].name);
    EXPECT_EQ(back[i].name, written[i].name);
    EXPECT_EQ(back[i].value.Type(), written[i].value.Type());
    if (!written[i].value.IsObject()) {
      EXPECT_EQ(back[i].value, written[i].value);
    }
  }
  EXPECT_EQ(read.Find("Odd")->value.ToInteger(), 1) << "a boolean keeps its stored bits";
  const auto font = std::dynamic_pointer_cast<Font>(read.Find("Font")->value.ToObject());
  ASSERT_NE(font, nullptr);
  EXPECT_EQ(font->Name(), "Arial");
  EXPECT_DOUBLE_EQ(font->Size(), 12.5);
  EXPECT_EQ(font->Weight(), 700);
  EXPECT_EQ(font->Charset(), 2);
  EXPECT_TRUE(font->Italic());
  EXPECT_FALSE(font->Underline());
  EXPECT_TRUE(font->Strikethrough());
  const auto picture = std::dynamic_pointer_cast<Picture>(read.Find("Picture")->value.ToObject());
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->PixelWidth(), 3);
  EXPECT_EQ(picture->PixelHeight(), 2);
  EXPECT_EQ(picture->SaveAsFile(), picture_test::Bmp3x2());
  const auto empty = std::dynamic_pointer_cast<Picture>(read.Find("NoPicture")->value.ToObject());
  ASSERT_NE(empty, nullptr);
  EXPECT_EQ(empty->Type(), kPicTypeNone);
  EXPECT_EQ(read.Find("Nothing")->value.ToObject(), nullptr);
}

TEST(BagStream, EmptyBagIsHeaderAndCountOnly) {
  const std::vector<uint8_t> bytes = WriteBagStream(MemoryPropertyBag());
  ASSERT_EQ(bytes.size(), kBagStreamHeaderSize + 4);
  EXPECT_EQ(std::string(bytes.begin(), bytes.begin() + 5), "VXBAG");
  EXPECT_EQ(bytes[5], 1);
  EXPECT_EQ(bytes[6], 0);
  EXPECT_EQ(BagStreamPayloadLength(bytes.data(), bytes.size()), 4u);
  EXPECT_EQ(ReadBagStream(bytes.data(), bytes.size()).Size(), 0u);
}

TEST(BagStream, EveryTruncationIsRefusedWith321) {
  const std::vector<uint8_t> bytes = WriteBagStream(EveryKind());
  for (size_t cut = 0; cut < bytes.size(); ++cut) {
    SCOPED_TRACE(cut);
    EXPECT_AUTOMATION_ERROR(ReadBagStream(bytes.data(), cut), 321);
  }
}

TEST(BagStream, BytesAfterThePayloadAreRefused) {
  std::vector<uint8_t> bytes = WriteBagStream(EveryKind());
  bytes.push_back(0);
  EXPECT_AUTOMATION_ERROR(ReadBagStream(bytes.data(), bytes.size()), 321);
}

TEST(BagStream, LaterVersionIsRefused) {
  std::vector<uint8_t> bytes = WriteBagStream(EveryKind());
  bytes[5] = 2;
  EXPECT_AUTOMATION_ERROR(BagStreamPayloadLength(bytes.data(), bytes.size()), 321);
  EXPECT_AUTOMATION_ERROR(ReadBagStream(bytes.data(), bytes.size()), 321);
}

TEST(BagStream, WrongMagicIsRefused) {
  std::vector<uint8_t> bytes = WriteBagStream(EveryKind());
  bytes[0] = 'W';
  EXPECT_AUTOMATION_ERROR(ReadBagStream(bytes.data(), bytes.size()), 321);
}

TEST(BagStream, UnknownKindIsRefused) {
  MemoryPropertyBag bag;
  bag.Put("A", Variant(int16_t{1}));
  std::vector<uint8_t> bytes = WriteBagStream(bag);
  // header, count, name length and "A", then the kind byte
  bytes[kBagStreamHeaderSize + 4 + 2 + 1] = 42;
  EXPECT_AUTOMATION_ERROR(ReadBagStream(bytes.data(), bytes.size()), 321);
}

TEST(BagStream, PictureBytesThatAreNoPictureAreRefusedWith481) {
  MemoryPropertyBag bag;
  const picture_test::Bytes bmp = picture_test::Bmp3x2();
  bag.Put("P", Variant(std::shared_ptr<Object>(LoadPictureFromMemory(bmp.data(), bmp.size()))));
  std::vector<uint8_t> bytes = WriteBagStream(bag);
  // the picture file starts after header, count, name, kind and length
  bytes[kBagStreamHeaderSize + 4 + 2 + 1 + 1 + 4] = 'X';
  EXPECT_AUTOMATION_ERROR(ReadBagStream(bytes.data(), bytes.size()), 481);
}

}  // namespace
}  // namespace vorlex
