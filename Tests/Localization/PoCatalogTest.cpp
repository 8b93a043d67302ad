#include "Localization/PoDictionary.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Localization::PoDictionary;
using namespace std::string_literals;

struct Lookup {
  const char16_t* context;
  const char16_t* text;
  const char16_t* translation;
};

void ExpectLookups(const PoDictionary& dictionary, const std::vector<Lookup>& lookups, const std::string& shown) {
  for (const Lookup& lookup : lookups) {
    EXPECT_EQ(dictionary.Translate(lookup.text, lookup.context), TW::UniString(lookup.translation)) << shown;
  }
}

struct PoRow {
  std::string po;
  std::size_t count;
  std::vector<Lookup> lookups;
};

void ExpectRows(const std::vector<PoRow>& rows) {
  for (const PoRow& row : rows) {
    PoDictionary dictionary;
    EXPECT_EQ(dictionary.ReadPo(row.po), TW::NoErr) << row.po;
    EXPECT_EQ(dictionary.GetCount(), row.count) << row.po;
    ExpectLookups(dictionary, row.lookups, row.po);
  }
}

std::string Header(const std::string& characterSet) {
  return "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=" + characterSet + "\\nX: y\\n\"\n";
}

TEST(PoCatalog, GivesTheTranslationOfTheContextThenTheOneWithoutThenTheText) {
  ExpectRows({
      {"msgid \"a\"\nmsgstr \"A\"\nmsgctxt \"c\"\nmsgid \"a\"\nmsgstr \"C\"\nmsgctxt \"c\"\nmsgid \"b\"\nmsgstr "
       "\"B\"\n",
       3,
       {{u"", u"a", u"A"}, {u"c", u"a", u"C"}, {u"d", u"a", u"A"}, {u"", u"b", u"b"}, {u"c", u"b", u"B"}}},
      // Context and text are not run together.
      {"msgctxt \"ab\"\nmsgid \"c\"\nmsgstr \"X\"", 1, {{u"a", u"bc", u"bc"}, {u"", u"abc", u"abc"}}},
      {"msgctxt \"\"\nmsgid \"a\"\nmsgstr \"A\"", 1, {{u"", u"a", u"A"}}},
      {"msgctxt \"c\"\nmsgid \"\"\nmsgstr \"E\"", 1, {{u"c", u"", u"E"}, {u"", u"", u""}}},
  });
}

TEST(PoCatalog, ReadsTheWholeGrammar) {
  ExpectRows({
      {"", 0, {}},
      {"\n \t\n# only a comment", 0, {}},
      {"\xEF\xBB\xBFmsgid \"a\"\r\nmsgstr \"A\"\r\n\r\n", 1, {{u"", u"a", u"A"}}},
      {"  msgid\"a\" \t\"b\"\n  \"c\"\n\nmsgstr\n\"A\"\"B\"\n# between\n\"C\"", 1, {{u"", u"abc", u"ABC"}}},
      {"msgid \"a\"\nmsgid_plural \"as\"\nmsgstr[0] \"A\"\n\"1\"\nmsgstr[1] \"As\"\nmsgstr[2] \"Ass\"\n"
       "msgid \"b\"\nmsgstr \"B\"",
       2,
       {{u"", u"a", u"A1"}, {u"", u"as", u"as"}, {u"", u"b", u"B"}}},
      // Untranslated, also in part, and translated again.
      {"msgid \"a\"\nmsgstr \"\"\nmsgid \"b\"\nmsgid_plural \"bs\"\nmsgstr[0] \"\"\nmsgstr[1] \"Bs\"\n", 0, {}},
      {"msgid \"a\"\nmsgstr \"1\"\nmsgid \"a\"\nmsgstr \"2\"\nmsgid \"a\"\nmsgstr \"\"\n", 1, {{u"", u"a", u"2"}}},
      // Comments and marks.
      {"#: place\n#. note\n#| msgid \"x\"\n#, c-format, no-wrap\nmsgid \"a\"\nmsgstr \"A\"", 1, {{u"", u"a", u"A"}}},
      {"#,fuzzy\nmsgid \"a\"\nmsgstr \"A\"\nmsgid \"b\"\nmsgstr \"B\"", 1, {{u"", u"a", u"a"}, {u"", u"b", u"B"}}},
      {"#, c-format, fuzzy\r\n\nmsgctxt \"c\"\nmsgid \"a\"\nmsgstr \"A\"", 0, {}},
      {"#, no-fuzzy, fuzzyness\nmsgid \"a\"\nmsgstr \"A\"", 1, {}},
      {"#, fuzzy\n#~ msgid \"o\"\n#~ msgstr \"O\"\n\nmsgid \"a\"\nmsgstr \"A\"", 1, {{u"", u"o", u"o"}}},
      {"#~ anything \"goes\nmsgid \"a\"\nmsgstr \"A\"", 1, {}},
  });
}

TEST(PoCatalog, ReadsEscapesAsBytes) {
  ExpectRows({
      {"msgid \"a\"\nmsgstr \"\\n\\t\\r\\a\\b\\f\\v\\\\\\\"\"", 1, {{u"", u"a", u"\n\t\r\a\b\f\v\\\""}}},
      {"msgid \"a\"\nmsgstr \"\\1018\\x41e\\60\\x9!\"", 1, {{u"", u"a", u"A8Ae0\t!"}}},
      {"msgid \"\\303\"\n\"\\xA9\"\nmsgstr \"\\xe2\\x82\xAC\"", 1, {{u"", u"\u00E9", u"\u20AC"}}},
      {"msgid \"a\\\\\"\nmsgstr \"A\"", 1, {{u"", u"a\\", u"A"}}},
      {"msgid \"a\"\nmsgstr \"x\xC3y\\377z\"", 1, {{u"", u"a", u"x\uFFFDy\uFFFDz"}}},
  });
}

TEST(PoCatalog, ReadsTheCharacterSetOfTheHeader) {
  const std::string latin = "msgid \"\xE9\"\nmsgstr \"\xE4\\344\"\n";
  ExpectRows({
      {Header("ISO-8859-1") + latin, 1, {{u"", u"\u00E9", u"\u00E4\u00E4"}}},
      {latin + Header("latin1"), 1, {{u"", u"\u00E9", u"\u00E4\u00E4"}}},
      {"#, fuzzy\n" + Header("ISO-8859-1") + latin, 1, {{u"", u"\u00E9", u"\u00E4\u00E4"}}},
      // The first header counts.
      {Header("ISO-8859-1") + Header("no-such-set") + latin, 1, {{u"", u"\u00E9", u"\u00E4\u00E4"}}},
      {Header("UTF-8") + "msgid \"\xC3\xA9\"\nmsgstr \"x\"", 1, {{u"", u"\u00E9", u"x"}}},
      {Header("CHARSET") + "msgid \"\xC3\xA9\"\nmsgstr \"x\"", 1, {{u"", u"\u00E9", u"x"}}},
      {Header("us-ascii") + "msgid \"\xC3\xA9\"\nmsgstr \"x\"", 1, {{u"", u"\u00E9", u"x"}}},
      {"msgid \"\"\nmsgstr \"Language: de\\n\"\nmsgid \"\xC3\xA9\"\nmsgstr \"x\"", 1, {{u"", u"\u00E9", u"x"}}},
      // Characters whose second byte looks like a backslash.
      {Header("Shift_JIS") + "msgid \"\x83\x5C\"\nmsgstr \"\x95\x5C\\n\"", 1, {{u"", u"\u30BD", u"\u8868\n"}}},
      {Header("Big5") + "msgid \"\xA5\x5C\"\nmsgstr \"\xB3\x5C\"", 1, {{u"", u"\u529F", u"\u8A31"}}},
      {Header("GB18030") + "msgid \"\x95\x34\xB2\x35\"\nmsgstr \"\x81\x5C\"", 1, {{u"", u"\U00020BB7", u"\u4E57"}}},
      {Header("EUC-JP") + "msgid \"\xA5\xBD\"\nmsgstr \"x\"", 1, {{u"", u"\u30BD", u"x"}}},
      // A character that is cut off does not swallow the end of the text.
      {Header("Shift_JIS") + "msgid \"a\"\nmsgstr \"b\x83\"", 1, {{u"", u"a", u"b\uFFFD"}}},
  });
}

TEST(PoCatalog, RefusesWhatBreaksTheGrammarAndStaysAsItWas) {
  struct Row {
    std::string po;
    TW::ErrCode error;
  };
  const Row rows[] = {
      {"nonsense", TW::ErrFileFormat},
      {"msgid \"a\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr", TW::ErrFileFormat},
      {"msgid\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgctxt \"c\"\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgctxt \"c\"\nmsgctxt \"d\"\nmsgid \"a\"\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid \"b\"\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgstr \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"A\"\nmsgstr \"B\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"A\"\nmsgstr[1] \"B\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"A\"\nmsgid_plural \"B\"\nmsgstr[0] \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr[0] \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid_plural \"as\"\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid_plural \"as\"\nmsgstr[1] \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid_plural \"as\"\nmsgstr[0] \"A\"\nmsgstr[2] \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid_plural \"as\"\nmsgstr[0 \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid_plural \"as\"\nmsgstr[] \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid_plural \"as\"\nmsgstr[4294967296] \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgid_plural \"as\"", TW::ErrFileFormat},
      {"msgids \"a\"\nmsgstr \"A\"", TW::ErrFileFormat},
      {"MSGID \"a\"\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgid a\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgid \"a\" b\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgid \"a\nmsgstr \"A\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"A\\\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"A\\", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"\\q\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"\\8\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"\\400\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"\\x\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"\\x-1\"", TW::ErrFileFormat},
      {"msgid \"a\"\nmsgstr \"A\"\n\0"s, TW::ErrFileFormat},
      {Header("Shift_JIS") + "msgid \"a\"\nmsgstr \"\x83\"\n\"", TW::ErrFileFormat},
      {Header("no-such-set"), TW::ErrCharacterSet},
      {Header("no-such-set") + "msgid \"a\"\nmsgstr \"A\"", TW::ErrCharacterSet},
      {Header(std::string(100000, 'x')), TW::ErrCharacterSet},
      {Header("../../etc/passwd"), TW::ErrCharacterSet},
      // Sets in which such a file cannot be written.
      {Header("UTF-16"), TW::ErrCharacterSet},
      {Header("ebcdic-cp-us"), TW::ErrCharacterSet},
  };
  PoDictionary dictionary;
  ASSERT_EQ(dictionary.ReadPo("msgid \"a\"\nmsgstr \"kept\"\n"), TW::NoErr);
  for (const Row& row : rows) {
    EXPECT_EQ(dictionary.ReadPo("msgid \"first\"\nmsgstr \"taken\"\nmsgid \"a\"\nmsgstr \"taken\"\n" + row.po),
              row.error)
        << row.po.substr(0, 200);
    EXPECT_EQ(dictionary.GetCount(), 1U) << row.po.substr(0, 200);
    ExpectLookups(dictionary, {{u"", u"a", u"kept"}}, row.po.substr(0, 200));
  }
  EXPECT_EQ(dictionary.ReadPo("\"text of no field\""), TW::ErrFileFormat);
}

TEST(PoCatalog, AddsALaterCatalogToAnEarlierOne) {
  PoDictionary dictionary;
  ASSERT_EQ(dictionary.ReadPo("msgid \"a\"\nmsgstr \"1\"\nmsgid \"b\"\nmsgstr \"1\"\nmsgid \"c\"\nmsgstr \"1\""), 0);
  // Each catalog has a character set of its own; what it leaves untranslated stays.
  ASSERT_EQ(dictionary.ReadPo(Header("ISO-8859-1") + "msgid \"b\"\nmsgstr \"\xE4\"\nmsgid \"c\"\nmsgstr \"\""), 0);
  ASSERT_EQ(dictionary.ReadPo("msgid \"d\"\nmsgstr \"\xC3\xA4\""), TW::NoErr);
  EXPECT_EQ(dictionary.GetCount(), 4U);
  ExpectLookups(dictionary, {{u"", u"a", u"1"}, {u"", u"b", u"\u00E4"}, {u"", u"c", u"1"}, {u"", u"d", u"\u00E4"}},
                "later");
}

TEST(PoCatalog, ReadsEveryPrefixOrRefusesIt) {
  const std::string po = Header("Shift_JIS") +
                         "#, c-format\nmsgctxt \"c\"\nmsgid \"\x83\x5C\"\n\"a\\x41\\101\"\nmsgid_plural \"b\"\n"
                         "msgstr[0] \"\\\"A\"\nmsgstr[1] \"\x83\x5C\"\n#~ msgid \"o\"\n";
  for (std::size_t length = 0; length <= po.size(); ++length) {
    const std::string prefix = po.substr(0, length);
    PoDictionary dictionary;
    // Memory of exactly the size, so that a step outside shows.
    const std::vector<char> exact(prefix.begin(), prefix.end());
    const TW::ErrCode error = dictionary.ReadPo({exact.data(), exact.size()});
    if (error == TW::NoErr) {
      EXPECT_LE(dictionary.GetCount(), 1U) << prefix;
    } else {
      EXPECT_TRUE(error == TW::ErrFileFormat || error == TW::ErrCharacterSet) << prefix;
      EXPECT_EQ(dictionary.GetCount(), 0U) << prefix;
    }
  }
}

// Each of these would take hours if any step went over the text once more for each part.
TEST(PoCatalog, ReadsLargeCatalogsInLinearTime) {
  std::string continued = "msgid \"a\"\nmsgstr \"\"\n";
  for (int i = 0; i < 500'000; ++i) continued += "\"b\"\n";
  std::string many;
  for (int i = 0; i < 200'000; ++i) many += "msgid \"" + std::to_string(i) + "\"\nmsgstr \"x\"\n";
  std::string characters;
  for (int i = 0; i < 1'000'000; ++i) characters += "\x83\x40";
  PoDictionary dictionary;
  EXPECT_EQ(dictionary.ReadPo(continued), TW::NoErr);
  EXPECT_EQ(dictionary.ReadPo(many), TW::NoErr);
  for (const char* set : {"Shift_JIS", "ISO-8859-1", "GB18030"}) {
    EXPECT_EQ(dictionary.ReadPo(Header(set) + "msgid \"c\"\nmsgstr \"" + characters + "\""), TW::NoErr) << set;
  }
  EXPECT_EQ(dictionary.GetCount(), 200'002U);
  EXPECT_EQ(dictionary.Translate(u"a", u"").GetLength(), 500'000U);
}

}  // namespace
