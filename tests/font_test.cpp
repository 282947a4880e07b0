#include "vorlex/Font.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "error_matchers.h"
#include "vorlex/Automation.h"
#include "vorlex/Picture.h"

using namespace vorlex;

TEST(Font, NewFontIsMsSansSerif825) {
  const Font font;
  EXPECT_EQ(font.Name(), "MS Sans Serif");
  EXPECT_DOUBLE_EQ(font.Size(), 8.25);
  EXPECT_FALSE(font.Bold());
  EXPECT_EQ(font.Weight(), 400);
  EXPECT_FALSE(font.Italic());
  EXPECT_FALSE(font.Underline());
  EXPECT_FALSE(font.Strikethrough());
}

TEST(Font, SizeKeepsFourDecimalsRoundedHalfToEven) {
  Font font;
  font.SetSize(9.123456);
  EXPECT_DOUBLE_EQ(font.Size(), 9.1235);
  font.SetSize(8.00025);  // 80002.5 ten-thousandths: ties to even
  EXPECT_DOUBLE_EQ(font.Size(), 8.0002);
  font.SetSize(0.00035);  // 3.5 ten-thousandths
  EXPECT_DOUBLE_EQ(font.Size(), 0.0004);
}

TEST(Font, SizeBeyondTheCurrencyRangeOverflows) {
  Font font;
  EXPECT_AUTOMATION_ERROR(font.SetSize(1e16), kErrOverflow);
  EXPECT_DOUBLE_EQ(font.Size(), 8.25);
}

TEST(Font, BoldFollowsTheWeight) {
  Font font;
  font.SetBold(true);
  EXPECT_EQ(font.Weight(), 700);
  font.SetWeight(600);
  EXPECT_TRUE(font.Bold());
  font.SetWeight(550);
  EXPECT_FALSE(font.Bold());
  font.SetBold(false);
  EXPECT_EQ(font.Weight(), 400);
}

TEST(Picture, EmptyPictureHasNoTypeHandleOrSize) {
  const PicturePtr picture = EmptyPicture();
  EXPECT_EQ(picture->Type(), kPicTypeNone);
  EXPECT_EQ(picture->Handle(), 0u);
  EXPECT_EQ(picture->PixelWidth(), 0);
  EXPECT_EQ(picture->PixelHeight(), 0);
}

namespace {
// Records what its font looked like at each change.
class RecordingPeer : public ObjectPeer {
 public:
  explicit RecordingPeer(std::vector<std::string>* seen, bool* destroyed) : seen_(seen), destroyed_(destroyed) {}
  ~RecordingPeer() override { *destroyed_ = true; }
  void ObjectChanged(const Object& object) override {
    const auto& font = dynamic_cast<const Font&>(object);
    seen_->push_back(font.Name() + " " + std::to_string(font.Weight()) + (font.Italic() ? " italic" : ""));
  }

 private:
  std::vector<std::string>* seen_;
  bool* destroyed_;
};
}  // namespace

TEST(Font, APeerHearsOfEveryChangeAfterItIsMade) {
  std::vector<std::string> seen;
  bool destroyed = false;
  {
    Font font;
    font.SetPeer(std::make_unique<RecordingPeer>(&seen, &destroyed));
    font.SetName("Arial");
    font.SetBold(true);
    font.SetItalic(true);
    font.SetSize(12);
    font.SetUnderline(true);
    font.SetStrikethrough(true);
    font.SetCharset(2);
    ASSERT_EQ(seen.size(), 7u);
    EXPECT_EQ(seen[0], "Arial 400");
    EXPECT_EQ(seen[1], "Arial 700");
    EXPECT_EQ(seen[2], "Arial 700 italic");
    EXPECT_FALSE(destroyed);
  }
  EXPECT_TRUE(destroyed);  // the peer lives as long as its object
}

TEST(Font, ReplacingThePeerDestroysTheOldOne) {
  std::vector<std::string> first;
  std::vector<std::string> second;
  bool firstGone = false;
  bool secondGone = false;
  Font font;
  font.SetPeer(std::make_unique<RecordingPeer>(&first, &firstGone));
  font.SetPeer(std::make_unique<RecordingPeer>(&second, &secondGone));
  EXPECT_TRUE(firstGone);
  font.SetWeight(600);
  EXPECT_TRUE(first.empty());
  EXPECT_EQ(second.size(), 1u);
  font.SetPeer(nullptr);
  EXPECT_TRUE(secondGone);
  EXPECT_EQ(font.Peer(), nullptr);
}

// Members reached through an object a property gives, as scripts write them.

TEST(ObjectMembers, FontMembersReadAndWriteTheSharedFont) {
  const auto font = std::make_shared<Font>();
  const Variant value{std::shared_ptr<Object>(font)};
  PutObjectMember(value, "name", Variant("Arial"));
  PutObjectMember(value, "SIZE", Variant(12.0));
  PutObjectMember(value, "Italic", Variant::Boolean(true));
  PutObjectMember(value, "Weight", Variant(int16_t{700}));
  EXPECT_EQ(font->Name(), "Arial");
  EXPECT_DOUBLE_EQ(font->Size(), 12.0);
  EXPECT_TRUE(font->Italic());
  EXPECT_TRUE(GetObjectMember(value, "Bold").ToBoolean());
  EXPECT_EQ(GetObjectMember(value, "Charset").ToInteger(), font->Charset());
}

TEST(ObjectMembers, AFontMemberChangeReachesThePeer) {
  struct Counter : ObjectPeer {
    int* changes;
    explicit Counter(int* c) : changes(c) {}
    void ObjectChanged(const Object&) override { ++*changes; }
  };
  int changes = 0;
  const auto font = std::make_shared<Font>();
  font->SetPeer(std::make_unique<Counter>(&changes));
  PutObjectMember(Variant(std::shared_ptr<Object>(font)), "Underline", Variant::Boolean(true));
  EXPECT_EQ(changes, 1);
}

TEST(ObjectMembers, NothingRaises91AndANonObjectRaises424) {
  EXPECT_AUTOMATION_ERROR(GetObjectMember(Variant(std::shared_ptr<Object>()), "Name"), 91);
  EXPECT_AUTOMATION_ERROR(PutObjectMember(Variant(int16_t{3}), "Name", Variant("x")), 424);
}

TEST(ObjectMembers, PictureMembersAreReadOnly) {
  const Variant picture{std::shared_ptr<Object>(EmptyPicture())};
  EXPECT_EQ(GetObjectMember(picture, "Type").ToInteger(), kPicTypeNone);
  EXPECT_EQ(GetObjectMember(picture, "Width").ToLong(), 0);
  EXPECT_AUTOMATION_ERROR(PutObjectMember(picture, "Height", Variant(int32_t{5})), 383);
  EXPECT_AUTOMATION_ERROR(GetObjectMember(picture, "Name"), 438);
}
