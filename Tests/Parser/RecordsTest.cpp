#include "ShapeBuilder.hpp"
#include "TW/MemoryChannel.hpp"
#include "Text.hpp"

#include <cstdint>
#include <limits>
#include <span>

namespace {

template <class Record>
std::vector<std::byte> Stored(const Record& record) {
  TW::MemoryOChannel channel;
  EXPECT_EQ(record.Write(channel), TW::NoErr);
  return channel.TakeBytes();
}

template <class Record>
TW::ErrCode ReadBack(std::span<const std::byte> bytes, Record& record) {
  TW::MemoryIChannel channel(bytes);
  return record.Read(channel);
}

// Stores and reads; a record cut short is an error and changes nothing.
template <class Record>
void CheckRoundTrip(const Record& record, const Record& other) {
  const std::vector<std::byte> bytes = Stored(record);
  Record read = other;
  EXPECT_EQ(ReadBack(bytes, read), TW::NoErr);
  EXPECT_EQ(read, record);
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    Record cut = other;
    EXPECT_EQ(ReadBack(std::span(bytes).first(length), cut), TW::ErrEndOfData);
    EXPECT_EQ(cut, other);
  }
}

TEST(LocalizedNumberString, KeepsTheDigitsAndChangesTheSeparator) {
  const EP::LocalizedNumberString number("0050.2500e+01");
  EXPECT_EQ(number.GetNumberString(u'.'), u"0050.2500e+01");
  EXPECT_EQ(number.GetNumberString(u','), u"0050,2500e+01");
  EXPECT_EQ(number.GetNumberString(0x066B), u"0050\u066B2500e+01");
  EXPECT_EQ(EP::LocalizedNumberString().GetNumberString(u'.'), u"0");
}

TEST(LocalizedNumberString, GoesThroughAChannel) {
  const EP::LocalizedNumberString other("7");
  for (const char* text : {"0", "5.", ".5", "1e300", "123456789012345678901234567890.5"}) {
    CheckRoundTrip(EP::LocalizedNumberString(text), other);
  }
  CheckRoundTrip(EP::LocalizedNumberString(), other);
}

TEST(LocalizedNumberString, RefusesStoredTextsThatAreNoNumbers) {
  for (const char16_t* text :
       {u"", u".", u"-1", u"1,5", u" 1", u"1m", u"1e", u"1.2.3", u"inf", u"1e999", u"\u0661", u"\u0131"}) {
    TW::MemoryOChannel channel;
    channel.WriteString(text);
    EP::LocalizedNumberString number("7");
    EXPECT_EQ(ReadBack(channel.GetBytes(), number), TW::ErrRefused) << TW::UniString(text).ToUtf8();
    EXPECT_EQ(number, EP::LocalizedNumberString("7"));
  }
}

TEST(FractionalInch, KnowsItsValueTextAndValidity) {
  struct Row {
    EP::FractionalInch inch;
    bool valid;
    double value;
    const char16_t* text;
  };
  constexpr std::uint32_t Largest = EP::FractionalInch::Limit - 1;
  const Row rows[] = {
      {{}, true, 0, u"0 0/1\""},
      {{5, 1, 2}, true, 5.5, u"5 1/2\""},
      {{0, 63, 64}, true, 0.984375, u"0 63/64\""},
      {{5, 2, 2}, false, 6, u"5 2/2\""},
      {{5, 3, 2}, false, 6.5, u"5 3/2\""},
      {{5, 0, 0}, false, 5, u"5 0/0\""},
      {{Largest, Largest - 1, Largest}, true, 2147483648.0, u"2147483647 2147483646/2147483647\""},
      {{Largest + 1, 1, 2}, false, 2147483648.5, u"2147483648 1/2\""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.inch.IsValid(), row.valid) << row.value;
    EXPECT_DOUBLE_EQ(row.inch.GetValueInInches(), row.value);
    EXPECT_EQ(row.inch.ToString(), TW::UniString(row.text));
  }
}

TEST(FractionalInch, GoesThroughAChannelWithinItsLimit) {
  const EP::FractionalInch other(1, 2, 3);
  for (const EP::FractionalInch& inch :
       {EP::FractionalInch(), EP::FractionalInch(5, 1, 2), EP::FractionalInch(5, 3, 2)}) {
    CheckRoundTrip(inch, other);
  }
  EXPECT_EQ(Stored(EP::FractionalInch(0x01020304, 1, 2)).size(), 12U);
  constexpr std::uint32_t Limit = EP::FractionalInch::Limit;
  for (const EP::FractionalInch& inch :
       {EP::FractionalInch(Limit, 1, 2), EP::FractionalInch(0, Limit, 2), EP::FractionalInch(0, 1, Limit)}) {
    EP::FractionalInch read = other;
    EXPECT_EQ(ReadBack(Stored(inch), read), TW::ErrRefused);
    EXPECT_EQ(read, other);
  }
}

TEST(NormalizedParsingLocaleSettings, KeepsTheSeparatorsApart) {
  struct Row {
    char16_t decimalSeparator;
    char16_t listSeparator;
    char16_t normalized;
  };
  const Row rows[] = {
      {u'.', u',', u','}, {u',', u';', u';'}, {u',', u',', u';'}, {u'.', u'.', u';'}, {u';', u';', u','}};
  for (const Row& row : rows) {
    const EP::NormalizedParsingLocaleSettings settings(TestSettings(row.decimalSeparator, row.listSeparator));
    EXPECT_EQ(settings.GetDecimalSeparator(), row.decimalSeparator);
    EXPECT_EQ(settings.GetListSeparator(), row.normalized);
    EXPECT_EQ(EP::NormalizedParsingLocaleSettings(settings).GetListSeparator(), row.normalized);
  }
}

}  // namespace
