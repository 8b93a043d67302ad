#include "TW/Frame.hpp"

namespace TW {

OutputFrame::OutputFrame(OChannel& channel, const ClassInfo& info) : channel_(&channel), version_(info.GetVersion()) {
  lengthPosition_ = channel.OpenFrame(info.GetGuid(), version_);
}

OutputFrame::~OutputFrame() {
  if (channel_ == nullptr) return;
  OChannel& channel = *channel_;
  // What an exception has cut short is no frame.
  if (std::uncaught_exceptions() > exceptions_) channel.SetStatus(ErrWriteFailed);
  try {
    Close();
  } catch (...) {
    channel.SetStatus(ErrWriteFailed);
  }
}

ErrCode OutputFrame::Close() {
  if (channel_ == nullptr) return ErrClosed;
  OChannel& channel = *channel_;
  channel_ = nullptr;
  return channel.CloseFrame(lengthPosition_);
}

InputFrame::InputFrame(IChannel& channel, const ClassInfo& info) : channel_(&channel), outerLimit_(channel.limit_) {
  Guid guid;
  std::uint16_t version = 0;
  std::uint32_t length = 0;
  channel.ReadGuid(guid);
  channel.ReadUInt16(version);
  if (channel.ReadUInt32(length) != NoErr) return;
  if (guid != info.GetGuid()) {
    channel.SetStatus(ErrFrameClass);
  } else if (length > outerLimit_ - channel.position_) {
    channel.SetStatus(ErrFrameBounds);
  } else {
    channel.limit_ = channel.position_ + length;
    version_ = version;
  }
}

InputFrame::~InputFrame() {
  if (channel_ != nullptr) Close();
}

ErrCode InputFrame::Close() {
  if (channel_ == nullptr) return ErrClosed;
  IChannel& channel = *channel_;
  channel_ = nullptr;
  try {
    if (channel.GetInputStatus() == NoErr) channel.Skip(channel.limit_ - channel.position_);
  } catch (...) {
    channel.SetStatus(ErrReadFailed);
  }
  channel.limit_ = outerLimit_;
  return channel.GetInputStatus();
}

}  // namespace TW
