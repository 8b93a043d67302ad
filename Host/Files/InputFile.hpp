#pragma once

#include <cstddef>
#include <string>

namespace Host {

/// What became of reading a file.
enum class FileReading {
  Read,
  Unreadable,  ///< the system does not give it
  TooLarge,    ///< it has more bytes than were asked for
};

/// Reads a whole file, or a pipe to its end, into `text`, as long as it has `limit` bytes at most. What `text` holds
/// after a failure means nothing.
FileReading ReadWholeFile(const std::string& path, std::size_t limit, std::string& text);

}  // namespace Host
