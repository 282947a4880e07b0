// The vorlex tool's render and click commands, the option values they take and
// the built-in demo.

#include "render_command.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "demo.h"
#include "option_values.h"
#include "options.h"
#include "source.h"
#include "tool_run.h"
#include "vorlex/DiskService.h"

using namespace vorlex;
using namespace vorlex::cli;
using namespace vorlex::tool_test;

namespace {

// A file name in the temporary folder, removed afterwards.
class TempFile {
 public:
  explicit TempFile(const std::string& name)
      : path_((std::filesystem::temp_directory_path() / ("vorlex-render-test-" + name)).string()) {
    std::filesystem::remove(path_);
  }
  ~TempFile() { std::filesystem::remove(path_); }
  const std::string& Path() const { return path_; }
  std::string Bytes() const {
    std::ifstream in(path_, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

 private:
  std::string path_;
};

uint32_t BigEndian32(const std::string& bytes, size_t at) {
  uint32_t value = 0;
  for (size_t i = 0; i < 4; ++i) value = (value << 8) | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

}  // namespace

// Option values.

TEST(ToolOptionValues, TimeReadsADateAndAnOptionalClockTime) {
  const LocalDateTime day = ParseTimeValue("2026-11-22");
  EXPECT_EQ(day.year, 2026);
  EXPECT_EQ(day.month, 11);
  EXPECT_EQ(day.day, 22);
  EXPECT_EQ(day.hour, 0);
  const LocalDateTime minute = ParseTimeValue("2024-02-29T23:59");
  EXPECT_EQ(minute.day, 29);
  EXPECT_EQ(minute.hour, 23);
  EXPECT_EQ(minute.minute, 59);
  EXPECT_EQ(minute.second, 0);
  const LocalDateTime second = ParseTimeValue("2026-11-22 16:30:05");
  EXPECT_EQ(second.second, 5);
}

TEST(ToolOptionValues, TimeRejectsImpossibleDatesAndTimes) {
  for (const char* bad : {"2026-02-29", "2026-13-01", "2026-11-31", "2026-11-22T24:00", "2026-11-22T12:60",
                          "2026-11-22T12", "22/11/2026", "2026-11-22X10:00", "now", ""}) {
    EXPECT_THROW(ParseTimeValue(bad), UsageError) << bad;
  }
}

TEST(ToolOptionValues, DriveTakesALetterUpperCasedAndAPath) {
  EXPECT_EQ(ParseDriveValue("d=/mnt/data"), (std::pair<char, std::string>{'D', "/mnt/data"}));
  for (const char* bad : {"D", "D=", "DD=/", "1=/", "=/"}) EXPECT_THROW(ParseDriveValue(bad), UsageError) << bad;
}

TEST(ToolOptionValues, CoordinatesAreDecimalPixels) {
  EXPECT_EQ(ParseCoordinate("12"), 12.0f);
  EXPECT_EQ(ParseCoordinate("-2.5"), -2.5f);
  for (const char* bad : {"", "x", "3px", "nan", "inf", "1e39"}) EXPECT_THROW(ParseCoordinate(bad), UsageError) << bad;
}

// The command lines.

TEST(ToolOptions, ClickTakesXAndYAfterTheSourceEvenWhenNegative) {
  const Options options = ParseOptions({"click", "--new", "-e", "AddBlock", "10", "-2.5"});
  EXPECT_EQ(options.command, "click");
  EXPECT_EQ(options.source, SourceKind::New);
  EXPECT_EQ(options.clickX, 10.0f);
  EXPECT_EQ(options.clickY, -2.5f);
  EXPECT_EQ(UsageProblem({"click", "--new", "10"}), "click needs the pixel X Y to release the mouse at");
}

TEST(ToolOptions, RenderTakesOutputTimeAndDrives) {
  const Options options = ParseOptions(
      {"render", "--demo", "-o", "x.png", "--now", "2026-11-22T08:00", "--drive", "d=/", "--drive", "E=/tmp"});
  EXPECT_EQ(options.source, SourceKind::Demo);
  EXPECT_EQ(options.outPath, "x.png");
  ASSERT_TRUE(options.now.has_value());
  EXPECT_EQ(options.now->hour, 8);
  EXPECT_EQ(options.drives, (std::map<char, std::string>{{'D', "/"}, {'E', "/tmp"}}));
}

TEST(ToolOptions, OptionsThatDoNotApplyAreBadUsage) {
  EXPECT_EQ(UsageProblem({"eval", "--new", "-e", "Blocks", "-o", "x.png"}), "eval writes no file: -o does not apply");
  EXPECT_EQ(UsageProblem({"render"}), "render needs a SOURCE: a form file, --demo or --new");
  EXPECT_EQ(UsageProblem({"render", "--new", "--now"}), "--now needs a time");
  EXPECT_EQ(UsageProblem({"click", "--new", "1", "2", "3"}), "more than one SOURCE given");
  EXPECT_EQ(UsageProblem({"save", "--new", "--now", "2026-01-01"}),
            "save paints nothing: --now and --drive do not apply");
}

// The control of a source.

TEST(ToolSource, DemoIsItsOwnSizeUnlessSizeIsGiven) {
  Options options;
  options.source = SourceKind::Demo;
  EXPECT_EQ(PlaceControl(options).site->ScaleWidth(), 480);
  options.widthPixels = 300;
  options.heightPixels = 90;
  const PlacedControl placed = PlaceControl(options);
  EXPECT_EQ(placed.site->ScaleWidth(), 300);
  EXPECT_EQ(placed.site->ScaleHeight(), 90);
}

TEST(ToolSource, NowStopsTheClock) {
  Options options;
  options.now = ParseTimeValue("2026-11-22T16:30:05");
  const PlacedControl placed = PlaceControl(options);
  const LocalDateTime now = placed.site->Clock().Now();
  EXPECT_EQ(now.year, 2026);
  EXPECT_EQ(now.minute, 30);
  EXPECT_EQ(now.second, 5);
}

TEST(ToolSource, DrivesMapLettersToFolders) {
  Options options;
  const auto letterWorks = [](const PlacedControl& placed, const char* root) {
    int32_t a = 0, b = 0, c = 0, d = 0;
    return placed.site->Disks().GetDiskFreeSpaceA(root, a, b, c, d);
  };
  EXPECT_FALSE(letterWorks(PlaceControl(options), "Q:\\"));
  options.drives['Q'] = std::filesystem::temp_directory_path().string();
  EXPECT_TRUE(letterWorks(PlaceControl(options), "Q:\\"));
}

// The demo: an on-top badge paints over the status light under it.
TEST(ToolDemo, TheOnTopBadgeCoversTheGreenLight) {
  Options options;
  options.source = SourceKind::Demo;
  options.now = ParseTimeValue("2026-11-22T16:45:12");
  const PlacedControl placed = PlaceControl(options);
  placed.control->UserControl_Paint();
  const WindowImage w = placed.site->Snapshot();
  EXPECT_EQ(w.At(360, 35), 0xE00000u);   // the badge's red
  const uint32_t light = w.At(369, 23);  // the light above the badge, shaded towards white
  EXPECT_GT((light >> 8) & 0xFF, (light >> 16) & 0xFF);
  EXPECT_GT((light >> 8) & 0xFF, light & 0xFF);
  EXPECT_GT(placed.control->get_Blocks(), 10);
}

// The commands.

TEST(ToolRender, WritesThePaintedWindowAsPng) {
  TempFile png("new.png");
  const CommandResult r = RunTool({"render", "--new", "--size", "120x30", "-o", png.Path()});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "");
  const std::string bytes = png.Bytes();
  ASSERT_GT(bytes.size(), 24u);
  EXPECT_EQ(bytes.substr(0, 8), std::string("\x89PNG\r\n\x1a\n", 8));
  EXPECT_EQ(bytes.substr(12, 4), "IHDR");
  EXPECT_EQ(BigEndian32(bytes, 16), 120u);
  EXPECT_EQ(BigEndian32(bytes, 20), 30u);
}

TEST(ToolRender, AnAutomationErrorStopsWithStatus1NamingTheStatement) {
  TempFile png("error.png");
  const CommandResult r = RunTool({"render", "--new", "-e", "AddBlock", "-e", "BlockColor(5) = 1", "-o", png.Path()});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "vorlex: statement \"BlockColor(5) = 1\": error 9: Subscript out of range\n");
  EXPECT_FALSE(std::filesystem::exists(png.Path()));
}

TEST(ToolRender, AnUnwritableOutputIsStatus2WithOneLine) {
  const std::string path = (std::filesystem::temp_directory_path() / "no-such-folder-for-vorlex" / "x.png").string();
  const CommandResult r = RunTool({"render", "--new", "-o", path});
  EXPECT_EQ(r.status, 2);
  EXPECT_NE(r.err.find(path), std::string::npos) << r.err;
  EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1);
}

TEST(ToolRender, TheDefaultOutputIsNamedAfterTheSource) {
  Options options;
  options.source = SourceKind::Demo;
  EXPECT_EQ(DefaultRenderPath(options), "demo.png");
  options.source = SourceKind::File;
  options.sourcePath = "forms/gauge.frm";
  EXPECT_EQ(DefaultRenderPath(options), "gauge.png");
}

TEST(ToolClick, PrintsTheBlockTheReleaseHits) {
  const std::vector<std::string> half = {"click",  "--new",
                                         "--size", "100x50",
                                         "-e",     "BorderWidth = 0",
                                         "-e",     "AddBlock",
                                         "-e",     "BlockBarLeft(1) = 0",
                                         "-e",     "BlockBarRight(1) = 50"};
  std::vector<std::string> inside = half;
  inside.insert(inside.end(), {"20", "10"});
  std::vector<std::string> outside = half;
  outside.insert(outside.end(), {"80", "10"});
  CommandResult r = RunTool(inside);
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "BlockClicked 1\n");
  r = RunTool(outside);
  EXPECT_EQ(r.out, "BlockClicked -1\n");
}

TEST(ToolClick, ADisabledControlGetsNoReleaseAndPrintsNothing) {
  const CommandResult r = RunTool({"click", "--new", "-e", "AddBlock", "-e", "Enabled = False", "0", "0"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "");
}

TEST(ToolClick, AnAutomationErrorIsStatus1AndNoClick) {
  const CommandResult r = RunTool({"click", "--new", "-e", "HMaxValue = 40000", "1", "1"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "vorlex: statement \"HMaxValue = 40000\": error 6: Overflow\n");
}

// Form files.

namespace {

std::string DashboardForm() { return std::string(VORLEX_TEST_DATA) + "/dashboard.frm"; }

void WriteText(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
}

}  // namespace

TEST(ToolForms, AFormFileIsLoadedAndSizedByItsOwnWidthAndHeight) {
  const CommandResult r = RunTool({"eval", DashboardForm(), "-e", "Blocks", "-e", "BlockKey(32)", "-e", "Caption"});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "32\nb32\nVorlex dashboard\n");
  Options options;
  options.source = SourceKind::File;
  options.sourcePath = DashboardForm();
  const PlacedControl placed = PlaceControl(options);
  EXPECT_EQ(placed.name, "Dashboard");
  EXPECT_EQ(placed.site->ScaleWidth(), 800);  // 12000 x 960 twips
  EXPECT_EQ(placed.site->ScaleHeight(), 64);
  options.widthPixels = 400;
  options.heightPixels = 40;
  EXPECT_EQ(PlaceControl(options).site->ScaleWidth(), 400);
}

TEST(ToolForms, RenderPaintsAForm) {
  TempFile png("dashboard.png");
  const CommandResult r = RunTool({"render", DashboardForm(), "-o", png.Path()});
  ASSERT_EQ(r.status, 0) << r.err;
  const std::string bytes = png.Bytes();
  ASSERT_GT(bytes.size(), 24u);
  EXPECT_EQ(BigEndian32(bytes, 16), 800u);
  EXPECT_EQ(BigEndian32(bytes, 20), 64u);
}

// Form text has the CR LF line ends of the files it stands for.
TEST(ToolForms, SaveWritesFormTextThatLoadsBackToTheSameValues) {
  const CommandResult saved = RunTool({"save", "--new", "-e", "AddBlock", "-e", "BlockKey(1) = \"gauge\"", "-e",
                                       "BlockBarRight(1) = 40", "-e", "Caption = \"Disk \"\"C\"\"\""});
  ASSERT_EQ(saved.status, 0) << saved.err;
  EXPECT_EQ(saved.out.rfind("VERSION 5.00\r\nBegin VorlexLib.Vorlex Vorlex1\r\n", 0), 0u) << saved.out;
  EXPECT_NE(saved.out.find("Caption         =   \"Disk \"\"C\"\"\""), std::string::npos) << saved.out;
  TempFile form("saved.frm");
  WriteText(form.Path(), saved.out);
  const CommandResult loaded =
      RunTool({"eval", form.Path(), "-e", "Blocks", "-e", "BlockKey(1)", "-e", "BlockBarRight(1)", "-e", "Caption"});
  EXPECT_EQ(loaded.status, 0) << loaded.err;
  EXPECT_EQ(loaded.out, "1\ngauge\n40\nDisk \"C\"\n");
}

TEST(ToolForms, SaveToAFileWritesItAndPrintsNothing) {
  TempFile form("out.frm");
  const CommandResult r = RunTool({"save", "--new", "-e", "AddBlock", "-o", form.Path()});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out, "");
  EXPECT_NE(form.Bytes().find("Blocks          =   1"), std::string::npos) << form.Bytes();
}

TEST(ToolForms, AFormThatDoesNotReadIsStatus2NamingTheFileAndLine) {
  TempFile form("broken.frm");
  WriteText(form.Path(), "VERSION 5.00\nBegin VorlexLib.Vorlex Vorlex1\n   Blocks = &HZZ&\nEnd\n");
  const CommandResult r = RunTool({"render", form.Path(), "-o", form.Path() + ".png"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.err.rfind("vorlex: " + form.Path() + ":3: ", 0), 0u) << r.err;
  EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1);
}

TEST(ToolForms, AFormWithoutAVorlexControlIsStatus2) {
  TempFile form("other.frm");
  WriteText(form.Path(), "VERSION 5.00\nBegin VB.Form Form1\n   Caption = \"x\"\nEnd\n");
  const CommandResult r = RunTool({"eval", form.Path(), "-e", "Blocks"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.err, "vorlex: " + form.Path() + ": the form holds no Vorlex control\n");
}

TEST(ToolForms, AMissingFormIsStatus2NamingIt) {
  const CommandResult r = RunTool({"click", "no-such-form.frm", "1", "1"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.err.rfind("vorlex: no-such-form.frm", 0), 0u) << r.err;
}

// The example forms stay loadable and paintable.
TEST(ToolForms, EveryExampleFormRenders) {
  int forms = 0;
  for (const auto& entry : std::filesystem::directory_iterator(VORLEX_EXAMPLE_FORMS)) {
    if (entry.path().extension() != ".frm") continue;
    ++forms;
    TempFile png("example.png");
    const CommandResult r = RunTool({"render", entry.path().string(), "-o", png.Path()});
    EXPECT_EQ(r.status, 0) << entry.path() << ": " << r.err;
    EXPECT_GT(png.Bytes().size(), 24u) << entry.path();
  }
  EXPECT_GE(forms, 4);
}
