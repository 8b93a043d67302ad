// What an editor shows below a formula while it is typed: the place of an error of syntax counts in the text that was
// typed, the node of an error of evaluation has its range in the text that the formula is rendered to.

#include "Quorix/Quorix.hpp"

#include <cstdio>
#include <string>

namespace {

class Host final : public QX::IExpressionEvaluationEnv {
 public:
  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    return QX::EvaluableStatus::NotEvaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid&) const override { return QX::ExpressionValue::CreateInvalid(); }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return converter_; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return locale_; }
  bool IsUserUndefinedPropagationEnabled() const override { return false; }

 private:
  QX::EvaluationLocaleSettings locale_{'.', ',', 0};
  QX::ExpressionUnitConverter converter_{QX::CalcUnitSettings(
      QX::LengthFormat({TWUnit::LengthUnit::Meter, 2, 64}), QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2}),
      QX::VolumeFormat({TWUnit::VolumeUnit::CubicMeter, 2}), QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 2}))};
};

void Underline(const TW::UniString& text, TW::Range<unsigned int> range, const TW::UniString& message) {
  const std::string marks = std::string(range.begin, ' ') + std::string(range.IsEmpty() ? 1 : range.GetLength(), '^');
  std::printf("  %s\n  %s\n  %s\n\n", text.ToUtf8().c_str(), marks.c_str(), message.ToUtf8().c_str());
}

void Check(const TW::UniString& typed) {
  const Host host;
  QX::SyntaxTreeBuilder builder;
  QX::Expression formula;
  try {
    formula =
        QX::Expression(EP::BoostGenerateSyntaxTree<QX::SyntaxTreeBuilder>(typed, host.GetLocaleSettings(), builder));
    formula.Evaluate(host);
    std::printf("  %s\n  is right\n\n", typed.ToUtf8().c_str());
  } catch (const EP::SyntaxErrorException& error) {
    const unsigned int begin = error.GetPosition();
    Underline(typed, {begin, begin + error.GetLength()}, error.ToString());
  } catch (const QX::ExpressionSemanticException& error) {
    const QX::ExpressionString rendered = formula.GetExpressionString(host.GetLocaleSettings());
    Underline(rendered.GetFullString(), rendered.GetNodeRange(error.GetSource()), error.ToString());
  }
}

}  // namespace

int main() {
  Check(u"2 m * (50 cm + 1 ft)");
  Check(u"2 m * (50 cm + 1 ft");
  Check(u"SUMM(1, 2)");
  Check(u"2 m*(50 cm+1)");
  Check(u"IF(1 < 2, SQRT(4 - 5), 0)");
  return 0;
}
