#include "MemoryFile.hpp"
#include "Resources/ArchiveSeal.hpp"
#include "Resources/ResourceModule.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>

// Archives of texts that were damaged. An input that begins with an e is a row of edits of a good archive, four bytes
// each; anything else is the file itself.

namespace {

constexpr int ErrorMessages = 106;
constexpr int DivisionByZero = 13;

std::string ReadGoodArchive() {
  std::ifstream stream(QX_GOOD_ARCHIVE, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  Require(bytes.size() > Resources::SealSize, "there is a good archive");
  return bytes;
}

void Edit(std::string& bytes, std::string_view edit) {
  const auto number = [edit](std::size_t index) { return static_cast<unsigned char>(edit[index]); };
  const std::size_t at = (number(0) * 256U + number(1)) % (bytes.size() + 1);
  switch (number(2) % 4) {
    case 0:
      bytes.insert(at, 1, edit[3]);
      break;
    case 1:
      bytes.resize(at);
      break;
    case 2:
      bytes.erase(at, number(3));
      break;
    default:
      if (at < bytes.size()) bytes[at] = edit[3];
  }
}

std::string MakeFile(std::string_view input, const std::string& good) {
  if (!input.starts_with('e')) return std::string(input);
  std::string bytes = good;
  for (input.remove_prefix(1); input.size() >= 4; input.remove_prefix(4)) Edit(bytes, input.substr(0, 4));
  return bytes;
}

TW::UniString ReadText(const std::string& path) {
  const int handle = Resources::OpenResourceFile(path);
  TW::UniString text = Resources::GetIndString(ErrorMessages, DivisionByZero, handle, "root");
  Resources::CloseResourceFile(handle);
  return text;
}

// Whoever can seal an archive is trusted; a fuzzer that watches comparisons can.
bool IsSealed(std::string_view bytes) {
  if (bytes.size() < Resources::SealSize) return false;
  const std::size_t length = bytes.size() - Resources::SealSize;
  Resources::SealBytes sealBytes;
  std::copy_n(bytes.data() + length, Resources::SealSize, reinterpret_cast<char*>(sealBytes.data()));
  Resources::ArchiveSeal seal;
  return Resources::ReadSeal(sealBytes, seal) &&
         Resources::IsSealOf(seal, reinterpret_cast<const unsigned char*>(bytes.data()), length);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MemoryFile file;
  static const std::string good = ReadGoodArchive();
  static const TW::UniString builtIn = Resources::GetIndString(ErrorMessages, DivisionByZero, -1, "root");
  const std::string bytes = MakeFile({reinterpret_cast<const char*>(data), size}, good);
  if (bytes != good && IsSealed(bytes)) return 0;
  file.Replace(bytes);
  const bool isRead = ReadText(file.GetPath()) != builtIn;
  Require(isRead == (bytes == good), "a good archive is read, and a damaged one is not");
  return 0;
}
