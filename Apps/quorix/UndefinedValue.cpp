#include "UndefinedValue.hpp"

namespace Command {
namespace {

using QX::ExpressionValue;
using Undefined = ExpressionValue::UndefinedSelector;

struct UndefinedRow {
  std::string_view text;
  ExpressionValue (*make)();
};

template <int length, int angle>
ExpressionValue MakeUndefined() {
  return ExpressionValue::FromQuantity(Undefined(), {length, angle});
}

constexpr UndefinedRow UndefinedRows[] = {
    {"undefined number", MakeUndefined<0, 0>},
    {"undefined integer", [] { return ExpressionValue::FromInteger(Undefined()); }},
    {"undefined length", MakeUndefined<1, 0>},
    {"undefined area", MakeUndefined<2, 0>},
    {"undefined volume", MakeUndefined<3, 0>},
    {"undefined angle", MakeUndefined<0, 1>},
    {"undefined text", [] { return ExpressionValue::FromString(Undefined()); }},
    {"undefined logical", [] { return ExpressionValue::FromBool(Undefined()); }},
};

}  // namespace

TW::Optional<ExpressionValue> FindUndefinedValue(std::string_view text) {
  for (const UndefinedRow& row : UndefinedRows) {
    if (row.text == text) return row.make();
  }
  return {};
}

}  // namespace Command
