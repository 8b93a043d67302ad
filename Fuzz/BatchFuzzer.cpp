#include "Batch.hpp"
#include "BoundedMemory.hpp"
#include "FuzzInput.hpp"

#include <algorithm>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <string>

// Requests in JSON to the command.

namespace {

// Texts of formulas may hold half a surrogate pair, whose escape is in JSON's grammar and yet refused by the parser
// that checks here: each becomes a question mark.
std::string ReplaceSurrogates(std::string json) {
  for (std::size_t at = 0; (at = json.find('\\', at)) != std::string::npos; at += 2) {
    const bool isSurrogate = json.compare(at + 1, 2, "ud") == 0 && json[at + 3] >= '8';
    if (isSurrogate) json.replace(at, 6, "??");
  }
  return json;
}

// Counts the keys of the outermost object that tell what became of a formula.
struct KeyCounter : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, KeyCounter> {
  bool StartObject() { return ++depth > 0; }
  bool EndObject(rapidjson::SizeType) { return depth-- > 0; }
  bool StartArray() { return StartObject(); }
  bool EndArray(rapidjson::SizeType count) { return EndObject(count); }
  bool Key(const char* text, rapidjson::SizeType length, bool) {
    const std::string_view key(text, length);
    if (depth == 1 && (key == "value" || key == "error")) ++outcomes;
    return true;
  }

  int depth = 0;
  int outcomes = 0;
};

void CheckAnswer(const std::string& answer) {
  Require(answer.ends_with('\n'), "an answer ends its line");
  Require(std::count(answer.begin(), answer.end(), '\n') == 1, "an answer is one line");
  const std::string json = ReplaceSurrogates(answer);
  rapidjson::MemoryStream stream(json.data(), json.size());
  rapidjson::Reader reader;
  KeyCounter counter;
  constexpr auto Flags = rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag;
  Require(!reader.Parse<Flags>(stream, counter).IsError(), "an answer is JSON");
  Require(json.starts_with('{'), "an answer is an object");
  Require(counter.outcomes == 1, "an answer tells a value or an error");
}

std::string Answer(std::string_view line) {
  static const Command::Settings defaults;
  std::string answer;
  Command::Batch batch(defaults, answer);
  const BoundedMemory shortage;
  batch.AnswerLine(line);
  return answer;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string_view line = input.substr(0, input.find('\n'));
  const std::string answer = Answer(line);
  CheckAnswer(answer);
  Require(Answer(line) == answer, "a request has the same answer every time");
  return 0;
}
