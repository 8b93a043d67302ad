#include "Host/Ifc/StepText.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Row {
  const char* raw;
  const char16_t* text;
};

TEST(StepText, ReadsEveryEscape) {
  const Row rows[] = {
      {"", u""},
      {"it''s", u"it's"},
      {"a\\\\b", u"a\\b"},
      {"\\\\X2\\\\00E4\\\\X0\\\\", u"\\X2\\00E4\\X0\\"},
      {"Wand \\X2\\00E400DF\\X0\\!", u"Wand äß!"},
      {"\\X2\\D83DDE00\\X0\\", u"\U0001F600"},
      {"\\X4\\0001F600000000E9\\X0\\", u"\U0001F600é"},
      {"\\X4\\00110000\\X0\\", u"\uFFFD"},
      {"\\X4\\0000D800\\X0\\", u"\uFFFD"},
      {"\\X2\\\\X0\\", u""},
      {"\\X\\E9\\X\\e8", u"éè"},
      {"\\S\\d", u"ä"},
      {"\\S\\''x", u"§x"},
      {"\\PB\\\\S\\1", u"ą"},
      {"\\PE\\\\S\\0\\PA\\\\S\\0", u"А°"},
      {"\\PG\\\\S\\a", u"α"},
      {"\\PI\\\\S\\p", u"ğ"},
      {"line\r\nbreak", u"linebreak"},
      {"ä€", u"ä€"},
      {"\xE4!", u"\uFFFD!"},
      // Broken escapes stand for themselves.
      {"\\", u"\\"},
      {"\\X", u"\\X"},
      {"\\Q\\", u"\\Q\\"},
      {"\\X\\G0", u"\\X\\G0"},
      {"\\X\\4", u"\\X\\4"},
      {"\\X2\\00E4", u"\\X2\\00E4"},
      {"\\X2\\00E\\X0\\", u"\\X2\\00E\\X0\\"},
      {"\\X4\\00E4\\X0\\", u"\\X4\\00E4\\X0\\"},
      {"\\S\\", u"\\S\\"},
      {"\\PJ\\a", u"\\PJ\\a"},
      {"\\N\\", u"\\N\\"},
  };
  for (const Row& row : rows) EXPECT_EQ(Host::DecodeStepText(row.raw), TW::UniString(row.text)) << row.raw;
}

TEST(StepText, WritesWhatItReads) {
  const Row rows[] = {
      {"plain", u"plain"},
      {"it''s \\\\", u"it's \\"},
      {"\\X2\\00E400DF\\X0\\x\\X2\\D83DDE00\\X0\\", u"äßx\U0001F600"},
      {"\\X2\\000A\\X0\\", u"\n"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Host::EncodeStepText(row.text), row.raw);
    EXPECT_EQ(Host::DecodeStepText(row.raw), TW::UniString(row.text));
  }
}

}  // namespace
