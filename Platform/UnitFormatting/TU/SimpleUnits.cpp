#include "TU/SimpleUnits.hpp"

#include "TU/NumberText.hpp"

namespace {

using TU::UnitMarker;
using TWUnit::AreaUnit;
using TWUnit::VolumeUnit;

UnitMarker MarkerOf(AreaUnit unit) {
  switch (unit) {
    case AreaUnit::SquareMeter:
      return {u"m²"};
    case AreaUnit::SquareCentimeter:
      return {u"cm²"};
    case AreaUnit::SquareMillimeter:
      return {u"mm²"};
    case AreaUnit::SquareFoot:
      return {u"ft²"};
    case AreaUnit::SquareInch:
      return {u"in²"};
  }
  return {};
}

UnitMarker MarkerOf(VolumeUnit unit) {
  switch (unit) {
    case VolumeUnit::CubicMeter:
      return {u"m³"};
    case VolumeUnit::Liter:
      return {u"l"};
    case VolumeUnit::CubicCentimeter:
      return {u"cm³"};
    case VolumeUnit::CubicYard:
      return {u"y³"};
    case VolumeUnit::CubicFoot:
      return {u"ft³"};
    case VolumeUnit::CubicInch:
      return {u"in³"};
    case VolumeUnit::Gallon:
      return {u"gal"};
  }
  return {};
}

template <class Unit>
TUDisplayText TextIn(Unit unit, double baseAmount, const TU::NumberStyle& style) {
  return TU::SimpleUnitText(baseAmount / TWUnit::GetFactor(unit), MarkerOf(unit), style);
}

}  // namespace

TUConversionResult TUM22UString(double squareMeters, AreaUnit unit, const TW::UniString& format,
                                unsigned short minimumLength, unsigned short decimals, bool writeMarker,
                                TWUnit::ShowSmallFives showSmallFives, bool dropTrailingZeros,
                                const TUSeparators& separators, TWUnit::SignHandling signHandling) {
  const TU::NumberStyle style =
      TU::MakeNumberStyle(decimals, writeMarker, showSmallFives, dropTrailingZeros, separators, signHandling);
  return {TextIn(unit, squareMeters, style), format, minimumLength, u' '};
}

TUConversionResult TUM32UString(double cubicMeters, VolumeUnit unit, const TW::UniString& format,
                                unsigned short minimumLength, unsigned short decimals, bool writeMarker,
                                TWUnit::ShowSmallFives showSmallFives, bool dropTrailingZeros,
                                const TUSeparators& separators, TWUnit::SignHandling signHandling) {
  const TU::NumberStyle style =
      TU::MakeNumberStyle(decimals, writeMarker, showSmallFives, dropTrailingZeros, separators, signHandling);
  return {TextIn(unit, cubicMeters, style), format, minimumLength, u' '};
}
