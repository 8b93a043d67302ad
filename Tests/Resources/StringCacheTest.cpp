#include "Resources/Language.hpp"
#include "Resources/ResourceModule.hpp"
#include "Resources/StringCache.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <climits>
#include <thread>
#include <vector>

namespace {

using Resources::GetIndString;
using Resources::SetLanguage;
using Resources::StringCache;

TEST(StringCache, FollowsTheLanguageAndReadsEachTextOnce) {
  const StringCache cache(-1);
  SetLanguage("de");
  const TW::UniString* german = &cache.Get(106, 13);
  EXPECT_EQ(*german, GetIndString(106, 13, -1, "de"));
  SetLanguage("xx");
  const TW::UniString* english = &cache.Get(106, 13);
  EXPECT_EQ(*english, GetIndString(106, 13, -1, "root"));
  // However many languages come and go, the texts are where they were.
  for (char a = 'A'; a <= 'Z'; ++a) {
    for (char b = 'A'; b <= 'Z'; ++b) {
      const std::string region{a, b};
      SetLanguage("de_" + region);
      ASSERT_EQ(&cache.Get(106, 13), german) << region;
      SetLanguage("x" + region);
      ASSERT_EQ(&cache.Get(106, 13), english) << region;
    }
  }
}

TEST(StringCache, AnswersAnythingUnknownWithOneEmptyText) {
  const StringCache cache(-1);
  SetLanguage("de");
  const TW::UniString* nothing = &cache.Get(-1, -1);
  EXPECT_TRUE(nothing->IsEmpty());
  for (int listId : {INT_MIN, -106, 0, 105, INT_MAX}) {
    for (int index : {INT_MIN, -1, 0, 13, INT_MAX}) EXPECT_EQ(&cache.Get(listId, index), nothing);
  }
  for (int index : {INT_MIN, -1, 19, INT_MAX}) EXPECT_EQ(&cache.Get(106, index), nothing) << index;
}

TEST(StringCache, KeepsItsFileWhenTheHandleIsClosed) {
  SetLanguage("root");
  const int handle = Resources::OpenResourceFile(QX_OVERRIDE_ARCHIVE);
  const StringCache cache(handle);
  const TW::UniString& text = cache.Get(106, 13);
  Resources::CloseResourceFile(handle);
  EXPECT_EQ(text, TW::UniString(u"Nothing can be divided by zero."));
  EXPECT_EQ(cache.Get(9001, 1), TW::UniString(u"Only in the file"));
  EXPECT_EQ(StringCache(handle).Get(106, 13), GetIndString(106, 13, -1, "root"));
}

TEST(StringCache, ServesManyThreadsWhileTheLanguageChanges) {
  constexpr std::array<const char*, 4> tags = {"de_AT", "fr", "xx", "de"};
  std::array<std::array<TW::UniString, 19>, tags.size()> expected;
  for (std::size_t i = 0; i < tags.size(); ++i) {
    for (int index = 0; index < 19; ++index) {
      expected[i][static_cast<std::size_t>(index)] = GetIndString(106, index, -1, tags[i]);
    }
  }
  // Fresh objects, so that the threads race for the first look-ups as well.
  const int handle = Resources::OpenResourceFile(QX_BUILT_ARCHIVE);
  const StringCache cache(handle);
  std::atomic<bool> ended = false;
  std::atomic<int> wrong = 0;
  const auto lookUp = [&](int seed) {
    for (int round = 0; round < 20'000; ++round) {
      const auto index = static_cast<std::size_t>((round * 7 + seed) % 19);
      const TW::UniString& text = cache.Get(106, static_cast<int>(index));
      bool known = false;
      for (const auto& texts : expected) known = known || texts[index] == text;
      if (!known || !cache.Get(round, -seed).IsEmpty()) ++wrong;
      if (round % 100 == 0 && GetIndString(106, 13, handle, "fr_CA") != expected[1][13]) ++wrong;
    }
  };
  std::thread switcher([&] {
    for (std::size_t i = 0; !ended; ++i) SetLanguage(tags[i % tags.size()]);
  });
  std::vector<std::thread> readers;
  for (int seed = 0; seed < 8; ++seed) readers.emplace_back(lookUp, seed);
  for (std::thread& reader : readers) reader.join();
  ended = true;
  switcher.join();
  Resources::CloseResourceFile(handle);
  EXPECT_EQ(wrong, 0);
}

}  // namespace
