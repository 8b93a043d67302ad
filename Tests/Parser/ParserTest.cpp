#include "ShapeBuilder.hpp"
#include "Text.hpp"

#include <pthread.h>
#include <stdexcept>
#include <vector>

namespace {

using Reason = EP::SyntaxErrorReason;

TW::Ref<ShapeNode> Parse(const TW::UniString& text, ShapeBuilder& builder) {
  return EP::BoostGenerateSyntaxTree(text, EP::IOLocaleSettings(), builder);
}

// The shape of the tree of a text; of a text that is no formula, the reason, position and length.
std::string Shape(const TW::UniString& text, const EP::IParsingLocaleSettings& settings = EP::IOLocaleSettings()) {
  ShapeBuilder builder;
  try {
    return EP::BoostGenerateSyntaxTree(text, settings, builder)->GetShape();
  } catch (const EP::SyntaxErrorException& error) {
    return std::string(error.what()) + " @" + std::to_string(error.GetPosition()) + "+" +
           std::to_string(error.GetLength());
  }
}

struct Row {
  const char16_t* text;
  const char* shape;
};

TEST(Parser, BuildsTheTreeOfTheGrammar) {
  const Row rows[] = {
      // Precedence and direction.
      {u"1 + 2 * m", "(+ 1 (* 2 m))"},
      {u"2 - 3 - 4", "(- (- 2 3) 4)"},
      {u"8 / 4 * 2", "(* (/ 8 4) 2)"},
      {u"2 ^ 3 ^ 2", "(^ 2 (^ 3 2))"},
      {u"-2 ^ 2", "(- (^ 2 2))"},
      {u"2 ^ -2", "(^ 2 (- 2))"},
      {u"2 ^ -3 ^ +2 * 4", "(* (^ 2 (- (^ 3 (+ 2)))) 4)"},
      {u"-2 * -+3 - -4", "(- (* (- 2) (- (+ 3))) (- 4))"},
      {u"a = b < c + 1 <> d", "(<> (< (= a b) (+ c 1)) d)"},
      {u"a<=b>=c", "(>= (<= a b) c)"},
      {u"1>-2", "(> 1 (- 2))"},
      {u"a * b + c ^ d * e = f", "(= (+ (* a b) (* (^ c d) e)) f)"},
      {u"(1 + 2) * ((3))", "(* {(+ 1 2)} {{3}})"},
      // Calls.
      {u"F()", "(F)"},
      {u" F \t( ) ", "(F)"},
      {u"SUM(1, a + 2, G(3), (4))", "(SUM 1 (+ a 2) (G 3) {4})"},
      {u"-F(1) ^ 2", "(- (^ (F 1) 2))"},
      // Names.
      {u"Größe2 + 名前", "(+ Größe2 名前)"},
      {u"a\u00A0+\u2003b\u3000+\r\nc", "(+ (+ a b) c)"},
      // Numbers.
      {u"5", "5"},
      {u"0007", "7"},
      {u"2147483647", "2147483647"},
      {u"2147483648", "#2147483648"},
      {u"-2147483648", "(- #2147483648)"},
      {u"5.", "#5."},
      {u".5", "#.5"},
      {u"5.250", "#5.250"},
      {u"1e3 + 1E-3 + 1.5e+3", "(+ (+ #1e3 #1E-3) #1.5e+3)"},
      {u"1e-999", "#1e-999"},
      // Units.
      {u"5m + 5 cm", "(+ 5m 5cm)"},
      {u"2.5 m - 2.m", "(- #2.5m #2.m)"},
      {u"5' + 6\"", "(+ 5' 6\")"},
      {u"5 ' * 6 \" ", "(* 5' 6\")"},
      {u"1e5m", "#1e5m"},
      // Fractions of an inch.
      {u"5 1/2\"", "5 1/2\""},
      {u"5 \t01/02 \" + 1", "(+ 5 1/2\" 1)"},
      {u"1/2\"", "(/ 1 2\")"},
      {u"0 0/1\"", "0 0/1\""},
      // Texts.
      {u"\"\"", "''"},
      {u"\"a \\\"b\\\" \\\\ \\n [Property:x]\"", "'a \"b\" \\ \\n [Property:x]'"},
      {u"\"\\\\\" = \"x\"", "(= '\\' 'x')"},
      // References.
      {u"[Property:1AF5] * 2", "(* [Property|1AF5] 2)"},
      {u"[T2:a\\]b\\\\c\\d [e:f]", "[T2|a]b\\c\\d [e:f]"},
      {u"[x:]", "[x|]"},
  };
  for (const Row& row : rows) EXPECT_EQ(Shape(row.text), row.shape) << TW::UniString(row.text).ToUtf8();
}

TEST(Parser, ReportsTheFirstErrorFromTheLeft) {
  const Row rows[] = {
      // The end of the text.
      {u"", "Unexpected end of the formula. @0+0"},
      {u"  ", "Unexpected end of the formula. @2+0"},
      {u"1 + ", "Unexpected end of the formula. @4+0"},
      {u"-", "Unexpected end of the formula. @1+0"},
      {u"F(", "Unexpected end of the formula. @2+0"},
      {u"F(1,", "Unexpected end of the formula. @4+0"},
      {u"(1", "Closing parenthesis expected. @2+0"},
      {u"F((1) ", "Closing parenthesis expected. @6+0"},
      // No operand.
      {u"*1", "Operand expected. @0+1"},
      {u"1 + <> 2", "Operand expected. @4+2"},
      {u"()", "Operand expected. @1+1"},
      {u"F(1,)", "Operand expected. @4+1"},
      {u"F(,1)", "Operand expected. @2+1"},
      {u"a = , b", "Operand expected. @4+1"},
      {u"1 == 2", "Operand expected. @3+1"},
      // Something where nothing can stand.
      {u"a b", "Unexpected character. @2+1"},
      {u"a bcd(1)", "Unexpected character. @2+3"},
      {u"1)", "Unexpected character. @1+1"},
      {u"1, 2", "Unexpected character. @1+1"},
      {u"(1, 2)", "Unexpected character. @2+1"},
      {u"(a b", "Unexpected character. @3+1"},
      {u"(1)2", "Unexpected character. @3+1"},
      {u"1.2.3", "Unexpected character. @3+2"},
      {u"a \"b\"", "Unexpected character. @2+3"},
      {u"5 1/2\" m", "Unexpected character. @7+1"},
      {u"5'6\"", "Unexpected character. @2+1"},
      {u"1 m (2)", "Unexpected character. @4+1"},
      // Characters that begin nothing.
      {u"1 + #", "Unexpected character. @4+1"},
      {u"a & b", "Unexpected character. @2+1"},
      {u"1 + \U0001F600", "Unexpected character. @4+2"},
      {u"\xDC00", "Unexpected character. @0+1"},
      {u"'a'", "Unexpected character. @0+1"},
      {u".", "Unexpected character. @0+1"},
      {u"\u0663", "Unexpected character. @0+1"},
      {u"[Property]", "Unexpected character. @0+1"},
      {u"[ a:b]", "Unexpected character. @0+1"},
      {u"[:b]", "Unexpected character. @0+1"},
      // Missing ends.
      {u"1 + \"abc", "Closing quotation mark missing. @4+1"},
      {u"\"abc\\\"", "Closing quotation mark missing. @0+1"},
      {u"a \"b", "Closing quotation mark missing. @2+1"},
      {u"[Property:abc + 1", "Closing bracket of the reference missing. @0+1"},
      {u"1 + [Prop", "Closing bracket of the reference missing. @4+1"},
      {u"[a:b\\]", "Closing bracket of the reference missing. @0+1"},
      // Units and numbers.
      {u"5 x", "Unknown unit. @2+1"},
      {u"2 * 5m2x + #", "Unknown unit. @5+3"},
      {u"1e", "Unknown unit. @1+1"},
      {u"1e+", "Unknown unit. @1+1"},
      {u"5 5", "Unknown unit. @2+1"},
      {u"5 1/2", "Unknown unit. @2+1"},
      {u"1e999 x", "Number out of range. @0+5"},
      {u"1 + 5 2/2\"", "Number out of range. @4+6"},
      {u"5 1/0\"", "Number out of range. @0+6"},
      {u"5 1/2147483648\" + #", "Number out of range. @0+15"},
      {u"# + \"", "Unexpected character. @0+1"},
  };
  for (const Row& row : rows) EXPECT_EQ(Shape(row.text), row.shape) << TW::UniString(row.text).ToUtf8();
}

TEST(Parser, FollowsTheSeparators) {
  struct LocaleRow {
    char16_t decimalSeparator;
    char16_t listSeparator;
    const char16_t* text;
    const char* shape;
  };
  const LocaleRow rows[] = {
      {u',', u';', u"SUM(1,5; 2)", "(SUM #1.5 2)"},
      {u',', u';', u"SUM(,5;-2,)", "(SUM #.5 (- #2.))"},
      {u',', u';', u"1.5", "Unexpected character. @1+1"},
      {u',', u',', u"SUM(1,5;2)", "(SUM #1.5 2)"},
      {u';', u';', u"SUM(1;5,2)", "(SUM #1.5 2)"},
      {u'.', u'.', u"SUM(1.5;2)", "(SUM #1.5 2)"},
      {u'\u066B', u'\u060C', u"F(1\u066B5e2\u060Cx)", "(F #1.5e2 x)"},
      // Whatever a host calls a separator, a text gives a tree or an error.
      {u'5', u'1', u"25", "25"},
      {u'-', u'+', u"1-5e-2", "Number out of range. @0+6"},
      {u'e', u'"', u"1e5", "#1.5"},
      {u'\0', u'\0', u"F(1;2)", "(F 1 2)"},
  };
  for (const LocaleRow& row : rows) {
    EXPECT_EQ(Shape(row.text, TestSettings(row.decimalSeparator, row.listSeparator)), row.shape)
        << TW::UniString(row.text).ToUtf8();
  }
}

TEST(Parser, AsksTheBuilderFromLeftToRight) {
  const Row rows[] = {
      {u"a + b * c", "a + b * c"},
      {u"-(a - 2 m) ^ b", "- {} a - m? 2m ^ b"},
      {u"F(1.5 cm, G()) <= [P:v]", "F cm? #1.5cm G <= [P|v]"},
  };
  for (const Row& row : rows) {
    ShapeBuilder builder;
    std::string calls;
    builder.beforeCall = [&calls](const std::string& call) {
      calls += (calls.empty() ? "" : " ") + call;
      return true;
    };
    Parse(row.text, builder);
    EXPECT_EQ(calls, row.shape) << TW::UniString(row.text).ToUtf8();
  }
}

TEST(Parser, ReportsARefusedElementAtItself) {
  struct RefusalRow {
    const char16_t* text;
    const char* refused;
    Reason reason;
    unsigned int position;
    unsigned int length;
  };
  const RefusalRow rows[] = {
      {u"1 + F (2) + #", "F", Reason::UnknownFunction, 4, 1},
      {u"1 + name + #", "name", Reason::UnknownIdentifier, 4, 4},
      {u"[a:b] + #", "[a|b]", Reason::RefusedReference, 0, 5},
      {u"1 = \"a\\\"\" + #", "'a\"'", Reason::RefusedText, 4, 5},
      {u"1 <> a + #", "<>", Reason::UnexpectedCharacter, 2, 2},
      {u"2 * -a #", "-", Reason::UnexpectedCharacter, 4, 1},
      {u"2 * (a #", "{}", Reason::UnexpectedCharacter, 4, 1},
      {u"2 * 3 cm #", "cm?", Reason::UnknownUnit, 6, 2},
      {u"2 * 3 cm #", "3cm", Reason::NumberOutOfRange, 4, 1},
      {u"2 * 3.5 #", "#3.5", Reason::NumberOutOfRange, 4, 3},
      {u"2 * 3 1/2\" #", "3 1/2\"", Reason::NumberOutOfRange, 4, 6},
  };
  for (const RefusalRow& row : rows) {
    ShapeBuilder builder;
    builder.beforeCall = [&row](const std::string& call) { return call != row.refused; };
    try {
      Parse(row.text, builder);
      ADD_FAILURE() << row.refused;
    } catch (const EP::SyntaxErrorException& error) {
      EXPECT_EQ(error.GetReason(), row.reason) << row.refused;
      EXPECT_EQ(error.GetPosition(), row.position) << row.refused;
      EXPECT_EQ(error.GetLength(), row.length) << row.refused;
      EXPECT_EQ(error.GetErrorCode(), TW::ErrRefused);
    }
  }
  EXPECT_EQ(livingShapeNodes, 0);
}

TEST(Parser, AnInvalidFractionKeepsItsExceptionAndGetsItsPlace) {
  ShapeBuilder builder;
  try {
    Parse(u"1 + 5 3/2\"", builder);
    FAIL() << "3/2 is no fraction";
  } catch (const EP::ExpressionInvalidFractionalNodeException& error) {
    EXPECT_EQ(error.GetValue(), EP::FractionalInch(5, 3, 2));
    EXPECT_EQ(error.GetReason(), Reason::NumberOutOfRange);
    EXPECT_EQ(error.GetPosition(), 4U);
    EXPECT_EQ(error.GetName(), u"ExpressionInvalidFractionalNodeException");
  }
}

TEST(Parser, WhatTheBuilderThrowsPassesAndNothingIsLeaked) {
  const TW::UniString text = u"-(a + 2 m * F(1.5, 5 1/2\", \"t\", G())) ^ [P:v] <> b";
  int calls = 0;
  ShapeBuilder counting;
  counting.beforeCall = [&calls](const std::string&) { return ++calls > 0; };
  Parse(text, counting);
  ASSERT_EQ(calls, 16);
  for (int failing = 1; failing <= calls; ++failing) {
    int call = 0;
    ShapeBuilder builder;
    builder.beforeCall = [&call, failing](const std::string&) {
      if (++call == failing && failing % 2 == 0) throw failing;
      if (call == failing) throw std::runtime_error("builder");
      return true;
    };
    if (failing % 2 == 0) {
      EXPECT_THROW(Parse(text, builder), int);
    } else {
      EXPECT_THROW(Parse(text, builder), std::runtime_error);
    }
    EXPECT_EQ(call, failing);
    EXPECT_EQ(livingShapeNodes, 0);
  }
}

TEST(Parser, ARootOfAnotherClassIsABadCast) {
  class OtherBuilder final : public EP::ISyntaxTreeBuilder {
   public:
    struct NodeType : EP::SyntaxTreeNode {};
    using Node = TW::Ref<EP::SyntaxTreeNode>;
    Node CreateIntegerNode(int, TW::UniString) override { return TW::MakeRef<ShapeNode>("1", ShapeNode::Kind::Leaf); }
    Node CreateNumberNode(double, TW::UniString, const EP::LocalizedNumberString&) override { return nullptr; }
    Node CreateFractionalInchNode(EP::FractionalInch) override { return nullptr; }
    Node CreateQuotedStringNode(const TW::UniString&) override { return nullptr; }
    Node CreateReferenceNode(const TW::UniString&, const TW::UniString&) override { return nullptr; }
    Node CreateIdentifierNode(const TW::UniString&) override { return nullptr; }
    Node CreatePrefixOperatorNode(const TW::UniString&) override { return nullptr; }
    Node CreateBinaryOperatorNode(const TW::UniString&) override { return nullptr; }
    Node CreateFunctionNode(const TW::UniString&) override { return nullptr; }
    Node CreateParenthesizedNode() override { return nullptr; }
    bool IsValidUnitMarker(const TW::UniString&) override { return false; }
  };
  OtherBuilder builder;
  EXPECT_THROW(EP::BoostGenerateSyntaxTree(u"1", EP::IOLocaleSettings(), builder), TW::ClassCastException);
}

TEST(SyntaxTreeNode, IsRegisteredWithoutAConstructor) {
  EXPECT_EQ(EP::SyntaxTreeNode::classInfo.GetName(), "SyntaxTreeNode");
  EXPECT_TRUE(EP::SyntaxTreeNode::classInfo.IsCompatibleWith(TW::TreeNode::classInfo));
  EXPECT_FALSE(EP::SyntaxTreeNode::classInfo.CreateNewInstance());
}

// Nesting and length.

TW::UniString Repeat(std::u16string_view part, unsigned int count) {
  std::u16string text;
  text.reserve(part.size() * count);
  for (unsigned int i = 0; i < count; ++i) text += part;
  return TW::UniString(std::move(text));
}

// Runs on a stack so small that any recursion along the text would overflow it.
void RunOnSmallStack(void (*body)()) {
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
  pthread_t thread;
  const auto run = [](void* argument) -> void* {
    reinterpret_cast<void (*)()>(argument)();
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, run, reinterpret_cast<void*>(body)), 0);
  pthread_join(thread, nullptr);
  pthread_attr_destroy(&attributes);
}

TEST(Parser, BoundsTheNesting) {
  struct NestingRow {
    const char16_t* part;
    unsigned int elementAt;  // where in the part the element is that opens a level
    unsigned int elementLength;
    const char16_t* rest;
    const char16_t* end;
  };
  const NestingRow rows[] = {
      {u"(", 0, 1, u"1", u")"},   {u"Fn (", 0, 2, u"1", u")"},           {u"- ", 0, 1, u"1", u""},
      {u"1 ^ ", 2, 1, u"1", u""}, {u"1 = 1 + 1 * (", 12, 1, u"1", u")"}, {u"F(1, ", 0, 1, u"1", u")"},
  };
  for (const NestingRow& row : rows) {
    const std::u16string_view part = row.part;
    const auto text = [&](unsigned int levels) {
      return Repeat(part, levels) + TW::UniString(row.rest) + Repeat(row.end, levels);
    };
    ShapeBuilder builder;
    EXPECT_TRUE(Parse(text(EP::MaximumNestingDepth), builder)) << TW::UniString(part).ToUtf8();
    for (const unsigned int levels : {EP::MaximumNestingDepth + 1, 100'000U}) {
      try {
        Parse(text(levels), builder);
        ADD_FAILURE() << TW::UniString(part).ToUtf8();
      } catch (const EP::SyntaxErrorException& error) {
        EXPECT_EQ(error.GetReason(), Reason::TooDeeplyNested) << TW::UniString(part).ToUtf8();
        EXPECT_EQ(error.GetPosition(), EP::MaximumNestingDepth * part.size() + row.elementAt);
        EXPECT_EQ(error.GetLength(), row.elementLength);
      }
    }
  }
  EXPECT_EQ(livingShapeNodes, 0);
}

TEST(Parser, ALevelThatIsClosedDoesNotCount) {
  ShapeBuilder builder;
  for (const char16_t* term : {u"+(1)", u"+-1^2*F()", u"=-(1^-2)"}) {
    EXPECT_TRUE(Parse(TW::UniString(u"1") + Repeat(term, 1000), builder));
  }
}

TEST(Parser, ReadsLongTextsOnASmallStack) {
  RunOnSmallStack([] {
    constexpr unsigned int Million = 1'000'000;
    ShapeBuilder builder;
    {
      const TW::Ref<ShapeNode> sum = Parse(TW::UniString(u"1") + Repeat(u"+1", Million), builder);
      unsigned int height = 0;
      for (const ShapeNode* node = sum.Get(); node->GetChildCount() == 2; node = &node->GetShapeChild(0)) ++height;
      EXPECT_EQ(height, Million);
    }
    EXPECT_EQ(Parse(TW::UniString(u"F(1") + Repeat(u",1", Million) + u")", builder)->GetChildCount(), Million + 1);
    // Ten megabytes in one token of each kind.
    constexpr unsigned int Long = 5 * Million;
    EXPECT_EQ(Parse(TW::UniString(Long, u'x'), builder)->GetLabel().size(), Long);
    EXPECT_EQ(Parse(Repeat(u"0", Long) + u"8", builder)->GetLabel(), "8");
    EXPECT_EQ(Parse(TW::UniString(u"0.") + Repeat(u"7", Long), builder)->GetLabel().size(), Long + 3);
    EXPECT_EQ(Parse(TW::UniString(u"\"") + Repeat(u"\\\\", Long / 2) + u"\"", builder)->GetLabel().size(),
              Long / 2 + 2);
    EXPECT_EQ(Parse(Repeat(u" ", Long) + u"a", builder)->GetLabel(), "a");
    EXPECT_THROW(Parse(Repeat(u"[a:", Long / 3), builder), EP::SyntaxErrorException);
    EXPECT_THROW(Parse(Repeat(u"9", Long), builder), EP::SyntaxErrorException);
  });
  EXPECT_EQ(livingShapeNodes, 0);
}

}  // namespace
