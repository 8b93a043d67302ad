#include "Quorix/ExpressionNodes/ExpressionAggregateFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionBinaryFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionConversionFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionLogicalFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionRoundingFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionTextSearchFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionTextShapingFunctionNodes.hpp"
#include "Quorix/ExpressionNodes/ExpressionUnaryFunctionNodes.hpp"
#include "Quorix/FunctionNodeRegistry.hpp"

namespace QX {
namespace {

struct FunctionRow {
  std::u16string_view keyword;
  const TW::ClassInfo* classInfo;
  FunctionGroup group;
  short helpResId;
};

template <class Function>
constexpr FunctionRow MakeRow(FunctionGroup group, short helpResId) {
  return {Function::Identity.keyword, &Function::classInfo, group, helpResId};
}

// The order in which functions are listed; the numbers are places in the resources and follow another one. The rows are
// constant, so that it does not matter in which order the objects of the library are made.
constexpr FunctionRow Functions[] = {
    MakeRow<ExpressionTrimFunctionNode>(FunctionGroup::Text, 1006),
    MakeRow<ExpressionLowerFunctionNode>(FunctionGroup::Text, 1007),
    MakeRow<ExpressionUpperFunctionNode>(FunctionGroup::Text, 1008),
    MakeRow<ExpressionConcatenationFunctionNode>(FunctionGroup::Text, 1009),
    MakeRow<ExpressionTextJoinFunctionNode>(FunctionGroup::Text, 1010),
    MakeRow<ExpressionLeftFunctionNode>(FunctionGroup::Text, 1011),
    MakeRow<ExpressionMidFunctionNode>(FunctionGroup::Text, 1012),
    MakeRow<ExpressionRightFunctionNode>(FunctionGroup::Text, 1013),
    MakeRow<ExpressionRepeatFunctionNode>(FunctionGroup::Text, 1014),
    MakeRow<ExpressionLenFunctionNode>(FunctionGroup::Text, 1015),
    MakeRow<ExpressionContainsFunctionNode>(FunctionGroup::Text, 1056),
    MakeRow<ExpressionFindFunctionNode>(FunctionGroup::Text, 1016),
    MakeRow<ExpressionSplitFunctionNode>(FunctionGroup::Text, 1017),
    MakeRow<ExpressionSplitLeftFunctionNode>(FunctionGroup::Text, 1018),
    MakeRow<ExpressionSplitRightFunctionNode>(FunctionGroup::Text, 1019),
    MakeRow<ExpressionCompareFunctionNode>(FunctionGroup::Text, 1020),
    MakeRow<ExpressionReplaceFunctionNode>(FunctionGroup::Text, 1021),
    MakeRow<ExpressionSubstituteFunctionNode>(FunctionGroup::Text, 1022),
    MakeRow<ExpressionStrFunctionNode>(FunctionGroup::Conversion, 1023),
    MakeRow<ExpressionStrCalcUnitFunctionNode>(FunctionGroup::Conversion, 1024),
    MakeRow<ExpressionStrToNumFunctionNode>(FunctionGroup::Conversion, 1054),
    MakeRow<ExpressionSumFunctionNode>(FunctionGroup::Arithmetic, 1025),
    MakeRow<ExpressionMinFunctionNode>(FunctionGroup::Statistical, 1026),
    MakeRow<ExpressionMaxFunctionNode>(FunctionGroup::Statistical, 1027),
    MakeRow<ExpressionAvgFunctionNode>(FunctionGroup::Statistical, 1028),
    MakeRow<ExpressionSqrtFunctionNode>(FunctionGroup::Arithmetic, 1029),
    MakeRow<ExpressionAbsFunctionNode>(FunctionGroup::Arithmetic, 1032),
    MakeRow<ExpressionPowerFunctionNode>(FunctionGroup::Arithmetic, 1044),
    MakeRow<ExpressionNthRootFunctionNode>(FunctionGroup::Arithmetic, 1045),
    MakeRow<ExpressionModFunctionNode>(FunctionGroup::Arithmetic, 1046),
    MakeRow<ExpressionLogFunctionNode>(FunctionGroup::Arithmetic, 1047),
    MakeRow<ExpressionSignFunctionNode>(FunctionGroup::Arithmetic, 1048),
    MakeRow<ExpressionMRoundFunctionNode>(FunctionGroup::Arithmetic, 1050),
    MakeRow<ExpressionMRoundDownFunctionNode>(FunctionGroup::Arithmetic, 1051),
    MakeRow<ExpressionMRoundUpFunctionNode>(FunctionGroup::Arithmetic, 1052),
    MakeRow<ExpressionRoundFunctionNode>(FunctionGroup::Arithmetic, 1030),
    MakeRow<ExpressionRoundDownFunctionNode>(FunctionGroup::Arithmetic, 1031),
    MakeRow<ExpressionRoundUpFunctionNode>(FunctionGroup::Arithmetic, 1049),
    MakeRow<ExpressionExpFunctionNode>(FunctionGroup::Arithmetic, 1041),
    MakeRow<ExpressionLnFunctionNode>(FunctionGroup::Arithmetic, 1042),
    MakeRow<ExpressionLog10FunctionNode>(FunctionGroup::Arithmetic, 1043),
    MakeRow<ExpressionQuotientFunctionNode>(FunctionGroup::Arithmetic, 1053),
    MakeRow<ExpressionSineFunctionNode>(FunctionGroup::Trigonometric, 1033),
    MakeRow<ExpressionCosineFunctionNode>(FunctionGroup::Trigonometric, 1034),
    MakeRow<ExpressionTangentFunctionNode>(FunctionGroup::Trigonometric, 1035),
    MakeRow<ExpressionCotangentFunctionNode>(FunctionGroup::Trigonometric, 1036),
    MakeRow<ExpressionArcSineFunctionNode>(FunctionGroup::Trigonometric, 1037),
    MakeRow<ExpressionArcCosineFunctionNode>(FunctionGroup::Trigonometric, 1038),
    MakeRow<ExpressionArcTangentFunctionNode>(FunctionGroup::Trigonometric, 1039),
    MakeRow<ExpressionArcCotangentFunctionNode>(FunctionGroup::Trigonometric, 1040),
    MakeRow<ExpressionAndFunctionNode>(FunctionGroup::Logical, 1001),
    MakeRow<ExpressionOrFunctionNode>(FunctionGroup::Logical, 1002),
    MakeRow<ExpressionXorFunctionNode>(FunctionGroup::Logical, 1005),
    MakeRow<ExpressionNotFunctionNode>(FunctionGroup::Logical, 1003),
    MakeRow<ExpressionIfFunctionNode>(FunctionGroup::Logical, 1004),
    MakeRow<ExpressionIfsFunctionNode>(FunctionGroup::Logical, 1057),
    MakeRow<ExpressionIsUndefinedFunctionNode>(FunctionGroup::Logical, 1055),
};

class FunctionRegistrar {
 public:
  FunctionRegistrar() {
    for (const FunctionRow& row : Functions) {
      GetFunctionNodeRegistry().RegisterFunctionName(TW::UniString(row.keyword), row.classInfo, row.group,
                                                     row.helpResId);
    }
  }
};

const FunctionRegistrar registrar;

}  // namespace
}  // namespace QX
