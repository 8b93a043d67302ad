#include "Host/Json/JsonDocument.hpp"
#include "Host/Report/JsonReport.hpp"
#include "ReportModel.hpp"
#include "Resources/Language.hpp"

#include <gtest/gtest.h>

namespace {

std::string MakeJson(const Host::ReportScope& scope) {
  Resources::SetLanguage("en");
  const Host::Summary summary = Host::MakeSummary(scope);
  return Collect([&](const Host::ReportSink& sink) { Host::WriteJsonReport(scope, summary, sink); });
}

// What stands at the end of a way of keys and places of elements.
std::string Follow(const Host::JsonValue& value, std::vector<std::string> way) {
  if (way.empty()) return value.IsText() ? TW::UniString(value.GetText()).ToUtf8() : std::string(value.GetSource());
  const std::string step = way.front();
  way.erase(way.begin());
  std::string found = "nothing";
  std::size_t place = 0;
  const auto look = [&](const std::string& name, const Host::JsonValue& inside) {
    if (name == step) found = Follow(inside, way);
  };
  if (value.IsObject()) {
    value.ForEachMember(
        [&](std::u16string_view key, const Host::JsonValue& inside) { look(TW::UniString(key).ToUtf8(), inside); });
  } else if (value.IsArray()) {
    value.ForEachElement([&](const Host::JsonValue& inside) { look(std::to_string(place++), inside); });
  }
  return found;
}

TEST(JsonReport, HoldsEveryKindOfCell) {
  House house;
  EXPECT_EQ(MakeJson(house.MakeScope({house.area, house.share, house.label})), R"json({
"properties": [
{"name": "Area", "id": "AB000000-0000-0000-0000-000000000004", "group": "Takeoff", "formula": "[Width] * [Depth]"},
{"name": "Share", "id": "AB000000-0000-0000-0000-000000000005", "kind": "length", "formula": "1 m / [Count] + [Width]"},
{"name": "Label", "id": "AB000000-0000-0000-0000-000000000007", "kind": "text", "formula": "IF ( [Width] > 30 cm, \"thick\", \"thin\" )"}],
"elements": [
{"globalId": "guid1", "class": "IFCWALL", "name": "Wall 1", "values": {"Area": {"kind": "number", "value": 2, "length": 2, "angle": 0}, "Share": {"kind": "number", "value": 0.75, "length": 1, "angle": 0}, "Label": {"kind": "text", "value": "thick"}}},
{"globalId": "guid2", "class": "IFCWALL", "name": "Wände 2", "values": {"Area": {"kind": "number", "undefined": true, "length": 2, "angle": 0}, "Share": {"error": {"stage": "evaluation", "name": "ExpressionDivisionByZero", "index": 13, "message": "The divisor is zero. Change the formula or the value that it divides by.", "begin": 3, "end": 6, "span": [0, 13]}}, "Label": {"kind": "text", "value": "thin"}}},
{"globalId": "guid3", "class": "IFCDOOR", "name": "", "values": {"Area": {"kind": "number", "undefined": true, "length": 2, "angle": 0}, "Share": {"error": {"stage": "evaluation", "name": "ExpressionPropertyEvaluationFailed", "index": 14, "message": "The value of a property in this formula is not available. Check that property, or remove it from the formula.", "begin": 6, "end": 13, "span": [6, 13]}}}}],
"summary": {"elements": 3, "values": 4, "undefined": 2, "absent": 1, "failed": 2, "errors": [{"name": "ExpressionDivisionByZero", "index": 13, "message": "The divisor is zero. Change the formula or the value that it divides by.", "count": 1}, {"name": "ExpressionPropertyEvaluationFailed", "index": 14, "message": "The value of a property in this formula is not available. Check that property, or remove it from the formula.", "count": 1}]}}
)json");
}

TEST(JsonReport, ReadsBackWhateverTheNamesAre) {
  ReportModel model({{u"\"quoted\" <&> \\ \n\u0001 \U0001F3E0", u"\u2028", u"'"}});
  const Host::PropertyIndex input = model.Define("In \"put\"\n", Host::PropertyKind::Integer);
  const Host::PropertyIndex other = model.Define("\U0001F3E0 [x] \\", Host::PropertyKind::Text);
  model.table.SetInputFailed(input, 0);
  model.table.SetInput(other, 0, QX::ExpressionValue::FromString(u"\u007F\u0000\"" + TW::UniString(u"\U0001F600")));
  const std::string json = MakeJson(model.MakeScope());
  Host::JsonDocument document;
  const Host::JsonValue root = document.Read(json);
  struct Row {
    std::vector<std::string> way;
    std::string text;
  };
  const Row rows[] = {
      {{"elements", "0", "name"}, "\"quoted\" <&> \\ \n\u0001 \U0001F3E0"},
      {{"elements", "0", "class"}, "\u2028"},
      {{"elements", "0", "values", "In \"put\"\n", "error", "name"}, "WrongKind"},
      {{"elements", "0", "values", "In \"put\"\n", "error", "begin"}, "nothing"},
      {{"elements", "0", "values", "\U0001F3E0 [x] \\", "value"}, "\u007F\U0001F600"},
      {{"properties", "1", "name"}, "\U0001F3E0 [x] \\"},
      {{"properties", "1", "formula"}, "nothing"},
      {{"summary", "failed"}, "1"},
      {{"elements", "1"}, "nothing"},
  };
  for (const Row& row : rows) EXPECT_EQ(Follow(root, row.way), row.text);
}

TEST(JsonReport, ComesInPieces) {
  ReportModel model(std::vector<FakeSource::Element>(5000));
  model.Define("Width", Host::PropertyKind::Length);
  const Host::ReportScope scope = model.MakeScope();
  std::size_t longest = 0;
  std::size_t length = 0;
  Host::WriteJsonReport(scope, Host::MakeSummary(scope), [&](std::string_view piece) {
    longest = std::max(longest, piece.size());
    length += piece.size();
  });
  EXPECT_LT(longest, 100'000U);
  EXPECT_GT(length, 400'000U);
}

}  // namespace
