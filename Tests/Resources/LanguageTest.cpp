#include "Resources/Language.hpp"
#include "Resources/ResourceModule.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

TEST(Language, ReadsTagsAndTakesAnythingElseForTheRoot) {
  struct Row {
    std::string tag;
    const char* language;
  };
  const Row rows[] = {
      {"de", "de"},
      {"DE", "de"},
      {"de_AT", "de_AT"},
      {"de-at", "de_AT"},
      {"gsw_CH", "gsw_CH"},
      {"es_419", "es_419"},
      {"SR-LATN-rs", "sr_Latn_RS"},
      {"zh_Hant", "zh_Hant"},
      {"de_AT.UTF-8", "de_AT"},
      {"de.ISO8859-15@euro", "de"},
      {"de@collation=phonebook", "de"},
      {"de-DE-1996", "de_DE"},
      {"en-US-u-ca-gregory", "en_US"},
      {"root", "root"},
      {"C", "root"},
      {"C.UTF-8", "root"},
      {"POSIX", "root"},
      {"", "root"},
      {"d", "root"},
      {"de_", "root"},
      {"de__AT", "root"},
      {"_de", "root"},
      {"de AT", "root"},
      {"d3", "root"},
      {"de_AT/..", "root"},
      {"de.UTF-8/../x", "root"},
      {"../../etc/passwd", "root"},
      {"/de", "root"},
      {"de\n", "root"},
      {std::string("de\0AT", 5), "root"},
      {"d\xC3\xA9", "root"},
      {"de_\xFF\xFF", "root"},
      {"%s%n", "root"},
      {std::string(1'000'000, 'd'), "root"},
      {"de" + std::string(1'000'000, '_'), "root"},
  };
  for (const Row& row : rows) {
    Resources::SetLanguage(row.tag);
    EXPECT_EQ(Resources::GetLanguage(), row.language) << row.tag.substr(0, 40);
  }
}

TEST(Language, TheFirstVariableWithAValueDecides) {
  struct Row {
    const char* lcAll;
    const char* lcMessages;
    const char* lang;
    const char* language;
  };
  const Row rows[] = {
      {nullptr, nullptr, nullptr, "root"},
      {nullptr, nullptr, "de_AT.UTF-8", "de_AT"},
      {"", "", "fr_FR", "fr_FR"},
      {nullptr, "fr_CA", "de_AT", "fr_CA"},
      {"it", "fr", "de", "it"},
      {"C", "fr", "de", "root"},
      {"", "POSIX", "de", "root"},
      {"nonsense", "fr", "de", "root"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Resources::GetLanguageOfEnvironment(row.lcAll, row.lcMessages, row.lang), row.language);
  }
}

TEST(LanguageDeathTest, TheEnvironmentOfTheProcessDecidesAtFirst) {
  // Such a test starts the program anew, where nobody has set a language.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  setenv("LC_ALL", "de_AT.UTF-8", 1);
  EXPECT_EXIT(
      {
        const TW::UniString text = Resources::GetIndString(106, 13, 0);
        const bool isGerman =
            text == Resources::GetIndString(106, 13, 0, "de") && text != Resources::GetIndString(106, 13, 0, "root");
        std::exit(isGerman && Resources::GetLanguage() == "de_AT" ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
  unsetenv("LC_ALL");
}

}  // namespace
