#include "EP/ReferenceString.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ReferenceString, IsMadeAndTakenApart) {
  struct Row {
    const char16_t* type;
    const char16_t* value;
    const char16_t* text;
  };
  const Row rows[] = {
      {u"Property", u"1AF5", u"[Property:1AF5]"},
      {u"T2", u"", u"[T2:]"},
      {u"T", u"a]b\\c[d:e]", u"[T:a\\]b\\\\c[d:e\\]]"},
      {u"T", u"\\", u"[T:\\\\]"},
  };
  for (const Row& row : rows) {
    const TW::UniString text = EP::MakeReferenceString(row.type, row.value);
    EXPECT_EQ(text, TW::UniString(row.text));
    EXPECT_TRUE(EP::IsWellFormedReferenceString(text, row.type));
    TW::UniString value;
    EXPECT_TRUE(EP::GetRefValueFromReferenceFormat(text, value));
    EXPECT_EQ(value, TW::UniString(row.value));
    EXPECT_EQ(EP::GetReferenceStringLength(TW::UniString(u"x") + text + u"]", 1), text.GetLength());
  }
}

TEST(ReferenceString, MalformedTextsAreNone) {
  for (const char16_t* text : {u"", u"[", u"[]", u"[:a]", u"[T]", u"[T:a", u"[T:a\\]", u"[T:a] ", u" [T:a]", u"[T:a]]",
                               u"[ T:a]", u"[2T:a]", u"T:a]", u"[T :a]"}) {
    TW::UniString value = u"kept";
    EXPECT_FALSE(EP::IsWellFormedReferenceString(text, u"T")) << TW::UniString(text).ToUtf8();
    EXPECT_FALSE(EP::GetRefValueFromReferenceFormat(text, value)) << TW::UniString(text).ToUtf8();
    EXPECT_EQ(value, u"kept");
  }
  EXPECT_FALSE(EP::IsWellFormedReferenceString(u"[property:a]", u"Property"));
  EXPECT_FALSE(EP::IsWellFormedReferenceString(u"[:a]", u""));
  EXPECT_EQ(EP::GetReferenceStringLength(u"[T:a]", 1), 0U);
  EXPECT_EQ(EP::GetReferenceStringLength(u"[T:a]", 5), 0U);
  EXPECT_EQ(EP::GetReferenceStringLength(u"[T:a]", 4'000'000'000U), 0U);
}

std::string Found(const TW::UniString& text, const TW::UniString& type) {
  std::string found;
  EP::EnumerateReferenceValues(text, type, [&found](unsigned int position, std::u16string_view value) {
    found += std::to_string(position) + "=" + TW::UniString(value).ToUtf8() + ";";
  });
  return found;
}

TEST(ReferenceString, AreFoundAnywhereInAText) {
  struct Row {
    const char16_t* text;
    const char* found;
  };
  const Row rows[] = {
      {u"", ""},
      {u"[T:a] + \"x[T:b]\"[t:c][U:d][T:e", "0=a;10=b;"},
      {u"[[T:a]]", "1=a;"},
      {u"[T:x[T:y]z] [T:w]", "0=x[T:y;4=y;12=w;"},
      {u"[T:a\\][T:b\\\\] [T:c\\\\\\]]", "0=a][T:b\\;6=b\\;14=c\\];"},
      {u"\\[T:a\\\\[T:b\\c]]", "1=a\\[T:b\\c;7=b\\c;"},
      {u"[U:[T:a]", "3=a;"},
      {u"[T:[U:a]", "0=[U:a;"},
      {u"[T: a][T :a]", "0= a;"},
  };
  for (const Row& row : rows) EXPECT_EQ(Found(row.text, u"T"), row.found) << TW::UniString(row.text).ToUtf8();
  EXPECT_EQ(Found(u"[:a][T]:a]", u""), "");
  EXPECT_EQ(Found(u"[T]:a]", u"T]"), "");
}

TEST(ReferenceString, SearchingTakesLinearTime) {
  // Were every opening bracket followed to its end, each of these texts would take a quarter of a million million
  // steps.
  constexpr unsigned int Count = 500'000;
  std::u16string openings;
  for (unsigned int i = 0; i < Count; ++i) openings += u"[Property:\\\\";
  unsigned int found = 0;
  std::size_t last = 0;
  const auto visit = [&](unsigned int, std::u16string_view value) {
    ++found;
    last = value.size();
  };
  EP::EnumerateReferenceValues(openings, u"Property", visit);
  EXPECT_EQ(found, 0U);
  EP::EnumerateReferenceValues(openings + u"]", u"Property", visit);
  EXPECT_EQ(found, Count);
  EXPECT_EQ(last, 1U);
}

}  // namespace
