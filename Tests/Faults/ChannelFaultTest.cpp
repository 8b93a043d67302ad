#include "Quorix/Formulas.hpp"

#include <stdexcept>

// Channels that fail, or throw, at any of their operations.

namespace {

using QX::Expression;
using TW::ErrCode;
using TW::NoErr;

struct Thrown {};

// The operation that fails, and how: with a code, or by throwing.
class Fault {
 public:
  Fault(unsigned int operation, ErrCode code) : remaining_(operation), code_(code) {}

  // Gives the code, throws where there is none, and remembers how often it was asked after that.
  ErrCode Pass() {
    if (failed_) ++asked_;
    if (remaining_-- > 0) return NoErr;
    failed_ = true;
    if (code_ == NoErr) throw Thrown();
    return code_;
  }
  bool HasFailed() const { return failed_; }
  unsigned int GetAskedAfterwards() const { return asked_; }

 private:
  unsigned int remaining_;
  ErrCode code_;
  bool failed_ = false;
  unsigned int asked_ = 0;
};

class FaultyOChannel final : public TW::OChannel {
 public:
  FaultyOChannel(unsigned int operation, ErrCode code) : fault(operation, code) {}
  Fault fault;
  StoredBytes bytes;

 protected:
  ErrCode WriteRaw(const void* source, std::size_t count) override {
    if (const ErrCode error = fault.Pass(); error != NoErr) return error;
    const auto* first = static_cast<const std::byte*>(source);
    bytes.insert(bytes.end(), first, first + count);
    return NoErr;
  }
};

class FaultyIChannel final : public TW::IChannel {
 public:
  FaultyIChannel(const StoredBytes& bytes, unsigned int operation, ErrCode code)
      : fault(operation, code), rest_(bytes) {}
  Fault fault;

 protected:
  ErrCode ReadRaw(void* target, std::size_t count) override {
    if (const ErrCode error = fault.Pass(); error != NoErr) return error;
    if (count > rest_.size()) return TW::ErrEndOfData;
    std::copy_n(rest_.begin(), count, static_cast<std::byte*>(target));
    rest_ = rest_.subspan(count);
    return NoErr;
  }

 private:
  std::span<const std::byte> rest_;
};

// Every kind of node with fields.
const Expression& GetFormula() {
  static const Expression formula = ParseFormula(FormulaWords::Replace(
      "SUM ( 1, 2.5 m, 2 1/4\" ) * {1} ^ 2 - IF ( TRUE, LEN ( \"a text longer than a few units\" ), PI )"));
  return formula;
}

constexpr ErrCode Codes[] = {TW::ErrDiskFull, TW::ErrEndOfData, -12345, NoErr};

TEST(ChannelFault, FormulasThatCannotBeStoredLeaveNoPartOfThemselves) {
  const StoredBytes whole = Store(GetFormula());
  for (const ErrCode code : Codes) {
    for (unsigned int operation = 0; operation < 4; ++operation) {
      FaultyOChannel channel(operation, code);
      unsigned int stored = 0;
      try {
        while (stored < 4 && GetFormula().Write(channel) == NoErr) ++stored;
        EXPECT_NE(code, NoErr);
      } catch (const Thrown&) {
        EXPECT_EQ(code, NoErr);
      }
      const ErrCode expected = code == NoErr ? TW::ErrWriteFailed : code;
      EXPECT_EQ(stored, operation);
      EXPECT_EQ(channel.bytes.size(), operation * whole.size());
      EXPECT_EQ(channel.GetOutputStatus(), expected);
      EXPECT_EQ(GetFormula().Write(channel), expected);
      EXPECT_EQ(channel.WriteBool(true), expected);
      EXPECT_EQ(channel.fault.GetAskedAfterwards(), 0U);
    }
  }
}

// Gives whether the reading came to the operation at fault.
bool MeetsFaultReading(const StoredBytes& bytes, unsigned int operation, ErrCode code) {
  FaultyIChannel channel(bytes, operation, code);
  Expression target = ParseFormula(u"1 + 1");
  const ErrCode expected = code == NoErr ? TW::ErrReadFailed : code;
  try {
    const ErrCode error = target.Read(channel);
    if (!channel.fault.HasFailed()) {
      EXPECT_EQ(error, NoErr);
      EXPECT_TRUE(target.IsEqual(GetFormula()));
      return false;
    }
    EXPECT_EQ(error, expected);
  } catch (const Thrown&) {
    EXPECT_EQ(code, NoErr);
  }
  bool flag = true;
  EXPECT_EQ(Render(target), TW::UniString(u"1 + 1")) << "operation " << operation;
  EXPECT_EQ(channel.GetInputStatus(), expected);
  EXPECT_EQ(channel.ReadBool(flag), expected);
  EXPECT_EQ(target.Read(channel), expected);
  EXPECT_EQ(channel.fault.GetAskedAfterwards(), 0U);
  return true;
}

TEST(ChannelFault, FormulasAreReadWholeOrNotAtAll) {
  const StoredBytes bytes = Store(GetFormula());
  for (const ErrCode code : Codes) {
    unsigned int operation = 0;
    while (MeetsFaultReading(bytes, operation, code) && !HasFailure()) ++operation;
    EXPECT_GT(operation, 60U);
  }
}

// What a class of a later version has stored is passed over when the frame ends, where nothing may be thrown.
TEST(ChannelFault, AFrameThatCannotBePassedOverPutsTheChannelIntoAnError) {
  StoredBytes bytes;
  {
    TW::MemoryOChannel channel;
    TW::OutputFrame frame(channel, Expression::classInfo);
    channel.WriteString(u"what a later version has added");
    EXPECT_EQ(frame.Close(), NoErr);
    bytes = channel.TakeBytes();
  }
  for (unsigned int operation = 3; operation < 4; ++operation) {
    FaultyIChannel channel(bytes, operation, NoErr);
    {
      const TW::InputFrame frame(channel, Expression::classInfo);
    }
    EXPECT_TRUE(channel.fault.HasFailed());
    EXPECT_EQ(channel.GetInputStatus(), TW::ErrReadFailed);
  }
}

TEST(ChannelFault, AFrameThatAnExceptionCutsShortIsNotWritten) {
  TW::MemoryOChannel channel;
  try {
    const TW::OutputFrame outer(channel, Expression::classInfo);
    const TW::OutputFrame inner(channel, Expression::classInfo);
    channel.WriteBool(true);
    throw Thrown();
  } catch (const Thrown&) {
  }
  EXPECT_EQ(channel.GetOutputStatus(), TW::ErrWriteFailed);
  EXPECT_TRUE(channel.GetBytes().empty());
}

}  // namespace
