// Writing form text: the layout, what is left out, pictures and long texts
// beside the form.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "form_fixture.h"
#include "persist/frx_record.h"
#include "platform/gdi.h"
#include "samples.h"

namespace vorlex::persist_test {
namespace {

Variant N(int n) { return Variant(static_cast<int16_t>(n)); }

std::string FileText(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

class FormWriterTest : public FormTest {
 protected:
  FormWriterTest() { control.InitProperties(); }
};

TEST_F(FormWriterTest, WritesKeysInOrderInTheLayoutVisualBasicUses) {
  site.SetClientSize(200, 40);
  control.AddBlock();
  control.put_BlockTextFont(site.AmbientFont(), N(1));
  control.put_BlockKey("say \"hi\"", N(1));
  control.put_BlockBarRight(40, N(1));
  control.put_BlockColor(0xFF, N(1));
  control.put_BlockOnTop(VARIANT_TRUE, N(1));
  control.put_BlockVisible(VARIANT_FALSE, N(1));
  control.put_BlockHPercentage("50", N(1));
  auto font = std::make_shared<Font>("Arial", 9.75);
  font->SetBold(true);
  font->SetItalic(true);
  control.putref_Font(font);
  control.put_Caption("Gauge");
  control.put_BorderStyle(0);
  control.put_TimerTimeInterval(250);
  const std::string text = SaveFormText(control, "Vorlex1", folder.PathOf("form.frm"));
  EXPECT_EQ(text, Crlf({
                      "VERSION 5.00",
                      "Begin VorlexLib.Vorlex Vorlex1",
                      "   Blocks          =   1",
                      "   Block.Key(1)    =   \"say \"\"hi\"\"\"",
                      "   Block.BarRight(1)=   40",
                      "   Block.Visible(1)=   0   'False",
                      "   Block.HPercentage(1)=   \"50\"",
                      "   Block.OnTop(1)  =   -1  'True",
                      "   Block.Color(1)  =   &H000000FF&",
                      "   Height          =   600",
                      "   Width           =   3000",
                      "   BeginProperty Font {0BE35203-8F91-11CE-9DE3-00AA004BB851}",
                      "      Name            =   \"Arial\"",
                      "      Size            =   9.75",
                      "      Charset         =   0",
                      "      Weight          =   700",
                      "      Underline       =   0   'False",
                      "      Italic          =   -1  'True",
                      "      Strikethrough   =   0   'False",
                      "   EndProperty",
                      "   BorderStyle     =   0",
                      "   Caption         =   \"Gauge\"",
                      "   TimerTimeInterval=   250",
                      "End",
                  }));
}

TEST_F(FormWriterTest, SavedTextReadsBackToTheSameBag) {
  control.AddBlock();
  control.put_BlockText("x", N(1));
  control.put_BackColor(0x8000000F);
  const std::string path = folder.PathOf("same.frm");
  const std::string text = SaveFormText(control, "V", path);
  MemoryPropertyBag written;
  control.UserControl_WriteProperties(written);
  std::vector<FormControl> read = ReadFormText(text, path);
  ASSERT_EQ(read.size(), 1u);
  const std::vector<PropertyEntry> a = written.Entries();
  const std::vector<PropertyEntry> b = read[0].bag.Entries();
  ASSERT_EQ(a.size(), b.size());
  for (size_t i = 0; i < a.size(); ++i) {
    EXPECT_EQ(a[i].name, b[i].name);
    if (!a[i].value.IsObject()) {
      EXPECT_EQ(CompareVariants(a[i].value, b[i].value), 0) << a[i].name;
    }
  }
}

TEST_F(FormWriterTest, PicturesAreSavedAsFilesBesideTheForm) {
  const picture_test::Bytes png = picture_test::Png3x1();
  const PicturePtr picture = LoadPictureFromMemory(png.data(), png.size());
  control.AddBlock();
  control.AddBlock();
  control.putref_BlockPicture(picture, N(1));
  control.putref_BlockPicture(picture, N(2));
  control.putref_Picture(picture);
  std::filesystem::create_directories(folder.path() / "out");
  const std::string path = folder.PathOf("out/dash.frm");
  SaveForm(control, "Bar", path);
  // One file for the shared picture, named after the first key that holds it.
  const std::filesystem::path file = folder.path() / "out" / "dash.Bar.Block.Picture.1.png";
  ASSERT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(FileText(file), std::string(png.begin(), png.end()));
  const std::string text = FileText(folder.path() / "out" / "dash.frm");
  EXPECT_NE(text.find("   Block.Picture(1)=   \"dash.Bar.Block.Picture.1.png\"\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("   Block.Picture(2)=   \"dash.Bar.Block.Picture.1.png\"\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("   Picture         =   \"dash.Bar.Block.Picture.1.png\"\r\n"), std::string::npos) << text;

  HeadlessSite site2;
  Vorlex loaded(site2);
  std::vector<FormControl> forms = LoadForm(path);
  ASSERT_EQ(forms.size(), 1u);
  ApplyForm(loaded, forms[0], path);
  EXPECT_EQ(loaded.get_BlockPicture(N(1))->SaveAsFile(), png);
  EXPECT_EQ(loaded.get_BlockPicture(N(2)), loaded.get_BlockPicture(N(1)));
  EXPECT_EQ(loaded.get_Picture(), loaded.get_BlockPicture(N(1)));
}

// A picture that keeps no file of its own: it is drawn and saved as a BMP.
class PaintedPicture final : public Picture {
 public:
  int16_t Type() const override { return kPicTypeBitmap; }
  uint32_t Handle() const override { return 1; }
  int32_t PixelWidth() const override { return 2; }
  int32_t PixelHeight() const override { return 1; }
  bool Render(uintptr_t hdc, int32_t x, int32_t y) const override {
    const gdi::HBRUSH brush = gdi::CreateSolidBrush(0x0000FF);  // red
    const gdi::RECT left{x, y, x + 1, y + 1};
    gdi::FillRect(reinterpret_cast<gdi::HDC>(hdc), &left, brush);
    gdi::DeleteObject(brush);
    return true;
  }
};

TEST_F(FormWriterTest, PictureWithoutFileBytesIsSavedAsItsDrawing) {
  control.putref_Picture(std::make_shared<PaintedPicture>());
  const std::string path = folder.PathOf("drawn.frm");
  const std::string text = SaveFormText(control, "V", path);
  EXPECT_NE(text.find("   Picture         =   \"drawn.V.Picture.bmp\"\r\n"), std::string::npos) << text;
  std::vector<FormControl> forms = ReadFormText(text, path);
  ASSERT_EQ(forms.size(), 1u);
  HeadlessSite site2;
  Vorlex loaded(site2);
  ApplyForm(loaded, forms[0], path);
  const PicturePtr picture = loaded.get_Picture();
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->PixelWidth(), 2);
  EXPECT_EQ(picture->PixelHeight(), 1);
  // Drawn on white: the left pixel red, the right one white, bottom-up BGR rows.
  const std::vector<uint8_t> bmp = picture->SaveAsFile();
  ASSERT_GE(bmp.size(), 60u);
  EXPECT_EQ(std::vector<uint8_t>(bmp.begin() + 54, bmp.begin() + 60), (std::vector<uint8_t>{0, 0, 255, 255, 255, 255}));
}

TEST_F(FormWriterTest, TextsWithLineBreaksGoIntoTheResourceFile) {
  control.AddBlock();
  control.put_BlockText(std::string("two\r\nlines"), N(1));
  control.put_Caption(std::string("nul\0inside", 10));
  const std::string path = folder.PathOf("multi.frm");
  const std::string text = SaveFormText(control, "V", path);
  EXPECT_NE(text.find("   Block.Text(1)   =   $\"multi.frx\":0000\r\n"), std::string::npos) << text;
  EXPECT_NE(text.find("   Caption         =   $\"multi.frx\":000E\r\n"), std::string::npos) << text;
  EXPECT_EQ(FileText(folder.path() / "multi.frx"),
            frx::MakeTextRecord("two\r\nlines") + frx::MakeTextRecord(std::string("nul\0inside", 10)));
  std::vector<FormControl> forms = ReadFormText(text, path);
  HeadlessSite site2;
  Vorlex loaded(site2);
  ApplyForm(loaded, forms.at(0), path);
  EXPECT_EQ(loaded.get_BlockText(N(1)), "two\r\nlines");
  EXPECT_EQ(loaded.get_Caption(), std::string("nul\0inside", 10));
}

TEST_F(FormWriterTest, UnwritableFormIsAFormError) {
  const std::string path = folder.PathOf("no/such/folder/form.frm");
  const FormError e = ErrorOf([&] { SaveForm(control, "V", path); });
  EXPECT_EQ(e.File(), path);
}

}  // namespace
}  // namespace vorlex::persist_test
