#include "TW/UniString.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using TW::UniString;

TEST(UniString, MapsCaseByTheFullUnicodeMapping) {
  struct Row {
    const char16_t* text;
    const char16_t* upper;
    const char16_t* lower;
  };
  const Row rows[] = {
      {u"", u"", u""},
      {u"Wall 12b", u"WALL 12B", u"wall 12b"},
      {u"straße", u"STRASSE", u"straße"},
      {u"ΟΔΟΣ", u"ΟΔΟΣ", u"οδος"},
      {u"İi", u"İI", u"i̇i"},
      {u"ﬁx", u"FIX", u"ﬁx"},
      {u"\U00010428", u"\U00010400", u"\U00010428"},
      {u"@[`{", u"@[`{", u"@[`{"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(UniString(row.text).ToUpperCase(), UniString(row.upper));
    EXPECT_EQ(UniString(row.text).ToLowerCase(), UniString(row.lower));
  }
  const UniString cut(std::u16string(1, u'\xD83D') + u"a");
  EXPECT_EQ(cut.ToUpperCase(), UniString(std::u16string(1, u'\xD83D') + u"A"));
}

TEST(UniString, TrimsUnicodeWhiteSpace) {
  EXPECT_EQ(UniString(u" \t\r\n\u00A0\u2003\u3000a b\u202F ").Trim(), UniString(u"a b"));
  EXPECT_EQ(UniString(u" \u2028 ").Trim(), UniString());
  // A zero-width space is no white space.
  EXPECT_EQ(UniString(u"\u200Ba").Trim(), UniString(u"\u200Ba"));
}

TEST(UniChar, ClassesCharactersOfAllScripts) {
  struct Row {
    char16_t unit;
    bool space, alpha, alphaNumeric;
  };
  const Row rows[] = {
      {u'a', false, true, true},        {u'Z', false, true, true},      {u'0', false, false, true},
      {u'_', false, false, false},      {u' ', true, false, false},     {u'\x0B', true, false, false},
      {u'\x85', true, false, false},    {u'\u00DF', false, true, true}, {u'\u0416', false, true, true},
      {u'\u0665', false, false, true},  {u'\u4E2D', false, true, true}, {u'\u00B2', false, false, false},
      {u'\xD83D', false, false, false}, {u'\0', false, false, false},
  };
  for (const Row& row : rows) {
    const TW::UniChar unit(row.unit);
    EXPECT_EQ(unit.IsWhiteSpace(), row.space) << static_cast<int>(row.unit);
    EXPECT_EQ(unit.IsAlpha(), row.alpha) << static_cast<int>(row.unit);
    EXPECT_EQ(unit.IsAlphaNumeric(), row.alphaNumeric) << static_cast<int>(row.unit);
  }
}

TEST(UniString, FindsOccurrencesThatDoNotOverlap) {
  struct Row {
    const char16_t* text;
    const char16_t* searched;
    std::vector<unsigned int> positions;
  };
  const UniString longPattern(20, u'a');
  const UniString longText = UniString(45, u'a') + u"b" + longPattern;
  const Row rows[] = {
      {u"aaa", u"aa", {0}},
      {u"abcabc", u"c", {2, 5}},
      {u"abc", u"", {}},
      {u"", u"a", {}},
      {u"ab", u"abc", {}},
      {longText.GetView().data(), longPattern.GetView().data(), {0, 20, 46}},
      {u"abababababababababababX-abababababababababababY", u"ababababababababababY", {26}},
  };
  for (const Row& row : rows) {
    std::vector<unsigned int> positions;
    UniString(row.text).Find(UniString(row.searched), [&](unsigned int at) { positions.push_back(at); });
    EXPECT_EQ(positions, row.positions) << UniString(row.searched).ToUtf8();
  }
}

TEST(UniString, FindsTheFirstOccurrenceFromAStart) {
  const UniString text(u"abcb");
  EXPECT_EQ(text.FindFirst(u"b"), 1U);
  EXPECT_EQ(text.FindFirst(u"b", 2), 3U);
  EXPECT_EQ(text.FindFirst(u"b", 4), std::nullopt);
  EXPECT_EQ(text.FindFirst(u"", 4), 4U);
  EXPECT_EQ(text.FindFirst(u"", 5), std::nullopt);
  EXPECT_TRUE(text.Contains(u""));
  EXPECT_TRUE(text.Contains(u"cb"));
  EXPECT_FALSE(text.Contains(u"B"));
}

TEST(UniString, SearchesStayLinearWhereEveryPositionNearlyMatches) {
  // 2 MB of text and a pattern of 1 MB: a search that tries every position would take hours.
  const UniString text(1'000'000, u'a');
  const UniString pattern = UniString(500'000, u'a') + u"b";
  EXPECT_FALSE(text.Contains(pattern));
  EXPECT_EQ(text.ReplaceAll(UniString(1000, u'a'), u"x").GetLength(), 1000U);
}

TEST(UniString, SplitsAndReplaces) {
  struct Row {
    const char16_t* text;
    const char16_t* separator;
    std::vector<UniString> parts;
    const char16_t* replacedByPlus;
  };
  const Row rows[] = {
      {u"a;b;c", u";", {u"a", u"b", u"c"}, u"a+b+c"},
      {u";a;;", u";", {u"", u"a", u"", u""}, u"+a++"},
      {u"aaa", u"aa", {u"", u"a"}, u"+a"},
      {u"abc", u"", {u"abc"}, u"abc"},
      {u"", u";", {u""}, u""},
  };
  for (const Row& row : rows) {
    const UniString text(row.text);
    const auto parts = text.Split(UniString(row.separator));
    EXPECT_EQ(std::vector<UniString>(parts.begin(), parts.end()), row.parts) << text.ToUtf8();
    EXPECT_EQ(text.ReplaceAll(UniString(row.separator), u"+"), UniString(row.replacedByPlus));
  }
}

TEST(UniString, CutsAndSetsSubstringsWithinItsBounds) {
  const UniString text(u"abcdef");
  EXPECT_EQ(text.Substring(2, 2), UniString(u"cd"));
  EXPECT_EQ(text.Substring(4, 4'000'000'000U), UniString(u"ef"));
  EXPECT_EQ(text.Substring(6, 1), UniString());
  EXPECT_EQ(text.Substring(7, 1), UniString());

  const auto replaced = [&](unsigned int start, unsigned int count, const char16_t* by) {
    UniString changed = text;
    changed.SetSubstring(start, count, by);
    return changed;
  };
  EXPECT_EQ(replaced(1, 3, u"X"), UniString(u"aXef"));
  EXPECT_EQ(replaced(0, 0, u"X"), UniString(u"Xabcdef"));
  EXPECT_EQ(replaced(4, 99, u"X"), UniString(u"abcdX"));
  EXPECT_EQ(replaced(99, 1, u"X"), UniString(u"abcdefX"));
}

TEST(UniString, ComparesByUnitOrAfterCaseFolding) {
  EXPECT_EQ(UniString(u"a").Compare(u"b"), -1);
  EXPECT_EQ(UniString(u"b").Compare(u"a"), 1);
  EXPECT_EQ(UniString(u"a").Compare(u"A"), 1);
  EXPECT_EQ(UniString(u"a").Compare(u"a"), 0);
  EXPECT_EQ(UniString(u"a").Compare(u"ab"), -1);
  // By code unit: the surrogates of U+10000 stand before U+FFFD.
  EXPECT_EQ(UniString(u"\U00010000").Compare(u"\uFFFD"), -1);
  EXPECT_EQ(UniString(u"STRASSE").Compare(u"straße", TW::CaseComparison::CaseInsensitive), 0);
  EXPECT_EQ(UniString(u"Abc").Compare(u"abD", TW::CaseComparison::CaseInsensitive), -1);
}

TEST(UniString, FillsTemplates) {
  EXPECT_EQ(UniString::Printf(u"%T (code=%T)", UniString(u"."), UniString::FromInteger(46)), UniString(u". (code=46)"));
  EXPECT_EQ(UniString::Printf(u"100%% of %T, %d%", UniString(u"%T")), UniString(u"100% of %T, %d%"));
  EXPECT_EQ(UniString::Printf(u"%T|%T", UniString(u"a")), UniString(u"a|"));
  EXPECT_EQ(UniString::Printf(u"plain", UniString(u"unused")), UniString(u"plain"));
}

TEST(UniString, ReadsBrokenUtf8AsReplacementCharacters) {
  struct Row {
    std::string bytes;
    std::u16string units;
  };
  const Row rows[] = {
      {"abc", u"abc"},
      {"m\xC2\xB2", u"m²"},
      {"\xF0\x9F\x98\x80", u"😀"},
      {std::string("a\0b", 3), std::u16string(u"a\0b", 3)},
      {"\xFF", u"\uFFFD"},
      {"a\xC2", u"a\uFFFD"},
      {"\xC0\x80", u"\uFFFD\uFFFD"},
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"\xE2\x82(", u"\uFFFD("},
  };
  for (const Row& row : rows) EXPECT_EQ(UniString::FromUtf8(row.bytes), UniString(std::u16string_view(row.units)));
}

TEST(UniString, WritesUtf8WithLoneSurrogatesReplaced) {
  EXPECT_EQ(UniString(u"m² 😀").ToUtf8(), "m² 😀");
  EXPECT_EQ(UniString(std::u16string(u"a\xD83D")).ToUtf8(), "a\xEF\xBF\xBD");
  EXPECT_EQ(UniString(std::u16string(u"\xDE00z")).ToUtf8(), "\xEF\xBF\xBDz");
}

TEST(UniString, ComposesAccents) {
  EXPECT_EQ(UniString(u"Mu\u0308nchen").ToNormalizationFormC(), UniString(u"München"));
  // Two units become three.
  EXPECT_EQ(UniString(u"\u2ADC").ToNormalizationFormC(), UniString(u"\u2ADD\u0338"));
}

}  // namespace
