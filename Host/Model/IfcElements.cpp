#include "Host/Model/IfcElements.hpp"

#include <limits>
#include <utility>

namespace Host {
namespace {

constexpr unsigned int NameBits = std::numeric_limits<IfcModel::Name>::digits;

}  // namespace

IfcElements::IfcElements(const IfcModel& model) : model_(model) {
  for (const StepMessage& message : model.GetMessages().GetList()) {
    problems_.Add({message.line, 0, message.GetMessage(), message.IsFatal()});
  }
}

TW::UniString IfcElements::GetAttribute(ElementIndex element, ElementAttribute attribute) const {
  switch (attribute) {
    case ElementAttribute::Class:
      return TW::UniString::FromUtf8(model_.GetClass(element));
    case ElementAttribute::Name:
      return model_.GetName(element);
    case ElementAttribute::GlobalId:
      return model_.GetGlobalId(element);
    case ElementAttribute::Type:
      return model_.GetTypeName(element);
    case ElementAttribute::Storey:
      return model_.GetStorey(element);
    case ElementAttribute::Tag:
      return model_.GetTag(element);
  }
  return {};
}

TW::Optional<ElementSource::SourceIndex> IfcElements::FindSource(std::u16string_view name) const {
  const TW::Optional<IfcModel::Key> key = model_.FindKey(name);
  if (!key) return std::nullopt;
  return SourceIndex{key->set} << NameBits | key->property;
}

TW::Optional<QX::ExpressionValue> IfcElements::Read(ElementIndex element, SourceIndex source, PropertyKind kind) const {
  const IfcModel::Key key{static_cast<IfcModel::Name>(source >> NameBits), static_cast<IfcModel::Name>(source)};
  TW::Optional<IfcValue> found = model_.FindValue(element, key);
  if (!found || found->kind == IfcKind::None) return std::nullopt;
  if (!FitToKind(found->value, kind)) return QX::ExpressionValue::CreateInvalid();
  return std::move(found->value);
}

}  // namespace Host
