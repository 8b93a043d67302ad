#include "VocabularyPrinter.hpp"

#include "Answer.hpp"
#include "CommandText.hpp"
#include "Host/Json/JsonWriter.hpp"
#include "Host/Json/ValueJson.hpp"
#include "OptionTable.hpp"
#include "Suggestion.hpp"
#include "WordHelp.hpp"

namespace Command {
namespace {

void AppendGroup(std::string& out, const WordGroup& group) {
  // Units are short: all stand on one line.
  const bool isShort = group.kind == WordKind::Unit;
  out += group.heading.ToUtf8() + "\n" + (isShort ? " " : "");
  for (const TW::UniString& word : group.words) {
    const std::string title = GetWordTitle(group.kind, word).ToUtf8();
    out += isShort ? " " + title : "  " + title + "\n";
  }
  if (isShort) out += "\n";
}

void AppendGroups(std::string& out) {
  std::string_view gap;
  for (const WordGroup& group : GetVocabulary()) {
    out += gap;
    AppendGroup(out, group);
    gap = "\n";
  }
}

void WriteField(Host::JsonWriter& writer, std::string_view key, const TW::UniString& text) {
  writer.WriteKey(key);
  writer.WriteText(text);
}

void WriteKindField(Host::JsonWriter& writer, WordKind kind) {
  writer.WriteKey("kind");
  writer.WriteName(GetKindName(kind));
}

void WriteGroup(Host::JsonWriter& writer, const WordGroup& group) {
  writer.BeginObject();
  writer.WriteKey("group");
  writer.WriteName(group.name);
  WriteKindField(writer, group.kind);
  WriteField(writer, "heading", group.heading);
  writer.WriteKey("words");
  writer.BeginArray();
  for (const TW::UniString& word : group.words) {
    writer.BeginObject();
    WriteField(writer, "name", word);
    WriteField(writer, "title", GetWordTitle(group.kind, word));
    writer.EndObject();
  }
  writer.EndArray();
  writer.EndObject();
}

void WriteArguments(Host::JsonWriter& writer, const WordHelp& help) {
  writer.WriteKey("arguments");
  writer.BeginArray();
  for (const WordArgument& argument : help.arguments) {
    writer.BeginObject();
    WriteField(writer, "name", argument.name);
    WriteField(writer, "meaning", argument.meaning);
    writer.EndObject();
  }
  writer.EndArray();
}

void WriteExamples(Host::JsonWriter& writer, const WordHelp& help, const Environment& environment) {
  writer.WriteKey("examples");
  writer.BeginArray();
  for (const WordExample& example : help.examples) {
    writer.BeginObject();
    WriteField(writer, "formula", example.formula);
    writer.WriteKey("value");
    Host::WriteValue(writer, example.value);
    WriteDisplay(writer, example.value, environment);
    writer.EndObject();
  }
  writer.EndArray();
}

void AppendJson(std::string& out, const WordHelp& help, const Environment& environment) {
  Host::JsonWriter writer(out);
  writer.BeginObject();
  WriteField(writer, "name", help.word);
  WriteKindField(writer, help.kind);
  WriteField(writer, "title", help.title);
  WriteField(writer, "syntax", help.syntax);
  WriteField(writer, "description", help.description);
  WriteArguments(writer, help);
  WriteExamples(writer, help, environment);
  writer.EndObject();
  out += '\n';
}

void AppendHeading(std::string& out, HelpPart part) { out += "\n" + GetHeading(part).ToUtf8() + "\n"; }

void AppendText(std::string& out, const WordHelp& help) {
  out += help.title.ToUtf8() + "\n";
  if (!help.description.IsEmpty()) {
    out += "\n  " + help.syntax.ToUtf8() + "\n\n" + help.description.ToUtf8() + "\n";
    AppendHeading(out, help.kind == WordKind::Operator ? HelpPart::Operands : HelpPart::Arguments);
  }
  for (const WordArgument& argument : help.arguments) out += "  " + argument.line.ToUtf8() + "\n";
  if (!help.examples.empty()) AppendHeading(out, HelpPart::Examples);
  for (const WordExample& example : help.examples) {
    out += "  " + example.formula.ToUtf8() + " = " + example.result.ToUtf8() + "\n";
  }
}

}  // namespace

void AppendVocabulary(std::string& out, bool json) {
  if (!json) return AppendGroups(out);
  Host::JsonWriter writer(out);
  writer.BeginObject();
  writer.WriteKey("groups");
  writer.BeginArray();
  for (const WordGroup& group : GetVocabulary()) WriteGroup(writer, group);
  writer.EndArray();
  writer.EndObject();
  out += '\n';
}

void AppendWordHelp(std::string& out, std::string_view word, bool json, const Environment& environment) {
  const TW::UniString name = TW::UniString::FromUtf8(word);
  const TW::Optional<WordHelp> help = FindWordHelp(name, environment);
  if (!help) throw UsageError(MakeText(CommandText::NoWord, name) + SuggestOfLanguage(name));
  if (json) return AppendJson(out, *help, environment);
  AppendText(out, *help);
}

}  // namespace Command
