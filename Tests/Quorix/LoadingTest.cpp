#include "TW/UniString.hpp"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <filesystem>
#include <string>
#include <unistd.h>

// Loads copies of the library the way a host's plug-in would be loaded: this program is not linked with it.

namespace {

namespace fs = std::filesystem;

// What a loaded copy answers.
struct Answer {
  int module = 0;
  bool hasText = false;
};

Answer AskCopyAt(const fs::path& library) {
  Answer answer;
  void* loaded = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (loaded == nullptr) {
    ADD_FAILURE() << dlerror();
    return answer;
  }
  using GetModule = int (*)();
  using GetText = const TW::UniString& (*)(int, int);
  const auto getModule = reinterpret_cast<GetModule>(dlsym(loaded, "_ZN2QX18GetQuorixResModuleEv"));
  const auto getText = reinterpret_cast<GetText>(dlsym(loaded, "_ZN2QX17GetResourceStringEii"));
  if (getModule != nullptr && getText != nullptr) {
    answer.module = getModule();
    answer.hasText = !getText(106, 13).IsEmpty();
  } else {
    ADD_FAILURE() << "the library does not export what it should";
  }
  dlclose(loaded);
  return answer;
}

class Loading : public testing::Test {
 protected:
  // Each test copies the library into a folder of its own, so that the loader takes it for another one.
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("quorix-loading-" + std::to_string(getpid()) + "-" +
                                           testing::UnitTest::GetInstance()->current_test_info()->name());
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path CopyTo(const fs::path& folder, bool withArchive) {
    fs::create_directories(folder);
    const fs::path source(QX_TEST_LIBRARY);
    fs::copy_file(source, folder / "libQuorix.so");
    if (withArchive) fs::copy_file(source.parent_path() / QX_TEXT_FILE, folder / QX_TEXT_FILE);
    return folder / "libQuorix.so";
  }

  fs::path folder_;
};

TEST_F(Loading, FindsTheTextsBesideTheLibraryWhereverItStands) {
  const Answer answer = AskCopyAt(CopyTo(folder_ / "with ünicode", true));
  EXPECT_GE(answer.module, 1);
  EXPECT_TRUE(answer.hasText);
}

TEST_F(Loading, ALoneLibraryStillSpeaks) {
  const Answer answer = AskCopyAt(CopyTo(folder_, false));
  EXPECT_EQ(answer.module, -1);
  EXPECT_TRUE(answer.hasText);
}

TEST_F(Loading, AnAbsurdlyLongPathIsNoPlaceForTexts) {
  fs::path deep = folder_;
  while (deep.string().size() < 1100) deep /= std::string(200, 'd');
  const Answer answer = AskCopyAt(CopyTo(deep, true));
  EXPECT_EQ(answer.module, -1);
  EXPECT_TRUE(answer.hasText);
}

}  // namespace
