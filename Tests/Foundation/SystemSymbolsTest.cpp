#include "TW/SystemSymbols.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace {

using TW::SystemSymbols;

/// The environment's locale while this lives, and afterwards the one before.
class Environment {
 public:
  Environment(const char* all, const char* numeric, const char* language) {
    Change("LC_ALL", all);
    Change("LC_NUMERIC", numeric);
    Change("LANG", language);
  }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;
  ~Environment() {
    for (const auto& [variable, value] : before_) Set(variable, value.first ? value.second.c_str() : nullptr);
  }

 private:
  static void Set(const char* variable, const char* value) {
    if (value == nullptr)
      unsetenv(variable);
    else
      setenv(variable, value, 1);
  }
  void Change(const char* variable, const char* value) {
    const char* old = std::getenv(variable);
    before_.emplace_back(variable, std::make_pair(old != nullptr, std::string(old == nullptr ? "" : old)));
    Set(variable, value);
  }

  std::vector<std::pair<const char*, std::pair<bool, std::string>>> before_;
};

TEST(SystemSymbols, AreThoseOfTheLocale) {
  struct Row {
    const char* name;
    SystemSymbols symbols;
  };
  const std::string longName(10'000, 'd');
  const Row rows[] = {
      {"de_DE", {',', ';', '.'}},
      {"de_DE.UTF-8", {',', ';', '.'}},
      {"de_AT.UTF-8@euro", {',', ';', 0x00A0}},
      {"de_AT@euro", {',', ';', 0x00A0}},
      {"de_CH", {'.', ',', 0x2019}},
      {"fr_FR.ISO-8859-1", {',', ';', 0x202F}},
      {"en_US.utf8", {'.', ',', ','}},
      {"en_IN", {'.', ',', ','}},
      {"sv_SE", {',', ';', 0x00A0}},
      {"ar_EG.UTF-8", {0x066B, ',', 0x066C}},
      {"de", {',', ';', '.'}},
      {"de_XX", {',', ';', '.'}},
      {"C", {}},
      {"C.UTF-8", {}},
      {"POSIX", {}},
      {nullptr, {}},
      {"", {}},
      {".UTF-8", {}},
      {"@euro", {}},
      {"xyzzy", {}},
      {"xx_YY.UTF-8", {}},
      {"german", {}},
      {"../../de", {}},
      {"de/DE", {}},
      {"de DE", {}},
      {"d\xC3\xA9_DE", {}},
      {"_", {}},
      {"-", {}},
      {"123", {}},
      {"%s%s%s%n", {}},
      {longName.c_str(), {}},
  };
  // What the process was started with must not show through, least of all for unknown names.
  for (const char* language : {"fr_FR.UTF-8", "C"}) {
    const Environment environment(language, nullptr, nullptr);
    for (const Row& row : rows) {
      const SystemSymbols symbols = TW::ReadSystemSymbols(row.name);
      const std::string name = row.name == nullptr ? "null" : std::string(row.name).substr(0, 40);
      EXPECT_EQ(symbols.decimal, row.symbols.decimal) << name;
      EXPECT_EQ(symbols.listSeparator, row.symbols.listSeparator) << name;
      EXPECT_EQ(symbols.digitGrouping, row.symbols.digitGrouping) << name;
    }
  }
}

TEST(SystemSymbols, FollowTheFirstVariableThatSaysSomething) {
  struct Row {
    const char* all;
    const char* numeric;
    const char* language;
    SystemSymbols symbols;
  };
  const Row rows[] = {
      {nullptr, nullptr, nullptr, {}},
      {"", "", "", {}},
      {nullptr, nullptr, "de_DE.UTF-8", {',', ';', '.'}},
      {"", "de_CH.UTF-8", "de_DE.UTF-8", {'.', ',', 0x2019}},
      {"sv_SE", "de_CH.UTF-8", "de_DE.UTF-8", {',', ';', 0x00A0}},
      {"C", "de_CH.UTF-8", "de_DE.UTF-8", {}},
      {nullptr, "xyzzy", "de_DE.UTF-8", {}},
  };
  for (const Row& row : rows) {
    const Environment environment(row.all, row.numeric, row.language);
    const SystemSymbols symbols = {TW::GetDecimalSymbol(), TW::GetListSeparatorSymbol(), TW::GetDigitGroupingSymbol()};
    EXPECT_EQ(symbols, row.symbols) << row.symbols.digitGrouping;
  }
}

}  // namespace
