#include "CatalogChecks.hpp"

// Compiled catalogs of translations.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckCatalog({reinterpret_cast<const char*>(data), size}, &Localization::PoDictionary::ReadMo);
  return 0;
}
