#pragma once

#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "TW/Guid.hpp"
#include "TW/HashTable.hpp"
#include "TW/UniString.hpp"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A host of properties that tests fill, and which counts what it is asked.
class TestHost final : public QX::IExpressionEvaluationEnv {
 public:
  struct Property {
    QX::ExpressionValue value;
    bool fails = false;  ///< asking for the value throws
    QX::EvaluableStatus status = QX::EvaluableStatus::Evaluable;
  };

  /// Knows no property; full stop, comma and no grouping; metres, square metres, cubic metres and degrees, 2 decimals.
  TestHost() = default;

  void SetProperty(const TW::Guid& id, QX::ExpressionValue value) { properties_.Put(id, {std::move(value)}); }
  void SetFailing(const TW::Guid& id) { properties_.Put(id, {QX::ExpressionValue(), true}); }
  void SetStatus(const TW::Guid& id, QX::EvaluableStatus status) {
    properties_.Put(id, {QX::ExpressionValue::FromInteger(0), false, status});
  }
  void SetPropagation(bool enabled) { propagation_ = enabled; }
  void SetLocale(const QX::EvaluationLocaleSettings& locale) { locale_ = locale; }
  void SetUnits(const QX::CalcUnitSettings& units) { converter_ = QX::ExpressionUnitConverter(units); }

  /// The properties whose value was asked for, in order, as often as they were asked for.
  const std::vector<TW::Guid>& GetValueQuestions() const { return valueQuestions_; }
  const std::vector<TW::Guid>& GetStatusQuestions() const { return statusQuestions_; }
  void ForgetQuestions() {
    valueQuestions_.clear();
    statusQuestions_.clear();
  }

  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid& id) const override {
    statusQuestions_.push_back(id);
    const Property* property = properties_.Find(id);
    return property != nullptr ? property->status : QX::EvaluableStatus::NotEvaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid& id) const override {
    valueQuestions_.push_back(id);
    const Property* property = properties_.Find(id);
    if (property == nullptr || property->fails) throw std::runtime_error("the host fails");
    return property->value;
  }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override { return converter_; }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override { return locale_; }
  bool IsUserUndefinedPropagationEnabled() const override { return propagation_; }

 private:
  static QX::CalcUnitSettings DefaultUnits() {
    return {QX::LengthFormat({TWUnit::LengthUnit::Meter, 2, 64}), QX::AreaFormat({TWUnit::AreaUnit::SquareMeter, 2}),
            QX::VolumeFormat({TWUnit::VolumeUnit::CubicMeter, 2}),
            QX::AngleFormat({TWUnit::AngleUnit::DecimalDegree, 2})};
  }

  TW::HashTable<TW::Guid, Property> properties_;
  QX::ExpressionUnitConverter converter_{DefaultUnits()};
  QX::EvaluationLocaleSettings locale_{'.', ',', 0};
  bool propagation_ = false;
  mutable std::vector<TW::Guid> valueQuestions_;
  mutable std::vector<TW::Guid> statusQuestions_;
};

/// Words in braces that stand for references to properties in the formulas of tests: `{undefined length}`, `{failing}`,
/// `{invalid}` and the numbers `{0}` to `{9}`. `{U+00A0}` stands for a character.
class FormulaWords {
 public:
  static void AddPropertiesTo(TestHost& host) {
    for (const Word& word : GetWords()) {
      if (word.property.fails) {
        host.SetFailing(word.id);
      } else {
        host.SetProperty(word.id, word.property.value);
      }
    }
  }

  /// The value of a word such as `undefined length`, or null.
  static const QX::ExpressionValue* FindValue(std::string_view name) {
    const Word* word = Find(name);
    return word != nullptr ? &word->property.value : nullptr;
  }

  static TW::Guid GetId(std::string_view name) {
    const Word* word = Find(name);
    if (word == nullptr) throw std::invalid_argument("no such word: " + std::string(name));
    return word->id;
  }

  /// The UTF-8 text with every word replaced; braces around anything else stay.
  static TW::UniString Replace(std::string_view text) {
    TW::UniString replaced;
    while (!text.empty()) {
      const std::size_t open = text.find('{');
      const std::size_t close = open == text.npos ? text.npos : text.find('}', open);
      if (close == text.npos) break;
      TW::UniString meaning = Meaning(text.substr(open + 1, close - open - 1));
      const std::size_t taken = meaning.IsEmpty() ? open + 1 : close + 1;
      replaced += TW::UniString::FromUtf8(text.substr(0, meaning.IsEmpty() ? taken : open)) + meaning;
      text.remove_prefix(taken);
    }
    return replaced + TW::UniString::FromUtf8(text);
  }

 private:
  struct Word {
    std::string name;
    TW::Guid id;
    TestHost::Property property;
  };

  static TW::Guid MakeId(std::size_t number) {
    TW::Guid::Bytes bytes{0xF0, 0x0D};
    bytes[15] = static_cast<std::uint8_t>(number);
    return TW::Guid(bytes);
  }

  static std::vector<Word> MakeWords() {
    using QX::ExpressionValue;
    constexpr ExpressionValue::UndefinedSelector Undefined;
    std::vector<Word> words;
    const auto add = [&words](const std::string& name, ExpressionValue value, bool fails = false) {
      words.push_back({name, MakeId(words.size()), {std::move(value), fails}});
    };
    for (int number = 0; number < 10; ++number) add(std::to_string(number), ExpressionValue::FromNumber(number));
    add("undefined number", ExpressionValue::FromNumber(Undefined));
    add("undefined integer", ExpressionValue::FromInteger(Undefined));
    add("undefined length", ExpressionValue::FromQuantity(Undefined, QX::UnitExponents::CreateLength()));
    add("undefined area", ExpressionValue::FromQuantity(Undefined, QX::UnitExponents::CreateArea()));
    add("undefined volume", ExpressionValue::FromQuantity(Undefined, QX::UnitExponents::CreateVolume()));
    add("undefined angle", ExpressionValue::FromQuantity(Undefined, QX::UnitExponents::CreateAngle()));
    add("undefined text", ExpressionValue::FromString(Undefined));
    add("undefined logical", ExpressionValue::FromBool(Undefined));
    add("failing", ExpressionValue(), true);
    add("invalid", ExpressionValue());
    return words;
  }

  static const std::vector<Word>& GetWords() {
    static const std::vector<Word> words = MakeWords();
    return words;
  }

  static const Word* Find(std::string_view name) {
    for (const Word& word : GetWords()) {
      if (word.name == name) return &word;
    }
    return nullptr;
  }

  static TW::UniString Meaning(std::string_view name) {
    if (const Word* word = Find(name)) return TW::UniString(u"[Property:") + word->id.ToUniString() + u"]";
    std::uint16_t code = 0;
    if (!name.starts_with("U+") ||
        std::from_chars(name.data() + 2, name.data() + name.size(), code, 16).ptr != name.data() + name.size())
      return {};
    return TW::UniString(TW::UniChar(code));
  }
};
