#pragma once

#include <cstdint>

/// The result codes of the foundation: zero for success, one of the constants below for a failure.

namespace TW {

using ErrCode = std::int32_t;

inline constexpr ErrCode NoErr = 0;

/// The general refusal: a frame of an unknown version, a stored value that is not valid, a cast to the wrong class.
inline constexpr ErrCode ErrRefused = -7003;

/// The text is not the text of a GUID.
inline constexpr ErrCode ErrGuidFormat = static_cast<ErrCode>(0x81000402U);
/// There is no text to read a GUID from.
inline constexpr ErrCode ErrGuidEmpty = static_cast<ErrCode>(0x81000403U);

/// A channel ended before everything that was asked for could be read.
inline constexpr ErrCode ErrEndOfData = -7101;
/// The system refused to read.
inline constexpr ErrCode ErrReadFailed = -7102;
/// The system refused to write.
inline constexpr ErrCode ErrWriteFailed = -7103;
/// There is no room left on the disk.
inline constexpr ErrCode ErrDiskFull = -7104;
/// The file or its folder is not there.
inline constexpr ErrCode ErrFileNotFound = -7105;
/// The file is there and may not be opened.
inline constexpr ErrCode ErrFileAccess = -7106;
/// The channel is closed.
inline constexpr ErrCode ErrClosed = -7107;
/// What is written is too long for the length field of its frame or text.
inline constexpr ErrCode ErrTooLong = -7108;

/// A frame belongs to another class than the one that reads it.
inline constexpr ErrCode ErrFrameClass = -7111;
/// A frame claims to reach beyond the frame that holds it, or a field beyond its frame.
inline constexpr ErrCode ErrFrameBounds = -7112;
/// A stored object is of a class that is not registered or cannot be created.
inline constexpr ErrCode ErrUnknownClass = -7113;
/// A stored tree is nested more deeply than its reader allows.
inline constexpr ErrCode ErrTooDeep = -7114;

/// The contents of a file break the rules of its format.
inline constexpr ErrCode ErrFileFormat = -7121;
/// The text of a file is in a character set that is not known here.
inline constexpr ErrCode ErrCharacterSet = -7122;

}  // namespace TW
