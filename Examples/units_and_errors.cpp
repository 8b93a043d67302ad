// Quantities computed in base units, shown in the units and separators of three people, and a failure told to each of
// them in their language.

#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionUnitConverter.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "Resources/Language.hpp"

#include <cstdio>
#include <numbers>
#include <string>

namespace {

using QX::ExpressionValue;
using QX::Quantity;

struct Person {
  const char* language;
  QX::EvaluationLocaleSettings locale;
  QX::ExpressionUnitConverter converter;
};

QX::ExpressionUnitConverter Units(TWUnit::LengthUnit length, TWUnit::AreaUnit area, TWUnit::VolumeUnit volume,
                                  TWUnit::AngleUnit angle) {
  return QX::ExpressionUnitConverter(QX::CalcUnitSettings(QX::LengthFormat({length, 2, 16}), QX::AreaFormat({area, 2}),
                                                          QX::VolumeFormat({volume, 2}), QX::AngleFormat({angle, 1})));
}

std::string Show(const Person& person, const Quantity& quantity) {
  const auto text = person.converter.SIToString(ExpressionValue::FromQuantity(quantity), person.locale,
                                                TWUnit::UnitMarkerMode::Legacy);
  return text ? text->ToUtf8() : "-";
}

// Pads by characters, of which UTF-8 texts have fewer than bytes.
void PrintCell(const std::string& text, int width) {
  int characters = 0;
  for (char byte : text) characters += (byte & 0xC0) != 0x80;
  std::printf("%*s%s", width > characters ? width - characters : 1, "", text.c_str());
}

// The height of a wall from its area, as a node of a formula would compute it.
Quantity Divide(const Quantity& area, const Quantity& length) {
  Quantity height;
  if (!Quantity::Divide(area, length, height)) throw QX::ExpressionDivisionByZero(nullptr);
  return height;
}

}  // namespace

int main() {
  const Person people[] = {
      {"en",
       {'.', ',', ','},
       Units(TWUnit::LengthUnit::FootFractionalInch, TWUnit::AreaUnit::SquareFoot, TWUnit::VolumeUnit::CubicYard,
             TWUnit::AngleUnit::DecimalDegree)},
      {"de",
       {',', ';', '.'},
       Units(TWUnit::LengthUnit::Meter, TWUnit::AreaUnit::SquareMeter, TWUnit::VolumeUnit::CubicMeter,
             TWUnit::AngleUnit::Gradian)},
      {"fr",
       {',', ';', 0x202F},
       Units(TWUnit::LengthUnit::Millimeter, TWUnit::AreaUnit::SquareMeter, TWUnit::VolumeUnit::Liter,
             TWUnit::AngleUnit::DegreeMinuteSecond)},
  };

  const Quantity length = ExpressionValue::FromNumericValueAndUnitMarker(1265, u"cm").ConvertToQuantity();
  const Quantity height = ExpressionValue::FromNumericValueAndUnitMarker(9.5, u"ft").ConvertToQuantity();
  const Quantity thickness = ExpressionValue::FromNumericValueAndUnitMarker(365, u"mm").ConvertToQuantity();
  const Quantity slope(std::numbers::pi / 7, QX::UnitExponents::CreateAngle());
  Quantity area;
  Quantity volume;
  Quantity::Multiply(length, height, area);
  Quantity::Multiply(area, thickness, volume);

  const struct {
    const char* name;
    Quantity quantity;
  } rows[] = {{"length", length},
              {"height", height},
              {"thickness", thickness},
              {"area", area},
              {"volume", volume},
              {"slope", slope},
              {"area / length", Divide(area, length)}};
  std::printf("%-14s", "");
  for (const Person& person : people) PrintCell(person.language, 18);
  std::printf("\n");
  for (const auto& row : rows) {
    std::printf("%-14s", row.name);
    for (const Person& person : people) PrintCell(Show(person, row.quantity), 18);
    std::printf("\n");
  }

  std::printf("\narea / 0 m:\n");
  try {
    Divide(area, Quantity(0, QX::UnitExponents::CreateLength()));
  } catch (const QX::ExpressionSemanticException& exception) {
    for (const Person& person : people) {
      Resources::SetLanguage(person.language);
      std::printf("  %s  %s\n", person.language, exception.ToString().ToUtf8().c_str());
    }
  }
  return 0;
}
