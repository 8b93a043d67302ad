#include "Host/Files/OutputFile.hpp"
#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcText.hpp"
#include "Host/Ifc/IfcWriter.hpp"
#include "Localization/MoBuilder.hpp"
#include "Localization/PoDictionary.hpp"
#include "Quorix/Formulas.hpp"
#include "Resources/ResourceModule.hpp"
#include "Resources/TemporaryFolder.hpp"
#include "TW/FileChannel.hpp"

#include <csignal>
#include <sys/resource.h>

// Files and folders that the system refuses, and disks that are full at any byte.

namespace {

using Host::IfcModel;
using TW::ErrCode;
using TW::NoErr;

// It can be opened, and every attempt to read it fails.
constexpr const char* UnreadableFile = "/proc/self/mem";

// As long as it lives, no file can grow beyond so many bytes, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::size_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &former_);
    const rlimit limit{bytes, former_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &former_);
    std::signal(SIGXFSZ, handler_);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit former_{};
  void (*handler_)(int);
};

IfcModel MakeModel() { return IfcModel(Host::StepFile::FromText(IfcText::Wrap(IfcText::House))); }

std::vector<Host::IfcAddedProperty> MakeProperties(IfcModel::Element) {
  return {{u"Set", u"Property", {Host::IfcKind::Number, QX::ExpressionValue::FromNumber(1.5)}}};
}

std::size_t CountFiles(const std::string& folder) {
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder)) ++count;
  return count;
}

TEST(FileFault, ABuildingModelIsWrittenWholeOrNotAtAllWhenTheDiskIsFull) {
  const TemporaryFolder folder;
  const std::string path = folder.GetFilePath("model.ifc");
  const IfcModel model = MakeModel();
  ASSERT_EQ(WriteIfcModel(model, path, MakeProperties), NoErr);
  const std::string whole = ReadFile(path);
  std::vector<std::size_t> sizes{0, 1, 4095, 4096, 4097, whole.size() - 1};
  for (std::size_t size = 100; size < whole.size(); size += 997) sizes.push_back(size);
  for (const std::size_t size : sizes) {
    WriteFile(path, "before");
    ErrCode error = NoErr;
    {
      const FileSizeLimit limit(size);
      error = WriteIfcModel(model, path, MakeProperties);
    }
    EXPECT_EQ(error, TW::ErrDiskFull) << size;
    EXPECT_EQ(ReadFile(path), "before");
    EXPECT_EQ(CountFiles(folder.GetPath()), 1U);
  }
  const FileSizeLimit limit(whole.size());
  EXPECT_EQ(WriteIfcModel(model, path, MakeProperties), NoErr);
  EXPECT_EQ(ReadFile(path), whole);
}

TEST(FileFault, ABuildingModelIsNotWrittenWhereItMayNotBe) {
  const TemporaryFolder folder;
  WriteFile(folder.GetFilePath("file"), "text");
  std::filesystem::create_directories(folder.GetFilePath("folder/full"));
  const IfcModel model = MakeModel();
  struct Row {
    std::string path;
    std::optional<ErrCode> error;  // where systems agree
  };
  const Row rows[] = {
      {folder.GetFilePath("folder"), TW::ErrWriteFailed},
      {folder.GetFilePath("nowhere/model.ifc"), TW::ErrFileNotFound},
      {folder.GetFilePath("file/model.ifc"), TW::ErrFileNotFound},
      {folder.GetFilePath(std::string(300, 'x')), TW::ErrFileNotFound},
      {"/proc/model.ifc", {}},
      {"", {}},
  };
  for (const Row& row : rows) {
    const ErrCode error = WriteIfcModel(model, row.path, MakeProperties);
    EXPECT_NE(error, NoErr) << row.path;
    EXPECT_EQ(error, row.error.value_or(error)) << row.path;
  }
  EXPECT_EQ(CountFiles(folder.GetPath()), 2U);
  if (geteuid() == 0) return;  // to whom no folder is closed
  std::filesystem::permissions(folder.GetPath(),
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  EXPECT_EQ(WriteIfcModel(model, folder.GetFilePath("model.ifc"), MakeProperties), TW::ErrFileAccess);
  std::filesystem::permissions(folder.GetPath(), std::filesystem::perms::owner_all);
}

TEST(FileFault, TwoFilesOfOneNameDoNotMix) {
  const TemporaryFolder folder;
  const std::string path = folder.GetFilePath("report");
  Host::OutputFile first(path);
  Host::OutputFile second(path);
  first.Write("first");
  second.Write("the second");
  EXPECT_EQ(second.Finish(), NoErr);
  EXPECT_EQ(ReadFile(path), "the second");
  EXPECT_EQ(first.Finish(), NoErr);
  EXPECT_EQ(ReadFile(path), "first");
  EXPECT_EQ(CountFiles(folder.GetPath()), 1U);
}

TEST(FileFault, AFormulaOnAFullDiskIsAnError) {
  const TemporaryFolder folder;
  const QX::Expression formula = ParseFormula(u"1 + LEN ( \"a text\" )");
  const std::size_t whole = Store(formula).size();
  for (std::size_t size = 0; size <= whole; ++size) {
    const FileSizeLimit limit(size);
    TW::FileOChannel channel(folder.GetFilePath("formula"));
    formula.Write(channel);
    const ErrCode error = channel.Close();
    ASSERT_EQ(error, size < whole ? TW::ErrDiskFull : NoErr) << size;
    EXPECT_EQ(channel.WriteBool(true), size < whole ? TW::ErrDiskFull : TW::ErrClosed);
  }
}

TEST(FileFault, AFormulaFileCutAnywhereIsAnError) {
  const TemporaryFolder folder;
  const StoredBytes bytes = Store(ParseFormula(u"1 + LEN ( \"a text\" )"));
  const std::string whole(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    WriteFile(folder.GetFilePath("formula"), whole.substr(0, size));
    TW::FileIChannel channel(folder.GetFilePath("formula"));
    QX::Expression formula;
    ASSERT_EQ(formula.Read(channel), TW::ErrEndOfData) << size;
    EXPECT_FALSE(formula.IsValid());
  }
}

// A catalog cut anywhere is refused as a whole, or holds a part of its translations and nothing else.
TEST(FileFault, CatalogsCutAnywhereAddNothingWrong) {
  const TemporaryFolder folder;
  const std::string po =
      "msgid \"\"\nmsgstr \"charset=UTF-8\\n\"\n\nmsgid \"a\"\nmsgstr \"1\"\n\nmsgid \"b\"\nmsgstr \"2\"\n";
  const std::string mo = BuildMo({{"", "charset=UTF-8\n"}, {"a", "1"}, {"b", "2"}}, MoOrder::Little);
  for (const std::string& whole : {po, mo}) {
    for (std::size_t size = 0; size <= whole.size(); ++size) {
      WriteFile(folder.GetFilePath("catalog"), whole.substr(0, size));
      Localization::PoDictionary dictionary;
      ASSERT_EQ(dictionary.ReadPo("msgid \"old\"\nmsgstr \"kept\"\n"), NoErr);
      const ErrCode error = dictionary.ReadFile(folder.GetFilePath("catalog"));
      EXPECT_TRUE(error == NoErr || dictionary.GetCount() == 1) << size;
      EXPECT_EQ(dictionary.Translate(u"old", u""), TW::UniString(u"kept"));
      for (const auto& [text, translation] : {std::pair(u"a", u"1"), std::pair(u"b", u"2")}) {
        const TW::UniString found = dictionary.Translate(text, u"");
        EXPECT_TRUE(found == TW::UniString(text) || found == TW::UniString(translation)) << size << found.ToUtf8();
      }
      EXPECT_TRUE(size < whole.size() || dictionary.GetCount() == 3);
    }
  }
}

TEST(FileFault, FilesThatCannotBeReadAreErrors) {
  if (!std::filesystem::exists(UnreadableFile)) GTEST_SKIP() << "this system has no " << UnreadableFile;
  bool flag = false;
  TW::FileIChannel channel(UnreadableFile);
  EXPECT_EQ(channel.ReadBool(flag), TW::ErrReadFailed);
  EXPECT_EQ(channel.ReadBool(flag), TW::ErrReadFailed);

  Localization::PoDictionary dictionary;
  EXPECT_EQ(dictionary.ReadFile(UnreadableFile), TW::ErrReadFailed);
  EXPECT_EQ(dictionary.GetCount(), 0U);

  const IfcModel model = IfcModel::Read(UnreadableFile);
  EXPECT_TRUE(model.GetMessages().HasFatal());
  EXPECT_EQ(model.GetElementCount(), 0U);

  for (const char* path : {UnreadableFile, "/dev/null", "/proc/self/environ", "/nowhere"}) {
    EXPECT_EQ(Resources::OpenResourceFile(path), -1) << path;
  }
}

}  // namespace
