#pragma once

#include <cmath>

namespace QX {

/// The one tolerance of every comparison: absolute, in base units.
inline constexpr double Tolerance = 1e-9;

/// Values within the tolerance of each other are near; neither is then less or greater. Every test is false for NaN.
inline bool IsNearZero(double x) { return std::fabs(x) <= Tolerance; }
inline bool IsNear(double a, double b) { return std::fabs(a - b) <= Tolerance; }
inline bool IsLess(double a, double b) { return b - a > Tolerance; }
inline bool IsGreater(double a, double b) { return a - b > Tolerance; }
inline bool IsLessOrNear(double a, double b) { return a - b <= Tolerance; }
inline bool IsGreaterOrNear(double a, double b) { return b - a <= Tolerance; }

/// Whether `x` counts as a number: neither NaN nor infinite.
inline bool IsValidNumber(double x) { return std::isfinite(x); }

}  // namespace QX
