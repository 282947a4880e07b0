// Random controls saved as form text, loaded into fresh controls and saved
// again: the two texts are the same, and so is the state, except where saving
// and loading differ on purpose (a width of exactly 900 comes back as 315;
// DontRefreshAfterPropertyPage is not loaded).

#include <gtest/gtest.h>

#include <random>

#include "control_state.h"
#include "form_fixture.h"
#include "samples.h"
#include "vorlex/BagStream.h"

namespace vorlex::persist_test {
namespace {

#if defined(NDEBUG) && !defined(_WIN32)
constexpr int kStates = 2000;
#else
// Unoptimised and sanitized builds, and Windows builds, whose containers each
// cost real GDI calls (slow under Wine).
constexpr int kStates = 300;
#endif

class RandomControl {
 public:
  explicit RandomControl(uint32_t seed) : rng_(seed) {
    for (const picture_test::Bytes& bytes : {picture_test::Bmp3x2(), picture_test::Icon4x4(), picture_test::Gif4x3(),
                                             picture_test::Png3x1(), picture_test::Jpeg16x8()}) {
      pictures_.push_back(LoadPictureFromMemory(bytes.data(), bytes.size()));
    }
  }

  void Fill(Vorlex& c, HeadlessSite& site) {
    site.SetClientSize(Int(1, 400), Int(1, 100));
    // Random values need not draw: painting stays off until the end.
    c.put_Redraw(VARIANT_FALSE);
    site.SetUserMode(false);
    c.put_DontRefreshAfterPropertyPage(Bool());
    const int blocks = Int(0, 6);
    for (int i = 1; i <= blocks; ++i) FillBlock(c, Variant(static_cast<int16_t>(i)), site);
    c.put_IndexBlock(Short());
    c.put_BackColor(Color());
    c.put_ForeColor(Color());
    c.put_Enabled(Bool());
    c.putref_Font(OneOf(2) ? site.AmbientFont() : RandomFont());
    c.put_BorderWidth(Short());
    c.put_BorderStyle(Long());
    c.put_HMinValue(Short());
    c.put_HMaxValue(Short());
    c.put_VMinValue(Short());
    c.put_VMaxValue(Short());
    c.put_BrushStyle(Long());
    c.put_BrushColor(Color());
    c.put_Caption(Text());
    c.put_CaptionAlignment(Long());
    c.put_DisabledColor(Color());
    c.put_Orientation(Long());
    c.put_CaptionOffset(Short());
    c.put_CaptionAngle(Short());
    c.put_CaptionAutoAngle(Long());
    c.put_CaptionFont3D(Long());
    c.put_TimerTimeInterval(Int(1, 100000));
    c.put_TimerTimeEnabled(Bool());
    c.put_TimerDiskInterval(Int(1, 100000));
    c.put_TimerDiskEnabled(Bool());
    c.put_RivetsStyle(Long());
    c.put_GradientStyle(Long());
    c.put_GradientColor(Color());
    c.put_GradientColorEnd(Color());
    c.put_GradientGranularity(Long());
    c.putref_Picture(RandomPicture());
    c.put_PictureAutoSize(Long());
    c.put_PictureTile(Long());
    c.put_PictureOffset(Short());
    c.put_PictureAlignment(Long());
    try {
      c.put_Redraw(Bool());
    } catch (const AutomationError&) {
      // The value is stored before the redraw that random values may fail.
    }
    site.SetUserMode(true);
  }

 private:
  void FillBlock(Vorlex& c, const Variant& b, HeadlessSite& site) {
    c.AddBlock();
    // Some blocks keep every default, with the container's font.
    if (OneOf(5)) return c.put_BlockTextFont(site.AmbientFont(), b);
    c.put_BlockKey(Text(), b);
    c.put_BlockBarLeft(Short(), b);
    c.put_BlockBarRight(Short(), b);
    c.put_BlockBarTop(Short(), b);
    c.put_BlockBarBottom(Short(), b);
    c.put_BlockShapeStyle(Short(), b);
    c.put_BlockBorderStyle(Short(), b);
    c.put_BlockBorderWidth(Short(), b);
    c.put_BlockBrushStyle(Short(), b);
    c.put_BlockBrushColor(Color(), b);
    c.put_BlockVisible(Bool(), b);
    c.put_BlockHPercentage(OneOf(3) ? std::string("0") : Text(), b);
    c.put_BlockVPercentage(OneOf(3) ? std::to_string(Int(0, 100)) : Text(), b);
    c.put_BlockOnTop(Bool(), b);
    c.put_BlockColor(Color(), b);
    c.put_BlockGradientStyle(Short(), b);
    c.put_BlockGradientGranularity(Short(), b);
    c.put_BlockGradientColor(Color(), b);
    c.put_BlockGradientColorEnd(Color(), b);
    c.put_BlockText(Text(), b);
    c.put_BlockTextColor(Color(), b);
    c.put_BlockTextAlignment(Short(), b);
    c.put_BlockTextFont(OneOf(3) ? site.AmbientFont() : RandomFont(), b);
    c.put_BlockTextFont3D(Short(), b);
    c.put_BlockTextOffset(Short(), b);
    c.put_BlockTextAngle(Short(), b);
    c.put_BlockTextAutoAngle(Short(), b);
    c.put_BlockRivetsStyle(Short(), b);
    c.putref_BlockPicture(RandomPicture(), b);
    c.put_BlockPictureOffset(Short(), b);
    c.put_BlockPictureAlignment(Short(), b);
    c.put_BlockPictureTile(Short(), b);
    c.put_BlockClickable(Bool(), b);
    c.put_BlockAutoSize(Bool(), b);
  }

  int Int(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng_); }
  bool OneOf(int n) { return Int(1, n) == 1; }
  // Small values and defaults often, the whole range sometimes.
  int16_t Short() {
    if (OneOf(3)) return static_cast<int16_t>(Int(-1, 3));
    return static_cast<int16_t>(Int(-32768, 32767));
  }
  int32_t Long() {
    if (OneOf(3)) return Int(-1, 3);
    return static_cast<int32_t>(rng_());
  }
  OLE_COLOR Color() {
    if (OneOf(4)) return 0x808080;
    return static_cast<OLE_COLOR>(rng_());
  }
  VARIANT_BOOL Bool() { return OneOf(2) ? VARIANT_TRUE : VARIANT_FALSE; }
  std::string Text() {
    static const std::vector<std::string> pieces = {"a",   "Z", " ",  "\"", "'",    "=",  "!h%!", "&H10&",
                                                    "0",   "é", "€",  "\t", "\r\n", "\n", "End",  "Begin",
                                                    "(1)", ":", "\\", "$",  "'x'",  "  "};
    std::string text;
    const int n = OneOf(4) ? 0 : Int(1, 6);
    for (int i = 0; i < n; ++i) text += pieces[static_cast<size_t>(Int(0, static_cast<int>(pieces.size()) - 1))];
    return text;
  }
  FontPtr RandomFont() {
    static const char* names[] = {"Arial", "MS Sans Serif", "Courier New", "Times New Roman", "Tahoma"};
    auto font = std::make_shared<Font>(names[Int(0, 4)], Int(10000, 720000) / 10000.0);
    font->SetWeight(static_cast<int16_t>(Int(0, 9) * 100));
    font->SetCharset(static_cast<int16_t>(Int(0, 255)));
    font->SetItalic(OneOf(2));
    font->SetUnderline(OneOf(2));
    font->SetStrikethrough(OneOf(2));
    return font;
  }
  PicturePtr RandomPicture() {
    const int pick = Int(0, static_cast<int>(pictures_.size()) + 1);
    if (pick == 0) return nullptr;
    if (pick == 1) return EmptyPicture();
    return pictures_[static_cast<size_t>(pick - 2)];
  }

  std::mt19937 rng_;
  std::vector<PicturePtr> pictures_;
};

// The state a load should give: the saved one with the kept differences.
std::vector<std::string> ExpectedAfterLoad(std::vector<std::string> state) {
  for (std::string& line : state) {
    if (line == "OuterWidth = 900") line = "OuterWidth = 315";
    if (line.rfind("DontRefreshAfterPropertyPage = ", 0) == 0) line = "DontRefreshAfterPropertyPage = 0";
  }
  return state;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  size_t start = 0;
  for (size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2) {
    lines.push_back(text.substr(start, end - start));
  }
  lines.push_back(text.substr(start));
  return lines;
}

// The text the loaded control saves: no DontRefreshAfterPropertyPage, and a
// control saved exactly 900 wide is now 315 wide.
std::vector<std::string> ExpectedTextAfterLoad(const std::string& saved, int32_t savedWidth) {
  std::vector<std::string> lines;
  for (const std::string& line : Lines(saved)) {
    if (line.rfind("   DontRefreshAfterPropertyPage=", 0) == 0) continue;
    if (savedWidth == 900 && line.rfind("   BackColor ", 0) == 0) lines.push_back("   Width           =   315");
    lines.push_back(line);
  }
  return lines;
}

TEST_F(FormTest, RandomControlsRoundTripThroughFormText) {
  RandomControl random(20240611);
  const std::string path = folder.PathOf("random.frm");
  for (int n = 0; n < kStates; ++n) {
    HeadlessSite first;
    Vorlex original(first);
    original.InitProperties();
    random.Fill(original, first);
    const std::string text = SaveFormText(original, "Vorlex1", path);

    std::vector<FormControl> forms = ReadFormText(text, path);
    ASSERT_EQ(forms.size(), 1u) << text;
    HeadlessSite second;
    Vorlex loaded(second);
    ApplyForm(loaded, forms[0], path);
    ASSERT_EQ(Lines(SaveFormText(loaded, "Vorlex1", path)), ExpectedTextAfterLoad(text, first.OuterWidthTwips()))
        << "state " << n;
    ASSERT_EQ(ControlState(loaded, second), ExpectedAfterLoad(ControlState(original, first))) << "state " << n;
  }
}

TEST_F(FormTest, RandomControlsRoundTripThroughTheBinaryBagStream) {
  RandomControl random(20261124);
  for (int n = 0; n < kStates / 4; ++n) {
    HeadlessSite first;
    Vorlex original(first);
    original.InitProperties();
    random.Fill(original, first);
    MemoryPropertyBag saved;
    original.UserControl_WriteProperties(saved);
    const std::vector<uint8_t> stream = WriteBagStream(saved);

    MemoryPropertyBag read = ReadBagStream(stream.data(), stream.size());
    ASSERT_EQ(WriteBagStream(read), stream) << "state " << n;
    HeadlessSite second;
    Vorlex loaded(second);
    loaded.UserControl_ReadProperties(read);
    ASSERT_EQ(ControlState(loaded, second), ExpectedAfterLoad(ControlState(original, first))) << "state " << n;
  }
}

TEST_F(FormTest, ControlExactly900WideIsTheOnlyWidthThatChanges) {
  site.SetClientSize(60, 21);  // 900 x 315 twips
  control.InitProperties();
  const std::string path = folder.PathOf("w.frm");
  std::vector<FormControl> forms = ReadFormText(SaveFormText(control, "V", path), path);
  HeadlessSite wide(300, 40);
  Vorlex loaded(wide);
  ApplyForm(loaded, forms.at(0), path);
  EXPECT_EQ(wide.OuterWidthTwips(), 315);
  EXPECT_EQ(wide.OuterHeightTwips(), 315);
}

}  // namespace
}  // namespace vorlex::persist_test
