#include "Host/Ifc/IfcWriter.hpp"

#include "Host/Files/OutputFile.hpp"
#include "Host/Ifc/IfcAddedSets.hpp"
#include "Host/Ifc/StepText.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <span>
#include <string_view>

namespace Host {
namespace {

std::string WriteReal(double number) {
  char digits[32];
  const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
  std::string text(digits, error == std::errc() ? end : digits);
  const std::size_t exponent = std::min(text.find('e'), text.size());
  if (exponent < text.size()) text[exponent] = 'E';
  if (text.find('.') == std::string::npos) text.insert(exponent, ".");
  return text;
}

std::string_view GetMeasure(IfcKind kind) {
  switch (kind) {
    case IfcKind::Length:
      return "IFCLENGTHMEASURE";
    case IfcKind::Area:
      return "IFCAREAMEASURE";
    case IfcKind::Volume:
      return "IFCVOLUMEMEASURE";
    case IfcKind::Angle:
      return "IFCPLANEANGLEMEASURE";
    default:
      return "IFCREAL";
  }
}

std::string WriteText(const TW::UniString& text) {
  constexpr unsigned int MaximumLabel = 255;
  return (text.GetLength() > MaximumLabel ? "IFCTEXT('" : "IFCLABEL('") + EncodeStepText(text) + "')";
}

std::string WriteValue(const IfcValue& value, const IfcUnits& units) {
  if (value.kind == IfcKind::Logical && value.value.IsUserUndefined()) return "IFCLOGICAL(.U.)";
  if (value.value.IsUserUndefined()) return "$";
  if (value.kind == IfcKind::Logical) return value.value.GetAsBool() ? "IFCBOOLEAN(.T.)" : "IFCBOOLEAN(.F.)";
  if (value.kind == IfcKind::Text) return WriteText(value.value.GetAsString());
  const double number = value.value.GetIntOrNumVariantValue();
  if (value.kind == IfcKind::Integer) return "IFCINTEGER(" + std::to_string(static_cast<std::int64_t>(number)) + ")";
  const double inUnit = number / units.GetFactor(value.kind);
  // Where the unit is so small that the number leaves the range, nothing can be said.
  if (!QX::IsValidNumber(inUnit)) return "$";
  return std::string(GetMeasure(value.kind)) + "(" + WriteReal(inUnit) + ")";
}

class ModelWriter {
 public:
  ModelWriter(const IfcModel& model, TW::OChannel& channel)
      : model_(model), channel_(channel), dropped_(FindIfcAddedInstances(model.GetFile())) {}

  TW::ErrCode Write(const IfcPropertySource& source) {
    const std::string_view text = model_.GetFile().GetText();
    const std::size_t end = model_.GetFile().GetDataEnd();
    if (!FindFirstId()) return TW::ErrTooLong;
    CopyWithoutDropped(end);
    for (IfcModel::Element i = 0; i < model_.GetElementCount(); ++i) WriteElement(i, source(i));
    Put(text.substr(end));
    return channel_.GetOutputStatus();
  }

 private:
  bool FindFirstId() {
    constexpr std::uint64_t GreatestId = UINT64_MAX / 2;
    const StepIndex& index = model_.GetFile().GetIndex();
    auto dropped = dropped_.begin();
    for (StepFile::Place place = 0; place < index.GetCount(); ++place) {
      if (dropped != dropped_.end() && *dropped == place) {
        ++dropped;
      } else {
        lastId_ = std::max(lastId_, index.GetId(place));
      }
    }
    return lastId_ <= GreatestId;
  }

  void CopyWithoutDropped(std::size_t end) {
    const std::string_view text = model_.GetFile().GetText();
    std::size_t at = 0;
    for (const StepFile::Place place : dropped_) {
      const StepStatement statement = FindStepStatement(model_.GetFile(), place);
      if (statement.begin < at || statement.end > end) continue;
      Put(text.substr(at, statement.begin - at));
      at = statement.end;
    }
    Put(text.substr(at, end - at));
    if (end > 0 && text[end - 1] != '\n') Put("\n");
  }

  void WriteElement(IfcModel::Element element, const std::vector<IfcAddedProperty>& added) {
    std::vector<const IfcAddedProperty*> properties;
    for (const IfcAddedProperty& property : added)
      if (property.value.kind != IfcKind::None && property.value.value.IsValid()) properties.push_back(&property);
    // By set, and in a set in the order given.
    std::sort(properties.begin(), properties.end(), [](const auto* left, const auto* right) {
      const int order = left->set.Compare(right->set);
      return order != 0 ? order < 0 : left < right;
    });
    for (auto begin = properties.begin(); begin != properties.end();) {
      const auto end =
          std::find_if(begin, properties.end(), [&](const auto* other) { return other->set != (*begin)->set; });
      WriteSet(element, std::span(begin, end));
      begin = end;
    }
  }

  void WriteSet(IfcModel::Element element, std::span<const IfcAddedProperty* const> properties) {
    std::string list;
    for (const IfcAddedProperty* property : properties) {
      WriteInstance("IFCPROPERTYSINGLEVALUE('" + EncodeStepText(property->name) + "',$," +
                    WriteValue(property->value, model_.GetUnits()) + ",$)");
      list += (list.empty() ? "#" : ",#") + std::to_string(lastId_);
    }
    const TW::UniString& name = properties.front()->set;
    const IfcAddedSetIds ids = MakeIfcAddedSetIds(model_.GetGlobalId(element).ToUtf8(), name.ToUtf8());
    const std::string owner = GetOwner(element);
    WriteInstance("IFCPROPERTYSET('" + ids.set + "'," + owner + ",'" + EncodeStepText(name) + "',$,(" + list + "))");
    const std::string place = std::to_string(model_.GetFile().GetIndex().GetId(model_.GetPlace(element)));
    WriteInstance("IFCRELDEFINESBYPROPERTIES('" + ids.relation + "'," + owner + ",$,$,(#" + place + "),#" +
                  std::to_string(lastId_) + ")");
  }

  // Old schemas want an owner; that of the element is one.
  std::string GetOwner(IfcModel::Element element) const {
    const StepValue owner = model_.GetFile().GetArguments(model_.GetPlace(element)).NextAfter(1);
    return owner.kind == StepKind::Reference ? "#" + std::string(owner.text) : "$";
  }

  void WriteInstance(const std::string& instance) { Put("#" + std::to_string(++lastId_) + "=" + instance + ";\n"); }
  void Put(std::string_view text) { channel_.WriteBytes(text.data(), text.size()); }

  const IfcModel& model_;
  TW::OChannel& channel_;
  std::vector<StepFile::Place> dropped_;
  std::uint64_t lastId_ = 0;
};

}  // namespace

TW::ErrCode WriteIfcModel(const IfcModel& model, const std::string& path, const IfcPropertySource& source) {
  if (model.GetMessages().HasFatal()) return TW::ErrRefused;
  OutputFile file(path);
  const TW::ErrCode error = ModelWriter(model, file.GetChannel()).Write(source);
  return error == TW::NoErr ? file.Finish() : error;
}

}  // namespace Host
