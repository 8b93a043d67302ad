#include "TW/Guid.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <string>
#include <uuid/uuid.h>

namespace {

using TW::Guid;
using TW::UniString;

TEST(Guid, ReadsEitherCaseWithOrWithoutBraces) {
  const char16_t* const texts[] = {
      u"{1AF5C228-7607-4175-9B78-A1779295614E}",
      u"1AF5C228-7607-4175-9B78-A1779295614E",
      u"1af5c228-7607-4175-9b78-a1779295614e",
      u"{1aF5c228-7607-4175-9B78-a1779295614E}",
  };
  for (const char16_t* text : texts) {
    Guid guid;
    EXPECT_EQ(guid.ConvertFromString(text), TW::NoErr);
    EXPECT_EQ(guid.ToUniString(), UniString(u"1AF5C228-7607-4175-9B78-A1779295614E"));
  }
}

TEST(Guid, RefusesEveryOtherText) {
  const char16_t* const texts[] = {
      u"1AF5C228",
      u"{1AF5C228-7607-4175-9B78-A1779295614E",
      u"1AF5C228-7607-4175-9B78-A1779295614E}",
      u"(1AF5C228-7607-4175-9B78-A1779295614E)",
      u"1AF5C22867607-4175-9B78-A1779295614E",
      u"1AF5C228-7607-4175-9B78-A1779295614G",
      u"1AF5C228-7607-4175-9B78-A1779295614",
      u"1AF5C228-7607-4175-9B78-A1779295614E0",
      u" 1AF5C228-7607-4175-9B78-A1779295614E",
      u"1AF5C228-7607-4175-9B78-A177929561\u0664\u0665",
      u"\u0131AF5C228-7607-4175-9B78-A1779295614",
      u" ",
  };
  for (const char16_t* text : texts) {
    Guid guid("{1AF5C228-7607-4175-9B78-A1779295614E}");
    const Guid before = guid;
    EXPECT_EQ(guid.ConvertFromString(text), static_cast<TW::ErrCode>(0x81000402)) << UniString(text).ToUtf8();
    EXPECT_EQ(guid, before);
  }
}

TEST(Guid, AnEmptyTextLeavesTheNullGuidWithACodeOfItsOwn) {
  Guid guid("1AF5C228-7607-4175-9B78-A1779295614E");
  EXPECT_EQ(guid.ConvertFromString(u""), TW::ErrGuidEmpty);
  EXPECT_TRUE(guid.IsNull());
}

TEST(Guid, AgreesWithTheSystemsLibrary) {
  for (int i = 0; i < 1000; ++i) {
    uuid_t expected;
    uuid_generate_random(expected);
    char text[37];
    uuid_unparse_upper(expected, text);
    const Guid guid{std::string_view(text)};
    EXPECT_EQ(std::memcmp(guid.GetBytes().data(), expected, 16), 0);
    EXPECT_EQ(guid.ToUniString().ToUtf8(), text);
  }
}

}  // namespace
