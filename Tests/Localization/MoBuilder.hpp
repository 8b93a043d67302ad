#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Makes compiled catalogs for tests.

enum class MoOrder { Little, Big };

struct MoMessage {
  std::string source;
  std::string translation;
};

/// The number as four bytes.
inline std::string MoNumber(std::uint32_t number, MoOrder order) {
  std::string bytes;
  for (int i = 0; i < 4; ++i) {
    bytes.push_back(static_cast<char>(number >> (order == MoOrder::Little ? 8 * i : 24 - 8 * i)));
  }
  return bytes;
}

/// The head of a file with so many messages and its tables at these places.
inline std::string MoHead(MoOrder order, std::uint32_t revision, std::uint32_t count, std::uint32_t sources,
                          std::uint32_t translations) {
  std::string bytes;
  for (std::uint32_t number : {0x950412DEU, revision, count, sources, translations, 0U, 28U}) {
    bytes += MoNumber(number, order);
  }
  return bytes;
}

inline std::string BuildMo(const std::vector<MoMessage>& messages, MoOrder order, std::uint32_t revision = 0) {
  const auto count = static_cast<std::uint32_t>(messages.size());
  const std::uint32_t textStart = 28 + 16 * count;
  std::string sources;
  std::string translations;
  std::string texts;
  const auto place = [&](std::string& table, const std::string& text) {
    table += MoNumber(static_cast<std::uint32_t>(text.size()), order);
    table += MoNumber(textStart + static_cast<std::uint32_t>(texts.size()), order);
    texts += text + '\0';
  };
  for (const MoMessage& message : messages) {
    place(sources, message.source);
    place(translations, message.translation);
  }
  return MoHead(order, revision, count, 28, 28 + 8 * count) + sources + translations + texts;
}
