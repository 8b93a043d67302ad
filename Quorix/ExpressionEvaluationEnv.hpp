#pragma once

#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/Export.hpp"
#include "Quorix/ExpressionUnitConverter.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "TW/Guid.hpp"
#include "TW/HashSet.hpp"

#include <limits>

namespace QX {

/// Whether a property can be evaluated. The two reasons against it are the host's own; the library passes them on.
enum class EvaluableStatus {
  NotEvaluable = 0,
  NotYetEvaluable = 1,
  Evaluable = 2,
};

/// What evaluation asks of the host. The library holds it for the duration of one call only and may ask from any thread
/// that evaluates. What an operation throws, whatever it is, ends the evaluation and reaches its caller unchanged, but
/// for `GetPropertyValue`; the formula stays as it was.
class QX_EXPORT IExpressionEvaluationEnv {
 public:
  virtual ~IExpressionEvaluationEnv() = default;
  virtual EvaluableStatus GetPropertyEvaluableStatus(const TW::Guid& propertyId) const = 0;
  /// The value of a property. An invalid value or an exception of any kind says that there is none.
  virtual ExpressionValue GetPropertyValue(const TW::Guid& propertyId) const = 0;
  /// The units in which functions write quantities into texts.
  virtual const IExpressionUnitConverter& GetUnitConverter() const = 0;
  /// The separators in which functions read and write numbers.
  virtual const IEvaluationLocaleSettings& GetLocaleSettings() const = 0;
  /// Whether logical functions evaluate every argument, so that undefined values and errors anywhere come through.
  virtual bool IsUserUndefinedPropagationEnabled() const = 0;
  /// How many units a text may have that a function makes; a longer one throws `ExpressionTextTooLongException`. A host
  /// that says nothing has no limit but that of texts.
  virtual unsigned int GetLongestText() const { return std::numeric_limits<unsigned int>::max(); }
};

/// The host's graph of properties, for the search for cycles. What it throws ends the search and reaches its caller;
/// the path stays as it was.
class QX_EXPORT IExpressionReferenceResolver {
 public:
  virtual ~IExpressionReferenceResolver() = default;
  /// The properties that the formula of a property refers to directly; none for a property without a formula.
  virtual TW::HashSet<TW::Guid> GetDirectReferences(const TW::Guid& propertyId) const = 0;
};

}  // namespace QX
