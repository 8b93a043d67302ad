#include "Localization/MoReader.hpp"

#include "TW/Optional.hpp"

#include <cstdint>

namespace Localization {
namespace {

constexpr std::uint32_t Magic = 0x950412DE;
constexpr std::uint32_t SwappedMagic = 0xDE120495;
constexpr std::uint32_t LargestMajorRevision = 1;
constexpr std::uint64_t HeadSize = 28;
constexpr std::uint64_t DescriptorSize = 8;
constexpr char ContextEnd = '\x04';

enum class ByteOrder { Little, Big };

std::uint32_t ReadNumber(std::string_view bytes, ByteOrder order) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[order == ByteOrder::Big ? i : 3 - i]);
    number = number << 8 | byte;
  }
  return number;
}

class MoFile {
 public:
  explicit MoFile(std::string_view bytes) : bytes_(bytes), textLeft_(bytes.size()) {
    if (ReadNumber(bytes, ByteOrder::Little) == SwappedMagic) order_ = ByteOrder::Big;
  }

  TW::ErrCode ReadInto(RawCatalog& catalog);

 private:
  // The number at a place that is known to lie within the file.
  std::uint32_t GetNumber(std::uint64_t at) const { return ReadNumber(bytes_.substr(at, 4), order_); }
  bool Holds(std::uint64_t start, std::uint64_t length) const {
    return start <= bytes_.size() && length <= bytes_.size() - start;
  }
  TW::Optional<std::string_view> TakeText(std::uint64_t descriptor);
  TW::ErrCode ReadMessage(std::uint64_t source, std::uint64_t translation, RawCatalog& catalog);

  std::string_view bytes_;
  std::uint64_t textLeft_;  ///< how many bytes of text may still be taken
  ByteOrder order_ = ByteOrder::Little;
};

TW::Optional<std::string_view> MoFile::TakeText(std::uint64_t descriptor) {
  const std::uint64_t length = GetNumber(descriptor);
  const std::uint64_t start = GetNumber(descriptor + 4);
  if (!Holds(start, length) || length > textLeft_) return std::nullopt;
  textLeft_ -= length;
  const std::string_view text = bytes_.substr(start, length);
  // The forms of a plural are parted by zero bytes.
  return text.substr(0, text.find('\0'));
}

TW::ErrCode MoFile::ReadMessage(std::uint64_t source, std::uint64_t translation, RawCatalog& catalog) {
  const TW::Optional<std::string_view> key = TakeText(source);
  const TW::Optional<std::string_view> value = TakeText(translation);
  if (!key || !value) return TW::ErrFileFormat;
  const std::size_t end = key->find(ContextEnd);
  if (end == std::string_view::npos) return catalog.Add({{}, *key, *value});
  return catalog.Add({key->substr(0, end), key->substr(end + 1), *value});
}

TW::ErrCode MoFile::ReadInto(RawCatalog& catalog) {
  if (!Holds(0, HeadSize)) return TW::ErrFileFormat;
  const std::uint32_t majorRevision = GetNumber(4) >> 16;
  const std::uint64_t count = GetNumber(8);
  const std::uint64_t sources = GetNumber(12);
  const std::uint64_t translations = GetNumber(16);
  if (majorRevision > LargestMajorRevision) return TW::ErrFileFormat;
  if (!Holds(sources, count * DescriptorSize) || !Holds(translations, count * DescriptorSize)) return TW::ErrFileFormat;
  for (std::uint64_t i = 0; i < count; ++i) {
    const TW::ErrCode error = ReadMessage(sources + i * DescriptorSize, translations + i * DescriptorSize, catalog);
    if (error != TW::NoErr) return error;
  }
  return TW::NoErr;
}

}  // namespace

bool IsMoCatalog(std::string_view bytes) {
  if (bytes.size() < 4) return false;
  const std::uint32_t number = ReadNumber(bytes, ByteOrder::Little);
  return number == Magic || number == SwappedMagic;
}

TW::ErrCode ReadMoCatalog(std::string_view bytes, RawCatalog& catalog) {
  return IsMoCatalog(bytes) ? MoFile(bytes).ReadInto(catalog) : TW::ErrFileFormat;
}

}  // namespace Localization
