#include "Host/Model/CsvElements.hpp"

#include "Host/Literal.hpp"

#include <utility>

namespace Host {
namespace {

bool IsAttributeName(const TW::UniString& column, std::u16string_view attribute) {
  constexpr auto AnyCase = TW::CaseComparison::CaseInsensitive;
  return column.Compare(attribute, AnyCase) == 0 || column.Compare(attribute.substr(1), AnyCase) == 0;
}

TW::Optional<CsvFile::Column> FindAttributeColumn(const CsvFile& file, std::u16string_view attribute) {
  for (CsvFile::Column column = 0; column < file.GetColumnCount(); ++column) {
    if (IsAttributeName(file.GetName(column), attribute)) return column;
  }
  return std::nullopt;
}

}  // namespace

CsvElements::CsvElements(const CsvFile& file, const QX::EvaluationLocaleSettings& settings)
    : file_(file), settings_(settings) {
  for (std::size_t i = 0; i < AttributeCount; ++i) {
    attributes_[i] = FindAttributeColumn(file, GetElementAttributeNames()[i]);
  }
}

TW::UniString CsvElements::GetAttribute(ElementIndex element, ElementAttribute attribute) const {
  const TW::Optional<CsvFile::Column> column = attributes_[static_cast<std::size_t>(attribute)];
  return column ? file_.GetCell(element, *column) : TW::UniString();
}

TW::Optional<ElementSource::SourceIndex> CsvElements::FindSource(std::u16string_view name) const {
  return file_.FindColumn(name);
}

TW::Optional<QX::ExpressionValue> CsvElements::Read(ElementIndex element, SourceIndex source, PropertyKind kind) const {
  TW::UniString cell = file_.GetCell(element, static_cast<CsvFile::Column>(source));
  if (cell.IsEmpty()) return std::nullopt;
  if (kind == PropertyKind::Text) return QX::ExpressionValue::FromString(std::move(cell));
  QX::ExpressionValue value = ReadLiteral(cell, settings_);
  if (FitToKind(value, kind)) return value;
  if (cell.Trim().IsEmpty()) return std::nullopt;
  return QX::ExpressionValue::CreateInvalid();
}

}  // namespace Host
