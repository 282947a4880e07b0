// Malformed forms: each is refused with the file, the line and the problem,
// and nothing of it reaches a control.

#include <gtest/gtest.h>

#include "control_state.h"
#include "form_fixture.h"
#include "persist/frx_record.h"
#include "samples.h"

namespace vorlex::persist_test {
namespace {

class FormErrorTest : public FormTest {
 protected:
  // Writes the lines as a form and expects LoadForm to refuse it at `line`
  // with a problem that contains `problem`.
  void ExpectRefused(std::initializer_list<const char*> lines, int line, const std::string& problem) {
    const std::string path = WriteForm("bad.frm", Crlf(lines));
    const FormError e = ErrorOf([&] { LoadForm(path); });
    EXPECT_EQ(e.File(), path);
    EXPECT_EQ(e.Line(), line);
    EXPECT_NE(e.Problem().find(problem), std::string::npos) << e.Problem();
    EXPECT_NE(std::string(e.what()).find(path + ":" + std::to_string(line) + ": "), std::string::npos) << e.what();
  }
};

TEST_F(FormErrorTest, BadDecimalNumber) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Blocks = 1", "   BorderWidth = 12x", "End"}, 3, "bad number");
}

TEST_F(FormErrorTest, BadHexadecimalNumber) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   BackColor = &HZZ&", "End"}, 2, "bad number");
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   BackColor = &H123456789&", "End"}, 2, "bad number");
}

TEST_F(FormErrorTest, ValueThatIsNoValue) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Caption = hello", "End"}, 2, "bad value");
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Caption =   ", "End"}, 2, "missing value");
}

TEST_F(FormErrorTest, LineWithoutEquals) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Caption \"x\"", "End"}, 2, "expected Key = value");
}

TEST_F(FormErrorTest, UnterminatedString) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Caption = \"never closed", "End"}, 2, "unterminated string");
}

TEST_F(FormErrorTest, TextAfterTheValue) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Caption = \"a\" \"b\"", "End"}, 2, "unexpected text");
}

TEST_F(FormErrorTest, MissingEnd) {
  ExpectRefused({"VERSION 5.00", "Begin VorlexLib.Vorlex Vorlex1", "   Caption = \"x\""}, 2, "missing End");
}

TEST_F(FormErrorTest, MissingEndOfAnEnclosingControl) {
  ExpectRefused({"Begin VB.Form Form1", "   Begin VorlexLib.Vorlex V", "   End"}, 1, "missing End");
}

TEST_F(FormErrorTest, MissingEndProperty) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   BeginProperty Font", "      Name = \"Arial\"", "End"}, 4,
                "missing EndProperty");
}

TEST_F(FormErrorTest, EndPropertyWithoutBeginProperty) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   EndProperty", "End"}, 2, "EndProperty without BeginProperty");
}

TEST_F(FormErrorTest, UnknownFontMember) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}",
                 "      Name = \"Arial\"", "      Bold = -1", "   EndProperty", "End"},
                4, "unknown font member Bold");
}

TEST_F(FormErrorTest, FontMemberOfTheWrongKind) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   BeginProperty Font", "      Name = 12", "   EndProperty", "End"}, 3,
                "font Name");
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   BeginProperty Font", "      Weight = 99999", "   EndProperty", "End"},
                3, "font Weight");
}

TEST_F(FormErrorTest, MissingPictureFile) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Blocks = 1", "   Block.Picture(1) = \"nowhere.bmp\"", "End"}, 3,
                "picture file not found");
}

TEST_F(FormErrorTest, FileThatIsNoPicture) {
  folder.Write("notes.bmp", TextBytes("not a picture at all"));
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Picture = \"notes.bmp\"", "End"}, 2, "not a picture");
}

TEST_F(FormErrorTest, MissingResourceFile) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Picture = \"bad.frx\":0000", "End"}, 2, "resource file not found");
}

TEST_F(FormErrorTest, ResourceOffsetPastTheEnd) {
  const picture_test::Bytes bmp = picture_test::Bmp3x2();
  folder.Write("bad.frx", TextBytes(frx::MakePictureRecord(std::string(bmp.begin(), bmp.end()))));
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Picture = \"bad.frx\":1000", "End"}, 2, "past the end");
}

TEST_F(FormErrorTest, ResourceRecordCutShort) {
  std::string record = frx::MakePictureRecord(std::string(100, 'x'));
  record.resize(60);
  folder.Write("bad.frx", TextBytes(record));
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Picture = \"bad.frx\":0000", "End"}, 2, "runs past the end");
}

TEST_F(FormErrorTest, ResourceRecordWithoutPictureSignature) {
  folder.Write("bad.frx", TextBytes(frx::MakeTextRecord("just some text here")));
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Picture = \"bad.frx\":0000", "End"}, 2, "not a picture");
}

TEST_F(FormErrorTest, TextWhereANumberBelongs) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Blocks = 1", "   Block.BarTop(1) = \"high\"", "End"}, 3,
                "Block.BarTop(1): Type mismatch");
}

TEST_F(FormErrorTest, NumberTooWideForItsField) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   HMaxValue = 40000", "End"}, 2, "HMaxValue: Overflow");
}

TEST_F(FormErrorTest, MoreBlocksThanTheCounterCounts) {
  ExpectRefused({"Begin VorlexLib.Vorlex V", "   Blocks = 40000", "End"}, 2, "Blocks: Overflow");
}

TEST_F(FormErrorTest, FormThatCannotBeRead) {
  const std::string path = folder.PathOf("absent.frm");
  const FormError e = ErrorOf([&] { LoadForm(path); });
  EXPECT_EQ(e.File(), path);
  EXPECT_EQ(e.Line(), 0);
}

TEST_F(FormErrorTest, RefusedFormLeavesTheControlAsItWas) {
  control.InitProperties();
  control.AddBlock();
  control.put_Caption("before");
  const std::vector<std::string> before = ControlState(control, site);
  // The first control is fine; the second fails at its last key.
  const std::string path =
      WriteForm("half.frm", Crlf({"Begin VorlexLib.Vorlex A", "   Caption = \"a\"", "End", "Begin VorlexLib.Vorlex B",
                                  "   Blocks = 3", "   Caption = \"b\"", "   PictureOffset = \"x\"", "End"}));
  const FormError e = ErrorOf([&] {
    for (FormControl& form : LoadForm(path)) ApplyForm(control, form, path);
  });
  EXPECT_EQ(e.Line(), 7);
  EXPECT_EQ(ControlState(control, site), before);
}

}  // namespace
}  // namespace vorlex::persist_test
