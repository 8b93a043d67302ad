#include "Localization/MoBuilder.hpp"
#include "Localization/PoDictionary.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

using Localization::PoDictionary;

// A file that goes when the test ends.
class ScratchFile {
 public:
  explicit ScratchFile(const std::string& bytes) : path_(testing::TempDir() + "QxCatalog" + std::to_string(getpid())) {
    std::ofstream(path_, std::ios::binary) << bytes;
  }
  ~ScratchFile() { std::remove(path_.c_str()); }
  const std::string& GetPath() const { return path_; }

 private:
  std::string path_;
};

void ExpectMessages(const PoDictionary& dictionary) {
  struct Row {
    const char16_t* context;
    const char16_t* text;
    const char16_t* translation;
  };
  const Row rows[] = {
      {u"", u"Length", u"L\u00E4nge"},
      {u"music", u"Length", u"Dauer"},
      {u"a context \"of\" its own", u"First line\n\tsecond line \\ and its end",
       u"Erste Zeile\n\tzweite Zeile \\ und ihr Ende \u00E9 A"},
      {u"", u"%d file", u"%d Datei"},
      {u"", u"\U0001D11E and \u20AC", u"\U0001D11E und \u20AC"},
      {u"", u"Guessed %d", u"Guessed %d"},
      {u"", u"Open point", u"Open point"},
      {u"", u"Gone", u"Gone"},
      {u"", u"", u""},
  };
  EXPECT_EQ(dictionary.GetCount(), 5U);
  for (const Row& row : rows) {
    EXPECT_EQ(dictionary.Translate(row.text, row.context), TW::UniString(row.translation));
  }
}

TEST(CatalogFile, ReadsATextCatalog) {
  PoDictionary dictionary;
  ASSERT_EQ(dictionary.ReadFile(QX_PO_FILE), TW::NoErr);
  ExpectMessages(dictionary);
}

TEST(CatalogFile, ReadsWhatACompilerOfCatalogsMadeOfTheSameSource) {
#ifdef QX_MO_FILE
  PoDictionary dictionary;
  ASSERT_EQ(dictionary.ReadFile(QX_MO_FILE), TW::NoErr);
  ExpectMessages(dictionary);
#else
  GTEST_SKIP() << "msgfmt was not found when the tests were configured";
#endif
}

TEST(CatalogFile, TellsTheFormsApartByTheMagicNumber) {
  const std::string files[] = {BuildMo({{"a", "A"}}, MoOrder::Little), BuildMo({{"a", "A"}}, MoOrder::Big),
                               "msgid \"a\"\nmsgstr \"A\"\n"};
  for (const std::string& bytes : files) {
    const ScratchFile file(bytes);
    PoDictionary dictionary;
    EXPECT_EQ(dictionary.ReadFile(file.GetPath()), TW::NoErr);
    EXPECT_EQ(dictionary.Translate(u"a", u""), TW::UniString(u"A"));
  }
}

TEST(CatalogFile, TellsWhyItCannotBeRead) {
  PoDictionary dictionary;
  EXPECT_EQ(dictionary.ReadFile(testing::TempDir() + "no such folder/no such file"), TW::ErrFileNotFound);
  EXPECT_EQ(dictionary.ReadFile(testing::TempDir()), TW::ErrReadFailed);
  const std::string largest = "#" + std::string(PoDictionary::MaximumCatalogSize - 1, ' ');
  EXPECT_EQ(dictionary.ReadFile(ScratchFile(largest).GetPath()), TW::NoErr);
  EXPECT_EQ(dictionary.ReadFile(ScratchFile(largest + " ").GetPath()), TW::ErrTooLong);
  EXPECT_EQ(dictionary.ReadPo(largest + " "), TW::ErrTooLong);
}

}  // namespace
