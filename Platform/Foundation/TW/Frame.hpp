#pragma once

#include "TW/Channel.hpp"
#include "TW/ClassInfo.hpp"
#include "TW/ErrorCodes.hpp"
#include "TW/Export.hpp"

#include <cstddef>
#include <cstdint>
#include <exception>

/// Frames mark what a class stores: the class GUID (16 bytes), the version (16 bits) and the length of what follows
/// (32 bits). A reader passes over what it does not know and never leaves the frame.

namespace TW {

/// A frame being written. It ends with `Close` or with the object; what is written in between belongs to it. Frames
/// nest. A frame that an exception cuts short is not written and puts the channel into the state `ErrWriteFailed`.
class TW_EXPORT OutputFrame {
 public:
  OutputFrame(OChannel& channel, const ClassInfo& info);
  ~OutputFrame();
  OutputFrame(const OutputFrame&) = delete;
  OutputFrame& operator=(const OutputFrame&) = delete;

  /// The version that the frame says, which is that of the class.
  unsigned short GetVersion() const { return version_; }
  /// Ends the frame and gives the channel's status.
  ErrCode Close();

 private:
  OChannel* channel_;
  unsigned short version_;
  int exceptions_ = std::uncaught_exceptions();  ///< on their way when the frame was opened
  std::size_t lengthPosition_ = 0;
};

/// A frame being read. A frame of another class puts the channel into the state `ErrFrameClass`, one that claims more
/// than the frame around it holds into `ErrFrameBounds`; after that, reading gives that code. The frame ends
/// with `Close` or with the object; what was not read of it is passed over, and a channel that throws then comes into
/// the state `ErrReadFailed`.
class TW_EXPORT InputFrame {
 public:
  InputFrame(IChannel& channel, const ClassInfo& info);
  ~InputFrame();
  InputFrame(const InputFrame&) = delete;
  InputFrame& operator=(const InputFrame&) = delete;

  /// The version that the stream says; 0 when the frame could not be read.
  unsigned short GetVersion() const { return version_; }
  /// Ends the frame and gives the channel's status, which tells whether the whole frame was there.
  ErrCode Close();

 private:
  IChannel* channel_;
  std::uint64_t outerLimit_;
  unsigned short version_ = 0;
};

}  // namespace TW
