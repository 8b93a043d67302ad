#pragma once

#include "Host/Ifc/IfcModel.hpp"

#include <cstdint>
#include <vector>

namespace Host {

/// Fills a model from its file. Used once and thrown away.
class IfcModelBuilder {
 public:
  explicit IfcModelBuilder(IfcModel& model) : model_(model), file_(model.file_) {}

  void Build();

 private:
  using Place = StepFile::Place;
  using Pair = IfcSpans::Pair;

  void CheckSchema();
  void ReadRelations();
  void ReadRelation(Place place, std::uint32_t kind);
  void Relate(Place place, const StepValue& owners, const StepValue& targets, std::vector<Pair>& pairs);
  std::vector<Place> ReadReferences(Place place, const StepValue& value);

  void Complain(StepProblem problem, Place place);

  void FindElements();
  bool IsProduct(Place place) const;
  void LinkTypes();
  void LinkStoreys();
  std::uint32_t FindStorey(Place place, std::uint32_t storeyClass) const;
  void ReadSets();
  void ReadSet(Place place);
  void LinkSets(const std::vector<Pair>& pairs, IfcSpans& spans, std::size_t count);

  IfcModel& model_;
  StepFile& file_;
  std::vector<bool> elementClasses_;
  std::vector<Pair> setsOfObjects_;   ///< from object to set; later from element to set
  std::vector<Pair> typesOfObjects_;  ///< from object to type
  std::vector<Pair> parents_;         ///< from part to whole, and from element to place in the building
  std::vector<Pair> setsOfTypes_;     ///< from type to set
  std::vector<Place> setPlaces_;      ///< ascending
};

}  // namespace Host
