#include "WordHelp.hpp"

#include "Evaluation.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"
#include "Quorix/OperatorNodeRegistry.hpp"

namespace Command {
namespace {

using QX::HelpType;

constexpr std::u16string_view EqualSign = u" = ";

std::vector<WordArgument> SplitArguments(const TW::UniString& lines) {
  std::vector<WordArgument> arguments;
  for (const TW::UniString& line : lines.Split(u"\n")) {
    const unsigned int colon = line.FindFirst(u":").value_or(line.GetLength());
    arguments.push_back({line.Substring(0, colon).Trim(), line.Substring(colon + 1, line.GetLength()).Trim(), line});
  }
  return arguments;
}

TW::UniString GetResult(const QX::ExpressionValue& value, const Environment& environment) {
  TW::UniString text = environment.GetDisplay().Make(value);
  if (!value.IsString() || value.IsUserUndefined()) return text;
  return u"\"" + text.ReplaceAll(u"\"", u"\\\"") + u"\"";
}

void AddExample(const QX::Expression& expression, const Environment& environment, WordHelp& help) {
  WordExample example;
  const auto failure = Attempt([&] { example.value = expression.Evaluate(environment); });
  if (failure || !example.value.IsValid()) return;
  example.formula = expression.GetExpressionString(environment.GetSettings().renderLocale).GetFullString();
  example.result = GetResult(example.value, environment);
  help.examples.push_back(std::move(example));
}

// The texts hold examples in the form in which formulas are stored, each with its value behind an equals sign.
void AddExamples(const TW::UniString& lines, const Environment& environment, WordHelp& help) {
  for (const TW::UniString& line : lines.Split(u"\n")) {
    const std::u16string_view formula = line.GetView().substr(0, line.GetView().rfind(EqualSign));
    AddExample(QX::Expression::CreateFromIOString(TW::UniString(formula)), environment, help);
  }
}

void DescribeFunction(const Environment& environment, WordHelp& help) {
  const QX::FunctionNodeRegistry& registry = QX::GetFunctionNodeRegistry();
  const unsigned short separator = environment.GetSettings().locale.GetListSeparator();
  const auto getText = [&](HelpType type) { return registry.GetFunctionHelpString(help.word, type, separator); };
  help.syntax = getText(HelpType::Syntax);
  help.description = getText(HelpType::Description);
  help.arguments = SplitArguments(getText(HelpType::Arguments));
  AddExamples(getText(HelpType::Example), environment, help);
}

void DescribeOperator(const Environment& environment, WordHelp& help) {
  const QX::OperatorNodeRegistry& registry = QX::GetOperatorNodeRegistry();
  help.description = registry.GetOperatorHelpString(help.word, HelpType::Description);
  help.arguments = SplitArguments(registry.GetOperatorHelpString(help.word, HelpType::Arguments));
  help.syntax = help.arguments.front().name + u" " + help.word + u" " + help.arguments.back().name;
  AddExamples(registry.GetOperatorHelpString(help.word, HelpType::Example), environment, help);
}

// The word itself, or one of the unit.
void DescribeValue(std::u16string_view formula, const Environment& environment, WordHelp& help) {
  help.syntax = TW::UniString(formula);
  AddExample(QX::Expression::CreateFromIOString(help.syntax), environment, help);
}

}  // namespace

TW::Optional<WordHelp> FindWordHelp(const TW::UniString& word, const Environment& environment) {
  const TW::Optional<WordKind> kind = FindWordKind(word);
  if (!kind) return {};
  WordHelp help{*kind, *kind == WordKind::Unit ? word : QX::NormalizeName(word), {}, {}, {}, {}, {}};
  help.title = GetWordTitle(*kind, help.word);
  switch (*kind) {
    case WordKind::Function:
      DescribeFunction(environment, help);
      break;
    case WordKind::Operator:
      DescribeOperator(environment, help);
      break;
    case WordKind::Constant:
      DescribeValue(help.word, environment, help);
      break;
    case WordKind::Unit:
      DescribeValue(u"1 " + help.word, environment, help);
      break;
  }
  return help;
}

}  // namespace Command
