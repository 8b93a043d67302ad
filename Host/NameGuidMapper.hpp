#pragma once

#include "Host/PropertyCatalog.hpp"
#include "Quorix/GuidMapper.hpp"

namespace Host {

/// Carries formulas from one table into another: a property takes the place of the one that has its group and name.
/// What has no counterpart keeps its GUID. Keeps references to both catalogs, which must outlive it.
class NameGuidMapper final : public QX::IGuidMapper {
 public:
  NameGuidMapper(const PropertyCatalog& from, const PropertyCatalog& to) : from_(from), to_(to) {}

  TW::Guid Map(const TW::Guid& id) const override;

 private:
  const PropertyCatalog& from_;
  const PropertyCatalog& to_;
};

}  // namespace Host
