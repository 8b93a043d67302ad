#include "FuzzInput.hpp"
#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcWriter.hpp"

#include <filesystem>
#include <string>
#include <unistd.h>

// Building models, whole or broken: read, walked through, written with more properties and read again.

namespace {

using Host::IfcAddedProperty;
using Host::IfcKind;
using Host::IfcModel;
using Host::IfcValue;
using QX::ExpressionValue;

constexpr const char16_t* AddedSet = u"Added by the fuzzer";

// A folder in memory, where there is one.
std::string MakePath() {
  const std::filesystem::path memory = "/dev/shm";
  const std::filesystem::path folder =
      std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
  return (folder / ("quorix-fuzz-" + std::to_string(getpid()) + ".ifc")).string();
}

std::vector<IfcAddedProperty> MakeProperties(IfcModel::Element element) {
  return {{AddedSet, u"Number", {IfcKind::Number, ExpressionValue::FromNumber(element + 0.5)}},
          {AddedSet, u"It's \\ ä\U0001F600", {IfcKind::Text, ExpressionValue::FromString(u"';\\X2\\00E4\\X0\\ä")}},
          {AddedSet, u"Logical", {IfcKind::Logical, ExpressionValue::FromBool(true)}}};
}

void WalkElement(const IfcModel& model, IfcModel::Element element) {
  model.GetClass(element);
  model.GetGlobalId(element);
  model.GetName(element);
  model.GetTag(element);
  model.GetTypeName(element);
  model.GetStorey(element);
  model.ForEachProperty(element, [&](IfcModel::Key key, IfcModel::Place property) {
    model.ReadValue(property);
    model.IsQuantity(property);
    Require(model.FindProperty(element, key) == property, "what is visited is found by its names");
    Require(!!model.FindKey(model.GetSetName(key) + u"." + model.GetPropertyName(key)), "names make a key");
  });
}

void CheckAddedProperties(const IfcModel& model, IfcModel::Element element) {
  for (const IfcAddedProperty& property : MakeProperties(element)) {
    const auto key = model.FindKey(property.set + u"." + property.name);
    Require(!!key, "an added property has a key");
    const auto value = model.FindValue(element, *key);
    Require(value && value->kind == property.value.kind, "an added property is found again");
    Require(ExpressionValue::AreEqualByContent(value->value, property.value.value), "an added value is read again");
  }
}

IfcModel WriteAndRead(const IfcModel& model) {
  static const std::string path = MakePath();
  Require(Host::WriteIfcModel(model, path, MakeProperties) == TW::NoErr, "a model that could be read can be written");
  IfcModel written = IfcModel::Read(path);
  std::filesystem::remove(path);
  return written;
}

// No number is left for a further instance.
bool IsFull(const IfcModel& model) {
  const Host::StepIndex& index = model.GetFile().GetIndex();
  for (IfcModel::Place place = 0; place < index.GetCount(); ++place) {
    if (index.GetId(place) > UINT64_MAX / 4) return true;
  }
  return false;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const IfcModel model(Host::StepFile::FromText(std::string(reinterpret_cast<const char*>(data), size)));
  for (IfcModel::Element i = 0; i < model.GetElementCount(); ++i) WalkElement(model, i);

  if (model.GetMessages().HasFatal() || IsFull(model)) return 0;
  const IfcModel written = WriteAndRead(model);
  Require(written.GetElementCount() == model.GetElementCount(), "what is written has the same elements");
  for (IfcModel::Element i = 0; i < written.GetElementCount(); ++i) CheckAddedProperties(written, i);
  const IfcModel again = WriteAndRead(written);
  Require(again.GetFile().GetText() == written.GetFile().GetText(), "adding twice gives the same file");
  return 0;
}
