#pragma once

#include "Host/Ifc/IfcModel.hpp"
#include "Host/Model/ElementSource.hpp"

namespace Host {

/// The elements of an IFC model. A source is called `SetName.PropertyName`. Keeps a reference to the model, whose
/// numbers of elements are also those here.
class IfcElements final : public ElementSource {
 public:
  explicit IfcElements(const IfcModel& model);

  ElementIndex GetCount() const override { return model_.GetElementCount(); }
  TW::UniString GetAttribute(ElementIndex element, ElementAttribute attribute) const override;
  TW::Optional<SourceIndex> FindSource(std::u16string_view name) const override;
  TW::Optional<QX::ExpressionValue> Read(ElementIndex element, SourceIndex source, PropertyKind kind) const override;
  const FileProblems& GetProblems() const override { return problems_; }

 private:
  const IfcModel& model_;
  FileProblems problems_;
};

}  // namespace Host
