#include "EP/Parser.hpp"
#include "FormulaChecks.hpp"
#include "Quorix/ExpressionValueToString.hpp"

// Formulas as people write them: from text to value and back, in any separators and units.

namespace {

using QX::EvaluationLocaleSettings;
using QX::Expression;

const EvaluationLocaleSettings Locales[] = {
    {'.', ',', 0},       {'.', ',', ','},    {',', ';', '.'}, {',', ';', 0xA0}, {',', ',', 0},
    {'.', ';', u'\''},   {'.', '.', '.'},    {';', ';', ' '}, {',', '.', '.'},  {u'\u066B', u'\u060C', u'\u066C'},
    {u'\xFF0E', '|', 0}, {u'\xB7', '#', '_'}};

// Separators that no country has, which need not give a text that can be read back.
const EvaluationLocaleSettings StrangeLocales[] = {{0, 0, 0},        {'+', '-', '*'},  {'(', ')', '"'},
                                                   {'1', '2', '3'},  {' ', 'm', 'e'},  {0xD800, 0xDC00, 0xFFFF},
                                                   {'[', ']', '\''}, {'^', '"', '\n'}, {'e', 'E', '\\'}};

TestHost MakeHost(FuzzInput& input, const EvaluationLocaleSettings& locale) {
  TestHost host;
  FormulaWords::AddPropertiesTo(host);
  host.SetLocale(locale);
  host.SetPropagation(input.ChooseYes());
  // Each choice may also be one that is no unit.
  const auto decimals = static_cast<unsigned short>(input.Choose(20));
  const auto unit = [&input](unsigned int count) { return static_cast<unsigned short>(input.Choose(count + 1)); };
  host.SetUnits({QX::LengthFormat({static_cast<TWUnit::LengthUnit>(unit(9)), decimals,
                                   static_cast<unsigned short>(input.Choose(130))}),
                 QX::AreaFormat({static_cast<TWUnit::AreaUnit>(unit(5)), decimals}),
                 QX::VolumeFormat({static_cast<TWUnit::VolumeUnit>(unit(7)), decimals}),
                 QX::AngleFormat({static_cast<TWUnit::AngleUnit>(unit(4)), decimals})});
  return host;
}

void CheckErrorOf(const EP::SyntaxErrorException& error, const TW::UniString& text) {
  Require(error.GetPosition() <= text.GetLength(), "an error lies within the text");
  Require(error.GetLength() <= text.GetLength() - error.GetPosition(), "an error ends within the text");
  Require(!error.ToString().IsEmpty(), "an error has a message");
}

void CheckText(const Expression& expression, const EP::IParsingLocaleSettings& locale) {
  const TW::UniString text = Render(expression, locale);
  const Expression again = ParseFormula(text, locale);
  Require(Store(again) == Store(expression), "what was rendered is the same formula");
  Require(Render(again, locale) == text, "a formula is rendered as before");
  Require(again.IsEqual(expression), "a formula equals itself");
}

void CheckDisplay(FuzzInput& input, const Expression& expression, const TestHost& host) {
  const Outcome outcome = EvaluateWithBoundedMemory(expression, host);
  const auto mode = static_cast<TWUnit::UnitMarkerMode>(input.Choose(3));
  const unsigned int minimum = input.Choose(20);
  const auto text = QX::ConvertExpressionValueToString(outcome.value, host.GetUnitConverter(), host.GetLocaleSettings(),
                                                       mode, minimum, input.Choose(20));
  Require(outcome.value.IsValid() || !text, "an invalid value is not shown");
}

// Separators that were chosen, and whether a text written in them can be read again.
struct Separators {
  EvaluationLocaleSettings locale;
  bool areSensible;
};

Separators ChooseSeparators(FuzzInput& input) {
  if (input.Choose(8) == 7) return {input.ChooseFrom(StrangeLocales), false};
  return {input.ChooseFrom(Locales), true};
}

void CheckFormula(FuzzInput& input, const Expression& expression, const Separators& separators) {
  const TestHost host = MakeHost(input, separators.locale);
  CheckRanges(expression, separators.locale);
  if (separators.areSensible) CheckText(expression, separators.locale);
  CheckText(expression, EP::IOLocaleSettings());
  CheckStoring(expression);
  CheckEvaluation(expression, host);
  CheckDisplay(input, expression, host);
  Require(expression.IsValidInVersion(2), "every formula belongs to the latest version of the language");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const Separators separators = ChooseSeparators(input);
  const TW::UniString text = FormulaWords::Replace(input.GetText());
  Expression expression;
  try {
    expression = ParseFormula(text, separators.locale);
  } catch (const EP::SyntaxErrorException& error) {
    CheckErrorOf(error, text);
    return 0;
  }
  CheckFormula(input, expression, separators);
  return 0;
}
