#include "Host/Model/InputReader.hpp"

#include <utility>

namespace Host {

InputReader::InputReader(const PropertyRule& rule, const ElementSource& elements)
    : elements_(elements), kind_(*rule.kind) {
  for (const TW::UniString& name : rule.sources) {
    if (const auto attribute = FindElementAttribute(name.GetView())) {
      sources_.push_back({&name, attribute, 0});
    } else if (const auto index = elements.FindSource(name.GetView())) {
      sources_.push_back({&name, std::nullopt, *index});
    }
  }
}

TW::Optional<QX::ExpressionValue> InputReader::Read(ElementIndex element) const {
  for (const Source& source : sources_) {
    if (auto value = ReadFrom(source, element)) return value;
  }
  return std::nullopt;
}

const TW::UniString* InputReader::FindOrigin(ElementIndex element) const {
  for (const Source& source : sources_) {
    if (ReadFrom(source, element)) return source.name;
  }
  return nullptr;
}

TW::Optional<QX::ExpressionValue> InputReader::ReadFrom(const Source& source, ElementIndex element) const {
  if (!source.attribute) return elements_.Read(element, source.index, kind_);
  TW::UniString text = elements_.GetAttribute(element, *source.attribute);
  if (text.IsEmpty()) return std::nullopt;
  QX::ExpressionValue value = QX::ExpressionValue::FromString(std::move(text));
  return FitToKind(value, kind_) ? std::move(value) : QX::ExpressionValue::CreateInvalid();
}

}  // namespace Host
