#pragma once

#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcValue.hpp"
#include "TW/ErrorCodes.hpp"
#include "TW/UniString.hpp"

#include <functional>
#include <string>
#include <vector>

namespace Host {

/// A property to be added to an element of a model.
struct IfcAddedProperty {
  TW::UniString set;
  TW::UniString name;
  IfcValue value;  ///< in base units; one of no kind is left out, and one that is undefined has no value in the file
};

/// Gives the properties that an element gets. Asked once for each element, in order. What it throws passes through, and
/// no file is written.
using IfcPropertySource = std::function<std::vector<IfcAddedProperty>(IfcModel::Element element)>;

/// Writes a copy of a model in which elements have more properties, one property set for each name of a set. Values are
/// written in the units of the project. Sets that were added by an earlier call are replaced, and what is added to the
/// same elements under the same names has the same GlobalIds, so that adding twice gives the same file.
///
/// The file appears whole or not at all; it may be the one that the model was read from. Gives the error of the system,
/// `ErrRefused` for a model with a fatal problem, or `ErrTooLong` when there are no numbers left for instances.
TW::ErrCode WriteIfcModel(const IfcModel& model, const std::string& path, const IfcPropertySource& source);

}  // namespace Host
