#pragma once

#include "IO/MD5Channel.hpp"
#include "Quorix/Export.hpp"
#include "TU/UnitFormatting.hpp"
#include "TW/UniString.hpp"

/// How quantities of a kind are shown: in which unit and how exactly.

namespace QX {

struct LengthUnitData {
  TWUnit::LengthUnit unit;
  unsigned short decimals;
  unsigned short denominator;  ///< of inch fractions, 1 to 128
};

template <class Unit>
struct UnitData {
  Unit unit;
  unsigned short decimals;
};

/// The format of a kind of quantity that is shown with a thousand separator.
class QX_EXPORT IUnitFormat {
 public:
  virtual ~IUnitFormat() = default;
  /// Feeds the settings into a digest.
  virtual void WriteCheckSum(IO::MD5Channel& channel) const = 0;
  /// The text of `value`, which is in base units; empty when the amount in the display unit is not finite.
  virtual TW::UniString NumberToString(double value, TWUnit::UnitMarkerMode markerMode,
                                       const TW::UniString& decimalSeparator,
                                       const TW::UniString& thousandSeparator) const = 0;
};

/// Lengths, given in metres.
class QX_EXPORT LengthFormat final : public IUnitFormat {
 public:
  explicit LengthFormat(const LengthUnitData& data) : data_(data) {}
  void WriteCheckSum(IO::MD5Channel& channel) const override;
  TW::UniString NumberToString(double value, TWUnit::UnitMarkerMode markerMode, const TW::UniString& decimalSeparator,
                               const TW::UniString& thousandSeparator) const override;

 private:
  LengthUnitData data_;
};

/// Areas, given in square metres.
class QX_EXPORT AreaFormat final : public IUnitFormat {
 public:
  explicit AreaFormat(const UnitData<TWUnit::AreaUnit>& data) : data_(data) {}
  void WriteCheckSum(IO::MD5Channel& channel) const override;
  TW::UniString NumberToString(double value, TWUnit::UnitMarkerMode markerMode, const TW::UniString& decimalSeparator,
                               const TW::UniString& thousandSeparator) const override;

 private:
  UnitData<TWUnit::AreaUnit> data_;
};

/// Volumes, given in cubic metres.
class QX_EXPORT VolumeFormat final : public IUnitFormat {
 public:
  explicit VolumeFormat(const UnitData<TWUnit::VolumeUnit>& data) : data_(data) {}
  void WriteCheckSum(IO::MD5Channel& channel) const override;
  TW::UniString NumberToString(double value, TWUnit::UnitMarkerMode markerMode, const TW::UniString& decimalSeparator,
                               const TW::UniString& thousandSeparator) const override;

 private:
  UnitData<TWUnit::VolumeUnit> data_;
};

/// Angles, given in radians. They are shown without a thousand separator.
class QX_EXPORT AngleFormat {
 public:
  explicit AngleFormat(const UnitData<TWUnit::AngleUnit>& data) : data_(data) {}
  virtual ~AngleFormat() = default;
  void WriteCheckSum(IO::MD5Channel& channel) const;
  /// The text of `value`; empty when the amount in the display unit is not finite.
  TW::UniString NumberToString(double value, TWUnit::UnitMarkerMode markerMode,
                               const TW::UniString& decimalSeparator) const;

 private:
  UnitData<TWUnit::AngleUnit> data_;
};

/// The formatted text of a result in marker mode 0, its legacy text in any other.
QX_EXPORT TW::UniString TUConversionResultToString(TUConversionResult& result, TWUnit::UnitMarkerMode markerMode);

}  // namespace QX
