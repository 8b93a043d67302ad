#pragma once

#include "TW/Channel.hpp"
#include "TW/ErrorCodes.hpp"
#include "TW/Export.hpp"
#include "TW/UniString.hpp"

#include <exception>
#include <memory>
#include <string>

/// The root of everything that the system throws on its own account. Thrown by value, caught by reference.
class TW_EXPORT TWException : public std::exception {
 public:
  /// `message` and `file` may be empty; `line` 0 and no `previous` mean that they are not known.
  TWException(const TW::UniString& message, const TW::UniString& file, unsigned int line,
              std::shared_ptr<const TWException> previous, TW::ErrCode errorCode);
  TWException(const TWException&) = default;
  TWException& operator=(const TWException&) = default;
  ~TWException() override;

  /// The bare name of the exception's class, without namespaces.
  virtual TW::UniString GetName() const;
  /// A copy of what this class holds; what derived classes add is not part of it.
  virtual std::unique_ptr<TWException> Clone() const;
  /// Writes name, error code and message as one line of UTF-8, then the previous exceptions likewise.
  virtual void Print(TW::OChannel& channel) const;

  const TW::UniString& GetMessage() const { return message_; }
  const TW::UniString& GetFile() const { return file_; }
  unsigned int GetLine() const { return line_; }
  const TWException* GetPrevious() const { return previous_.get(); }
  TW::ErrCode GetErrorCode() const { return errorCode_; }

  /// The message in UTF-8.
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  TW::UniString message_;
  TW::UniString file_;
  unsigned int line_ = 0;
  std::shared_ptr<const TWException> previous_;
  TW::ErrCode errorCode_ = TW::ErrRefused;
  std::string what_;
};

namespace TW {

/// An empty reference was followed.
class TW_EXPORT NullReferenceException : public TWException {
 public:
  NullReferenceException() : TWException(u"Null reference.", {}, 0, nullptr, ErrRefused) {}
};

/// An object is not of the class that it was taken for.
class TW_EXPORT ClassCastException : public TWException {
 public:
  ClassCastException() : TWException(u"Bad cast.", {}, 0, nullptr, ErrRefused) {}
};

/// Something was asked for by a key that nothing is known by.
class TW_EXPORT IllegalReferenceException : public TWException {
 public:
  IllegalReferenceException() : TWException(u"Illegal reference.", {}, 0, nullptr, ErrRefused) {}
};

}  // namespace TW
