#pragma once

#include "Quorix/Formulas.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

/// The stored formulas that every version reads.

struct GoldenFormula {
  std::string name;
  TW::UniString text;

  std::filesystem::path GetPath() const { return std::filesystem::path(QX_GOLDEN_FOLDER) / (name + ".bin"); }
};

/// Calls `visit` with every line of a file of the folder that is no comment.
template <class Visit>
void ForEachGoldenLine(const char* fileName, Visit visit) {
  std::ifstream file(std::filesystem::path(QX_GOLDEN_FOLDER) / fileName);
  EXPECT_TRUE(file) << fileName;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.front() != '#') visit(line);
  }
}

inline std::vector<GoldenFormula> ReadGoldenFormulas() {
  std::vector<GoldenFormula> formulas;
  ForEachGoldenLine("Formulas.txt", [&formulas](const std::string& line) {
    const std::size_t blank = line.find(' ');
    formulas.push_back({line.substr(0, blank), FormulaWords::Replace(line.substr(blank + 1))});
  });
  return formulas;
}

inline StoredBytes ReadGoldenBytes(const GoldenFormula& formula) {
  std::ifstream file(formula.GetPath(), std::ios::binary);
  EXPECT_TRUE(file) << formula.name << ".bin is missing; Formulas.txt says how to add it";
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
  return {first, first + bytes.size()};
}
