#include "TW/FileChannel.hpp"
#include "TW/Frame.hpp"
#include "TW/MemoryChannel.hpp"
#include "TW/Object.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using TW::ErrCode;
using TW::MemoryIChannel;
using TW::MemoryOChannel;
using TW::NoErr;
using TW::UniString;

TW::ClassInfo outerInfo("Outer", "{00000000-0000-0000-0000-0000000000A1}", 1, nullptr);
TW::ClassInfo innerInfo("Inner", "{00000000-0000-0000-0000-0000000000A2}", 3, nullptr);

const TW::Guid sampleGuid("{1AF5C228-7607-4175-9B78-A1779295614E}");
const UniString sampleText = UniString(5000, u'x') + u"ä😀";

// Everything a channel can carry, in two frames, one in the other.
void WriteSample(TW::OChannel& channel) {
  channel.WriteBool(true);
  TW::OutputFrame outer(channel, outerInfo);
  channel.WriteInt32(-2);
  {
    TW::OutputFrame inner(channel, innerInfo);
    channel.WriteDouble(-0.0);
    channel.WriteString(sampleText);
  }
  channel.WriteGuid(sampleGuid);
  outer.Close();
  channel.WriteUInt64(0x1122334455667788U);
}

ErrCode ReadSample(TW::IChannel& channel) {
  bool flag = false;
  std::int32_t number = 0;
  double zero = 1;
  UniString text;
  TW::Guid guid;
  std::uint64_t last = 0;
  channel.ReadBool(flag);
  {
    TW::InputFrame outer(channel, outerInfo);
    channel.ReadInt32(number);
    {
      TW::InputFrame inner(channel, innerInfo);
      EXPECT_EQ(inner.GetVersion(), channel.GetInputStatus() == NoErr ? 3 : 0);
      channel.ReadDouble(zero);
      channel.ReadString(text);
    }
    channel.ReadGuid(guid);
  }
  channel.ReadUInt64(last);
  if (channel.GetInputStatus() == NoErr) {
    EXPECT_TRUE(flag);
    EXPECT_EQ(number, -2);
    EXPECT_TRUE(std::signbit(zero));
    EXPECT_EQ(text, sampleText);
    EXPECT_EQ(guid, sampleGuid);
    EXPECT_EQ(last, 0x1122334455667788U);
  }
  return channel.GetInputStatus();
}

std::vector<std::byte> SampleBytes() {
  MemoryOChannel channel;
  WriteSample(channel);
  EXPECT_EQ(channel.GetOutputStatus(), NoErr);
  return channel.TakeBytes();
}

std::filesystem::path FreshPath(const char* name) {
  return std::filesystem::temp_directory_path() / (std::string(name) + std::to_string(::getpid()));
}

TEST(Channel, LaysBytesOutAsDocumented) {
  MemoryOChannel channel;
  channel.WriteUInt16(0x0102);
  channel.WriteString(u"aä");
  {
    TW::OutputFrame frame(channel, innerInfo);
    channel.WriteBool(true);
  }
  const unsigned char expected[] = {0x02, 0x01, 2, 0, 0, 0, 'a', 0, 0xE4, 0, 0, 0, 0, 0, 0, 0, 0,
                                    0,    0,    0, 0, 0, 0, 0,   0, 0xA2, 3, 0, 1, 0, 0, 0, 1};
  ASSERT_EQ(channel.GetBytes().size(), sizeof(expected));
  EXPECT_EQ(std::memcmp(channel.GetBytes().data(), expected, sizeof(expected)), 0);
}

TEST(Channel, ReadsBackWhatWasWritten) {
  const auto bytes = SampleBytes();
  MemoryIChannel channel(bytes);
  EXPECT_EQ(ReadSample(channel), NoErr);
  EXPECT_EQ(channel.GetRemaining(), 0U);
}

TEST(Channel, EveryTruncationIsAnError) {
  const auto bytes = SampleBytes();
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    MemoryIChannel channel(std::span<const std::byte>(bytes).first(length));
    EXPECT_NE(ReadSample(channel), NoErr) << length;
  }
}

TEST(Channel, AReaderPassesOverWhatItDoesNotKnowAndNeverLeavesItsFrame) {
  MemoryOChannel out;
  {
    TW::OutputFrame frame(out, outerInfo);
    out.WriteInt32(1);
    out.WriteString(u"a field of a later version");
  }
  out.WriteInt32(2);

  MemoryIChannel in(out.GetBytes());
  std::int32_t number = 0;
  {
    TW::InputFrame frame(in, outerInfo);
    in.ReadInt32(number);
  }
  in.ReadInt32(number);
  EXPECT_EQ(number, 2);
  EXPECT_EQ(in.GetInputStatus(), NoErr);

  MemoryIChannel greedy(out.GetBytes());
  {
    TW::InputFrame frame(greedy, outerInfo);
    std::vector<std::byte> all(out.GetBytes().size() - 22);
    EXPECT_EQ(greedy.ReadBytes(all.data(), all.size()), TW::ErrFrameBounds);
  }
  EXPECT_EQ(greedy.ReadInt32(number), TW::ErrFrameBounds) << "the first failure sticks";
}

TEST(Channel, AFrameOfAnotherClassOrWithAnAbsurdLengthIsRefused) {
  MemoryOChannel out;
  {
    TW::OutputFrame frame(out, outerInfo);
  }
  MemoryIChannel other(out.GetBytes());
  {
    const TW::InputFrame frame(other, innerInfo);
  }
  EXPECT_EQ(other.GetInputStatus(), TW::ErrFrameClass);

  // An inner frame that claims 4 GB within an outer frame of a few bytes.
  MemoryOChannel nested;
  {
    TW::OutputFrame frame(nested, outerInfo);
    nested.WriteGuid(innerInfo.GetGuid());
    nested.WriteUInt16(3);
    nested.WriteUInt32(0xFFFFFFFF);
  }
  MemoryIChannel in(nested.GetBytes());
  {
    const TW::InputFrame outer(in, outerInfo);
    const TW::InputFrame inner(in, innerInfo);
    EXPECT_EQ(inner.GetVersion(), 0);
  }
  EXPECT_EQ(in.GetInputStatus(), TW::ErrFrameBounds);
}

TEST(Channel, ATextThatClaimsFourGigabytesTakesNoMoreMemoryThanItHas) {
  const std::byte bytes[] = {std::byte{0xFF}, std::byte{0xFF}, std::byte{0xFF}, std::byte{0xFF}, std::byte{'a'}};
  MemoryIChannel channel(bytes);
  UniString text(u"before");
  EXPECT_EQ(channel.ReadString(text), TW::ErrEndOfData);
  EXPECT_EQ(text, UniString(u"before"));
}

// A channel whose operation number `failAt` fails.
class FailingOChannel final : public TW::OChannel {
 public:
  explicit FailingOChannel(int failAt) : remaining_(failAt) {}

 protected:
  ErrCode WriteRaw(const void*, std::size_t) override { return remaining_-- > 0 ? NoErr : TW::ErrWriteFailed; }

 private:
  int remaining_;
};

TEST(Channel, AFailureAtAnyOperationSticks) {
  int failAt = 0;
  for (;; ++failAt) {
    FailingOChannel channel(failAt);
    WriteSample(channel);
    if (channel.GetOutputStatus() == NoErr) break;
    EXPECT_EQ(channel.GetOutputStatus(), TW::ErrWriteFailed);
    EXPECT_EQ(channel.WriteBool(true), TW::ErrWriteFailed);
  }
  EXPECT_EQ(failAt, 3) << "a flag, a frame as a whole, a number";
}

TEST(FileChannel, WritesAndReadsFiles) {
  const auto path = FreshPath("quorix-channel-");
  TW::FileOChannel out(path.string());
  WriteSample(out);
  EXPECT_EQ(out.Close(), NoErr);
  EXPECT_EQ(out.WriteBool(true), TW::ErrClosed);
  {
    TW::FileIChannel in(path.string());
    EXPECT_EQ(ReadSample(in), NoErr);
    bool beyond = false;
    EXPECT_EQ(in.ReadBool(beyond), TW::ErrEndOfData);
  }
  std::filesystem::remove(path);
}

TEST(FileChannel, TellsWhyAFileCannotBeUsed) {
  const auto missing = (FreshPath("quorix-no-such-folder-") / "file").string();
  bool flag = false;
  TW::FileOChannel out(missing);
  EXPECT_EQ(out.WriteBool(true), TW::ErrFileNotFound);
  EXPECT_EQ(out.Close(), TW::ErrFileNotFound);
  TW::FileIChannel in(missing);
  EXPECT_EQ(in.ReadBool(flag), TW::ErrFileNotFound);

  const std::string folder = std::filesystem::temp_directory_path().string();
  EXPECT_EQ(TW::FileOChannel(folder).WriteBool(true), TW::ErrFileAccess);
  EXPECT_EQ(TW::FileIChannel(folder).ReadBool(flag), TW::ErrFileAccess);
}

TEST(FileChannel, AFullDiskIsAnErrorAtTheLatestWhenTheFileIsClosed) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "this system has no /dev/full";
  TW::FileOChannel out("/dev/full");
  WriteSample(out);
  EXPECT_EQ(out.Close(), TW::ErrDiskFull);
}

}  // namespace
