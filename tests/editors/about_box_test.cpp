// The About box: its texts, the gradient panel and System Info through the
// registry, with the system behind a fake.

#include "editors/about_box.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "error_matchers.h"
#include "fake_view.h"
#include "surface/mod_gradient.h"

namespace vorlex::testing {
namespace {

class FakeSystem : public editors::AboutSystem {
 public:
  struct Value {
    uint32_t type;
    std::vector<uint8_t> bytes;
  };
  // key path -> value name -> value
  std::map<std::string, std::map<std::string, Value>> keys;
  std::vector<std::string> existing;
  std::vector<std::string> started;
  std::vector<std::string> messages;
  std::vector<uint32_t> accessAsked;
  int open = 0;

  long RegOpenKeyExA(uint32_t root, const std::string& subKey, uint32_t access, uintptr_t* key) override {
    accessAsked.push_back(access);
    if (root != editors::kHKeyLocalMachine || !keys.count(subKey)) return 2;  // ERROR_FILE_NOT_FOUND
    handles_.push_back(subKey);
    *key = handles_.size();
    ++open;
    return 0;
  }
  long RegQueryValueExA(uintptr_t key, const std::string& name, uint32_t* type, uint8_t* data,
                        uint32_t* size) override {
    auto& values = keys.at(handles_.at(key - 1));
    const auto found = values.find(name);
    if (found == values.end()) return 2;
    if (found->second.bytes.size() > *size) return 234;  // ERROR_MORE_DATA
    *type = found->second.type;
    std::copy(found->second.bytes.begin(), found->second.bytes.end(), data);
    *size = static_cast<uint32_t>(found->second.bytes.size());
    return 0;
  }
  long RegCloseKey(uintptr_t) override {
    --open;
    return 0;
  }
  bool FileExists(const std::string& path) override {
    return std::find(existing.begin(), existing.end(), path) != existing.end();
  }
  void StartProgram(const std::string& path) override { started.push_back(path); }
  void MessageBox(const std::string& text) override { messages.push_back(text); }

  void AddString(const std::string& key, const std::string& name, const std::string& text) {
    std::vector<uint8_t> bytes(text.begin(), text.end());
    bytes.push_back(0);
    keys[key][name] = {editors::kRegSz, bytes};
  }

 private:
  std::vector<std::string> handles_;
};

const std::string kMsInfo = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string kLocation = "SOFTWARE\\Microsoft\\Shared Tools Location";

class AboutBoxTest : public ::testing::Test {
 protected:
  FakeView view;
  FakeSystem system;
  float nextRandom = 0.5f;
  editors::AboutBox box{view, system, [this] { return nextRandom; }};
};

TEST_F(AboutBoxTest, LoadingShowsTheNameTheVersionAndTheMakersLines) {
  box.Form_Load();
  EXPECT_EQ(view.texts["lblName"], "Vorlex");
  EXPECT_EQ(view.texts["lblVersion"], editors::AboutBox::VersionLine());
  EXPECT_EQ(view.texts["lblInformation"].rfind("For more information on our products, contact us at :\n", 0), 0u);
  EXPECT_EQ(view.backColors["Picture1"], 0x80FFFFu);
  EXPECT_EQ(editors::AboutBox::kCaption, "About Vorlex ActiveX control");
}

TEST_F(AboutBoxTest, VersionLineIsVersionAndThreeNumbers) {
  const std::string line = editors::AboutBox::VersionLine();
  ASSERT_EQ(line.rfind("Version ", 0), 0u);
  int major = -1, minor = -1, revision = -1;
  ASSERT_EQ(std::sscanf(line.c_str(), "Version %d.%d.%d", &major, &minor, &revision), 3);
  EXPECT_GE(major, 0);
  EXPECT_GE(revision, 0);
}

TEST_F(AboutBoxTest, LoadingStoresThePanelsColourDepth) {
  box.Form_Load();
  EXPECT_GT(box.ColorDepth(), 8);
}

TEST_F(AboutBoxTest, ThePanelIsAnInnerCircleGradientOfGreys) {
  box.Form_Load();
  nextRandom = 0.45f;  // granularity 2
  box.Picture1_Paint();
  EXPECT_EQ(box.LastGranularity(), 2);
  PictureBox expected(FakeView::kPreviewWidth, FakeView::kPreviewHeight);
  modGradient::ReadDisplayDepth(expected);
  int16_t style = 9, granularity = 2;
  OLE_COLOR color = 0x808080, colorEnd = 0xE0E0E0;
  modGradient::PaintObjectGradient(expected, style, granularity, color, colorEnd);
  gdi::Pixels pixels;
  ASSERT_TRUE(gdi::ReadPixels(expected.hDC(), pixels));
  EXPECT_EQ(view.PreviewPixels("Picture1").argb, pixels.argb);
}

TEST_F(AboutBoxTest, EveryRepaintDrawsItsGranularityAgain) {
  box.Form_Load();
  std::vector<int16_t> drawn;
  for (float r : {0.0f, 0.19f, 0.2f, 0.59f, 0.6f, 0.99f}) {
    nextRandom = r;
    box.Picture1_Paint();
    drawn.push_back(box.LastGranularity());
  }
  EXPECT_EQ(drawn, (std::vector<int16_t>{0, 0, 1, 2, 3, 4}));
  EXPECT_EQ(view.paints["Picture1"], 6 + 1) << "six paints after the depth read at load";
}

TEST_F(AboutBoxTest, AtEightBitsOrLessThePanelKeepsItsPlainBackground) {
  box.Form_Load();
  box.UseColorDepth(8);
  view.paints.clear();
  box.Picture1_Paint();
  EXPECT_EQ(box.LastGranularity(), -1);
  EXPECT_EQ(view.paints["Picture1"], 0);
  EXPECT_EQ(view.backColors["Picture1"], 0x80FFFFu);
  box.UseColorDepth(15);
  box.Picture1_Paint();
  EXPECT_EQ(view.paints["Picture1"], 1) << "the check can fail";
}

TEST_F(AboutBoxTest, SystemInfoWithNeitherKeyShowsTheMessageAndStartsNothing) {
  box.cmdSysInfo_Click();
  EXPECT_TRUE(system.started.empty());
  ASSERT_EQ(system.messages.size(), 1u);
  EXPECT_EQ(system.messages[0], "System Information Is Unavailable At This Time");
}

TEST_F(AboutBoxTest, SystemInfoStartsThePathOfTheFirstKey) {
  system.AddString(kMsInfo, "PATH", "C:\\Tools\\msinfo.exe");
  system.AddString(kLocation, "MSINFO", "C:\\Other");
  box.cmdSysInfo_Click();
  EXPECT_EQ(system.started, (std::vector<std::string>{"C:\\Tools\\msinfo.exe"}));
  EXPECT_TRUE(system.messages.empty());
  EXPECT_EQ(system.open, 0) << "every key closed";
}

TEST_F(AboutBoxTest, SystemInfoFallsBackToTheSecondKeyWhenItsProgramExists) {
  system.AddString(kLocation, "MSINFO", "C:\\Shared\\MSINFO");
  system.existing.push_back("C:\\Shared\\MSINFO\\MSINFO32.EXE");
  box.cmdSysInfo_Click();
  EXPECT_EQ(system.started, (std::vector<std::string>{"C:\\Shared\\MSINFO\\MSINFO32.EXE"}));
}

TEST_F(AboutBoxTest, SystemInfoWithAMissingProgramShowsTheMessage) {
  system.AddString(kLocation, "MSINFO", "C:\\Shared\\MSINFO");
  box.cmdSysInfo_Click();
  EXPECT_TRUE(system.started.empty());
  EXPECT_EQ(system.messages.size(), 1u);
}

TEST_F(AboutBoxTest, AFailedStartIsTheHandlersError) {
  struct FailingSystem : FakeSystem {
    void StartProgram(const std::string&) override { throw AutomationError(53); }
  } failing;
  failing.AddString(kMsInfo, "PATH", "C:\\gone.exe");
  editors::AboutBox about(view, failing);
  EXPECT_AUTOMATION_ERROR(about.cmdSysInfo_Click(), 53);
}

TEST_F(AboutBoxTest, KeysAreOpenedWithFullAccess) {
  std::string value;
  EXPECT_FALSE(box.GetKeyValue(editors::kHKeyLocalMachine, kMsInfo, "PATH", value));
  EXPECT_EQ(system.accessAsked, (std::vector<uint32_t>{0x2003F}));
}

TEST_F(AboutBoxTest, AStringValueEndsAtItsNull) {
  system.keys["K"]["V"] = {editors::kRegSz, {'a', 'b', 0, 'c', 0}};
  std::string value;
  ASSERT_TRUE(box.GetKeyValue(editors::kHKeyLocalMachine, "K", "V", value));
  EXPECT_EQ(value, "ab");
}

TEST_F(AboutBoxTest, ANumberIsReadAsTheHexDigitsOfItsBytesFromTheTop) {
  std::string value;
  system.keys["K"]["small"] = {editors::kRegDword, {0x1F, 0, 0, 0}};
  ASSERT_TRUE(box.GetKeyValue(editors::kHKeyLocalMachine, "K", "small", value));
  EXPECT_EQ(value, "31");
  // Bytes are not padded to two digits: 0x0102 reads as &H0012.
  system.keys["K"]["unpadded"] = {editors::kRegDword, {0x02, 0x01, 0, 0}};
  ASSERT_TRUE(box.GetKeyValue(editors::kHKeyLocalMachine, "K", "unpadded", value));
  EXPECT_EQ(value, "18");
  system.keys["K"]["wide"] = {editors::kRegDword, {0x78, 0x56, 0x34, 0x12}};
  ASSERT_TRUE(box.GetKeyValue(editors::kHKeyLocalMachine, "K", "wide", value));
  EXPECT_EQ(value, "305419896");
}

TEST_F(AboutBoxTest, AMissingValueIsFalseAndClosesTheKey) {
  system.keys["K"];
  std::string value = "untouched";
  EXPECT_FALSE(box.GetKeyValue(editors::kHKeyLocalMachine, "K", "nothing", value));
  EXPECT_EQ(value, "untouched");
  EXPECT_EQ(system.open, 0);
}

TEST_F(AboutBoxTest, AValueLargerThanTheBufferIsFalse) {
  system.AddString("K", "long", std::string(1100, 'x'));
  std::string value;
  EXPECT_FALSE(box.GetKeyValue(editors::kHKeyLocalMachine, "K", "long", value));
}

TEST_F(AboutBoxTest, OkClosesTheBox) {
  EXPECT_FALSE(box.Closed());
  box.cmdOK_Click();
  EXPECT_TRUE(box.Closed());
}

}  // namespace
}  // namespace vorlex::testing
