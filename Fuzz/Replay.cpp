#include "FuzzInput.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

// Runs a fuzzer over every file in the folders named, in any build: no file may make it end the program. A folder
// without files is a mistake.

namespace {

std::vector<std::filesystem::path> ListFiles(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

void RunOver(const std::filesystem::path& file) {
  // Told before, so that the last line names the file that ended the program.
  std::cout << file.string() << std::endl;
  std::ifstream stream(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  // A copy of exactly this length, so that sanitizers see what is read beyond the end.
  const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
  LLVMFuzzerTestOneInput(input.data(), input.size());
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::cerr << "usage: " << arguments[0] << " <folder>...\n";
    return 2;
  }
  for (int i = 1; i < count; ++i) {
    const std::vector<std::filesystem::path> files = ListFiles(arguments[i]);
    if (files.empty()) {
      std::cerr << arguments[i] << ": no files\n";
      return 1;
    }
    for (const std::filesystem::path& file : files) RunOver(file);
  }
  return 0;
}
