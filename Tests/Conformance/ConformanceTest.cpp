#include "Quorix/Formulas.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <optional>
#include <sstream>

// Reads files of formulas with their results. What the lines mean is written at the top of operators.qxt.

namespace {

using QX::Expression;
using QX::ExpressionValue;

constexpr const char* FileNames[] = {
#include "ConformanceFiles.inc"
};

constexpr const char* ReasonNames[] = {
    "UnexpectedCharacter", "UnexpectedEnd",         "OperandExpected",  "ClosingParenthesisExpected",
    "UnterminatedText",    "UnterminatedReference", "RefusedReference", "RefusedText",
    "UnknownFunction",     "UnknownIdentifier",     "UnknownUnit",      "NumberOutOfRange",
    "TooDeeplyNested"};

// Gives nothing and the failure when the text is no formula.
std::optional<Expression> Parse(const TW::UniString& text, const TestHost& host, Outcome& outcome) {
  try {
    return ParseFormula(text, host.GetLocaleSettings());
  } catch (const EP::SyntaxErrorException& error) {
    outcome.failure = std::string("syntax ") + ReasonNames[static_cast<unsigned int>(error.GetReason())] +
                      RangeText(error.GetPosition(), error.GetPosition() + error.GetLength());
    return std::nullopt;
  }
}

bool AreNear(double a, double b) { return a == b || std::fabs(a - b) <= 1e-12 * std::max(std::fabs(a), std::fabs(b)); }

bool AreSame(const ExpressionValue& a, const ExpressionValue& b) {
  if (!a.ContainsIntOrNumVariant() || a.IsUserUndefined()) return ExpressionValue::AreEqualByContent(a, b);
  return ExpressionValue::AreEqualByTypeAndUnit(a, b) && !b.IsUserUndefined() &&
         AreNear(a.GetIntOrNumVariantValue(), b.GetIntOrNumVariantValue());
}

// One file, line by line; of a page of documentation, the blocks of cases.
class CaseFile {
 public:
  explicit CaseFile(std::string path) : path_(std::move(path)), isPage_(path_.ends_with(".md")), inCases_(!isPage_) {
    FormulaWords::AddPropertiesTo(host_);
  }

  void Run() {
    std::ifstream file(path_);
    if (!file) Fail("cannot be read");
    for (std::string line; std::getline(file, line);) {
      ++line_;
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (isPage_ && line.starts_with("```")) inCases_ = line == "```qxt";
      if (!inCases_ || line.starts_with("```")) continue;
      if (line.find_first_not_of(" \t") == line.npos || line.front() == '#') continue;
      line.front() == '@' ? Obey(line) : Check(line);
    }
    if (cases_ == 0) Fail("holds no case");
  }

 private:
  void Fail(const std::string& message) const { ADD_FAILURE_AT(path_.c_str(), line_) << message; }

  void Obey(const std::string& line) {
    std::istringstream words(line);
    std::string directive;
    std::string first;
    words >> directive >> first;
    if (directive == "@propagation" && (first == "on" || first == "off")) {
      host_.SetPropagation(first == "on");
    } else if (std::string list, thousand; directive == "@locale" && words >> list >> thousand) {
      host_.SetLocale({Separator(first), Separator(list), Separator(thousand)});
    } else {
      Fail("unknown directive " + line);
    }
  }

  static unsigned short Separator(const std::string& word) {
    return word == "-" ? u'\0' : FormulaWords::Replace(word)[0].GetCode();
  }

  void Check(const std::string& line) {
    constexpr std::string_view Arrow = " => ";
    const std::size_t arrow = line.rfind(Arrow);
    if (arrow == line.npos) return Fail("there is no arrow");
    ++cases_;
    const std::string wanted = line.substr(arrow + Arrow.size());
    Outcome outcome;
    const std::optional<Expression> parsed = Parse(FormulaWords::Replace(line.substr(0, arrow)), host_, outcome);
    if (parsed) {
      outcome = Evaluate(*parsed, host_);
      CheckOtherForms(*parsed, outcome);
    }
    if (!IsAsWanted(outcome, wanted)) Fail(line + "\n  gives " + testing::PrintToString(outcome));
  }

  // A failure may be wanted without its range.
  bool IsAsWanted(const Outcome& outcome, const std::string& wanted) {
    if (wanted.starts_with("error ") || wanted.starts_with("syntax ")) {
      return outcome.failure == wanted || outcome.failure.starts_with(wanted + " @");
    }
    if (!outcome.failure.empty()) return false;
    if (wanted == "invalid") return !outcome.value.IsValid();
    if (const ExpressionValue* value = FormulaWords::FindValue(wanted)) return AreSame(outcome.value, *value);
    Outcome expected;
    const std::optional<Expression> right = Parse(FormulaWords::Replace(wanted), host_, expected);
    if (right) expected = Evaluate(*right, host_);
    if (expected.failure.empty()) return outcome.value.IsValid() && AreSame(outcome.value, expected.value);
    Fail("the right side gives " + expected.failure);
    return true;
  }

  // The formula read again from its own text, and from its stored form, is the same formula.
  void CheckOtherForms(const Expression& expression, const Outcome& outcome) {
    const TW::UniString text = Render(expression, host_.GetLocaleSettings());
    Outcome again;
    const std::optional<Expression> parsed = Parse(text, host_, again);
    if (!parsed) return Fail(text.ToUtf8() + "\n  is no formula again: " + again.failure);
    CheckForm("read again from " + text.ToUtf8(), *parsed, text, outcome);
    Expression stored;
    if (ReadStored(Store(expression), stored) != TW::NoErr) return Fail("cannot be stored and read");
    CheckForm("stored and read", stored, text, outcome);
  }

  void CheckForm(const std::string& form, const Expression& other, const TW::UniString& text, const Outcome& outcome) {
    const TW::UniString otherText = Render(other, host_.GetLocaleSettings());
    if (otherText != text) Fail(form + "\n  is written " + otherText.ToUtf8());
    const Outcome otherOutcome = Evaluate(other, host_);
    if (!(otherOutcome == outcome)) Fail(form + "\n  gives " + testing::PrintToString(otherOutcome));
  }

  std::string path_;
  bool isPage_;
  bool inCases_;
  int line_ = 0;
  int cases_ = 0;
  TestHost host_;
};

class Conformance : public testing::TestWithParam<const char*> {};

TEST_P(Conformance, Holds) { CaseFile(std::string(QX_CONFORMANCE_FOLDER "/") + GetParam() + ".qxt").Run(); }

TEST(Conformance, EveryFunctionHasASection) {
  std::string sections;
  for (const char* const name : FileNames) {
    std::ifstream file(std::string(QX_CONFORMANCE_FOLDER "/") + name + ".qxt");
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with("# --- ")) sections += line.substr(5) + " ";
    }
  }
  QX::GetFunctionNodeRegistry().EnumerateRegisteredFunctions([&sections](const TW::UniString& name) {
    EXPECT_NE(sections.find(" " + name.ToUtf8() + " "), std::string::npos) << name.ToUtf8();
  });
}

TEST(Documentation, SaysWhatFormulasGive) { CaseFile(QX_DOCUMENTATION_FOLDER "/Language.md").Run(); }

INSTANTIATE_TEST_SUITE_P(Files, Conformance, testing::ValuesIn(FileNames),
                         [](const testing::TestParamInfo<const char*>& file) { return std::string(file.param); });

}  // namespace
