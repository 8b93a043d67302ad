#include "Quorix/KeywordFinder.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

namespace {

using QX::FindKeywordAroundCharPosition;
using QX::FoundKeyword;
using TW::UniString;

struct Row {
  const char16_t* text;
  unsigned int position;
  const char16_t* keyword;  ///< null where nothing is found
  unsigned int begin;
  unsigned int end;
};

void ExpectFound(const Row& row, const TW::Optional<FoundKeyword>& found) {
  SCOPED_TRACE(UniString(row.text).ToUtf8() + " at " + std::to_string(row.position));
  ASSERT_EQ(found.has_value(), row.keyword != nullptr);
  if (!found) return;
  EXPECT_EQ(found->keyword, UniString(row.keyword));
  EXPECT_EQ(found->range.begin, row.begin);
  EXPECT_EQ(found->range.end, row.end);
  EXPECT_EQ(*found, FoundKeyword(row.keyword, {row.begin, row.end}));
  EXPECT_NE(*found, FoundKeyword(row.keyword, {row.begin, row.end + 1}));
}

TEST(KeywordFinder, FindsWordsThatTheCaretTouches) {
  constexpr Row Rows[] = {
      {u"ab+cd", 0, u"ab", 0, 2},          {u"ab+cd", 2, u"ab", 0, 2},   {u"ab+cd", 3, u"cd", 3, 5},
      {u"ab+cd", 5, u"cd", 3, 5},          {u"ab+cd", 6, nullptr, 0, 0}, {u"ab++cd", 3, nullptr, 0, 0},
      {u"ab xx cd", 4, nullptr, 0, 0},     {u"", 0, nullptr, 0, 0},      {u"", 1, nullptr, 0, 0},
      {u"ab", 4294967295U, nullptr, 0, 0},
  };
  const auto isLetter = [](const TW::UniChar& character) { return character.IsAlpha(); };
  const auto isKeyword = [](const UniString& word) { return word != UniString(u"xx"); };
  for (const Row& row : Rows) {
    ExpectFound(row, FindKeywordAroundCharPosition(row.text, row.position, isLetter, isKeyword));
  }
}

TEST(KeywordFinder, FindsTheWordsOfTheLanguage) {
  constexpr Row Rows[] = {
      {u"sum(1, pi)", 0, u"SUM", 0, 3},
      {u"sum(1, pi)", 3, u"SUM", 0, 3},
      {u"sum(1, pi)", 4, nullptr, 0, 0},
      {u"sum(1, pi)", 8, u"pi", 7, 9},
      {u"x = Log10(5)", 7, u"LOG10", 4, 9},
      {u"1<=2", 1, u"<=", 1, 3},
      {u"1<=2", 2, u"<=", 1, 3},
      {u"1 <> 2", 4, u"<>", 2, 4},
      {u"1 >< 2", 3, nullptr, 0, 0},
      // A caret between an operator and a function touches both; operators come first, but constants before them.
      {u"2*sqrt(4)", 2, u"*", 1, 2},
      {u"2*sqrt(4)", 3, u"SQRT", 2, 6},
      {u"2*PI", 2, u"PI", 2, 4},
      {u"2*True", 6, u"True", 2, 6},
      {u"sum2(1)", 2, nullptr, 0, 0},
      {u"foo(1)", 2, nullptr, 0, 0},
      {u"", 0, nullptr, 0, 0},
      {u"pi", 3, nullptr, 0, 0},
  };
  for (const Row& row : Rows) ExpectFound(row, FindKeywordAroundCharPosition(row.text, row.position));
}

// Only the word and its neighbours are looked at, however long the text is.
TEST(KeywordFinder, LooksAtTheWordOnly) {
  const UniString text = UniString(1000, u' ') + u"abc" + UniString(1000, u' ');
  int looks = 0;
  const auto isLetter = [&looks](const TW::UniChar& character) {
    ++looks;
    return character.IsAlpha();
  };
  const auto isKeyword = [](const UniString&) { return true; };
  EXPECT_EQ(FindKeywordAroundCharPosition(text, 1001, isLetter, isKeyword), FoundKeyword(u"abc", {1000, 1003}));
  EXPECT_LE(looks, 5);
}

}  // namespace
