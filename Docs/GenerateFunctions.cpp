#include "Environment.hpp"
#include "Resources/Language.hpp"
#include "Settings.hpp"
#include "Vocabulary.hpp"
#include "WordHelp.hpp"

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

// Writes the page of the vocabulary, in English and with full stop and comma as separators.
//
//     functions_page FILE            writes the page
//     functions_page --check FILE    says whether the file is the page

namespace {

using namespace Command;

constexpr const char* Introduction = R"(# Functions, operators, constants and units

This page lists every word of the language of formulas; `quorix functions` shows the same in the language and with the separators of
your region. [Language.md](Language.md) explains how formulas are put together.

The page is made by a program from the help texts, and the examples were evaluated while it was made, in metres and degrees with
two decimals. Do not edit it: change the texts in `Resources/` and build the target `docs`.
)";

std::string EscapeMarkdown(const TW::UniString& text) {
  std::string escaped;
  for (const char character : text.ToUtf8()) {
    if (std::string_view("\\`*_<>|").find(character) != std::string_view::npos) escaped += '\\';
    escaped += character;
  }
  return escaped;
}

std::string MakeCode(const TW::UniString& text) { return "`" + text.ToUtf8() + "`"; }

void AppendArguments(std::string& page, const WordHelp& help) {
  page += std::string("| ") + (help.kind == WordKind::Operator ? "Operand" : "Argument") + " | Meaning |\n|---|---|\n";
  for (const WordArgument& argument : help.arguments) {
    page += "| " + EscapeMarkdown(argument.name) + " | " + EscapeMarkdown(argument.meaning) + " |\n";
  }
  page += "\n";
}

void AppendExamples(std::string& page, const WordHelp& help) {
  page += "```text\n";
  for (const WordExample& example : help.examples) {
    page += example.formula.ToUtf8() + " = " + example.result.ToUtf8() + "\n";
  }
  page += "```\n";
}

void AppendSection(std::string& page, const WordHelp& help) {
  page += "\n### " + EscapeMarkdown(help.title) + "\n\n" + MakeCode(help.syntax) + "\n\n" +
          EscapeMarkdown(help.description) + "\n\n";
  AppendArguments(page, help);
  AppendExamples(page, help);
}

// Constants and units need no more than a line.
void AppendRow(std::string& page, const WordHelp& help) {
  page += "| " + MakeCode(help.syntax) + " | " + EscapeMarkdown(help.examples.front().result) + " |\n";
}

void AppendGroup(std::string& page, const WordGroup& group, const Environment& environment) {
  const bool isTable = group.kind == WordKind::Constant || group.kind == WordKind::Unit;
  page += "\n## " + EscapeMarkdown(group.heading) + "\n";
  if (isTable) page += "\n| Written | Value |\n|---|---|\n";
  for (const TW::UniString& word : group.words) {
    const WordHelp help = *FindWordHelp(word, environment);
    if (isTable) {
      AppendRow(page, help);
    } else {
      AppendSection(page, help);
    }
  }
}

std::string MakePage() {
  Resources::SetLanguage("root");
  Settings settings;
  settings.display.units = {{TWUnit::LengthUnit::Meter, 4, 64},
                            {TWUnit::AreaUnit::SquareMeter, 8},
                            {TWUnit::VolumeUnit::CubicMeter, 8},
                            {TWUnit::AngleUnit::DecimalDegree, 4}};
  const Environment environment(Settings{});
  const Environment precise(settings);
  std::string page = Introduction;
  for (const WordGroup& group : GetVocabulary()) {
    AppendGroup(page, group, group.kind == WordKind::Unit ? precise : environment);
  }
  return page;
}

bool Write(const char* path) {
  std::ofstream file(path, std::ios::binary);
  file << MakePage();
  file.flush();
  if (!file) std::cerr << path << " could not be written.\n";
  return file.good();
}

bool Check(const char* path) {
  std::ifstream file(path, std::ios::binary);
  const std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (content == MakePage()) return true;
  std::cerr << path << " is not what its program writes now. Build the target docs.\n";
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2) return Write(argv[1]) ? 0 : 1;
  if (argc == 3 && argv[1] == std::string_view("--check")) return Check(argv[2]) ? 0 : 1;
  std::cerr << "Usage: functions_page [--check] FILE\n";
  return 2;
}
