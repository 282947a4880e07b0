// Reading form text: the syntax Visual Basic writes, whole form files, the
// shipped dashboard scene, pictures beside the form and in .frx records.

#include <gtest/gtest.h>

#include "form_fixture.h"
#include "persist/frx_record.h"
#include "samples.h"

namespace vorlex::persist_test {
namespace {

using picture_test::Bmp3x2;
using picture_test::Icon4x4;

Variant N(int n) { return Variant(static_cast<int16_t>(n)); }

TEST_F(FormTest, ReadsTheDashboardScene) {
  const std::string path = std::string(VORLEX_TEST_DATA) + "/dashboard.frm";
  std::vector<FormControl> forms = LoadForm(path);
  ASSERT_EQ(forms.size(), 1u);
  EXPECT_EQ(forms[0].name, "Dashboard");
  EXPECT_EQ(forms[0].line, 2);
  ApplyForm(control, forms[0], path);
  EXPECT_EQ(control.get_Blocks(), 32);
  EXPECT_EQ(site.OuterWidthTwips(), 12000);
  EXPECT_EQ(site.OuterHeightTwips(), 960);
  EXPECT_EQ(control.get_BlockKey(N(1)), "b1");
  EXPECT_EQ(control.get_BlockBarRight(N(1)), 3);
  EXPECT_EQ(control.get_BlockBarTop(N(1)), 90);
  EXPECT_EQ(control.get_BlockBorderWidth(N(1)), 2);
  EXPECT_EQ(control.get_BlockBrushColor(N(1)), 0x404040u);
  EXPECT_EQ(control.get_BlockColor(N(1)), 0x00FF00u);
  EXPECT_EQ(control.get_BlockText(N(1)), "!h%!");
  EXPECT_EQ(control.get_BlockTextColor(N(1)), 0xFFFFFFu);
  EXPECT_EQ(control.get_BlockTextFont(N(1))->Name(), "MS Sans Serif");
  EXPECT_EQ(control.get_BlockTextFont(N(1))->Size(), 8.25);
  EXPECT_EQ(control.get_BlockTextFont(N(4))->Weight(), 700);
  EXPECT_EQ(control.get_BlockRivetsStyle(N(4)), 1);
  EXPECT_EQ(control.get_BlockOnTop(N(18)), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockTextAngle(N(18)), 90);
  EXPECT_EQ(control.get_BlockShapeStyle(N(23)), 1);
  EXPECT_EQ(control.get_BlockKey(N(32)), "b32");
  EXPECT_EQ(control.get_BlockBarRight(N(32)), 96);
  // Keys the scene leaves out load their defaults.
  EXPECT_EQ(control.get_BlockVisible(N(7)), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockHPercentage(N(7)), "0");
  EXPECT_EQ(control.get_Caption(), "Vorlex dashboard");
  EXPECT_EQ(control.get_BorderStyle(), 6);
  EXPECT_EQ(control.get_BorderWidth(), 2);
  EXPECT_EQ(control.get_CaptionFont3D(), 1);
  EXPECT_EQ(control.get_GradientStyle(), 9);
  EXPECT_EQ(control.get_GradientColor(), 0xE0E0E0u);
  EXPECT_EQ(control.get_GradientColorEnd(), 0x808080u);
  EXPECT_EQ(control.get_RivetsStyle(), 3);
  EXPECT_EQ(control.get_HMaxValue(), 100);
  EXPECT_EQ(control.get_Font()->Name(), "MS Sans Serif");
}

TEST_F(FormTest, FindsEveryVorlexControlOfAWholeFormAndSkipsTheOthers) {
  const std::string text = Crlf({
      "VERSION 5.00",
      "Object = \"{11111111-2222-3333-4444-555555555555}#1.0#0\"; \"Vorlex.ocx\"",
      "Begin VB.Form Form1 ",
      "   Caption         =   \"Begin VorlexLib.Vorlex Fake\"",
      "   ClientHeight    =   3195",
      "   Picture         =   \"Form1.frx\":0000",
      "   BeginProperty Font ",
      "      Name            =   \"Tahoma\"",
      "      Size            =   9.75",
      "      BogusMember     =   what ever",
      "   EndProperty",
      "   Begin VB.CommandButton Command1 ",
      "      Caption         =   \"End",  // unterminated, but not ours to read
      "      Height          =   495",
      "   End",
      "   Begin VorlexLib.Vorlex Vorlex1 ",
      "      Height          =   600",
      "      Width           =   3000",
      "      Blocks          =   1",
      "      Block.Key(1)    =   \"first\"",
      "      Caption         =   \"one\"",
      "   End",
      "   Begin VB.Frame Frame1 ",
      "      BeginProperty Panels {8E3867A5-8586-11D1-B16A-00C0F0283628} ",
      "         NumPanels       =   1",
      "         BeginProperty Panel1 {8E3867AB-8586-11D1-B16A-00C0F0283628} ",
      "         EndProperty",
      "      EndProperty",
      "      Begin VorlexLib.Vorlex Vorlex2 ",
      "         Blocks          =   2",
      "         Block.Key(2)    =   \"second\"",
      "         Caption         =   \"two\"",
      "      End",
      "   End",
      "End",
      "Attribute VB_Name = \"Form1\"",
      "Attribute VB_GlobalNameSpace = False",
      "Private Sub Command1_Click()",
      "    If x Then Caption = \"it's",
      "    End If",
      "End Sub",
  });
  std::vector<FormControl> forms = LoadForm(WriteForm("Form1.frm", text));
  ASSERT_EQ(forms.size(), 2u);
  EXPECT_EQ(forms[0].name, "Vorlex1");
  EXPECT_EQ(forms[0].line, 16);
  EXPECT_EQ(forms[1].name, "Vorlex2");
  EXPECT_EQ(forms[1].line, 29);
  ApplyForm(control, forms[0]);
  EXPECT_EQ(control.get_Caption(), "one");
  EXPECT_EQ(control.get_BlockKey(N(1)), "first");
  EXPECT_EQ(site.OuterWidthTwips(), 3000);

  HeadlessSite site2;
  Vorlex second(site2);
  ApplyForm(second, forms[1]);
  EXPECT_EQ(second.get_Caption(), "two");
  EXPECT_EQ(second.get_Blocks(), 2);
  EXPECT_EQ(second.get_BlockKey(N(2)), "second");
  EXPECT_EQ(site2.OuterWidthTwips(), 315);
}

TEST_F(FormTest, FormWithoutVorlexControlsGivesNone) {
  const std::string text = Crlf({"VERSION 5.00", "Begin VB.Form Form1", "   Caption = \"x\"", "End"});
  EXPECT_TRUE(LoadForm(WriteForm("empty.frm", text)).empty());
}

TEST_F(FormTest, AcceptsTheWaysVisualBasicWritesValues) {
  const std::string text =
      "VERSION 5.00\n"
      "Begin VorlexLib.Vorlex V\n"
      "   Blocks          =   2   ' two of them\n"
      "   Block.Key(1)=\"say \"\"hi\"\"\"\n"
      "   Block.Text(1)   =   \"it's 'quoted'\"   'a comment after a string\n"
      "   Block.Visible(1)=   0   'False\n"
      "   Block.OnTop(1)  =   True\n"
      "   Block.Clickable(1)=   False\n"
      "   Block.Color(1)  =   &H000000FF&\n"
      "   Block.BrushColor(1)= &HFF\n"
      "   Block.TextColor(1)=   &hff00&\n"
      "   Block.BarTop(1) =   -7\n"
      "   Block.BarBottom(1)=  +5\n"
      "   Block.HPercentage(1)=   12\n"
      "   Block.Color(2)  =   16711680\n"
      "\tCaptionAngle\t=\t45\n"
      "   ForeColor       =   &H80000012&\n"
      "   BackColor       =   -2147483633\n"
      "   TimerTimeInterval=   1E+3\n"
      "   TimerDiskInterval=   2500.0\n"
      "   BorderWidth     =   3%\n"
      "End\n";
  LoadOnly(WriteForm("values.frm", text));
  EXPECT_EQ(control.get_Blocks(), 2);
  EXPECT_EQ(control.get_BlockKey(N(1)), "say \"hi\"");
  EXPECT_EQ(control.get_BlockText(N(1)), "it's 'quoted'");
  EXPECT_EQ(control.get_BlockVisible(N(1)), VARIANT_FALSE);
  EXPECT_EQ(control.get_BlockOnTop(N(1)), VARIANT_TRUE);
  EXPECT_EQ(control.get_BlockClickable(N(1)), VARIANT_FALSE);
  EXPECT_EQ(control.get_BlockColor(N(1)), 0xFFu);
  EXPECT_EQ(control.get_BlockBrushColor(N(1)), 0xFFu);
  EXPECT_EQ(control.get_BlockTextColor(N(1)), 0xFF00u);
  EXPECT_EQ(control.get_BlockBarTop(N(1)), -7);
  EXPECT_EQ(control.get_BlockBarBottom(N(1)), 5);
  EXPECT_EQ(control.get_BlockHPercentage(N(1)), "12");
  EXPECT_EQ(control.get_BlockColor(N(2)), 0xFF0000u);
  EXPECT_EQ(control.get_CaptionAngle(), 45);
  EXPECT_EQ(control.get_ForeColor(), 0x80000012u);
  EXPECT_EQ(control.get_BackColor(), 0x8000000Fu);
  EXPECT_EQ(control.get_TimerTimeInterval(), 1000);
  EXPECT_EQ(control.get_TimerDiskInterval(), 2500);
  EXPECT_EQ(control.get_BorderWidth(), 3);
}

TEST_F(FormTest, ShortHexNumbersAreSixteenBit) {
  // &HFFFF without the & suffix is the Integer -1, as in Basic.
  LoadOnly(
      WriteForm("hex.frm", "Begin VorlexLib.Vorlex V\n   CaptionOffset = &HFFFF\n   BorderStyle = &HFFFF&\nEnd\n"));
  EXPECT_EQ(control.get_CaptionOffset(), -1);
  EXPECT_EQ(control.get_BorderStyle(), 65535);
}

TEST_F(FormTest, ReadsFontBlocksWithEveryMember) {
  const std::string text = Crlf({
      "Begin VorlexLib.Vorlex V",
      "   Blocks          =   1",
      "   BeginProperty Block.TextFont(1) {0BE35203-8F91-11CE-9DE3-00AA004BB851} ",
      "      Name            =   \"Courier New\"",
      "      Size            =   12.75",
      "      Charset         =   238",
      "      Weight          =   700",
      "      Underline       =   -1  'True",
      "      Italic          =   -1  'True",
      "      Strikethrough   =   -1  'True",
      "   EndProperty",
      "   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851} ",
      "      Name            =   \"Arial\"",
      "   EndProperty",
      "End",
  });
  LoadOnly(WriteForm("font.frm", text));
  const FontPtr font = control.get_BlockTextFont(N(1));
  ASSERT_NE(font, nullptr);
  EXPECT_EQ(font->Name(), "Courier New");
  EXPECT_EQ(font->Size(), 12.75);
  EXPECT_EQ(font->Charset(), 238);
  EXPECT_EQ(font->Weight(), 700);
  EXPECT_TRUE(font->Bold());
  EXPECT_TRUE(font->Underline());
  EXPECT_TRUE(font->Italic());
  EXPECT_TRUE(font->Strikethrough());
  // Members a block leaves out keep the font object's own defaults.
  EXPECT_EQ(control.get_Font()->Name(), "Arial");
  EXPECT_EQ(control.get_Font()->Size(), 8.25);
  EXPECT_EQ(control.get_Font()->Weight(), 400);
}

TEST_F(FormTest, LoadsPicturesFromPathsRelativeToTheForm) {
  std::filesystem::create_directories(folder.path() / "art");
  folder.Write("art/gauge.bmp", Bmp3x2());
  folder.Write("icon.ico", Icon4x4());
  const std::string text = Crlf({
      "Begin VorlexLib.Vorlex V",
      "   Blocks          =   2",
      "   Block.Picture(1)=   \"art/gauge.bmp\"",
      "   Block.Picture(2)=   \"art/gauge.bmp\"",
      "   Picture         =   \"icon.ico\"",
      "End",
  });
  LoadOnly(WriteForm("pictures.frm", text));
  const PicturePtr gauge = control.get_BlockPicture(N(1));
  ASSERT_NE(gauge, nullptr);
  EXPECT_EQ(gauge->Type(), kPicTypeBitmap);
  EXPECT_EQ(gauge->PixelWidth(), 3);
  EXPECT_EQ(gauge->PixelHeight(), 2);
  // One file, one shared object.
  EXPECT_EQ(control.get_BlockPicture(N(2)), gauge);
  ASSERT_NE(control.get_Picture(), nullptr);
  EXPECT_EQ(control.get_Picture()->Type(), kPicTypeIcon);
}

TEST_F(FormTest, LoadsPicturesFromResourceFileRecords) {
  // A text record first, so that the picture sits at an offset of its own.
  std::string frx = frx::MakeTextRecord("some long caption text");
  const size_t offset = frx.size();
  const Bytes bmp = Bmp3x2();
  frx += frx::MakePictureRecord(std::string(bmp.begin(), bmp.end()));
  folder.Write("Form1.frx", TextBytes(frx));
  char line[80];
  std::snprintf(line, sizeof line, "   Picture         =   \"Form1.frx\":%04zX", offset);
  const std::string text = Crlf({"Begin VorlexLib.Vorlex V", line, "   Caption = $\"Form1.frx\":0000", "End"});
  LoadOnly(WriteForm("Form1.frm", text));
  ASSERT_NE(control.get_Picture(), nullptr);
  EXPECT_EQ(control.get_Picture()->PixelWidth(), 3);
  EXPECT_EQ(control.get_Picture()->SaveAsFile(), bmp);
  EXPECT_EQ(control.get_Caption(), "some long caption text");
}

TEST_F(FormTest, KeepsPictureRecordsOfKeysTheControlDoesNotRead) {
  const Bytes icon = Icon4x4();
  folder.Write("Form1.frx", TextBytes(frx::MakePictureRecord(std::string(icon.begin(), icon.end()))));
  const std::string text =
      Crlf({"Begin VorlexLib.Vorlex V", "   _ExtentX        =   1588", "   Left            =   120",
            "   MouseIcon       =   \"Form1.frx\":0000", "   Caption         =   \"ok\"", "End"});
  std::vector<FormControl> forms = LoadForm(WriteForm("Form1.frm", text));
  ASSERT_EQ(forms.size(), 1u);
  const PropertyEntry* mouseIcon = forms[0].bag.Find("MouseIcon");
  ASSERT_NE(mouseIcon, nullptr);
  EXPECT_TRUE(mouseIcon->value.IsObject());
  ApplyForm(control, forms[0]);
  EXPECT_EQ(control.get_Caption(), "ok");
}

TEST_F(FormTest, PictureRecordLayoutIsSizeSignatureLengthThenBytes) {
  const std::string record = frx::MakePictureRecord("abc");
  EXPECT_EQ(record, std::string("\x0B\0\0\0lt\0\0\x03\0\0\0abc", 15));
  EXPECT_EQ(frx::PictureRecord(record, 0), "abc");
  EXPECT_EQ(frx::MakeTextRecord("hi"), std::string("\x02\0\0\0hi", 6));
}

TEST_F(FormTest, ReadsLfAndCrlfAlike) {
  const std::string lf = "Begin VorlexLib.Vorlex V\n   Caption = \"x\"\n   BorderWidth = 4\nEnd\n";
  std::string crlf;
  for (const char c : lf) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  std::vector<FormControl> a = ReadFormText(lf, "a.frm");
  std::vector<FormControl> b = ReadFormText(crlf, "b.frm");
  ASSERT_EQ(a.size(), 1u);
  ASSERT_EQ(b.size(), 1u);
  EXPECT_EQ(a[0].bag.Find("Caption")->value, Variant("x"));
  EXPECT_EQ(b[0].bag.Find("Caption")->value, Variant("x"));
  EXPECT_EQ(b[0].bag.Find("BorderWidth")->value, Variant(int16_t{4}));
  EXPECT_EQ(b[0].bag.Find("BorderWidth")->line, 3);
}

}  // namespace
}  // namespace vorlex::persist_test
