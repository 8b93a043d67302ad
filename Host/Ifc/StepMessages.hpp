#pragma once

#include "TW/UniString.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace Host {

/// What is wrong with a model file, in the order of the texts that say so.
enum class StepProblem : std::uint8_t {
  // Nothing can be read.
  Unreadable,    ///< the system does not give the file
  NotAStepFile,  ///< the text does not begin as a STEP file does
  NoDataSection,
  // The rest can be read.
  CutOff,             ///< the file ends before its last section does
  NoInstance,         ///< a statement of a data section is no instance
  IdTooLarge,         ///< the number of an instance needs more than 64 bits
  DuplicateId,        ///< the first instance of the number counts
  TooManyInstances,   ///< instances after the first 2^32 - 2 are left out
  UnknownSchema,      ///< the schema is none of IFC2X3, IFC4 and IFC4X3
  BrokenInstance,     ///< an argument that is needed is missing or of the wrong kind
  DanglingReference,  ///< an instance that is referred to is not there
  NoLengthUnit,       ///< metres are assumed
  NoAreaUnit,         ///< square metres are assumed
  NoVolumeUnit,       ///< cubic metres are assumed
  NoAngleUnit,        ///< radians are assumed
};

struct StepMessage {
  StepProblem problem;
  std::uint64_t line;  ///< counted from 1; 0 when the problem has no place
  std::uint64_t id;    ///< the instance that is meant, or 0

  bool IsFatal() const { return problem <= StepProblem::NoDataSection; }
  /// A sentence or two in the user's language, after the number of the instance if one is meant.
  TW::UniString GetMessage() const;
};

/// Collects what is wrong with a file, and keeps the first problems of it.
class StepMessages {
 public:
  /// How many problems are kept.
  static constexpr std::size_t MaximumCount = 100;
  static constexpr std::size_t NoPlace = SIZE_MAX;

  /// Adds a problem at a position in the text of the file.
  void Add(StepProblem problem, std::size_t position, std::uint64_t id = 0);
  /// Turns positions into lines; to be called once before the list is looked at.
  void FindLines(std::string_view text);

  const std::vector<StepMessage>& GetList() const { return list_; }
  /// How many problems there were, those included that were not kept.
  std::size_t GetCount() const { return count_; }
  bool HasFatal() const;

 private:
  std::vector<StepMessage> list_;
  std::vector<std::size_t> positions_;  ///< of the messages that have no line yet, the last of the list
  std::size_t count_ = 0;
};

}  // namespace Host
