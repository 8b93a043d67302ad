#pragma once

#include "Host/EvaluationSettings.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/GuidMapper.hpp"

#include <cstddef>
#include <new>
#include <stdexcept>
#include <string>

/// Whatever a host may throw, by number.
inline constexpr unsigned int ThrownKinds = 7;

inline void ThrowKind(unsigned int kind) {
  switch (kind) {
    case 0:
      throw 42;
    case 1:
      throw "a text";
    case 2:
      throw std::runtime_error("an exception of the standard library");
    case 3:
      throw TW::NullReferenceException();
    case 4:
      throw QX::ExpressionDivisionByZero(nullptr);
    case 5:
      throw std::bad_alloc();
    default:
      throw ThrownKinds;
  }
}

/// Names what `work` throws, or gives what it tells.
template <class Work>
std::string NameOutcome(const Work& work) {
  try {
    return work();
  } catch (const QX::ExpressionSemanticException& error) {
    return "threw " + error.GetName().ToUtf8();
  } catch (const TWException& error) {
    return "threw " + error.GetName().ToUtf8();
  } catch (const std::exception& error) {
    return std::string("threw ") + error.what();
  } catch (const int number) {
    return "threw " + std::to_string(number);
  } catch (const char* text) {
    return std::string("threw ") + text;
  } catch (...) {
    return "threw something";
  }
}

inline std::string NameKind(unsigned int kind) {
  return NameOutcome([kind]() -> std::string {
    ThrowKind(kind);
    return {};
  });
}

/// Throws at one of the calls that it sees, and remembers which that was.
class Trap {
 public:
  static constexpr std::size_t Never = static_cast<std::size_t>(-1);

  void Set(std::size_t call, unsigned int kind) {
    remaining_ = call;
    kind_ = kind;
    sprung_.clear();
  }
  void Pass(const char* call) const {
    if (remaining_ == Never || remaining_-- > 0) return;
    remaining_ = Never;
    sprung_ = call;
    ThrowKind(kind_);
  }
  /// The call that threw; empty when none did.
  const std::string& GetSprung() const { return sprung_; }

 private:
  mutable std::size_t remaining_ = Never;
  unsigned int kind_ = 0;
  mutable std::string sprung_;
};

/// A host whose every part may throw, at any of its calls.
class ThrowingHost final : public QX::IExpressionEvaluationEnv,
                           public QX::IExpressionReferenceResolver,
                           public QX::IGuidMapper,
                           public QX::IExpressionReferenceCollector {
 public:
  Trap trap;

  QX::EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid&) const override {
    trap.Pass("status");
    return QX::EvaluableStatus::Evaluable;
  }
  QX::ExpressionValue GetPropertyValue(const TW::Guid&) const override {
    trap.Pass("value");
    return QX::ExpressionValue::FromString(u"a value that needs the heap");
  }
  const QX::IExpressionUnitConverter& GetUnitConverter() const override {
    trap.Pass("converter");
    return converter_;
  }
  const QX::IEvaluationLocaleSettings& GetLocaleSettings() const override {
    trap.Pass("locale");
    return locale_;
  }
  bool IsUserUndefinedPropagationEnabled() const override {
    trap.Pass("propagation");
    return false;
  }
  unsigned int GetLongestText() const override {
    trap.Pass("longest text");
    return 1'000'000;
  }
  TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& id) const override {
    trap.Pass("references");
    TW::HashSet<TW::Guid> next;
    TW::Guid::Bytes bytes = id.GetBytes();
    if (bytes[15]++ < 20) next.Add(TW::Guid(bytes));
    return next;
  }
  TW::Guid Map(const TW::Guid& id) const override {
    trap.Pass("mapper");
    TW::Guid::Bytes bytes = id.GetBytes();
    bytes[0] ^= 0xFF;
    return TW::Guid(bytes);
  }
  void PropertyReferenceFound(const TW::Guid&) override { trap.Pass("collector"); }

 private:
  class Format final : public QX::IUnitFormat {
   public:
    Format(const Trap& trap, const QX::IUnitFormat& format) : trap_(trap), format_(format) {}
    void WriteCheckSum(IO::MD5Channel& channel) const override { format_.WriteCheckSum(channel); }
    TW::UniString NumberToString(double value, TWUnit::UnitMarkerMode mode, const TW::UniString& decimal,
                                 const TW::UniString& thousand) const override {
      trap_.Pass("format");
      return format_.NumberToString(value, mode, decimal, thousand);
    }

   private:
    const Trap& trap_;
    const QX::IUnitFormat& format_;
  };

  class Converter final : public QX::IExpressionUnitConverter {
   public:
    explicit Converter(const Trap& trap) : trap_(trap) {}
    const QX::IUnitFormat& GetLengthUnitInfo() const override { return Passed(length_); }
    const QX::IUnitFormat& GetAreaUnitInfo() const override { return Passed(area_); }
    const QX::IUnitFormat& GetVolumeUnitInfo() const override { return Passed(volume_); }
    const QX::AngleFormat& GetAngleUnitInfo() const override { return Passed(settings_.converter.GetAngleUnitInfo()); }

   private:
    template <class Info>
    const Info& Passed(const Info& info) const {
      trap_.Pass("unit");
      return info;
    }

    const Trap& trap_;
    Host::EvaluationSettings settings_;
    Format length_{trap_, settings_.converter.GetLengthUnitInfo()};
    Format area_{trap_, settings_.converter.GetAreaUnitInfo()};
    Format volume_{trap_, settings_.converter.GetVolumeUnitInfo()};
  };

  class Locale final : public QX::IEvaluationLocaleSettings {
   public:
    explicit Locale(const Trap& trap) : trap_(trap) {}
    unsigned short GetDecimalSeparator() const override { return Passed('.'); }
    unsigned short GetListSeparator() const override { return Passed(','); }
    unsigned short GetThousandSeparator() const override { return Passed(' '); }

   private:
    unsigned short Passed(unsigned short separator) const {
      trap_.Pass("separator");
      return separator;
    }

    const Trap& trap_;
  };

  Converter converter_{trap};
  Locale locale_{trap};
};

/// Takes the text of a formula and may throw at any piece of it.
class ThrowingStringBuilder final : public QX::IExpressionStringBuilder {
 public:
  explicit ThrowingStringBuilder(const Trap& trap) : trap_(trap) {}
  const EP::IParsingLocaleSettings& GetLocaleSettings() const override { return settings_; }
  void AppendString(const TW::UniString& text, const QX::ExpressionNode*) override {
    trap_.Pass("piece");
    text_ += text;
  }
  const TW::UniString& GetText() const { return text_; }

 private:
  const Trap& trap_;
  QX::EvaluationLocaleSettings settings_{'.', ',', 0};
  TW::UniString text_;
};
