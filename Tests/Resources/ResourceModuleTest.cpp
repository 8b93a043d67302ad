#include "Resources/Language.hpp"
#include "Resources/ResourceModule.hpp"
#include "TemporaryFolder.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <set>

namespace {

using Resources::CloseResourceFile;
using Resources::GetIndString;
using Resources::OpenResourceFile;

constexpr int ErrorMessages = 106;
constexpr int ErrorMessageCount = 18;
constexpr int NoFile = -1;

TW::UniString Message(int index, std::string_view language) {
  return GetIndString(ErrorMessages, index, NoFile, language);
}

TEST(ErrorMessages, AreCompleteInEveryLanguage) {
  for (const char* language : {"root", "de", "fr"}) {
    std::set<TW::UniString> texts;
    for (int index = 1; index <= ErrorMessageCount; ++index) {
      const TW::UniString text = Message(index, language);
      EXPECT_FALSE(text.IsEmpty()) << language << ' ' << index;
      EXPECT_TRUE(texts.insert(text).second) << language << ' ' << index << " repeats another message";
      EXPECT_EQ(text, text.Trim()) << language << ' ' << index;
    }
    EXPECT_TRUE(Message(0, language).IsEmpty());
    EXPECT_TRUE(Message(ErrorMessageCount + 1, language).IsEmpty());
  }
  for (int index = 1; index <= ErrorMessageCount; ++index) {
    EXPECT_NE(Message(index, "de"), Message(index, "root")) << index;
    EXPECT_NE(Message(index, "fr"), Message(index, "root")) << index;
    EXPECT_NE(Message(index, "fr"), Message(index, "de")) << index;
    // French sets these signs off with a space at which a line does not break.
    for (const char16_t* wrong : {u" :", u" ;", u" ?", u" !", u"'"}) {
      EXPECT_FALSE(Message(index, "fr").Contains(TW::UniString(wrong))) << index;
    }
  }
}

TEST(GetIndString, FallsBackFromRegionToLanguageToRoot) {
  struct Row {
    const char* tag;
    const char* language;
  };
  const Row rows[] = {
      {"de_AT", "de"}, {"de-CH", "de"},   {"de_Latn_DE.UTF-8", "de"}, {"fr_CA", "fr"}, {"en_GB", "root"},
      {"xx", "root"},  {"xx_DE", "root"}, {"../de", "root"},          {"", "root"},
  };
  // Neither the default locale of ICU nor the environment takes part in an answer for a language of its own.
  Resources::SetLanguage("fr");
  for (const Row& row : rows) EXPECT_EQ(Message(13, row.tag), Message(13, row.language)) << row.tag;
  EXPECT_EQ(Message(13, "root"),
            TW::UniString(u"The divisor is zero. Change the formula or the value that it divides by."));
  EXPECT_EQ(GetIndString(ErrorMessages, 13, NoFile), Message(13, "fr"));
}

TEST(GetIndString, GivesNothingForListsAndPlacesThatDoNotExist) {
  for (int listId : {INT_MIN, -106, -1, 0, 1, 105, INT_MAX}) {
    for (int index : {INT_MIN, -1, 0, 1, INT_MAX}) {
      EXPECT_TRUE(GetIndString(listId, index, NoFile).IsEmpty()) << listId << ' ' << index;
    }
  }
  for (int index : {INT_MIN, -1, INT_MAX}) EXPECT_TRUE(GetIndString(ErrorMessages, index, NoFile).IsEmpty()) << index;
}

TEST(ResourceFile, WinsOverTheBuiltInTextsAndFallsBackForEachText) {
  struct Row {
    const char* language;
    int listId;
    int index;
    TW::UniString text;
  };
  const Row rows[] = {
      {"root", 106, 13, u"Nothing can be divided by zero."},
      {"root", 106, 3, Message(3, "root")},
      {"root", 106, 18, Message(18, "root")},
      {"de_AT", 106, 3, u"Nur Gleiches ist gleich."},
      // A built-in text in the wanted language comes before another language of the file.
      {"de_AT", 106, 13, Message(13, "de")},
      {"fr", 106, 13, Message(13, "fr")},
      {"fr", 106, 3, Message(3, "fr")},
      {"root", 9001, 1, u"Only in the file"},
      {"de", 9001, 1, u"Only in the file"},
      {"de", 9001, 2, u"Nur auf Deutsch"},
      {"fr", 9001, 2, u""},
  };
  const std::string folder = std::filesystem::path(QX_OVERRIDE_ARCHIVE).parent_path().string();
  for (const std::string& path : {std::string(QX_OVERRIDE_ARCHIVE), folder, folder + "/"}) {
    const int handle = OpenResourceFile(path);
    ASSERT_GE(handle, 1) << path;
    for (const Row& row : rows) {
      EXPECT_EQ(GetIndString(row.listId, row.index, handle, row.language), row.text)
          << path << ' ' << row.language << ' ' << row.listId << ' ' << row.index;
    }
    CloseResourceFile(handle);
    EXPECT_EQ(GetIndString(106, 13, handle, "root"), Message(13, "root")) << "after the close";
  }
}

TEST(ResourceFile, FilesOfOneNameStayApart) {
  const int builtIn = OpenResourceFile(QX_BUILT_ARCHIVE);
  const int override = OpenResourceFile(QX_OVERRIDE_ARCHIVE);
  ASSERT_GE(builtIn, 1);
  ASSERT_GE(override, 1);
  ASSERT_NE(builtIn, override);
  EXPECT_EQ(GetIndString(106, 13, builtIn, "root"), Message(13, "root"));
  EXPECT_EQ(GetIndString(106, 13, override, "root"), TW::UniString(u"Nothing can be divided by zero."));
  CloseResourceFile(override);
  CloseResourceFile(override);
  for (int handle : {INT_MIN, -1, 0, INT_MAX}) CloseResourceFile(handle);
  EXPECT_EQ(GetIndString(106, 13, builtIn, "de"), Message(13, "de"));
  CloseResourceFile(builtIn);
}

TEST(ResourceFile, OpensWhatThePathMeantAtTheTime) {
  const TemporaryFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::copy_file(QX_OVERRIDE_ARCHIVE, folder.GetFilePath(QX_TEXT_FILE));
  std::filesystem::current_path(folder.GetPath());
  const int handle = OpenResourceFile(QX_TEXT_FILE);
  std::filesystem::current_path(before);
  EXPECT_EQ(GetIndString(106, 13, handle, "root"), TW::UniString(u"Nothing can be divided by zero."));
  // Its texts do not depend on the file any more.
  std::filesystem::resize_file(folder.GetFilePath(QX_TEXT_FILE), 0);
  EXPECT_EQ(GetIndString(106, 3, handle, "de"), TW::UniString(u"Nur Gleiches ist gleich."));
  CloseResourceFile(handle);
}

}  // namespace
