#pragma once

#include "EP/Parser.hpp"
#include "Quorix/CalcUnitSettings.hpp"
#include "Quorix/Expression.hpp"
#include "Quorix/ExpressionNodeRegistry.hpp"
#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/ExpressionReferenceFormatUtils.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"
#include "Quorix/ExpressionUnitConverter.hpp"
#include "Quorix/ExpressionValueToString.hpp"
#include "Quorix/KeywordFinder.hpp"
#include "Quorix/LogUtils.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"
#include "Quorix/QuorixMain.hpp"
#include "Quorix/QuorixResources.hpp"
#include "Quorix/ReferenceGraph.hpp"

/// Everything that evaluating formulas needs.
