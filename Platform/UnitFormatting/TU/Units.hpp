#pragma once

#include <limits>

/// The units in which amounts are shown, and how. The codes are stored by hosts: they never change.

namespace TWUnit {

enum class LengthUnit : unsigned short {
  Meter = 0,
  Decimeter = 1,
  Centimeter = 2,
  Millimeter = 3,
  FootFractionalInch = 4,  ///< 5'-6 1/2"
  FootDecimalInch = 5,     ///< 5'-6.50"
  DecimalFoot = 6,
  FractionalInch = 7,  ///< 66 1/2"
  DecimalInch = 8,
};

enum class AreaUnit : unsigned short {
  SquareMeter = 0,
  SquareCentimeter = 1,
  SquareMillimeter = 2,
  SquareFoot = 3,
  SquareInch = 4,
};

enum class VolumeUnit : unsigned short {
  CubicMeter = 0,
  Liter = 1,
  CubicCentimeter = 2,
  CubicYard = 3,
  CubicFoot = 4,
  CubicInch = 5,
  Gallon = 6,
};

enum class AngleUnit : unsigned short {
  DecimalDegree = 0,
  DegreeMinuteSecond = 1,
  Gradian = 2,
  Radian = 3,
};

/// Which characters a text may hold. Any other value is taken as `Legacy`.
enum class UnitMarkerMode : int {
  Formatted = 0,  ///< typographic signs: U+00A0 before the marker, U+2212, U+2032 and U+2033
  Legacy = 1,     ///< the signs of a keyboard in their place: blank, `-`, `'` and `"`
};

/// Whether a number that ends half-way between two shown ones is rounded. Any other value is taken as `Off`.
enum class ShowSmallFives : unsigned short {
  Off = 0,
  On = 1,  ///< where the first decimal not shown rounds to 5, the number is cut there and U+2075 follows
};

/// Which signs are written; zero never has one. Any other value is taken as `MinusOnly`.
enum class SignHandling : unsigned short {
  MinusOnly = 0,
  PlusAndMinus = 1,
  NoSign = 2,
};

/// What `GetFactor` gives for a code that is no unit: amounts divided by it are no numbers and have no text.
inline constexpr double NoFactor = std::numeric_limits<double>::quiet_NaN();

/// Gives what one of `unit` is in metres: a foot where feet and inches are shown, an inch where inches alone are.
constexpr double GetFactor(LengthUnit unit) {
  switch (unit) {
    case LengthUnit::Meter:
      return 1.0;
    case LengthUnit::Decimeter:
      return 0.1;
    case LengthUnit::Centimeter:
      return 0.01;
    case LengthUnit::Millimeter:
      return 0.001;
    case LengthUnit::FootFractionalInch:
    case LengthUnit::FootDecimalInch:
    case LengthUnit::DecimalFoot:
      return 0.3048;
    case LengthUnit::FractionalInch:
    case LengthUnit::DecimalInch:
      return 0.0254;
  }
  return NoFactor;
}

/// Gives what one of `unit` is in square metres.
constexpr double GetFactor(AreaUnit unit) {
  switch (unit) {
    case AreaUnit::SquareMeter:
      return 1.0;
    case AreaUnit::SquareCentimeter:
      return 0.0001;
    case AreaUnit::SquareMillimeter:
      return 1e-6;
    case AreaUnit::SquareFoot:
      return 0.09290304;
    case AreaUnit::SquareInch:
      return 0.00064516;
  }
  return NoFactor;
}

/// Gives what one of `unit` is in cubic metres. The gallon is rounded on purpose: stored amounts rely on it.
constexpr double GetFactor(VolumeUnit unit) {
  switch (unit) {
    case VolumeUnit::CubicMeter:
      return 1.0;
    case VolumeUnit::Liter:
      return 0.001;
    case VolumeUnit::CubicCentimeter:
      return 1e-6;
    case VolumeUnit::CubicYard:
      return 0.764554857984;
    case VolumeUnit::CubicFoot:
      return 0.028316846592;
    case VolumeUnit::CubicInch:
      return 1.6387064e-05;
    case VolumeUnit::Gallon:
      return 0.0037854;
  }
  return NoFactor;
}

/// Gives what one of `unit` is in degrees.
constexpr double GetFactor(AngleUnit unit) {
  switch (unit) {
    case AngleUnit::DecimalDegree:
    case AngleUnit::DegreeMinuteSecond:
      return 1.0;
    case AngleUnit::Gradian:
      return 0.9;
    case AngleUnit::Radian:
      return 57.29577951308232;
  }
  return NoFactor;
}

}  // namespace TWUnit
