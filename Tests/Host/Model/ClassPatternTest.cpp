#include "Host/Model/ClassPattern.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ClassPattern, FitsNames) {
  struct Row {
    std::vector<TW::UniString> patterns;
    const char16_t* name;
    bool fits;
  };
  const Row rows[] = {
      {{}, u"IFCWALL", true},
      {{u"IFCWALL"}, u"IFCWALL", true},
      {{u"IfcWall"}, u"IFCWALL", true},
      {{u"IFCWALL"}, u"IfcWall", true},
      {{u"IFCWALL"}, u"IFCWALLSTANDARDCASE", false},
      {{u"IFCWALLSTANDARDCASE"}, u"IFCWALL", false},
      {{u"WALL"}, u"IFCWALL", false},
      {{u"IFCDOOR", u"IFCWALL"}, u"IFCWALL", true},
      {{u"IFCDOOR", u"IFCWINDOW"}, u"IFCWALL", false},
      {{u"IfcWall*"}, u"IFCWALL", true},
      {{u"IfcWall*"}, u"IFCWALLSTANDARDCASE", true},
      {{u"IfcWall*"}, u"IFCSLAB", false},
      {{u"*wall"}, u"IFCWALL", true},
      {{u"*wall"}, u"IFCWALLS", false},
      // What follows an asterisk fits too early at first.
      {{u"*AB"}, u"AAB", true},
      {{u"*AB*C"}, u"XABABXC", true},
      {{u"*AB*C"}, u"XABABX", false},
      {{u"A*B*C"}, u"ACBC", true},
      {{u"A*B*C"}, u"ACCB", false},
      {{u"A**C"}, u"AC", true},
      {{u"A*A"}, u"A", false},
      {{u"*"}, u"", true},
      {{u"**"}, u"", true},
      {{u""}, u"", true},
      {{u""}, u"A", false},
      {{u"A"}, u"", false},
      // The neighbours of the letters have no case.
      {{u"{"}, u"[", false},
      {{u"`"}, u"@", false},
      {{u"az"}, u"AZ", true},
  };
  for (const Row& row : rows) {
    const TW::UniString pattern = row.patterns.empty() ? TW::UniString(u"-") : row.patterns.back();
    EXPECT_EQ(Host::MatchesClass(row.patterns, row.name), row.fits)
        << pattern.ToUtf8() << " and " << TW::UniString(row.name).ToUtf8();
  }
}

TEST(ClassPattern, ManyAsterisksTakeNoLongTime) {
  std::u16string pattern;
  for (int i = 0; i < 200; ++i) pattern += u"*A";
  const std::u16string name(2000, u'A');
  EXPECT_FALSE(Host::MatchesClass({TW::UniString(pattern + u"B")}, name));
  EXPECT_TRUE(Host::MatchesClass({TW::UniString(pattern)}, name));
}

}  // namespace
