#include "Resources/ArchiveSeal.hpp"
#include "Resources/ResourceModule.hpp"
#include "TemporaryFolder.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using Resources::ArchiveSeal;
using Resources::CloseResourceFile;
using Resources::GetIndString;
using Resources::OpenResourceFile;

const TW::UniString overridden(u"Nothing can be divided by zero.");

// The division message as the file at the path gives it, or as the built-in texts do when the file is refused.
TW::UniString MessageFrom(const std::string& path) {
  const int handle = OpenResourceFile(path);
  TW::UniString text = GetIndString(106, 13, handle, "root");
  CloseResourceFile(handle);
  return text;
}

class BrokenArchive : public testing::Test {
 protected:
  TW::UniString MessageFromBytes(const std::string& bytes) {
    WriteFile(path_, bytes);
    return MessageFrom(path_);
  }

  const TemporaryFolder folder_;
  const std::string path_ = folder_.GetFilePath("Texts.dat");
  const std::string whole_ = ReadFile(QX_OVERRIDE_ARCHIVE);
  const TW::UniString builtIn_ = GetIndString(106, 13, -1, "root");
};

TEST_F(BrokenArchive, CutAnywhere) {
  ASSERT_GE(whole_.size(), 500U);
  ASSERT_EQ(MessageFromBytes(whole_), overridden);
  for (std::size_t length = 0; length < whole_.size(); ++length) {
    ASSERT_EQ(MessageFromBytes(whole_.substr(0, length)), builtIn_) << length;
  }
  for (std::size_t start = 1; start < whole_.size(); start += 7) {
    ASSERT_EQ(MessageFromBytes(whole_.substr(start)), builtIn_) << start;
  }
  EXPECT_EQ(MessageFromBytes(whole_ + '\0'), builtIn_);
}

TEST_F(BrokenArchive, WithAnyByteChanged) {
  for (std::size_t at = 0; at < whole_.size(); ++at) {
    std::string changed = whole_;
    changed[at] = static_cast<char>(changed[at] ^ (1 << at % 8));
    ASSERT_EQ(MessageFromBytes(changed), builtIn_) << at;
  }
  const std::string large = ReadFile(QX_BUILT_ARCHIVE);
  for (std::size_t at = 0; at < large.size(); at += 97) {
    std::string changed = large;
    changed[at] = static_cast<char>(~changed[at]);
    ASSERT_EQ(MessageFromBytes(changed), builtIn_) << at;
  }
}

TEST_F(BrokenArchive, WithASealThatLies) {
  const std::string archive = whole_.substr(0, whole_.size() - Resources::SealSize);
  const auto sealed = [](const std::string& bytes, const ArchiveSeal& seal) {
    const Resources::SealBytes sealBytes = Resources::WriteSeal(seal);
    return bytes + std::string(sealBytes.begin(), sealBytes.end());
  };
  const auto makeSeal = [](std::uint64_t key, const std::string& bytes) {
    return Resources::MakeSeal(key, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
  };
  for (std::uint64_t length : {std::uint64_t{0}, std::uint64_t{1}, archive.size() + 1, Resources::MaximumArchiveLength,
                               std::uint64_t{1} << 63, ~std::uint64_t{0}}) {
    ArchiveSeal seal = makeSeal(1, archive);
    seal.length = length;
    EXPECT_EQ(MessageFromBytes(sealed(archive, seal)), builtIn_) << length;
  }
  // A right seal under something that is not ICU's, or under an archive of another package.
  for (const std::string& bytes : {std::string(), std::string(100, '\0'), std::string(5000, 'x'), archive}) {
    EXPECT_EQ(MessageFromBytes(sealed(bytes, makeSeal(0x1234 + bytes.size(), bytes))), builtIn_) << bytes.size();
  }
}

TEST_F(BrokenArchive, ThatIsNoFileOfASensibleSize) {
  const std::string pipe = folder_.GetFilePath("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const std::string huge = folder_.GetFilePath("huge");
  WriteFile(huge, "");
  std::filesystem::resize_file(huge, Resources::MaximumArchiveLength + Resources::SealSize + 1);
  std::filesystem::create_directory(folder_.GetFilePath(QX_TEXT_FILE));
  for (const std::string& path : {std::string(), pipe, huge, folder_.GetPath(), folder_.GetFilePath("missing"),
                                  std::string("/dev/zero"), std::string(100'000, 'x'), std::string("\xFF\n", 3)}) {
    EXPECT_EQ(OpenResourceFile(path), -1) << path.substr(0, 99);
  }
  std::filesystem::resize_file(huge, Resources::MaximumArchiveLength);
  EXPECT_EQ(MessageFrom(huge), builtIn_);
}

TEST_F(BrokenArchive, ThatIsGoneBeforeTheFirstLookUp) {
  WriteFile(path_, whole_);
  const int gone = OpenResourceFile(path_);
  std::filesystem::remove(path_);
  EXPECT_EQ(GetIndString(106, 13, gone, "root"), builtIn_);
  WriteFile(path_, whole_);
  const int replaced = OpenResourceFile(path_);
  std::filesystem::remove(path_);
  ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
  EXPECT_EQ(GetIndString(106, 13, replaced, "root"), builtIn_);
  CloseResourceFile(gone);
  CloseResourceFile(replaced);
}

}  // namespace
