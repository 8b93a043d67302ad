#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path projectFolder = QX_PROJECT_FOLDER;

using Lines = std::vector<std::string>;

// A fenced block of a page.
struct Block {
  std::string language;
  std::string source;  ///< what a comment such as <!-- Examples/evaluate.cpp --> before it says
  std::size_t line = 0;
  Lines lines;
};

Lines ReadLines(const fs::path& path) {
  std::ifstream file(path);
  Lines lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

std::vector<Block> FindBlocks(const Lines& page) {
  std::vector<Block> blocks;
  bool inside = false;
  for (std::size_t i = 0; i < page.size(); ++i) {
    const bool isFence = page[i].starts_with("```");
    if (isFence && !inside) {
      blocks.push_back({page[i].substr(3), {}, i + 1, {}});
      const std::string before = i > 0 ? page[i - 1] : std::string();
      if (before.starts_with("<!-- ") && before.ends_with(" -->")) {
        blocks.back().source = before.substr(5, before.size() - 9);
      }
    } else if (inside && !isFence) {
      blocks.back().lines.push_back(page[i]);
    }
    inside = inside != isFence;
  }
  return blocks;
}

std::vector<fs::path> FindPages() {
  std::vector<fs::path> pages;
  for (const fs::path& folder : {projectFolder, projectFolder / "Docs"}) {
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".md") pages.push_back(entry.path());
    }
  }
  std::sort(pages.begin(), pages.end());
  return pages;
}

// A folder in which a reader of the page might stand: it has what the project has, and may be written to.
class ReadersFolder {
 public:
  ReadersFolder() {
    std::string name = (fs::temp_directory_path() / "quorix_pages_XXXXXX").string();
    path_ = mkdtemp(name.data());
    fs::create_directory_symlink(projectFolder / "Examples", path_ / "Examples");
  }
  ~ReadersFolder() { fs::remove_all(path_); }

  std::string Run(const std::string& command) const {
    const std::string script = "cd '" + path_.string() +
                               "' && export LC_ALL=C PATH='" QX_PROGRAM_FOLDER "':\"$PATH\"; { " + command + "\n} 2>&1";
    std::FILE* pipe = popen(script.c_str(), "r");
    std::string output;
    for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) output += static_cast<char>(byte);
    pclose(pipe);
    return output;
  }

 private:
  fs::path path_;
};

// Empty lines before the next command are there for the eye.
std::string WithoutEmptyEnd(std::string text) {
  while (text.ends_with('\n')) text.pop_back();
  return text;
}

// What stands from one prompt to the next.
void CheckSession(const Block& block, const fs::path& page) {
  const ReadersFolder folder;
  for (std::size_t i = 0; i < block.lines.size();) {
    ASSERT_TRUE(block.lines[i].starts_with("$ ")) << page << ":" << block.line + i + 1 << " must be a command";
    std::string command = block.lines[i++].substr(2);
    while (command.ends_with("\\") && i < block.lines.size()) command += "\n" + block.lines[i++];
    std::string expected;
    while (i < block.lines.size() && !block.lines[i].starts_with("$ ")) expected += block.lines[i++] + "\n";
    EXPECT_EQ(WithoutEmptyEnd(folder.Run(command)), WithoutEmptyEnd(expected)) << page << ": $ " << command;
  }
}

std::string WithoutIndent(const std::string& line) {
  const std::size_t begin = line.find_first_not_of(' ');
  return begin == std::string::npos ? std::string() : line.substr(begin);
}

void CheckExcerpt(const Block& block, const fs::path& page) {
  ASSERT_TRUE(block.source.starts_with("Examples/") || block.source.starts_with("Tests/"))
      << page << ":" << block.line << " must say which program it is from";
  Lines program = ReadLines(projectFolder / block.source);
  Lines piece = block.lines;
  std::transform(program.begin(), program.end(), program.begin(), WithoutIndent);
  std::transform(piece.begin(), piece.end(), piece.begin(), WithoutIndent);
  const auto found = std::search(program.begin(), program.end(), piece.begin(), piece.end());
  EXPECT_TRUE(!piece.empty() && found != program.end())
      << page << ":" << block.line << " does not stand in " << block.source;
}

TEST(Documentation, ShowsWhatTheCommandSays) {
  std::size_t count = 0;
  for (const fs::path& page : FindPages()) {
    for (const Block& block : FindBlocks(ReadLines(page))) {
      if (block.language != "console") continue;
      CheckSession(block, page);
      ++count;
    }
  }
  EXPECT_GT(count, 0U);
}

TEST(Documentation, ShowsPiecesOfProgramsThatRun) {
  std::size_t count = 0;
  for (const fs::path& page : FindPages()) {
    for (const Block& block : FindBlocks(ReadLines(page))) {
      if (block.language != "cpp") continue;
      CheckExcerpt(block, page);
      ++count;
    }
  }
  EXPECT_GT(count, 0U);
}

// A block that is neither run nor looked up needs a language that says why.
TEST(Documentation, HasNoBlocksThatNothingChecks) {
  const std::string known[] = {"console", "cpp", "qxt", "json", "text", "sh", "cmake", "hex", "gettext"};
  for (const fs::path& page : FindPages()) {
    for (const Block& block : FindBlocks(ReadLines(page))) {
      EXPECT_TRUE(std::find(std::begin(known), std::end(known), block.language) != std::end(known))
          << page << ":" << block.line << " is of the language '" << block.language << "'";
    }
  }
}

}  // namespace
