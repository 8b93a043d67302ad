#include "Host/Ifc/StepFile.hpp"

#include "Host/Files/InputFile.hpp"
#include "Host/Ifc/StepScan.hpp"
#include "Host/Ifc/StepStatements.hpp"

#include <limits>
#include <utility>

namespace Host {

/// Reads a text into a file object.
class StepFileReader {
 public:
  explicit StepFileReader(StepFile& file) : file_(file), text_(file.text_), statements_(text_) {}

  void Read() {
    file_.dataEnd_ = text_.size();
    if (!PassStart()) return file_.messages_.Add(StepProblem::NotAStepFile, 0);
    while (!ended_) ReadStatement();
    if (!hasData_) file_.messages_.Add(StepProblem::NoDataSection, text_.size());
    for (const StepFile::Place place : file_.index_.Finish()) {
      file_.messages_.Add(StepProblem::DuplicateId, file_.index_.GetPosition(place), file_.index_.GetId(place));
    }
  }

 private:
  bool PassStart() {
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    constexpr std::string_view Name = "ISO-10303-21";
    if (text_.starts_with(ByteOrderMark)) at_ = ByteOrderMark.size();
    at_ = SkipStepSpace(text_, at_);
    if (!text_.substr(at_).starts_with(Name)) return false;
    PassStatement(at_);
    return true;
  }

  void ReadStatement() {
    const std::size_t last = at_;
    at_ = SkipStepSpace(text_, at_);
    if (at_ == text_.size()) return CutOff(at_, FindOpenComment(last));
    if (inData_ && text_[at_] == '#') return ReadInstance();
    const std::size_t start = at_;
    const std::string_view keyword = ReadKeyword();
    if (PassStatement(start)) Understand(keyword, start);
  }

  void Understand(std::string_view keyword, std::size_t start) {
    if (keyword == "END-ISO-10303-21") {
      if (inData_) file_.messages_.Add(StepProblem::CutOff, start);
      LeaveData(start);
      ended_ = true;
    } else if (keyword == "ENDSEC") {
      LeaveData(start);
    } else if (inData_) {
      file_.messages_.Add(StepProblem::NoInstance, start);
    } else if (keyword == "DATA") {
      hasData_ = inData_ = true;
    } else if (keyword == "FILE_SCHEMA") {
      ReadSchema(start + keyword.size());
    }
  }

  void LeaveData(std::size_t end) {
    if (std::exchange(inData_, false)) file_.dataEnd_ = end;
  }

  void ReadSchema(std::size_t at) {
    at = SkipStepSpace(text_, at) + 1;
    if (at >= text_.size()) return;
    file_.schema_ = StepCursor(StepCursor(text_.substr(at)).Next().inside).Next().text;
    for (char& character : file_.schema_) character = ToStepUpper(character);
  }

  void ReadInstance() {
    const std::size_t start = at_++;
    std::uint64_t id = 0;
    const bool fits = ReadStepId(text_, at_, id);
    const bool isId = at_ > start + 1 && (!fits || id != 0);
    std::size_t position = 0;
    std::uint32_t classNumber = StepClasses::None;
    const bool isInstance = isId && PassEqualSign() && ReadHead(position, classNumber);
    if (!PassStatement(start)) return;
    if (!isInstance || !EndsWithBracket()) {
      file_.messages_.Add(StepProblem::NoInstance, start, fits ? id : 0);
    } else if (!fits) {
      file_.messages_.Add(StepProblem::IdTooLarge, start);
    } else if (!file_.index_.Add(id, position, classNumber)) {
      file_.messages_.Add(StepProblem::TooManyInstances, start);
      ended_ = true;
    }
  }

  bool PassEqualSign() {
    at_ = SkipStepSpace(text_, at_);
    if (at_ == text_.size() || text_[at_] != '=') return false;
    at_ = SkipStepSpace(text_, at_ + 1);
    return at_ < text_.size();
  }

  bool ReadHead(std::size_t& position, std::uint32_t& classNumber) {
    position = at_;
    if (text_[at_] == '(') return true;
    const std::string_view keyword = ReadKeyword();
    at_ = SkipStepSpace(text_, at_);
    if (keyword.empty() || at_ == text_.size() || text_[at_] != '(') return false;
    classNumber = file_.classes_.Add(keyword);
    return true;
  }

  std::string_view ReadKeyword() {
    const std::size_t first = at_;
    while (at_ < text_.size() && IsStepKeyword(text_[at_])) ++at_;
    return text_.substr(first, at_ - first);
  }

  // Whether the statement that was just passed ends as an instance does. A comment may stand behind the bracket.
  bool EndsWithBracket() const {
    std::size_t last = at_ - 2;
    while (IsStepSpace(text_[last])) --last;
    return text_[last] == ')' || text_[last] == '/';
  }

  bool PassStatement(std::size_t start) {
    const std::size_t end = statements_.FindEnd(at_);
    if (end == text_.size()) {
      CutOff(start, start);
      return false;
    }
    at_ = end + 1;
    return true;
  }

  // Where a comment begins that has no end, behind which nothing can be added, or the end of the text. From `at` on
  // there are only comments and white space.
  std::size_t FindOpenComment(std::size_t at) const {
    while (at < text_.size()) {
      if (IsStepSpace(text_[at])) {
        ++at;
      } else if (text_.find("*/", at + 2) == text_.npos) {
        return at;
      } else {
        at = SkipStepComment(text_, at);
      }
    }
    return at;
  }

  void CutOff(std::size_t place, std::size_t dataEnd) {
    file_.messages_.Add(StepProblem::CutOff, place);
    LeaveData(dataEnd);
    ended_ = true;
  }

  StepFile& file_;
  std::string_view text_;
  StepStatements statements_;
  std::size_t at_ = 0;
  bool inData_ = false;
  bool hasData_ = false;
  bool ended_ = false;
};

StepFile StepFile::Read(const std::string& path) {
  std::string text;
  constexpr std::size_t NoLimit = std::numeric_limits<std::size_t>::max();
  if (ReadWholeFile(path, NoLimit, text) == FileReading::Read) return FromText(std::move(text));
  StepFile file{std::string()};
  file.messages_.Add(StepProblem::Unreadable, StepMessages::NoPlace);
  return file;
}

StepFile StepFile::FromText(std::string text) {
  StepFile file(std::move(text));
  StepFileReader(file).Read();
  file.messages_.FindLines(file.text_);
  return file;
}

StepCursor StepFile::GetArguments(Place place) const {
  if (GetClass(place) == StepClasses::None) return {};
  const std::string_view text = text_;
  std::size_t at = index_.GetPosition(place) + classes_.GetName(GetClass(place)).size();
  at = SkipStepSpace(text, at);
  return StepCursor(text.substr(at + 1));
}

TW::Optional<StepFile::Place> StepFile::Find(const StepValue& reference) const {
  if (reference.kind != StepKind::Reference) return {};
  return index_.Find(reference.id);
}

}  // namespace Host
