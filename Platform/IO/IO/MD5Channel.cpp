#include "IO/MD5Channel.hpp"

#include <algorithm>
#include <bit>
#include <string>
#include <string_view>
#include <utility>

namespace IO {
namespace {

using Words = TW::FixArray<std::uint32_t, 4>;
using Block = TW::FixArray<std::uint32_t, 16>;

constexpr std::size_t StepCount = 64;
constexpr std::size_t LengthSize = 8;

// The whole part of 2^32 times the absolute sine of 1, 2, ... 64.
constexpr TW::FixArray<std::uint32_t, StepCount> Sines = {
    0xD76AA478, 0xE8C7B756, 0x242070DB, 0xC1BDCEEE, 0xF57C0FAF, 0x4787C62A, 0xA8304613, 0xFD469501,
    0x698098D8, 0x8B44F7AF, 0xFFFF5BB1, 0x895CD7BE, 0x6B901122, 0xFD987193, 0xA679438E, 0x49B40821,
    0xF61E2562, 0xC040B340, 0x265E5A51, 0xE9B6C7AA, 0xD62F105D, 0x02441453, 0xD8A1E681, 0xE7D3FBC8,
    0x21E1CDE6, 0xC33707D6, 0xF4D50D87, 0x455A14ED, 0xA9E3E905, 0xFCEFA3F8, 0x676F02D9, 0x8D2A4C8A,
    0xFFFA3942, 0x8771F681, 0x6D9D6122, 0xFDE5380C, 0xA4BEEA44, 0x4BDECFA9, 0xF6BB4B60, 0xBEBFBC70,
    0x289B7EC6, 0xEAA127FA, 0xD4EF3085, 0x04881D05, 0xD9D4D039, 0xE6DB99E5, 0x1FA27CF8, 0xC4AC5665,
    0xF4292244, 0x432AFF97, 0xAB9423A7, 0xFC93A039, 0x655B59C3, 0x8F0CCC92, 0xFFEFF47D, 0x85845DD1,
    0x6FA87E4F, 0xFE2CE6E0, 0xA3014314, 0x4E0811A1, 0xF7537E82, 0xBD3AF235, 0x2AD7D2BB, 0xEB86D391,
};

constexpr int Rotations[4][4] = {{7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

// Which word of the block a step takes: each round begins at Starts and goes on by Strides.
constexpr std::size_t Starts[4] = {0, 1, 5, 0};
constexpr std::size_t Strides[4] = {1, 5, 3, 7};

// The summands of the second round are disjoint: adding them one by one keeps the newest word, b, off the long path.
template <std::size_t Round>
std::uint32_t AddMixed(std::uint32_t sum, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  if constexpr (Round == 0) return sum + (d ^ (b & (c ^ d)));
  if constexpr (Round == 1) return sum + (c & ~d) + (b & d);
  if constexpr (Round == 2) return sum + (b ^ (c ^ d));
  if constexpr (Round == 3) return sum + (c ^ (b | ~d));
}

// The roles of the four words move on by one with each step.
template <std::size_t Index>
inline void Step(Words& words, const Block& block) {
  constexpr std::size_t Round = Index / 16;
  std::uint32_t& a = words[(64 - Index) % 4];
  const std::uint32_t b = words[(65 - Index) % 4];
  const std::uint32_t c = words[(66 - Index) % 4];
  const std::uint32_t d = words[(67 - Index) % 4];
  const std::uint32_t sum = a + Sines[Index] + block[(Starts[Round] + Index % 16 * Strides[Round]) % 16];
  a = b + std::rotl(AddMixed<Round>(sum, b, c, d), Rotations[Round][Index % 4]);
}

template <std::size_t... Indices>
void RunSteps(Words& words, const Block& block, std::index_sequence<Indices...>) {
  (Step<Indices>(words, block), ...);
}

std::uint32_t LoadWord(const std::uint8_t* bytes) {
  return std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8 | std::uint32_t{bytes[2]} << 16 |
         std::uint32_t{bytes[3]} << 24;
}

template <class Number>
void StoreLittleEndian(Number value, std::uint8_t* bytes) {
  for (std::size_t i = 0; i < sizeof(Number); ++i) bytes[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

}  // namespace

void MD5Channel::State::AddBlock(const std::uint8_t* block) {
  Block loaded;
  for (std::size_t i = 0; i < loaded.size(); ++i) loaded[i] = LoadWord(block + 4 * i);
  Words mixed = words;
  RunSteps(mixed, loaded, std::make_index_sequence<StepCount>());
  for (std::size_t i = 0; i < words.size(); ++i) words[i] += mixed[i];
}

void MD5Channel::State::Add(const std::uint8_t* bytes, std::size_t count) {
  const std::size_t held = length % BlockSize;
  length += count;
  if (held > 0) {
    const std::size_t taken = std::min(count, BlockSize - held);
    std::copy_n(bytes, taken, pending.begin() + held);
    bytes += taken;
    count -= taken;
    if (held + taken < BlockSize) return;
    AddBlock(pending.data());
  }
  for (; count >= BlockSize; bytes += BlockSize, count -= BlockSize) AddBlock(bytes);
  std::copy_n(bytes, count, pending.begin());
}

TW::ErrCode MD5Channel::WriteRaw(const void* bytes, std::size_t count) {
  if (count > 0) state_.Add(static_cast<const std::uint8_t*>(bytes), count);
  return TW::NoErr;
}

MD5Channel::Digest MD5Channel::GetDigest() const {
  State state = state_;
  // A one bit, then zeros up to where the length fills the last block.
  TW::FixArray<std::uint8_t, BlockSize + LengthSize> padding{0x80};
  const std::size_t held = state.length % BlockSize;
  const std::size_t filled = (held < BlockSize - LengthSize ? BlockSize : 2 * BlockSize) - held - LengthSize;
  StoreLittleEndian(state.length * 8, padding.data() + filled);
  state.Add(padding.data(), filled + LengthSize);

  Digest digest;
  for (std::size_t i = 0; i < state.words.size(); ++i) StoreLittleEndian(state.words[i], digest.data() + 4 * i);
  return digest;
}

TW::UniString MD5Channel::GetDigestText() const {
  constexpr std::u16string_view Digits = u"0123456789abcdef";
  std::u16string text;
  for (const std::uint8_t byte : GetDigest()) {
    text.push_back(Digits[byte / 16U]);
    text.push_back(Digits[byte % 16U]);
  }
  return TW::UniString(std::move(text));
}

}  // namespace IO
