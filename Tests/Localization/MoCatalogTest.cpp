#include "Localization/MoBuilder.hpp"
#include "Localization/PoDictionary.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using Localization::PoDictionary;
using namespace std::string_literals;

const MoOrder Orders[] = {MoOrder::Little, MoOrder::Big};

std::vector<MoMessage> MakeMessages() {
  return {{"", "Content-Type: text/plain; charset=ISO-8859-1\n"},
          {"a", "\xE4"},
          {"c\x04"
           "a",
           "in c"},
          {"file\0files"s, "Datei\0Dateien"s},
          {"open", ""},
          {"partly\0open"s, "\0x"s}};
}

TEST(MoCatalog, ReadsBothByteOrdersAndRevisions) {
  for (MoOrder order : Orders) {
    for (std::uint32_t revision : {0U, 1U, 0x10000U, 0x10001U}) {
      PoDictionary dictionary;
      ASSERT_EQ(dictionary.ReadMo(BuildMo(MakeMessages(), order, revision)), TW::NoErr);
      EXPECT_EQ(dictionary.GetCount(), 3U);
      EXPECT_EQ(dictionary.Translate(u"a", u""), TW::UniString(u"\u00E4"));
      EXPECT_EQ(dictionary.Translate(u"a", u"c"), TW::UniString(u"in c"));
      EXPECT_EQ(dictionary.Translate(u"file", u""), TW::UniString(u"Datei"));
      EXPECT_EQ(dictionary.Translate(u"open", u"c"), TW::UniString(u"open"));
    }
  }
}

TEST(MoCatalog, RefusesBrokenFilesAndStaysAsItWas) {
  struct Row {
    const char* what;
    std::string bytes;
    TW::ErrCode error;
  };
  const MoOrder little = MoOrder::Little;
  const std::string good = BuildMo(MakeMessages(), little);
  const auto descriptor = [&](std::uint32_t length, std::uint32_t start) {
    return MoNumber(length, MoOrder::Little) + MoNumber(start, MoOrder::Little);
  };
  const Row rows[] = {
      {"empty", "", TW::ErrFileFormat},
      {"not compiled", "msgid \"a\"\nmsgstr \"A\"\n# and enough bytes", TW::ErrFileFormat},
      {"revision 2", BuildMo(MakeMessages(), little, 0x20000), TW::ErrFileFormat},
      {"head only", MoHead(little, 0, 1, 28, 28), TW::ErrFileFormat},
      {"sources outside", MoHead(little, 0, 1, 0xFFFFFFF8, 28) + descriptor(0, 0), TW::ErrFileFormat},
      {"translations outside", MoHead(little, 0, 1, 28, 29) + descriptor(0, 0), TW::ErrFileFormat},
      {"count beyond 32 bits of bytes", MoHead(little, 0, 0x20000000, 28, 28) + descriptor(0, 0), TW::ErrFileFormat},
      {"largest count", MoHead(little, 0, 0xFFFFFFFF, 28, 28) + descriptor(0, 0), TW::ErrFileFormat},
      {"text outside", MoHead(little, 0, 1, 28, 28) + descriptor(1, 36), TW::ErrFileFormat},
      {"text wraps", MoHead(little, 0, 1, 28, 28) + descriptor(0xFFFFFFFF, 2), TW::ErrFileFormat},
      {"text too long in all", MoHead(little, 0, 1, 28, 28) + descriptor(20, 0), TW::ErrFileFormat},
      {"character set", BuildMo({{"", "charset=no-such-set"}, {"a", "A"}}, little), TW::ErrCharacterSet},
  };
  for (const Row& row : rows) {
    PoDictionary dictionary;
    ASSERT_EQ(dictionary.ReadMo(good), TW::NoErr);
    EXPECT_EQ(dictionary.ReadMo(row.bytes), row.error) << row.what;
    EXPECT_EQ(dictionary.GetCount(), 3U) << row.what;
  }
}

// Reads broken bytes from memory of exactly their size, so that a step outside them shows.
void ExpectReadOrRefused(const std::string& bytes) {
  const std::vector<char> exact(bytes.begin(), bytes.end());
  PoDictionary dictionary;
  const TW::ErrCode error = dictionary.ReadMo({exact.data(), exact.size()});
  if (error == TW::NoErr) {
    EXPECT_LE(dictionary.GetCount(), MakeMessages().size());
  } else {
    EXPECT_TRUE(error == TW::ErrFileFormat || error == TW::ErrCharacterSet) << error;
    EXPECT_EQ(dictionary.GetCount(), 0U);
  }
}

TEST(MoCatalog, ReadsOrRefusesEveryPrefixAndEveryChangedByte) {
  for (MoOrder order : Orders) {
    const std::string good = BuildMo(MakeMessages(), order);
    for (std::size_t length = 0; length < good.size(); ++length) ExpectReadOrRefused(good.substr(0, length));
    for (std::size_t at = 0; at < good.size(); ++at) {
      for (int flipped = 1; flipped < 256; ++flipped) {
        std::string changed = good;
        changed[at] = static_cast<char>(changed[at] ^ flipped);
        ExpectReadOrRefused(changed);
      }
    }
  }
}

TEST(MoCatalog, BoundsWhatAMillionMessagesTakeFromOneText) {
  constexpr std::uint32_t Count = 1'000'000;
  constexpr std::uint32_t TableEnd = 28 + 8 * Count;
  const auto build = [](std::uint32_t length) {
    std::string bytes = MoHead(MoOrder::Little, 0, Count, 28, 28);
    for (std::uint32_t i = 0; i < Count; ++i) {
      bytes += MoNumber(length, MoOrder::Little) + MoNumber(TableEnd, MoOrder::Little);
    }
    return bytes + std::string(4'000'000, 'x');
  };
  PoDictionary dictionary;
  EXPECT_EQ(dictionary.ReadMo(build(4'000'000)), TW::ErrFileFormat);
  EXPECT_EQ(dictionary.ReadMo(build(100)), TW::ErrFileFormat);
  EXPECT_EQ(dictionary.ReadMo(build(1)), TW::NoErr);
  EXPECT_EQ(dictionary.GetCount(), 1U);
}

}  // namespace
