#include "Quorix/ExpressionNodes/ExpressionBinaryOpNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionComparisonNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionFractionalInchNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIdentifierNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionIntegerNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionNumberNode.hpp"
#include "Quorix/ExpressionNodes/ExpressionParenthesizedNode.hpp"
#include "Quorix/Golden.hpp"
#include "Quorix/LargestRequest.hpp"
#include "TW/Frame.hpp"

#include <limits>

namespace {

using QX::Expression;
using QX::ExpressionIntegerNode;
using QX::ExpressionParenthesizedNode;

// Where things stand in a stored formula.
constexpr std::size_t VersionAt = 16;
constexpr std::size_t LengthAt = 18;
constexpr std::size_t FrameHead = 22;
constexpr std::size_t HasTreeAt = FrameHead;
constexpr std::size_t RootClassAt = HasTreeAt + 1;
constexpr std::size_t RootFrameAt = RootClassAt + 16;

TW::Ref<ExpressionIntegerNode> MakeInteger(int value) {
  return TW::MakeRef<ExpressionIntegerNode>(value, TW::UniString());
}

// Reads over a formula that is there already, and tells what became of it.
struct Reading {
  TW::ErrCode error = TW::NoErr;
  std::size_t remaining = 0;
  Expression expression = ParseFormula(u"42");
};

Reading ReadOver(const StoredBytes& bytes) {
  Reading reading;
  TW::MemoryIChannel channel(bytes);
  reading.error = reading.expression.Read(channel);
  reading.remaining = channel.GetRemaining();
  return reading;
}

template <class WriteTree>
StoredBytes StoreTree(WriteTree writeTree) {
  TW::MemoryOChannel channel;
  {
    TW::OutputFrame frame(channel, Expression::classInfo);
    channel.WriteBool(true);
    writeTree(channel);
  }
  return channel.TakeBytes();
}

TEST(Persistence, ReplacesWhatWasThere) {
  const Reading reading = ReadOver(Store(ParseFormula(u"1 + 2")));
  EXPECT_EQ(reading.error, TW::NoErr);
  EXPECT_EQ(reading.remaining, 0U);
  EXPECT_EQ(Render(reading.expression), u"1 + 2");

  const StoredBytes none = Store(Expression());
  EXPECT_EQ(none.size(), FrameHead + 1);
  const Reading empty = ReadOver(none);
  EXPECT_EQ(empty.error, TW::NoErr);
  EXPECT_FALSE(empty.expression.IsValid());
}

TEST(Persistence, SeveralFormulasFollowEachOther) {
  TW::MemoryOChannel out;
  for (const char16_t* text : {u"1", u"2 * 3", u"\"x\""}) EXPECT_EQ(ParseFormula(text).Write(out), TW::NoErr);
  TW::MemoryIChannel in(out.GetBytes());
  for (const char16_t* text : {u"1", u"2 * 3", u"\"x\""}) {
    Expression read;
    EXPECT_EQ(read.Read(in), TW::NoErr);
    EXPECT_EQ(Render(read), text);
  }
  EXPECT_EQ(in.GetRemaining(), 0U);
}

TEST(Persistence, AFormulaOfAnotherVersionIsPassedOver) {
  for (const int version : {0, 2, 255}) {
    StoredBytes bytes = Store(ParseFormula(u"1 + 2"));
    bytes[VersionAt] = static_cast<std::byte>(version);
    bytes.push_back(std::byte{7});
    const Reading reading = ReadOver(bytes);
    EXPECT_EQ(reading.error, TW::NoErr) << version;
    EXPECT_EQ(reading.remaining, 1U) << version;
    EXPECT_EQ(Render(reading.expression), u"42") << version;
    bytes.pop_back();
    bytes.pop_back();
    EXPECT_EQ(ReadOver(bytes).error, TW::ErrEndOfData) << version;
  }
}

TEST(Persistence, ANodeWithFieldsOfAnotherVersionIsRefused) {
  struct Row {
    const char16_t* formula;
    TW::ErrCode error;
  };
  const Row rows[] = {{u"5", TW::ErrRefused},
                      {u"5.5", TW::ErrRefused},
                      {u"5 1/2\"", TW::ErrRefused},
                      {u"\"x\"", TW::ErrRefused},
                      {u"PI", TW::ErrRefused},
                      {u"[Property:]", TW::ErrRefused},
                      // Nodes without fields take any version.
                      {u"( 5 )", TW::NoErr},
                      {u"- 5", TW::NoErr},
                      {u"1 + 2", TW::NoErr},
                      {u"1 = 2", TW::NoErr}};
  for (const Row& row : rows) {
    StoredBytes bytes = Store(ParseFormula(row.formula));
    bytes[RootFrameAt + VersionAt] = std::byte{2};
    const Reading reading = ReadOver(bytes);
    EXPECT_EQ(reading.error, row.error) << TW::UniString(row.formula).ToUtf8();
    EXPECT_EQ(Render(reading.expression), row.error == TW::NoErr ? row.formula : u"42");
  }
}

TEST(Persistence, ANodeThatIsNotReadKeepsItsFields) {
  StoredBytes bytes = Store(*MakeInteger(7));
  bytes[16 + VersionAt] = std::byte{2};
  const auto node = MakeInteger(5);
  EXPECT_EQ(ReadStored(bytes, *node), TW::ErrRefused);
  EXPECT_EQ(Render(Expression(node)), u"5");
}

TEST(Persistence, WhatALaterVersionAddsIsPassedOver) {
  // Three more bytes in the frame of the node, and two in that of the formula.
  StoredBytes bytes = Store(ParseFormula(u"5"));
  const std::size_t fieldsEnd = RootFrameAt + FrameHead + 8;
  bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(fieldsEnd), 3, std::byte{0xEE});
  bytes.insert(bytes.end(), 2, std::byte{0xEE});
  bytes[RootFrameAt + LengthAt] = std::byte{8 + 3};
  bytes[LengthAt] = static_cast<std::byte>(bytes.size() - FrameHead);
  const Reading reading = ReadOver(bytes);
  EXPECT_EQ(reading.error, TW::NoErr);
  EXPECT_EQ(reading.remaining, 0U);
  EXPECT_EQ(Render(reading.expression), u"5");
  // It must be there.
  bytes.pop_back();
  const Reading cut = ReadOver(bytes);
  EXPECT_EQ(cut.error, TW::ErrEndOfData);
  EXPECT_EQ(Render(cut.expression), u"42");
}

// A registered class of trees that has nothing to do with formulas.
class StrangerNode final : public TW::TreeNode {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction() { return TW::MakeRef<StrangerNode>(); }
  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

 protected:
  TW::ErrCode ReadSelf(TW::IChannel&) override { return TW::NoErr; }
  TW::ErrCode WriteSelf(TW::OChannel&) const override { return TW::NoErr; }
};

TW::ClassInfo StrangerNode::classInfo("StrangerNode", "{5D9F1C56-2E52-4E45-9B3C-0C4B0B6F8A11}", 1,
                                      &TW::TreeNode::classInfo, &StrangerNode::ConstructorFunction);

TEST(Persistence, TreesOfOtherKindsAreRefused) {
  const StoredBytes foreignRoot = StoreTree([](TW::OChannel& channel) { StrangerNode().Write(channel); });
  Expression expression = ParseFormula(u"42");
  try {
    ReadStored(foreignRoot, expression);
    ADD_FAILURE() << "a foreign root is accepted";
  } catch (const TW::ClassCastException& exception) {
    EXPECT_EQ(exception.GetErrorCode(), -7003);
    EXPECT_EQ(exception.GetMessage(), u"Bad cast.");
  }
  EXPECT_EQ(Render(expression), u"42");

  const auto foreignLeaf = MakeNode<ExpressionParenthesizedNode>(
      MakeNode<ExpressionParenthesizedNode>(MakeInteger(1), TW::MakeRef<StrangerNode>()));
  EXPECT_EQ(ReadOver(Store(Expression(foreignLeaf))).error, TW::ErrRefused);
  // So it is when a node is read alone.
  const auto node = MakeNode<ExpressionParenthesizedNode>(MakeInteger(1));
  EXPECT_EQ(ReadStored(Store(*foreignLeaf), *node), TW::ErrRefused);
  EXPECT_EQ(Render(Expression(node)), u"( 1 )");
  EXPECT_FALSE(foreignLeaf->Clone());
}

TEST(Persistence, UnknownClassesAreRefused) {
  const TW::Guid unknown("{00000000-1111-2222-3333-444444444444}");
  for (const TW::Guid& guid : {unknown, QX::ExpressionNode::classInfo.GetGuid(), Expression::classInfo.GetGuid()}) {
    StoredBytes bytes = Store(ParseFormula(u"5"));
    std::transform(guid.GetBytes().begin(), guid.GetBytes().end(), bytes.begin() + RootClassAt,
                   [](std::uint8_t byte) { return std::byte{byte}; });
    const Reading reading = ReadOver(bytes);
    EXPECT_EQ(reading.error, TW::ErrUnknownClass);
    EXPECT_EQ(Render(reading.expression), u"42");
  }
}

TEST(Persistence, FieldsThatAreNotValidAreRefused) {
  const auto storeFraction = [](std::uint32_t whole, std::uint32_t numerator, std::uint32_t denominator) {
    return StoreTree([&](TW::OChannel& channel) {
      channel.WriteGuid(QX::ExpressionFractionalInchNode::classInfo.GetGuid());
      {
        TW::OutputFrame frame(channel, QX::ExpressionFractionalInchNode::classInfo);
        channel.WriteUInt32(whole);
        channel.WriteUInt32(numerator);
        channel.WriteUInt32(denominator);
      }
      channel.WriteUInt32(0);
    });
  };
  EXPECT_EQ(ReadOver(storeFraction(5, 1, 2)).error, TW::NoErr);
  EXPECT_EQ(ReadOver(storeFraction(5, 2, 2)).error, TW::ErrRefused);
  EXPECT_EQ(ReadOver(storeFraction(5, 0, 0)).error, TW::ErrRefused);
  EXPECT_EQ(ReadOver(storeFraction(0x80000000U, 1, 2)).error, TW::ErrRefused);

  // The record of a number must be a number.
  const auto storeNumber = [](const std::string& text) {
    return Store(Expression(TW::MakeRef<QX::ExpressionNumberNode>(5, u"m", EP::LocalizedNumberString(text))));
  };
  EXPECT_EQ(ReadOver(storeNumber("5.0")).error, TW::NoErr);
  for (const char* text : {"", ".", "-5", "5,0", "1e999", "5 "}) {
    EXPECT_EQ(ReadOver(storeNumber(text)).error, TW::ErrRefused) << text;
  }
}

TEST(Persistence, WhatNoTextGivesFailsWhenItIsEvaluated) {
  const auto number = [](double value, const char16_t* unit) {
    return TW::MakeRef<QX::ExpressionNumberNode>(value, unit, EP::LocalizedNumberString("1.0"));
  };
  const auto identifier = TW::MakeRef<QX::ExpressionIdentifierNode>(u"PI");
  identifier->AddChild(MakeInteger(1));
  struct Row {
    TW::Ref<QX::ExpressionNode> root;
    const char* failure;  // empty for the invalid value
  };
  const auto comparison = MakeNode<QX::ExpressionEqualNode>(MakeInteger(1), MakeInteger(1));
  const auto sum = MakeNode<QX::ExpressionAdditionNode>(comparison, MakeInteger(2));
  const Row rows[] = {
      // Operators that bind loosely, as left operands of those that bind tightly.
      {sum, "error ExpressionInvalidQuantityType @0..9"},
      {MakeNode<QX::ExpressionEqualNode>(sum, MakeInteger(3)), "error ExpressionInvalidQuantityType @0..9"},
      {TW::MakeRef<ExpressionIntegerNode>(1, u"foo"), ""},
      {MakeNode<QX::ExpressionAdditionNode>(MakeInteger(1), TW::MakeRef<ExpressionIntegerNode>(1, u"foo")),
       "error ExpressionInternalErrorException @0..9"},
      {number(1, u"foo"), "error ExpressionInternalErrorException @0..7"},
      {number(std::numeric_limits<double>::infinity(), u""), "error ExpressionInternalErrorException @0..3"},
      {number(std::numeric_limits<double>::quiet_NaN(), u"m"), "error ExpressionInternalErrorException @0..5"},
      {TW::MakeRef<QX::ExpressionIdentifierNode>(u"FOO"), "error ExpressionInternalErrorException @0..3"},
      {identifier, "error ExpressionInvalidArgumentNumber @0..2"},
      {MakeNode<ExpressionParenthesizedNode>(), "error ExpressionInvalidArgumentNumber @0..4"},
      {MakeNode<ExpressionParenthesizedNode>(MakeInteger(1), MakeInteger(2)),
       "error ExpressionInvalidArgumentNumber @0..8"},
  };
  for (const Row& row : rows) {
    const Reading reading = ReadOver(Store(Expression(row.root)));
    ASSERT_EQ(reading.error, TW::NoErr);
    EXPECT_EQ(Evaluate(reading.expression, TestHost()), (Outcome{{}, row.failure}))
        << Render(reading.expression).ToUtf8();
  }
}

// Does everything with a formula that broken bytes gave. What is to be repeated is not evaluated: the bytes may ask for
// gigabytes.
void Use(const Expression& expression) {
  const TestHost host;
  try {
    if (!Render(expression).Contains(u"REPT")) expression.Evaluate(host);
  } catch (const QX::ExpressionSemanticException& error) {
    EXPECT_NE(error.GetSource(), nullptr);
  }
  expression.IsValidInVersion(1);
  Expression again;
  EXPECT_EQ(ReadStored(Store(expression), again), TW::NoErr);
}

// Reads broken bytes and gives the error code; that of an exception, too.
TW::ErrCode ReadBroken(const StoredBytes& bytes) {
  constexpr std::size_t Usual = 65536;
  Expression expression;
  ForgetLargestRequest();
  TW::ErrCode error = TW::NoErr;
  try {
    error = ReadStored(bytes, expression);
  } catch (const TW::ClassCastException& exception) {
    error = exception.GetErrorCode();
  }
  EXPECT_LE(GetLargestRequest(), Usual);
  if (error == TW::NoErr) Use(expression);
  return error;
}

TEST(Persistence, TruncatedFormulasAreErrors) {
  for (const GoldenFormula& formula : ReadGoldenFormulas()) {
    const StoredBytes bytes = ReadGoldenBytes(formula);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      const StoredBytes cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length));
      EXPECT_NE(ReadBroken(cut), TW::NoErr) << formula.name << " cut to " << length;
    }
  }
}

TEST(Persistence, FlippedBytesDoNoHarm) {
  int errors = 0;
  int others = 0;
  for (const GoldenFormula& formula : ReadGoldenFormulas()) {
    StoredBytes bytes = ReadGoldenBytes(formula);
    for (std::byte& byte : bytes) {
      const std::byte original = byte;
      for (const std::byte mask : {std::byte{0xFF}, std::byte{0x01}, std::byte{0x80}, std::byte{0x20}}) {
        byte = original ^ mask;
        ReadBroken(bytes) != TW::NoErr ? ++errors : ++others;
      }
      byte = original;
    }
  }
  EXPECT_GT(errors, 1000);
  EXPECT_GT(others, 1000);
}

// A file may claim four billion units, bytes or children.
TEST(Persistence, NoClaimTakesMemory) {
  const StoredBytes text = Store(ParseFormula(u"\"abc\" = \"def\""));
  const StoredBytes unit = Store(ParseFormula(u"5 cm"));
  for (const StoredBytes& whole : {text, unit}) {
    EXPECT_EQ(ReadBroken(whole), TW::NoErr);
    EXPECT_GT(GetLargestRequest(), 0U);
    for (std::size_t at = 0; at + 4 <= whole.size(); ++at) {
      StoredBytes bytes = whole;
      std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), 4, std::byte{0xFF});
      ReadBroken(bytes);
    }
  }
}

}  // namespace
