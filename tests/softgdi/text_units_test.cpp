// UTF-8 to the UTF-16 units GDI draws, per-byte advances to per-unit ones, and
// the code page the Windows bitmap fonts are indexed by.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/soft/text/code_page.h"
#include "platform/soft/text/utf16_text.h"

namespace {

using vorlex::gdi::soft::text::Cp1252Code;
using vorlex::gdi::soft::text::UnitAdvances;
using vorlex::gdi::soft::text::Utf16FromUtf8;

std::u16string Units(const std::string& text) { return Utf16FromUtf8(text.data(), text.size()); }

TEST(SoftTextUnits, CharactersBecomeOneUnitOrASurrogatePair) {
  EXPECT_EQ(Units("Ab"), u"Ab");
  EXPECT_EQ(Units("\xC3\xA9\xE2\x82\xAC"), u"\u00E9\u20AC");
  EXPECT_EQ(Units("\xF0\x9F\x98\x80"), std::u16string({0xD83D, 0xDE00}));
}

TEST(SoftTextUnits, InvalidUtf8BecomesReplacementCharacters) {
  EXPECT_EQ(Units(std::string("a\xFF") + "b"), u"a\uFFFDb");
  EXPECT_EQ(Units("\xE2\x82"), u"\uFFFD") << "a sequence cut short is one character";
  EXPECT_EQ(Units(std::string("\xE2\x82") + "a"), u"\uFFFDa");
  EXPECT_EQ(Units("\xC0\x80"), u"\uFFFD\uFFFD") << "no overlong forms";
  EXPECT_EQ(Units("\xED\xA0\x80"), u"\uFFFD") << "no encoded surrogates";
}

TEST(SoftTextUnits, OnlyTheBytesCountedAreRead) {
  const char text[] = "abc";
  EXPECT_EQ(Utf16FromUtf8(text, 2), u"ab");
  EXPECT_EQ(Utf16FromUtf8(nullptr, 0), u"");
}

TEST(SoftTextUnits, PerByteAdvancesAddUpPerCharacter) {
  const std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
  const std::vector<int> dx = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  EXPECT_EQ(UnitAdvances(text.data(), text.size(), dx.data()), (std::vector<int>{1, 5, 15, 34, 0}));
}

TEST(SoftTextUnits, CodePage1252MapsItsPunctuationAndKeepsLatin1) {
  EXPECT_EQ(Cp1252Code(u'A'), 0x41u);
  EXPECT_EQ(Cp1252Code(u'\u00E9'), 0xE9u);
  EXPECT_EQ(Cp1252Code(u'\u20AC'), 0x80u);
  EXPECT_EQ(Cp1252Code(u'\u2019'), 0x92u);
  EXPECT_EQ(Cp1252Code(u'\u0178'), 0x9Fu);
  EXPECT_EQ(Cp1252Code(u'\u4E00'), 0x4E00u) << "not in the code page: left for the font's default character";
}

}  // namespace
