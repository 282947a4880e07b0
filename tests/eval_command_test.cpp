// The vorlex tool's eval command: statements run against a newly placed control
// in a headless container, what each prints, the command line that leads there
// and its exit status.

#include "eval_command.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "command_line.h"
#include "dispatch.h"
#include "options.h"
#include "picture/picture_file.h"
#include "result_text.h"
#include "source.h"
#include "statement.h"
#include "tool_run.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Font.h"
#include "vorlex/HeadlessSite.h"
#include "vorlex/Picture.h"
#include "vorlex/Vorlex.h"

using namespace vorlex;
using namespace vorlex::cli;
using namespace vorlex::tool_test;

namespace {

// A new control in user mode, as `vorlex eval --new` places it.
class Eval : public ::testing::Test {
 protected:
  Eval() { control.InitProperties(); }

  // What eval prints for the statements, run in order on the one control.
  std::string Run(std::initializer_list<const char*> texts) {
    std::vector<Statement> statements;
    for (const char* text : texts) statements.push_back(ParseStatement(text));
    std::ostringstream out;
    EvalStatements(control, site, statements, out);
    return out.str();
  }

  HeadlessSite site{60, 21};
  Vorlex control{site};
};

std::ptrdiff_t Lines(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

class FixedPicture : public Picture {
 public:
  explicit FixedPicture(uint32_t handle) : handle_(handle) {}
  int16_t Type() const override { return kPicTypeBitmap; }
  uint32_t Handle() const override { return handle_; }
  int32_t PixelWidth() const override { return 1; }
  int32_t PixelHeight() const override { return 1; }
  bool Render(uintptr_t, int32_t, int32_t) const override { return true; }

 private:
  uint32_t handle_;
};

class PlainObject : public Object {};

}  // namespace

// Statements on a new control.

TEST_F(Eval, AddBlockPrintsNothingAndBlocksCountsIt) { EXPECT_EQ(Run({"AddBlock", "Blocks"}), "1\n"); }

TEST_F(Eval, AboutPrintsWhatTheAboutBoxWouldShow) {
  const std::string shown = Run({"About"});
  EXPECT_EQ(shown.rfind("About Vorlex ActiveX control\nVorlex\nVersion ", 0), 0u) << shown;
  EXPECT_NE(shown.find("For more information on our products, contact us at :\n"), std::string::npos);
  EXPECT_EQ(site.AboutBoxRequests(), 1);
  EXPECT_EQ(Run({"ShowAboutBox", "Blocks"}), shown + "0\n") << "the same box, then the next statement";
}

TEST_F(Eval, EveryValueIsOneLineInStatementOrder) {
  EXPECT_EQ(Run({"Blocks", "AddBlock", "AddBlock", "Blocks"}), "0\n2\n");
}

TEST_F(Eval, HexColorAssignedToABlockReadsBackInDecimal) {
  EXPECT_EQ(Run({"AddBlock", "BlockColor(1) = &HFF", "BlockColor(1)"}), "255\n");
}

TEST_F(Eval, CaptionAngleAssignedMinus30ReadsBack30) { EXPECT_EQ(Run({"CaptionAngle = -30", "CaptionAngle"}), "30\n"); }

TEST_F(Eval, RealAssignedToAnIntegerPropertyRoundsHalfToEven) {
  EXPECT_EQ(Run({"CaptionAngle = 2.5", "CaptionAngle", "CaptionAngle = 3.5", "CaptionAngle"}), "2\n4\n");
}

TEST_F(Eval, OmittedBlockArgumentWithoutBlocksPrintsError9) { EXPECT_EQ(Run({"BlockKey"}), "error 9\n"); }

TEST_F(Eval, OmittedBlockArgumentMeansTheCurrentBlock) {
  EXPECT_EQ(Run({"AddBlock", "AddBlock", "IndexBlock = 2", "BlockColor = 77", "BlockColor(2)", "BlockColor(1)"}),
            "77\n8421504\n");
}

TEST_F(Eval, SpecialClearAllBlockAtRunTimePrintsError393) { EXPECT_EQ(Run({"SpecialClearAllBlock"}), "error 393\n"); }

TEST_F(Eval, UnknownNamePrintsError438) {
  EXPECT_EQ(Run({"Nonexistent", "Nonexistent(1)", "Nonexistent = 5", "Nonexistent(1) = Nothing"}),
            "error 438\nerror 438\nerror 438\nerror 438\n");
}

TEST_F(Eval, AssigningAReadOnlyPropertyPrintsError438) { EXPECT_EQ(Run({"hWnd = 5"}), "error 438\n"); }

TEST_F(Eval, BooleanPropertyPrintsTrueOrFalse) {
  EXPECT_EQ(Run({"Redraw", "Redraw = False", "Redraw"}), "True\nFalse\n");
}

TEST_F(Eval, FontPrintsItsName) { EXPECT_EQ(Run({"Font"}), "MS Sans Serif\n"); }

TEST_F(Eval, StringBlockArgumentThatIsNoKeyPrintsError9) {
  EXPECT_EQ(Run({"AddBlock", "BlockColor(\"2\") "}), "error 9\n");
}

TEST_F(Eval, StringBlockArgumentFindsTheBlockByKey) {
  EXPECT_EQ(Run({"AddBlock", "AddBlock", "BlockKey(2) = \"gauge\"", "BlockColor(\"gauge\") = 12", "BlockColor(2)",
                 "BlockKey(2)"}),
            "12\ngauge\n");
}

TEST_F(Eval, TimerDiskIntervalDefaultIs60000) { EXPECT_EQ(Run({"TimerDiskInterval"}), "60000\n"); }

TEST_F(Eval, StringsPrintAsTheyAre) {
  EXPECT_EQ(Run({"Caption = \"say \"\"hi\"\", then go\"", "Caption"}), "say \"hi\", then go\n");
}

TEST_F(Eval, NumberAssignedToAStringPropertyPrintsInShortestForm) {
  EXPECT_EQ(Run({"Caption = 0.1", "Caption", "Caption = 1e20", "Caption", "Caption = 2.5!", "Caption"}),
            "0.1\n1E+20\n2.5\n");
}

TEST_F(Eval, NamesAreCaseInsensitive) { EXPECT_EQ(Run({"addblock", "ADDBLOCK", "bLoCkS"}), "2\n"); }

TEST_F(Eval, AutomationErrorDoesNotStopLaterStatements) {
  EXPECT_EQ(Run({"Nonexistent", "AddBlock", "BlockKey(5)", "Blocks"}), "error 438\nerror 9\n1\n");
}

TEST_F(Eval, EmptyParenthesesLetOptionalArgumentsTakeTheirDefaults) {
  EXPECT_EQ(Run({"AddBlock", "BlockColor(1) = 5", "SetBlockColor()", "BlockColor(1)"}), "8421504\n");
}

TEST_F(Eval, EmptyParenthesesOnAMethodWithoutArgumentsCallIt) {
  EXPECT_EQ(Run({"Refresh()", "Blocks()"}), "0\n");
  EXPECT_GT(site.Paints(), 0);
}

TEST_F(Eval, OmittedRequiredArgumentPrintsError449) {
  EXPECT_EQ(Run({"AddBlock", "DeleteBlock", "DeleteBlock(,)", "Blocks"}), "error 449\nerror 450\n1\n");
}

TEST_F(Eval, TooManyArgumentsPrintError450) { EXPECT_EQ(Run({"Blocks(1)", "AddBlock(1)"}), "error 450\nerror 450\n"); }

TEST_F(Eval, MethodArgumentIsPassed) {
  EXPECT_EQ(Run({"AddBlock", "AddBlock", "SetBlockColor(&HFF00&)", "BlockColor(1)", "BlockColor(2)"}),
            "65280\n65280\n");
}

TEST_F(Eval, ValueOfTheWrongTypePrintsError13) {
  EXPECT_EQ(Run({"AddBlock", "BlockColor(1) = \"red\"", "Font = 5"}), "error 13\nerror 13\n");
}

TEST_F(Eval, ValueTooLargeForThePropertyPrintsError6) { EXPECT_EQ(Run({"CaptionAngle = 40000"}), "error 6\n"); }

TEST_F(Eval, PicturePrintsItsHandle) { EXPECT_EQ(Run({"Picture"}), "0\n"); }

TEST_F(Eval, NothingAssignedToAnObjectPropertyGoesByReference) {
  EXPECT_EQ(Run({"Picture = Nothing", "Picture"}), "Nothing\n");
}

TEST_F(Eval, LoadPicturePutsAPictureThatPrintsItsHandle) {
  const picture_test::PictureFile files;
  const std::string load = "Picture = LoadPicture(\"" + files.Bitmap() + "\")";
  const std::string printed = Run({load.c_str(), "Picture"});
  EXPECT_NE(printed, "0\n");
  EXPECT_EQ(printed, std::to_string(static_cast<int32_t>(control.get_Picture()->Handle())) + "\n");
  EXPECT_EQ(control.get_Picture()->PixelWidth(), 2);
}

TEST_F(Eval, LoadPictureOfNoPathPutsTheEmptyPicture) {
  EXPECT_EQ(Run({"Picture = LoadPicture(\"\")", "Picture"}), "0\n");
  ASSERT_NE(control.get_Picture(), nullptr);
  EXPECT_EQ(control.get_Picture()->Type(), kPicTypeNone);
}

TEST_F(Eval, LoadPictureOfAMissingFilePrintsError53AndGoesOn) {
  const picture_test::PictureFile files;
  const std::string load = "Picture = LoadPicture(\"" + files.Missing() + "\")";
  EXPECT_EQ(Run({"AddBlock", load.c_str(), "Blocks", "Picture"}), "error 53\n1\n0\n");
}

TEST_F(Eval, LoadPictureOfAFileThatIsNoPicturePrintsError481) {
  const picture_test::PictureFile files;
  const std::string load = "BlockPicture(1) = LoadPicture(\"" + files.NotAPicture() + "\")";
  EXPECT_EQ(Run({"AddBlock", load.c_str()}), "error 481\n");
  EXPECT_EQ(control.get_BlockPicture(Variant(static_cast<int16_t>(1))), nullptr);
}

// Members of the objects that properties give.

TEST_F(Eval, FontMemberAssignedThroughTheControlsFontReadsBack) {
  EXPECT_EQ(Run({"Font.Name = \"Arial\"", "Font.Name", "Font", "font.bold = True", "FONT.BOLD"}),
            "Arial\nArial\nTrue\n");
  EXPECT_EQ(control.get_Font()->Name(), "Arial");
  EXPECT_TRUE(control.get_Font()->Bold());
}

TEST_F(Eval, BlockTextFontSizeAssignedThroughItsIndexReadsBack) {
  EXPECT_EQ(Run({"AddBlock", "BlockTextFont(1).Size = 12", "BlockTextFont(1).Size"}), "12\n");
  EXPECT_DOUBLE_EQ(control.get_BlockTextFont(Variant(static_cast<int16_t>(1)))->Size(), 12.0);
}

TEST_F(Eval, FontMemberOfTheWrongTypePrintsError13) { EXPECT_EQ(Run({"Font.Bold = \"yes\""}), "error 13\n"); }

TEST_F(Eval, MemberThatTheFontDoesNotHavePrintsError438) {
  EXPECT_EQ(Run({"Font.Colour", "Font.Colour = 1"}), "error 438\nerror 438\n");
}

TEST_F(Eval, MemberOfAPropertyThatGivesNoObjectPrintsError424) {
  EXPECT_EQ(Run({"CaptionAngle.Size", "Caption.Name = \"x\""}), "error 424\nerror 424\n");
}

TEST_F(Eval, MemberOfNothingPrintsError91) { EXPECT_EQ(Run({"Picture = Nothing", "Picture.Type"}), "error 91\n"); }

TEST_F(Eval, PictureMembersGiveTypeHandleAndHimetricSize) {
  const picture_test::PictureFile files;
  const std::string load = "Picture = LoadPicture(\"" + files.Bitmap() + "\")";
  // The bitmap is 2 by 1 pixels: at 96 pixels per inch 52.9 by 26.5 HIMETRIC.
  EXPECT_EQ(Run({load.c_str(), "Picture.Type", "Picture.Width", "Picture.Height", "Picture.hPal"}), "1\n53\n26\n0\n");
  EXPECT_EQ(Run({"Picture.Handle"}), std::to_string(static_cast<int32_t>(control.get_Picture()->Handle())) + "\n");
}

TEST_F(Eval, AssigningAPictureMemberPrintsError383) { EXPECT_EQ(Run({"Picture.Width = 5"}), "error 383\n"); }

// Which call a statement makes.

TEST(EvalCallKind, NameWithAGetReadsTheProperty) {
  EXPECT_EQ(CallKind(ParseStatement("Blocks")), InvokeKind::PropertyGet);
  EXPECT_EQ(CallKind(ParseStatement("BlockColor(1)")), InvokeKind::PropertyGet);
}

TEST(EvalCallKind, NameWithoutAGetCallsTheMethod) {
  EXPECT_EQ(CallKind(ParseStatement("AddBlock")), InvokeKind::Method);
  EXPECT_EQ(CallKind(ParseStatement("SetBlockColor(5)")), InvokeKind::Method);
  EXPECT_EQ(CallKind(ParseStatement("Nonexistent")), InvokeKind::Method);
}

TEST(EvalCallKind, AssignmentPutsTheProperty) {
  EXPECT_EQ(CallKind(ParseStatement("Blocks = 2")), InvokeKind::PropertyPut);
  EXPECT_EQ(CallKind(ParseStatement("BlockColor(1) = 2")), InvokeKind::PropertyPut);
  EXPECT_EQ(CallKind(ParseStatement("Nonexistent = 2")), InvokeKind::PropertyPut);
}

TEST(EvalCallKind, ObjectAssignedWhereAPutRefExistsGoesByReference) {
  EXPECT_EQ(CallKind(ParseStatement("Font = Nothing")), InvokeKind::PropertyPutRef);
  EXPECT_EQ(CallKind(ParseStatement("BlockPicture(1) = Nothing")), InvokeKind::PropertyPutRef);
}

TEST(EvalCallKind, PropertyWithOnlyAPutRefTakesEveryValueByReference) {
  EXPECT_EQ(CallKind(ParseStatement("Font = 5")), InvokeKind::PropertyPutRef);
  EXPECT_EQ(CallKind(ParseStatement("Picture = \"x\"")), InvokeKind::PropertyPutRef);
}

TEST(EvalCallKind, ObjectAssignedWhereOnlyAPutExistsUsesThePut) {
  EXPECT_EQ(CallKind(ParseStatement("BlockTextFont(1) = Nothing")), InvokeKind::PropertyPut);
}

// How values print.

TEST(EvalResultText, EmptyPrintsNoLine) { EXPECT_FALSE(ResultText(Variant()).has_value()); }

TEST(EvalResultText, NumbersPrintInShortestDecimalForm) {
  EXPECT_EQ(ResultText(Variant(static_cast<int16_t>(-5))), "-5");
  EXPECT_EQ(ResultText(Variant(int32_t{60000})), "60000");
  EXPECT_EQ(ResultText(Variant(0.1)), "0.1");
  EXPECT_EQ(ResultText(Variant(8.25f)), "8.25");
  EXPECT_EQ(ResultText(Variant(1e20)), "1E+20");
}

TEST(EvalResultText, BooleansPrintTrueOrFalse) {
  EXPECT_EQ(ResultText(Variant::Boolean(true)), "True");
  EXPECT_EQ(ResultText(Variant::Boolean(false)), "False");
}

TEST(EvalResultText, StringsPrintAsTheyAre) {
  EXPECT_EQ(ResultText(Variant("  a \"b\"  ")), "  a \"b\"  ");
  EXPECT_EQ(ResultText(Variant("")), "");
}

TEST(EvalResultText, FontPrintsItsName) {
  EXPECT_EQ(ResultText(Variant(std::shared_ptr<Object>(std::make_shared<Font>("Arial", 10.0)))), "Arial");
}

TEST(EvalResultText, PicturePrintsItsHandleAsALong) {
  EXPECT_EQ(ResultText(Variant(std::shared_ptr<Object>(std::make_shared<FixedPicture>(1234u)))), "1234");
  EXPECT_EQ(ResultText(Variant(std::shared_ptr<Object>(std::make_shared<FixedPicture>(0x80000001u)))), "-2147483647");
}

TEST(EvalResultText, NothingPrintsNothing) { EXPECT_EQ(ResultText(Variant(std::shared_ptr<Object>())), "Nothing"); }

TEST(EvalResultText, ObjectWithoutADefaultPropertyRaises438) {
  try {
    ResultText(Variant(std::shared_ptr<Object>(std::make_shared<PlainObject>())));
    ADD_FAILURE() << "printed an object that has no default property";
  } catch (const AutomationError& error) {
    EXPECT_EQ(error.Number(), kErrNotSupported);
  }
}

// The control eval works on.

TEST(EvalSource, NewControlIs900By315TwipsInUserMode) {
  const PlacedControl placed = PlaceControl(Options{});
  EXPECT_EQ(placed.site->ScaleWidth(), 60);
  EXPECT_EQ(placed.site->ScaleHeight(), 21);
  EXPECT_EQ(placed.site->OuterWidthTwips(), 900);
  EXPECT_EQ(placed.site->OuterHeightTwips(), 315);
  EXPECT_TRUE(placed.site->AmbientUserMode());
  EXPECT_EQ(placed.control->get_Blocks(), 0);
  EXPECT_EQ(placed.control->get_TimerDiskInterval(), 60000);
}

TEST(EvalSource, SizeAndDesignModeAreApplied) {
  Options options;
  options.widthPixels = 200;
  options.heightPixels = 30;
  options.design = true;
  const PlacedControl placed = PlaceControl(options);
  EXPECT_EQ(placed.site->ScaleWidth(), 200);
  EXPECT_EQ(placed.site->ScaleHeight(), 30);
  EXPECT_FALSE(placed.site->AmbientUserMode());
  EXPECT_EQ(placed.control->get_SpecialClearAllBlock(), 0);
}

// The whole command.

TEST(EvalCommand, RunsStatementsAndReturns0) {
  Options options;
  options.statements = {"AddBlock", "Blocks", "Nonexistent"};
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunEval(options, out, err), 0);
  EXPECT_EQ(out.str(), "1\nerror 438\n");
  EXPECT_EQ(err.str(), "");
}

TEST(EvalCommand, DesignModeLetsSpecialClearAllBlockBeRead) {
  Options options;
  options.design = true;
  options.statements = {"SpecialClearAllBlock"};
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunEval(options, out, err), 0);
  EXPECT_EQ(out.str(), "0\n");
}

TEST(EvalCommand, StatementThatDoesNotReadRunsNothingAndReturns2) {
  Options options;
  options.statements = {"Blocks", "Caption = \"x", "AddBlock"};
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunEval(options, out, err), 2);
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(err.str(), "vorlex: cannot read statement \"Caption = \"x\": unterminated string\n");
}

TEST(EvalCommand, LoadPictureReadsARelativePathFromTheCurrentFolder) {
  const picture_test::PictureFile files;
  Options options;
  options.statements = {"Picture = LoadPicture(\"two.bmp\")", "Picture"};
  std::ostringstream out;
  std::ostringstream err;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(files.folder());
  const int status = RunEval(options, out, err);
  std::filesystem::current_path(before);
  EXPECT_EQ(status, 0);
  EXPECT_NE(out.str(), "0\n");
  EXPECT_EQ(out.str().find("error"), std::string::npos) << out.str();
  EXPECT_EQ(err.str(), "");
}

// The command line.

TEST(EvalOptions, UsageNamesTheValuesAStatementTakes) {
  EXPECT_NE(UsageText().find("LoadPicture(\"file\")"), std::string::npos);
  EXPECT_NE(UsageText().find("Nothing"), std::string::npos);
}

TEST(EvalOptions, NewControlLeavesTheSizeToTheSourceInUserMode) {
  const Options options = ParseOptions({"eval", "--new", "-e", "Blocks"});
  EXPECT_EQ(options.command, "eval");
  EXPECT_EQ(options.source, SourceKind::New);
  EXPECT_FALSE(options.help);
  EXPECT_FALSE(options.widthPixels.has_value());
  EXPECT_FALSE(options.heightPixels.has_value());
  EXPECT_FALSE(options.design);
  EXPECT_EQ(options.statements, std::vector<std::string>{"Blocks"});
}

TEST(EvalOptions, StatementsKeepTheirOrder) {
  const Options options = ParseOptions({"eval", "-e", "AddBlock", "--new", "-e", "Blocks", "-e", "-e"});
  EXPECT_EQ(options.statements, (std::vector<std::string>{"AddBlock", "Blocks", "-e"}));
}

TEST(EvalOptions, SizeSetsTheClientSizeInPixels) {
  const Options options = ParseOptions({"eval", "--new", "--size", "200x30", "-e", "Blocks"});
  EXPECT_EQ(options.widthPixels, 200);
  EXPECT_EQ(options.heightPixels, 30);
  EXPECT_EQ(ParseOptions({"eval", "--new", "--size", "7X9", "-e", "Blocks"}).widthPixels, 7);
}

TEST(EvalOptions, DesignSelectsDesignMode) {
  EXPECT_TRUE(ParseOptions({"eval", "--new", "--design", "-e", "Blocks"}).design);
}

TEST(EvalOptions, HelpAsksForTheUsage) {
  EXPECT_TRUE(ParseOptions({"--help"}).help);
  EXPECT_TRUE(ParseOptions({"eval", "-h"}).help);
}

TEST(EvalOptions, BadSizeIsBadUsage) {
  for (const char* size : {"200", "0x10", "10x0", "axb", "200x", "x30", "-5x10", "40000x10", "2x3x4", "+2x3", " 2x3"}) {
    EXPECT_NE(UsageProblem({"eval", "--new", "--size", size, "-e", "Blocks"}).find("--size expects WIDTHxHEIGHT"),
              std::string::npos)
        << size;
  }
}

TEST(EvalOptions, OptionWithoutItsValueIsBadUsage) {
  EXPECT_EQ(UsageProblem({"eval", "--new", "--size"}), "--size needs a size WxH");
  EXPECT_EQ(UsageProblem({"eval", "--new", "-e"}), "-e needs a STATEMENT");
}

TEST(EvalOptions, EvalNeedsASourceAndAStatement) {
  EXPECT_EQ(UsageProblem({"eval", "-e", "Blocks"}), "eval needs a SOURCE: a form file, --demo or --new");
  EXPECT_EQ(UsageProblem({"eval", "--new"}), "eval needs at least one -e STATEMENT");
  EXPECT_EQ(UsageProblem({"eval", "--new", "--demo", "-e", "Blocks"}), "more than one SOURCE given");
}

TEST(EvalOptions, AFormFileIsASource) {
  const Options options = ParseOptions({"eval", "forms/gauge.frm", "-e", "Blocks"});
  EXPECT_EQ(options.source, SourceKind::File);
  EXPECT_EQ(options.sourcePath, "forms/gauge.frm");
}

TEST(EvalOptions, UnknownCommandOrOptionAsksForTheUsage) {
  try {
    ParseOptions({"frobnicate"});
    ADD_FAILURE() << "accepted an unknown command";
  } catch (const UsageError& error) {
    EXPECT_STREQ(error.what(), "unknown command \"frobnicate\"");
    EXPECT_TRUE(error.ShowUsage());
  }
  try {
    ParseOptions({"eval", "--new", "--bogus", "-e", "Blocks"});
    ADD_FAILURE() << "accepted an unknown option";
  } catch (const UsageError& error) {
    EXPECT_STREQ(error.what(), "unknown option \"--bogus\"");
    EXPECT_TRUE(error.ShowUsage());
  }
}

TEST(EvalOptions, NoArgumentsAskForTheUsageAlone) {
  try {
    ParseOptions({});
    ADD_FAILURE() << "accepted an empty command line";
  } catch (const UsageError& error) {
    EXPECT_STREQ(error.what(), "");
    EXPECT_TRUE(error.ShowUsage());
  }
}

// Exit status and streams of the tool.

TEST(EvalCommandLine, EvalPrintsValuesAndExits0) {
  const CommandResult r = RunTool({"eval", "--new", "-e", "AddBlock", "-e", "Blocks"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "1\n");
  EXPECT_EQ(r.err, "");
}

TEST(EvalCommandLine, AutomationErrorsLeaveTheExitStatus0) {
  const CommandResult r = RunTool({"eval", "--new", "-e", "Nonexistent", "-e", "SpecialClearAllBlock"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "error 438\nerror 393\n");
}

TEST(EvalCommandLine, DesignOptionReachesTheControl) {
  const CommandResult r = RunTool({"eval", "--new", "--design", "-e", "SpecialClearAllBlock"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "0\n");
}

TEST(EvalCommandLine, NoArgumentsPrintUsageAndExit2) {
  const CommandResult r = RunTool({});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err.rfind("usage: vorlex render SOURCE", 0), 0u) << r.err;
}

TEST(EvalCommandLine, UnknownOptionPrintsTheProblemThenUsageAndExits2) {
  const CommandResult r = RunTool({"eval", "--new", "--bogus"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.err.rfind("vorlex: unknown option \"--bogus\"\nusage: vorlex render", 0), 0u) << r.err;
}

TEST(EvalCommandLine, StatementThatDoesNotReadExits2WithOneLineQuotingIt) {
  const CommandResult r = RunTool({"eval", "--new", "-e", "Blocks", "-e", "BlockColor(1"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(r.out, "");
  EXPECT_EQ(r.err, "vorlex: cannot read statement \"BlockColor(1\": missing \")\"\n");
}

TEST(EvalCommandLine, MissingFormFileExits2WithOneLineNamingIt) {
  const CommandResult r = RunTool({"eval", "gauge.frm", "-e", "Blocks"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(Lines(r.err), 1);
  EXPECT_NE(r.err.find("gauge.frm"), std::string::npos);
}

TEST(EvalCommandLine, BadSizeExits2WithOneLine) {
  const CommandResult r = RunTool({"eval", "--new", "--size", "wide", "-e", "Blocks"});
  EXPECT_EQ(r.status, 2);
  EXPECT_EQ(Lines(r.err), 1);
  EXPECT_NE(r.err.find("\"wide\""), std::string::npos);
}

TEST(EvalCommandLine, HelpPrintsUsageOnStandardOutputAndExits0) {
  const CommandResult r = RunTool({"--help"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out.rfind("usage: vorlex render", 0), 0u);
  EXPECT_EQ(r.err, "");
}
