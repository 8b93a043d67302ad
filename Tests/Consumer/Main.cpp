// A host outside the project: evaluates, fails in German, catches what the library throws, and computes with the host
// layer. Its status is the number of checks that failed. The argument says whether the texts of the library lie
// in a file beside it (`file`) or only in the library (`built-in`).

#include "EP/Parser.hpp"
#include "Host/Host.hpp"
#include "Quorix/Quorix.hpp"
#include "Resources/Language.hpp"
#include "TU/UnitFormatting.hpp"
#include "TW/Foundation.hpp"

#include <cstdio>
#include <string>
#include <string_view>

namespace {

const TW::Guid widthId("{1AF5C228-7607-4175-9B78-A1779295614E}");
const TW::Guid areaId("{A3F5C228-7607-4175-9B78-A1779295614E}");

class Environment final : public QX::IExpressionEvaluationEnv {
 public:
  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    return QX::EvaluableStatus::Evaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid&) const override { throw 1; }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return settings_.converter; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return settings_.locale; }
  bool IsUserUndefinedPropagationEnabled() const override { return false; }

 private:
  Host::EvaluationSettings settings_;
};

class OwnException final : public TWException {
 public:
  OwnException() : TWException(u"own", {}, 0, nullptr, TW::ErrRefused) {}
};

const Environment environment;
int failures = 0;

void Check(const char* what, bool holds) {
  if (holds) return;
  std::printf("wrong: %s\n", what);
  ++failures;
}

QX::Expression Read(const TW::UniString& text) {
  QX::SyntaxTreeBuilder builder;
  return QX::Expression(
      EP::BoostGenerateSyntaxTree<QX::SyntaxTreeBuilder>(text, environment.GetLocaleSettings(), builder));
}

TW::UniString Show(const QX::ExpressionValue& value) {
  return QX::ConvertExpressionValueToString(value, environment.GetUnitConverter(), environment.GetLocaleSettings(),
                                            TWUnit::UnitMarkerMode::Legacy, 0, 12)
      .value_or(u"no value");
}

// Whether evaluating the text throws exactly what is named, caught by its own class or one above it.
template <class Caught>
bool Throws(const TW::UniString& text, std::string_view name) {
  try {
    Read(text).Evaluate(environment);
  } catch (const Caught& exception) {
    const TWException& root = exception;
    return root.GetName().ToUtf8() == name;
  } catch (...) {
  }
  return false;
}

void CheckExceptions() {
  const TW::UniString reference = QX::MakeExpressionPropertyReferenceString(widthId);
  Check("caught by its class", Throws<QX::ExpressionDivisionByZero>(u"1 / 0", "ExpressionDivisionByZero"));
  Check("caught by the family", Throws<QX::ExpressionSemanticException>(u"1 / 0", "ExpressionDivisionByZero"));
  Check("caught by the root", Throws<TWException>(u"1 m + 1 m2", "ExpressionIncompatibleArgumentDimensions"));
  Check("a syntax error", Throws<EP::SyntaxErrorException>(u"1 +", "SyntaxErrorException"));
  Check("the host throws",
        Throws<QX::ExpressionPropertyEvaluationFailed>(reference, "ExpressionPropertyEvaluationFailed"));
  try {
    EP::EnumerateTokens(u"1 + 2", environment.GetLocaleSettings(), [](const auto&...) { throw OwnException(); });
    Check("a callback throws", false);
  } catch (const TWException& exception) {
    Check("a callback throws", dynamic_cast<const OwnException*>(&exception) != nullptr);
  }
}

void CheckMessages(bool inFile) {
  Check("the file of texts", (QX::GetQuorixResModule() >= 1) == inFile);
  Resources::SetLanguage("de");
  try {
    Read(u"1 / 0").Evaluate(environment);
  } catch (const QX::ExpressionSemanticException& exception) {
    const std::string message = exception.ToString().ToUtf8();
    std::puts(message.c_str());
    Check("the message is German", message.starts_with("Der Divisor ist null."));
  }
}

void CheckHostLayer() {
  Host::PropertyTable table;
  const auto width = table.Define({widthId, u"Width", {}, Host::PropertyKind::Length, {}});
  const auto area = table.Define({areaId, u"Area", {}, Host::PropertyKind::Area, {}});
  table.AddElements(1);
  Check("a formula is taken", !table.SetFormula(*area, u"[Width] * 30 cm", environment.GetLocaleSettings()));
  Check("an input is taken",
        table.SetInput(*width, 0, QX::ExpressionValue::FromQuantity(2.5, QX::UnitExponents::CreateLength())));
  table.Recalculate();
  Check("the table computes", Show(table.GetValue(*area, 0)) == TW::UniString(u"0.75 m²"));
  Check("no model is told of", !Host::IfcModel::Read("").GetMessages().GetList().empty());
}

}  // namespace

int main(int argc, char** argv) {
  Check("a value", Show(Read(u"2 m * 50 cm + 3 m2").Evaluate(environment)) == TW::UniString(u"4.00 m²"));
  CheckExceptions();
  CheckMessages(argc > 1 && std::string_view(argv[1]) == "file");
  CheckHostLayer();
  return failures;
}
