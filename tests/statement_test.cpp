// Reading statements of the vorlex tool: statement forms, every literal form and
// its Basic type, and the messages for statements that do not read.

#include "statement.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include "picture/picture_file.h"
#include "vorlex/AutomationError.h"
#include "vorlex/Picture.h"

using vorlex::Variant;
using vorlex::VarType;
using vorlex::cli::ParseStatement;
using vorlex::cli::Statement;
using vorlex::cli::SyntaxError;

namespace {

// The value of "X = literal".
Variant Literal(const std::string& literal) {
  const Statement statement = ParseStatement("X = " + literal);
  EXPECT_TRUE(statement.value.has_value()) << literal;
  return statement.value.value_or(Variant());
}

// The message for a statement that does not read, or "" when it reads.
std::string Problem(const std::string& text) {
  try {
    ParseStatement(text);
  } catch (const SyntaxError& error) {
    return error.what();
  }
  return "";
}

Variant I2(int v) { return Variant(static_cast<int16_t>(v)); }
Variant I4(int32_t v) { return Variant(v); }

#define EXPECT_PROBLEM(text, words)                                                                 \
  do {                                                                                              \
    const std::string problem = Problem(text);                                                      \
    EXPECT_NE(problem.find(words), std::string::npos)                                               \
        << "statement: " << (text) << "\nproblem: " << (problem.empty() ? "(read fine)" : problem); \
  } while (0)

}  // namespace

// Statement forms.

TEST(Statement, NameAloneHasNoArgumentsAndNoValue) {
  const Statement s = ParseStatement("Blocks");
  EXPECT_EQ(s.name, "Blocks");
  EXPECT_TRUE(s.args.empty());
  EXPECT_FALSE(s.value.has_value());
}

TEST(Statement, NameKeepsItsSpelling) { EXPECT_EQ(ParseStatement("bLoCkCoLoR_2").name, "bLoCkCoLoR_2"); }

TEST(Statement, ArgumentsAreKeptInCallOrder) {
  const Statement s = ParseStatement("BlockColor(1, \"a\", True)");
  EXPECT_EQ(s.name, "BlockColor");
  ASSERT_EQ(s.args.size(), 3u);
  EXPECT_EQ(s.args[0], I2(1));
  EXPECT_EQ(s.args[1], Variant("a"));
  EXPECT_EQ(s.args[2], Variant::Boolean(true));
  EXPECT_FALSE(s.value.has_value());
}

TEST(Statement, DotNamesAMemberOfTheObjectThePropertyGives) {
  const Statement statement = ParseStatement("Font.Name");
  EXPECT_EQ(statement.name, "Font");
  EXPECT_EQ(statement.member, "Name");
  EXPECT_TRUE(statement.args.empty());
  EXPECT_FALSE(statement.value.has_value());
}

TEST(Statement, MemberAfterArgumentsTakesTheAssignedValue) {
  const Statement statement = ParseStatement("BlockTextFont(1) . Size = 12");
  EXPECT_EQ(statement.name, "BlockTextFont");
  ASSERT_EQ(statement.args.size(), 1u);
  EXPECT_EQ(statement.member, "Size");
  ASSERT_TRUE(statement.value.has_value());
  EXPECT_EQ(statement.value->ToDouble(), 12.0);
}

TEST(Statement, StatementWithoutADotHasNoMember) { EXPECT_TRUE(ParseStatement("Blocks").member.empty()); }

TEST(Statement, DotWithoutAMemberNameIsASyntaxError) {
  EXPECT_THROW(ParseStatement("Font."), SyntaxError);
  EXPECT_THROW(ParseStatement("Font.1 = 2"), SyntaxError);
}

TEST(Statement, AssignmentCarriesTheValue) {
  const Statement s = ParseStatement("Caption = \"Hello\"");
  EXPECT_EQ(s.name, "Caption");
  EXPECT_TRUE(s.args.empty());
  ASSERT_TRUE(s.value.has_value());
  EXPECT_EQ(*s.value, Variant("Hello"));
}

TEST(Statement, IndexedAssignmentCarriesArgumentsAndValue) {
  const Statement s = ParseStatement("BlockColor(2) = &HFF");
  EXPECT_EQ(s.name, "BlockColor");
  ASSERT_EQ(s.args.size(), 1u);
  EXPECT_EQ(s.args[0], I2(2));
  ASSERT_TRUE(s.value.has_value());
  EXPECT_EQ(*s.value, I2(255));
}

TEST(Statement, EmptyParenthesesPassNoArguments) {
  EXPECT_TRUE(ParseStatement("SetBlockColor()").args.empty());
  EXPECT_TRUE(ParseStatement("SetBlockColor(  )").args.empty());
}

TEST(Statement, EmptyArgumentIsOmitted) {
  const Statement s = ParseStatement("Foo(, 2)");
  ASSERT_EQ(s.args.size(), 2u);
  EXPECT_TRUE(s.args[0].IsMissing());
  EXPECT_EQ(s.args[1], I2(2));
}

TEST(Statement, TrailingEmptyArgumentIsOmitted) {
  const Statement s = ParseStatement("Foo(1,)");
  ASSERT_EQ(s.args.size(), 2u);
  EXPECT_EQ(s.args[0], I2(1));
  EXPECT_TRUE(s.args[1].IsMissing());
}

TEST(Statement, CommaAloneOmitsTwoArguments) {
  const Statement s = ParseStatement("Foo( , )");
  ASSERT_EQ(s.args.size(), 2u);
  EXPECT_TRUE(s.args[0].IsMissing());
  EXPECT_TRUE(s.args[1].IsMissing());
}

TEST(Statement, WhitespaceIsAllowedAroundEveryToken) {
  const Statement s = ParseStatement(" \tBlockColor ( 1 ,  2 ) =  -  5 \t");
  EXPECT_EQ(s.name, "BlockColor");
  ASSERT_EQ(s.args.size(), 2u);
  EXPECT_EQ(s.args[0], I2(1));
  EXPECT_EQ(s.args[1], I2(2));
  EXPECT_EQ(*s.value, I2(-5));
}

TEST(Statement, NoSpacesAreNeeded) {
  const Statement s = ParseStatement("BlockText(1)=\"x\"");
  EXPECT_EQ(s.args.at(0), I2(1));
  EXPECT_EQ(*s.value, Variant("x"));
}

// LoadPicture("path").

TEST(Literal, LoadPictureLoadsThePictureFile) {
  const vorlex::picture_test::PictureFile files;
  const Statement s = ParseStatement("Picture = LoadPicture(\"" + files.Bitmap() + "\")");
  ASSERT_TRUE(s.value.has_value());
  ASSERT_EQ(s.value->Type(), VarType::Object);
  const auto picture = std::dynamic_pointer_cast<vorlex::Picture>(s.value->ToObject());
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->Type(), vorlex::kPicTypeBitmap);
  EXPECT_EQ(picture->PixelWidth(), 2);
  EXPECT_EQ(picture->PixelHeight(), 1);
  EXPECT_NE(picture->Handle(), 0u);
  EXPECT_EQ(s.valueError, 0);
}

TEST(Literal, LoadPictureOfNoPathIsTheEmptyPicture) {
  for (const char* text : {"X = LoadPicture()", "X = LoadPicture(\"\")", "X = loadpicture ( \"\" )"}) {
    const Statement s = ParseStatement(text);
    ASSERT_TRUE(s.value.has_value()) << text;
    const auto picture = std::dynamic_pointer_cast<vorlex::Picture>(s.value->ToObject());
    ASSERT_NE(picture, nullptr) << text;
    EXPECT_EQ(picture->Type(), vorlex::kPicTypeNone) << text;
    EXPECT_EQ(picture->Handle(), 0u) << text;
  }
}

TEST(Literal, LoadPictureIsAnArgumentLikeAnyValue) {
  const Statement s = ParseStatement("SetBlockPicture(LoadPicture(), 2)");
  ASSERT_EQ(s.args.size(), 2u);
  EXPECT_EQ(s.args[0].Type(), VarType::Object);
  EXPECT_EQ(s.args[1], I2(2));
}

TEST(Literal, LoadPictureOfAMissingFileKeepsError53ForTheStatement) {
  const vorlex::picture_test::PictureFile files;
  const Statement s = ParseStatement("Picture = LoadPicture(\"" + files.Missing() + "\")");
  EXPECT_EQ(s.name, "Picture");
  EXPECT_EQ(s.valueError, vorlex::kErrFileNotFound);
}

TEST(Literal, LoadPictureOfAFileThatIsNoPictureKeepsError481) {
  const vorlex::picture_test::PictureFile files;
  EXPECT_EQ(ParseStatement("Picture = LoadPicture(\"" + files.NotAPicture() + "\")").valueError,
            vorlex::kErrInvalidPicture);
}

TEST(Literal, FirstErrorOfTheStatementIsKept) {
  const vorlex::picture_test::PictureFile files;
  const Statement s =
      ParseStatement("Foo(LoadPicture(\"" + files.NotAPicture() + "\"), LoadPicture(\"" + files.Missing() + "\"))");
  EXPECT_EQ(s.valueError, vorlex::kErrInvalidPicture);
}

// Decimal integers.

TEST(Literal, DecimalIntegerThatFits16BitsIsAnInteger) {
  EXPECT_EQ(Literal("0"), I2(0));
  EXPECT_EQ(Literal("255"), I2(255));
  EXPECT_EQ(Literal("32767"), I2(32767));
  EXPECT_EQ(Literal("-32768"), I2(-32768));
  EXPECT_EQ(Literal("007"), I2(7));
}

TEST(Literal, DecimalIntegerBeyond16BitsIsALong) {
  EXPECT_EQ(Literal("32768"), I4(32768));
  EXPECT_EQ(Literal("-32769"), I4(-32769));
  EXPECT_EQ(Literal("60000"), I4(60000));
  EXPECT_EQ(Literal("2147483647"), I4(2147483647));
  EXPECT_EQ(Literal("-2147483648"), I4(std::numeric_limits<int32_t>::min()));
}

TEST(Literal, DecimalIntegerBeyond32BitsIsADouble) {
  EXPECT_EQ(Literal("2147483648"), Variant(2147483648.0));
  EXPECT_EQ(Literal("-2147483649"), Variant(-2147483649.0));
  EXPECT_EQ(Literal("100000000000000000000"), Variant(1e20));
}

TEST(Literal, UnaryMinusAppliesToTheNumber) {
  EXPECT_EQ(Literal("-1"), I2(-1));
  EXPECT_EQ(Literal("- 30"), I2(-30));
  EXPECT_EQ(Literal("-1.5"), Variant(-1.5));
}

// Reals.

TEST(Literal, RealsAreDoubles) {
  EXPECT_EQ(Literal("1.5"), Variant(1.5));
  EXPECT_EQ(Literal(".5"), Variant(0.5));
  EXPECT_EQ(Literal("2."), Variant(2.0));
  EXPECT_EQ(Literal("1e3"), Variant(1000.0));
  EXPECT_EQ(Literal("1E3"), Variant(1000.0));
  EXPECT_EQ(Literal("1.5E-3"), Variant(0.0015));
  EXPECT_EQ(Literal("2.5e+2"), Variant(250.0));
}

TEST(Literal, TypeSuffixesChooseTheType) {
  EXPECT_EQ(Literal("5%"), I2(5));
  EXPECT_EQ(Literal("5&"), I4(5));
  EXPECT_EQ(Literal("-5&"), I4(-5));
  EXPECT_EQ(Literal("1.5!"), Variant(1.5f));
  EXPECT_EQ(Literal("5#"), Variant(5.0));
}

// Hexadecimal and octal.

TEST(Literal, HexThatFits16BitsIsASignedInteger) {
  EXPECT_EQ(Literal("&HFF"), I2(255));
  EXPECT_EQ(Literal("&h7fff"), I2(32767));
  EXPECT_EQ(Literal("&H8000"), I2(-32768));
  EXPECT_EQ(Literal("&HFFFF"), I2(-1));
  EXPECT_EQ(Literal("&H0"), I2(0));
}

TEST(Literal, HexBeyond16BitsIsASignedLong) {
  EXPECT_EQ(Literal("&H10000"), I4(65536));
  EXPECT_EQ(Literal("&HFF0000"), I4(0xFF0000));
  EXPECT_EQ(Literal("&H80000000"), I4(std::numeric_limits<int32_t>::min()));
  EXPECT_EQ(Literal("&HFFFFFFFF"), I4(-1));
  EXPECT_EQ(Literal("&H000000FF"), I2(255));
}

TEST(Literal, TrailingAmpersandMakesHexALong) {
  EXPECT_EQ(Literal("&HFFFF&"), I4(65535));
  EXPECT_EQ(Literal("&HFF&"), I4(255));
  EXPECT_EQ(Literal("&H8000000F&"), I4(static_cast<int32_t>(0x8000000Fu)));
}

TEST(Literal, TrailingPercentMakesHexAnInteger) { EXPECT_EQ(Literal("&HFFFF%"), I2(-1)); }

TEST(Literal, OctalFollowsTheHexRules) {
  EXPECT_EQ(Literal("&O17"), I2(15));
  EXPECT_EQ(Literal("&o777"), I2(511));
  EXPECT_EQ(Literal("&O177777"), I2(-1));
  EXPECT_EQ(Literal("&O200000"), I4(65536));
  EXPECT_EQ(Literal("&O37777777777"), I4(-1));
  EXPECT_EQ(Literal("&O177777&"), I4(65535));
}

TEST(Literal, MinusOnHexNegatesTheTypedValue) {
  EXPECT_EQ(Literal("-&HFF"), I2(-255));
  EXPECT_EQ(Literal("-&HFFFF"), I2(1));
  EXPECT_EQ(Literal("-&H8000"), I4(32768));
  EXPECT_EQ(Literal("-&H10000"), I4(-65536));
  EXPECT_EQ(Literal("-&H80000000"), Variant(2147483648.0));
}

// Strings, booleans, Nothing.

TEST(Literal, StringKeepsItsText) {
  EXPECT_EQ(Literal("\"Hello, (world)\""), Variant("Hello, (world)"));
  EXPECT_EQ(Literal("\"  padded  \""), Variant("  padded  "));
}

TEST(Literal, DoubledQuoteInAStringIsOneQuote) {
  EXPECT_EQ(Literal("\"a\"\"b\""), Variant("a\"b"));
  EXPECT_EQ(Literal("\"\"\"\""), Variant("\""));
}

TEST(Literal, EmptyStringIsAStringNotEmpty) {
  const Variant v = Literal("\"\"");
  EXPECT_EQ(v.Type(), VarType::String);
  EXPECT_EQ(v.ToString(), "");
}

TEST(Literal, StringKeepsUtf8Bytes) { EXPECT_EQ(Literal("\"\xC3\xA9t\xC3\xA9\""), Variant("\xC3\xA9t\xC3\xA9")); }

TEST(Literal, TrueAndFalseAreBooleansInAnyCase) {
  EXPECT_EQ(Literal("True"), Variant::Boolean(true));
  EXPECT_EQ(Literal("TRUE"), Variant::Boolean(true));
  EXPECT_EQ(Literal("false"), Variant::Boolean(false));
  EXPECT_EQ(Literal("True").Type(), VarType::Boolean);
  EXPECT_EQ(Literal("True").ToInteger(), -1);
}

TEST(Literal, NothingIsANullObject) {
  const Variant v = Literal("Nothing");
  EXPECT_EQ(v.Type(), VarType::Object);
  EXPECT_EQ(v.ToObject(), nullptr);
}

// Statements that do not read.

TEST(StatementProblem, EmptyStatement) {
  EXPECT_PROBLEM("", "empty");
  EXPECT_PROBLEM("   ", "empty");
}

TEST(StatementProblem, UnterminatedString) {
  EXPECT_PROBLEM("Caption = \"abc", "unterminated string");
  EXPECT_PROBLEM("Caption = \"abc\"\"", "unterminated string");
  EXPECT_PROBLEM("BlockText(\"k) = 1", "unterminated string");
}

TEST(StatementProblem, MissingClosingParenthesis) {
  EXPECT_PROBLEM("BlockColor(1", "missing \")\"");
  EXPECT_PROBLEM("BlockColor(1,", "missing \")\"");
  EXPECT_PROBLEM("BlockColor(", "missing \")\"");
  EXPECT_PROBLEM("BlockColor(1 = 5", "expected \",\" or \")\"");
}

TEST(StatementProblem, ArgumentsNeedCommasBetweenThem) {
  EXPECT_PROBLEM("BlockColor(1 2)", "expected \",\" or \")\" at \"2)\"");
}

TEST(StatementProblem, TrailingGarbage) {
  EXPECT_PROBLEM("Blocks 5", "unexpected \"5\"");
  EXPECT_PROBLEM("Blocks = 5 6", "unexpected \"6\"");
  EXPECT_PROBLEM("BlockColor(1) x", "unexpected \"x\"");
  EXPECT_PROBLEM("Caption = \"a\" \"b\"", "unexpected \"\"b\"\"");
  EXPECT_PROBLEM("Blocks()) ", "unexpected \")");
  EXPECT_PROBLEM("Font.Name.Size", "unexpected \".Size\"");
}

TEST(StatementProblem, BadHex) {
  EXPECT_PROBLEM("X = &HFG", "bad hex number \"&HFG\"");
  EXPECT_PROBLEM("X = &HFFZ", "bad hex number \"&HFFZ\"");
  EXPECT_PROBLEM("X = &H", "bad hex number \"&H\": no digits");
  EXPECT_PROBLEM("X = &H&", "no digits");
  EXPECT_PROBLEM("X = &H100000000", "\"&H100000000\" does not fit in 32 bits");
  EXPECT_PROBLEM("X = &H10000%", "does not fit in an Integer");
  EXPECT_PROBLEM("X = &X10", "expected &H or &O");
}

TEST(StatementProblem, BadOctal) {
  EXPECT_PROBLEM("X = &O8", "bad octal number \"&O8\"");
  EXPECT_PROBLEM("X = &O40000000000", "does not fit in 32 bits");
}

TEST(StatementProblem, BadDecimal) {
  EXPECT_PROBLEM("X = 12abc", "bad number \"12abc\"");
  EXPECT_PROBLEM("X = 1.2.3", "bad number \"1.2.3\"");
  EXPECT_PROBLEM("X = 1e", "the exponent has no digits");
  EXPECT_PROBLEM("X = 1e+", "the exponent has no digits");
  EXPECT_PROBLEM("X = 1e400", "out of range");
  EXPECT_PROBLEM("X = 1.5%", "a whole number was expected");
  EXPECT_PROBLEM("X = 40000%", "does not fit in an Integer");
  EXPECT_PROBLEM("X = 3000000000&", "does not fit in a Long");
  EXPECT_PROBLEM("X = 1e39!", "does not fit in a Single");
}

TEST(StatementProblem, NameMustComeFirst) {
  EXPECT_PROBLEM("1Blocks", "expected a member name");
  EXPECT_PROBLEM("= 5", "expected a member name");
  EXPECT_PROBLEM("(1)", "expected a member name");
}

TEST(StatementProblem, AssignmentNeedsAValue) {
  EXPECT_PROBLEM("Caption =", "expected a value after \"=\"");
  EXPECT_PROBLEM("Caption =   ", "expected a value after \"=\"");
  EXPECT_PROBLEM("Caption = = 1", "expected a value at \"= 1\"");
}

TEST(StatementProblem, MinusNeedsANumber) {
  EXPECT_PROBLEM("Caption = -\"x\"", "a minus sign must be followed by a number");
  EXPECT_PROBLEM("Redraw = -True", "a minus sign must be followed by a number");
  EXPECT_PROBLEM("X = --1", "a minus sign must be followed by a number");
}

TEST(StatementProblem, NamesAreNotValues) {
  EXPECT_PROBLEM("BlockColor(1) = vbRed", "\"vbRed\" is not a value");
  EXPECT_PROBLEM("BlockColor(Blocks)", "\"Blocks\" is not a value");
}

TEST(StatementProblem, LoadPictureIsAValueNotAMember) {
  EXPECT_PROBLEM("LoadPicture(\"gauge.bmp\")", "LoadPicture is a function, not a member");
  EXPECT_PROBLEM("loadpicture", "LoadPicture is a function, not a member");
}

TEST(StatementProblem, LoadPictureTakesOnePathInParentheses) {
  EXPECT_PROBLEM("Picture = LoadPicture", "LoadPicture needs its path in parentheses");
  EXPECT_PROBLEM("Picture = LoadPicture \"a.bmp\"", "LoadPicture needs its path in parentheses");
  EXPECT_PROBLEM("Picture = LoadPicture(5)", "LoadPicture takes a \"path\" string at \"5)\"");
  EXPECT_PROBLEM("Picture = LoadPicture(a.bmp)", "LoadPicture takes a \"path\" string");
  EXPECT_PROBLEM("Picture = LoadPicture(\"a.bmp\", 1)", "LoadPicture takes only the path here");
  EXPECT_PROBLEM("Picture = LoadPicture(\"a.bmp\"", "missing \")\" after LoadPicture's path");
  EXPECT_PROBLEM("Picture = LoadPicture(\"a.bmp", "unterminated string");
  EXPECT_PROBLEM("Picture = LoadPicture(\"\") 5", "unexpected \"5\"");
}

TEST(StatementProblem, ExpressionsAreNotValues) {
  EXPECT_PROBLEM("X = 1 + 2", "unexpected \"+ 2\"");
  EXPECT_PROBLEM("BlockColor(5-3)", "expected \",\" or \")\" at \"-3)\"");
}
