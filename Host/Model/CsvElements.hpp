#pragma once

#include "Host/Csv/CsvFile.hpp"
#include "Host/Model/ElementSource.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"

#include <array>

namespace Host {

/// The elements of a table, one in each row. A source is called by the name of its column. The columns `Class`, `Name`,
/// `GlobalId`, `Type`, `Storey` and `Tag`, in any case and with or without `@`, are the attributes; of several the
/// first.
///
/// An empty cell holds nothing. Texts are what stands in the cell; values of other kinds are numbers with their units
/// or logical values, written as in formulas in the separators that are given, and no formulas.
class CsvElements final : public ElementSource {
 public:
  /// Keeps a reference to the file.
  CsvElements(const CsvFile& file, const QX::EvaluationLocaleSettings& settings);

  ElementIndex GetCount() const override { return file_.GetRowCount(); }
  TW::UniString GetAttribute(ElementIndex element, ElementAttribute attribute) const override;
  TW::Optional<SourceIndex> FindSource(std::u16string_view name) const override;
  TW::Optional<QX::ExpressionValue> Read(ElementIndex element, SourceIndex source, PropertyKind kind) const override;
  const FileProblems& GetProblems() const override { return file_.GetProblems(); }

 private:
  static constexpr std::size_t AttributeCount = 6;

  const CsvFile& file_;
  QX::EvaluationLocaleSettings settings_;
  std::array<TW::Optional<CsvFile::Column>, AttributeCount> attributes_;
};

}  // namespace Host
