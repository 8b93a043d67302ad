#include "TW/Exceptions.hpp"

#include <cstdlib>
#include <cxxabi.h>
#include <string_view>
#include <typeinfo>
#include <utility>

TWException::TWException(const TW::UniString& message, const TW::UniString& file, unsigned int line,
                         std::shared_ptr<const TWException> previous, TW::ErrCode errorCode)
    : message_(message),
      file_(file),
      line_(line),
      previous_(std::move(previous)),
      errorCode_(errorCode),
      what_(message.ToUtf8()) {}

TWException::~TWException() = default;

TW::UniString TWException::GetName() const {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> readable(
      abi::__cxa_demangle(typeid(*this).name(), nullptr, nullptr, &status), &std::free);
  if (!readable) return TW::UniString(u"TWException");
  std::string_view name = readable.get();
  const std::size_t qualifier = name.rfind("::");
  if (qualifier != std::string_view::npos) name.remove_prefix(qualifier + 2);
  return TW::UniString::FromUtf8(name);
}

std::unique_ptr<TWException> TWException::Clone() const { return std::make_unique<TWException>(*this); }

void TWException::Print(TW::OChannel& channel) const {
  const TW::UniString line = TW::UniString::Printf(u"%T (%T)%T%T\n", GetName(), TW::UniString::FromInteger(errorCode_),
                                                   message_.IsEmpty() ? u"" : u": ", message_);
  const std::string bytes = line.ToUtf8();
  channel.WriteBytes(bytes.data(), bytes.size());
  if (previous_) previous_->Print(channel);
}
