#include "Host/Rules/RulesFile.hpp"

#include "Host/Files/Encoding.hpp"
#include "Host/Files/InputFile.hpp"
#include "Host/Json/JsonDocument.hpp"
#include "Host/NameGuid.hpp"
#include "Host/Rules/RuleReader.hpp"
#include "Host/Rules/SettingsReader.hpp"
#include "Host/Texts/FileTexts.hpp"
#include "TW/HashSet.hpp"
#include "TW/HashTable.hpp"

#include <utility>

namespace Host {
namespace {

constexpr std::size_t Megabyte = std::size_t{1} << 20;
constexpr std::size_t LargestFile = 256 * Megabyte;

bool HasClash(const QX::EvaluationLocaleSettings& locale) {
  const unsigned short decimal = locale.GetDecimalSeparator();
  return decimal == locale.GetListSeparator() || decimal == locale.GetThousandSeparator();
}

}  // namespace

/// Reads the text of a file object.
class RulesFileReader {
 public:
  explicit RulesFileReader(RulesFile& file) : file_(file), places_(file.text_) {}

  void Read() {
    const std::size_t wrong = FindInvalidUtf8(file_.text_);
    if (wrong != file_.text_.size()) return Add(wrong, MakeText(FileText::NotUtf8));
    JsonDocument document;
    try {
      ReadTop(document.Read(file_.text_));
    } catch (const JsonError& error) {
      const int text = static_cast<int>(FileText::JsonEmpty) + static_cast<int>(error.GetFault());
      Add(error.GetPosition(), MakeText(static_cast<FileText>(text)));
    }
    file_.problems_.SortByPlace();
  }

 private:
  enum Key : std::size_t { Locale, Units, Decimals, Propagation, Properties, KeyCount };

  void Add(std::size_t position, TW::UniString message) {
    // Places of what is only counted would take the square of the length of the text.
    const TextPlace place =
        file_.problems_.GetCount() < FileProblems::MaximumCount ? places_.Find(position) : TextPlace();
    file_.problems_.Add({place.line, place.column, std::move(message), true});
  }

  void ReadTop(const JsonValue& top) {
    constexpr std::u16string_view Keys[] = {u"locale", u"units", u"decimals", u"propagation", u"properties"};
    if (!top.IsObject()) return Add(top.GetPosition(), MakeText(FileText::RulesExpected));
    TW::Optional<JsonValue> members[KeyCount];
    JsonMembers(Keys, complain_).ForEach(top, [&](std::size_t key, const JsonValue& value) { members[key] = value; });
    if (members[Locale]) ReadLocale(*members[Locale]);
    const SettingsReader settings(complain_);
    if (members[Units]) settings.ReadUnits(*members[Units], file_.rules_.display.units);
    if (members[Decimals]) settings.ReadDecimals(*members[Decimals], file_.rules_.display);
    if (members[Propagation]) {
      settings.ReadPropagation(*members[Propagation], file_.rules_.isUndefinedPropagationEnabled);
    }
    if (!members[Properties]) return Add(top.GetPosition(), MakeText(FileText::NoProperties));
    ReadProperties(*members[Properties], Keys[Properties]);
  }

  void ReadLocale(const JsonValue& value) {
    const std::size_t before = file_.problems_.GetCount();
    ChosenSeparators separators;
    SettingsReader(complain_).ReadSeparators(value, u"locale", separators);
    file_.rules_.locale = separators.Over(file_.rules_.locale);
    file_.hasSeparators_ = file_.problems_.GetCount() == before;
    if (!file_.hasSeparators_ || !HasClash(file_.rules_.locale)) return;
    file_.hasSeparators_ = false;
    Add(value.GetPosition(), MakeText(FileText::EqualSeparators));
  }

  void ReadProperties(const JsonValue& value, std::u16string_view key) {
    if (!value.IsArray()) return Add(value.GetPosition(), MakeText(FileText::PropertiesExpected, key));
    const RuleReader reader(file_.rules_.locale, complain_);
    value.ForEachElement([&](const JsonValue& element) {
      if (auto read = reader.Read(element)) AddRule(*std::move(read));
    });
    if (file_.rules_.properties.empty() && file_.problems_.GetCount() == 0) {
      Add(value.GetPosition(), MakeText(FileText::NoProperties));
    }
  }

  void AddRule(ReadRule read) {
    PropertyRule& rule = read.rule;
    if (!identities_.Add(read.identity)) {
      return Add(read.name.GetPosition(), MakeText(FileText::DuplicateName, rule.name));
    }
    if (const TW::UniString* other = namesById_.Find(rule.id)) {
      Add((read.id ? *read.id : read.name).GetPosition(), MakeText(FileText::DuplicateId, *other));
      // The rule stays, with any other id, so that formulas may refer to it.
      rule.id = MakeNameGuid(read.identity + u"\u001F" + TW::UniString::FromInteger(identities_.GetSize()));
    }
    if (!namesById_.Add(rule.id, rule.name)) return;
    file_.formulas_.push_back(read.formula ? read.formula->GetPosition() : 0);
    file_.rules_.properties.push_back(std::move(rule));
  }

  RulesFile& file_;
  TW::HashSet<TW::UniString> identities_;
  TW::HashTable<TW::Guid, TW::UniString> namesById_;
  TextPlaceFinder places_;
  const JsonComplain complain_ = [this](const JsonValue& place, JsonContentFault, const TW::UniString& message) {
    Add(place.GetPosition(), message);
  };
};

RulesFile RulesFile::Read(const std::string& path) {
  std::string text;
  const FileReading reading = ReadWholeFile(path, LargestFile, text);
  if (reading == FileReading::Read) return FromText(std::move(text));
  RulesFile file;
  TW::UniString message = reading == FileReading::Unreadable
                              ? MakeText(FileText::Unreadable)
                              : MakeText(FileText::TooLarge, TW::UniString::FromInteger(LargestFile / Megabyte));
  file.problems_.Add({0, 0, std::move(message), true});
  return file;
}

RulesFile RulesFile::FromText(std::string text) {
  RulesFile file;
  if (text.starts_with(Utf8ByteOrderMark)) text.erase(0, Utf8ByteOrderMark.size());
  file.text_ = std::move(text);
  RulesFileReader(file).Read();
  return file;
}

std::size_t RulesFile::FindFormulaUnit(std::size_t property, std::size_t unit) const {
  return FindUnitInJson(text_, formulas_[property], unit);
}

}  // namespace Host
