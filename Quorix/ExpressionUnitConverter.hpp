#pragma once

#include "Quorix/CalcUnitSettings.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/Export.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "Quorix/UnitFormat.hpp"
#include "TW/Optional.hpp"
#include "TW/UniString.hpp"

namespace QX {

/// Gives the formats in which a host shows quantities, and shows them. What a host's converter or format throws ends
/// the evaluation and reaches its caller unchanged.
class QX_EXPORT IExpressionUnitConverter {
 public:
  virtual ~IExpressionUnitConverter() = default;
  virtual const IUnitFormat& GetLengthUnitInfo() const = 0;
  virtual const IUnitFormat& GetAreaUnitInfo() const = 0;
  virtual const IUnitFormat& GetVolumeUnitInfo() const = 0;
  virtual const AngleFormat& GetAngleUnitInfo() const = 0;

  /// The display text of an angle, a length, an area or a volume. Nothing for any other dimension (plain numbers
  /// included), for what is no number or user undefined, and where the amount in the display unit is not finite.
  TW::Optional<TW::UniString> SIToString(const ExpressionValue& value, const IEvaluationLocaleSettings& locale,
                                         TWUnit::UnitMarkerMode markerMode) const;
};

/// A converter with fixed formats.
class QX_EXPORT ExpressionUnitConverter final : public IExpressionUnitConverter {
 public:
  explicit ExpressionUnitConverter(const CalcUnitSettings& settings) : settings_(settings) {}

  const IUnitFormat& GetLengthUnitInfo() const override { return settings_.GetLengthFormat(); }
  const IUnitFormat& GetAreaUnitInfo() const override { return settings_.GetAreaFormat(); }
  const IUnitFormat& GetVolumeUnitInfo() const override { return settings_.GetVolumeFormat(); }
  const AngleFormat& GetAngleUnitInfo() const override { return settings_.GetAngleFormat(); }

 private:
  CalcUnitSettings settings_;
};

}  // namespace QX
