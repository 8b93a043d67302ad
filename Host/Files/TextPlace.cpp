#include "Host/Files/TextPlace.hpp"

#include <algorithm>

namespace Host {

TextPlace TextPlaceFinder::Find(std::size_t position) {
  position = std::min(position, text_.size());
  if (position < position_) {
    position_ = 0;
    place_ = {};
  }
  while (position_ < position) Pass(text_[position_++]);
  return place_;
}

void TextPlaceFinder::Pass(char byte) {
  const bool isFirstOfTwo = byte == '\r' && position_ < text_.size() && text_[position_] == '\n';
  const bool continuesCharacter = (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
  if (byte == '\n' || (byte == '\r' && !isFirstOfTwo)) {
    place_ = {place_.line + 1, 1};
  } else if (!continuesCharacter) {
    ++place_.column;
  }
}

}  // namespace Host
