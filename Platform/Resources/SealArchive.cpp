#include "Resources/ArchiveSeal.hpp"

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

// A tool of the build: gives an archive of texts its own package name and seals it.

namespace {

using namespace Resources;

const unsigned char* GetBytes(const std::string& archive) {
  return reinterpret_cast<const unsigned char*>(archive.data());
}

// ICU keeps the package name in front of every entry's name.
int RenamePackage(std::string& archive, std::uint64_t key) {
  const std::string unsealed = GetPackageName(0) + "/";
  const std::string name = GetPackageName(key);
  int count = 0;
  for (std::size_t at = 0; (at = archive.find(unsealed, at)) != std::string::npos; at += name.size(), ++count) {
    archive.replace(at, name.size(), name);
  }
  return count;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: SealArchive <archive> <sealed archive>\n";
    return 2;
  }
  std::ifstream input(arguments[1], std::ios::binary);
  std::string archive{std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>()};
  const std::uint64_t key = GetChecksum(GetBytes(archive), archive.size());
  if (archive.size() > MaximumArchiveLength || RenamePackage(archive, key) == 0) {
    std::cerr << arguments[1] << ": too large, or no archive of package " << GetPackageName(0) << "\n";
    return 1;
  }
  const SealBytes seal = WriteSeal(MakeSeal(key, GetBytes(archive), archive.size()));
  archive.append(seal.begin(), seal.end());
  std::ofstream output(arguments[2], std::ios::binary);
  output << archive << std::flush;
  if (!output) std::cerr << arguments[2] << ": cannot be written\n";
  return output ? 0 : 1;
}
