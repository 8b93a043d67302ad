#include "Resources/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <set>

// The page of limits names tests that there are.

namespace {

namespace fs = std::filesystem;

const fs::path projectFolder = QX_PROJECT_FOLDER;

bool IsNameCharacter(char character) { return std::isalnum(static_cast<unsigned char>(character)) != 0; }

std::string TakeName(const std::string& text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && IsNameCharacter(text[end])) ++end;
  return text.substr(at, end - at);
}

// Every `Suite.Name` for which there is a TEST.
std::set<std::string> FindTests() {
  std::set<std::string> tests;
  for (const auto& entry : fs::recursive_directory_iterator(projectFolder / "Tests")) {
    if (entry.path().extension() != ".cpp") continue;
    const std::string source = ReadFile(entry.path().string());
    for (std::size_t at = source.find("\nTEST"); at != std::string::npos; at = source.find("\nTEST", at + 1)) {
      const std::size_t suite = source.find('(', at) + 1;
      const std::string name = TakeName(source, suite);
      tests.insert(name + "." + TakeName(source, suite + name.size() + 2));
    }
  }
  return tests;
}

// Every name in the last column of a table.
std::set<std::string> FindNamedTests(const std::string& page) {
  std::set<std::string> names;
  for (std::size_t at = page.find('`'); at != std::string::npos; at = page.find('`', at + 1)) {
    const std::string suite = TakeName(page, at + 1);
    if (suite.empty() || page[at + 1 + suite.size()] != '.') continue;
    const std::string name = TakeName(page, at + 2 + suite.size());
    if (!name.empty()) names.insert(suite + "." + name);
  }
  return names;
}

TEST(LimitsPage, NamesTestsThatThereAre) {
  const std::set<std::string> tests = FindTests();
  const std::set<std::string> named = FindNamedTests(ReadFile((projectFolder / "Docs/Limits.md").string()));
  EXPECT_GT(named.size(), 30U);
  for (const std::string& name : named) EXPECT_TRUE(tests.contains(name)) << name;
}

}  // namespace
