// A host with two properties, a formula over them, its value as text, and what it tells when it fails.

#include "Quorix/Quorix.hpp"

#include <cstdio>
#include <stdexcept>

namespace {

const TW::Guid widthId("{1AF5C228-7607-4175-9B78-A1779295614E}");

class Host final : public QX::IExpressionEvaluationEnv {
 public:
  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    return QX::EvaluableStatus::Evaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid& id) const override {
    if (id != widthId) throw std::out_of_range("there is no such property");
    return QX::ExpressionValue::FromQuantity(2.5, QX::UnitExponents::CreateLength());
  }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return converter_; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return locale_; }
  bool IsUserUndefinedPropagationEnabled() const override { return false; }

 private:
  QX::EvaluationLocaleSettings locale_{'.', ',', ','};
  QX::ExpressionUnitConverter converter_{QX::CalcUnitSettings(
      QX::LengthFormat({TWUnit::LengthUnit::Meter, 2, 64}), QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2}),
      QX::VolumeFormat({TWUnit::VolumeUnit::CubicMeter, 2}), QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 1}))};
};

void Show(const TW::UniString& text) {
  const Host host;
  QX::SyntaxTreeBuilder builder;
  try {
    const QX::Expression formula(
        EP::BoostGenerateSyntaxTree<QX::SyntaxTreeBuilder>(text, host.GetLocaleSettings(), builder));
    const auto shown =
        QX::ConvertExpressionValueToString(formula.Evaluate(host), host.GetUnitConverter(), host.GetLocaleSettings(),
                                           TWUnit::UnitMarkerMode::Legacy, 0, 12);
    std::printf("%s\n", shown.value_or(u"no value").ToUtf8().c_str());
  } catch (const EP::SyntaxErrorException& error) {
    std::printf("at %u: %s\n", error.GetPosition(), error.ToString().ToUtf8().c_str());
  } catch (const QX::ExpressionSemanticException& error) {
    std::printf("%s: %s\n", error.GetName().ToUtf8().c_str(), error.ToString().ToUtf8().c_str());
  }
}

}  // namespace

int main() {
  const TW::UniString width = QX::MakeExpressionPropertyReferenceString(widthId);
  Show(width + u" * 30 cm");
  Show(TW::UniString(u"IF(") + width + u" > 2 m, \"wide\", \"narrow\")");
  Show(width + u" + 1");
  Show(width + u" + ");
  return 0;
}
