#pragma once

#include "FuzzInput.hpp"
#include "Localization/PoDictionary.hpp"

#include <algorithm>

/// What must hold of every catalog of translations, of either form.

/// Looks up what stands between the quotation marks or zeros of the catalog, as far as there is time.
inline void LookUpPieces(const Localization::PoDictionary& dictionary, std::string_view bytes) {
  for (int count = 0; count < 50 && !bytes.empty(); ++count) {
    const std::size_t end = std::min(bytes.find_first_of(std::string_view("\"\0", 2)), bytes.size());
    const TW::UniString piece = TW::UniString::FromUtf8(bytes.substr(0, end));
    dictionary.Translate(piece, {});
    dictionary.Translate(u"Wall", piece);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
}

inline void CheckCatalog(std::string_view bytes, TW::ErrCode (Localization::PoDictionary::*read)(std::string_view)) {
  Localization::PoDictionary dictionary;
  Require(dictionary.ReadPo("msgid \"Wall\"\nmsgstr \"Wand\"\n") == TW::NoErr, "a small catalog can be read");
  const TW::ErrCode error = (dictionary.*read)(bytes);
  if (error != TW::NoErr) {
    Require(dictionary.GetCount() == 1, "a catalog that cannot be read adds nothing");
    Require(dictionary.Translate(u"Wall", {}) == u"Wand", "a catalog that cannot be read changes nothing");
  }
  const std::size_t count = dictionary.GetCount();
  Require(count <= bytes.size() + 1, "a catalog holds no more messages than bytes");
  LookUpPieces(dictionary, bytes);
  Require((dictionary.*read)(bytes) == error, "a catalog is read the same every time");
  Require(dictionary.GetCount() == count, "a catalog that is read again adds nothing");
}
