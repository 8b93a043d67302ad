#pragma once

#include "Quorix/Quorix.hpp"

#include <array>

/// A host that answers three properties from an array; they are numbered by the last byte of their GUIDs.
class BenchmarkHost final : public QX::IExpressionEvaluationEnv {
 public:
  std::array<QX::ExpressionValue, 3> values{QX::ExpressionValue::FromNumber(2.0), QX::ExpressionValue::FromNumber(3.0),
                                            QX::ExpressionValue::FromNumber(5.0)};

  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    return QX::EvaluableStatus::Evaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid& propertyId) const override {
    return values[propertyId.GetBytes()[15] - 1];
  }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return converter_; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return locale_; }
  bool IsUserUndefinedPropagationEnabled() const override { return false; }

 private:
  QX::EvaluationLocaleSettings locale_{'.', ',', ','};
  QX::ExpressionUnitConverter converter_{QX::CalcUnitSettings(
      QX::LengthFormat({TWUnit::LengthUnit::Meter, 2, 64}), QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2}),
      QX::VolumeFormat({TWUnit::VolumeUnit::CubicMeter, 2}), QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 2}))};
};
