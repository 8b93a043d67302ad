#include "CatalogChecks.hpp"

// Catalogs of translations in text form.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckCatalog({reinterpret_cast<const char*>(data), size}, &Localization::PoDictionary::ReadPo);
  return 0;
}
