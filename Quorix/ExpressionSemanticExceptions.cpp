#include "Quorix/ExpressionSemanticExceptions.hpp"

#include "Quorix/QuorixResources.hpp"
#include "TW/ErrorCodes.hpp"

namespace QX {
namespace {

constexpr int ErrorMessageList = 106;

}  // namespace

ExpressionSemanticException::ExpressionSemanticException(const ExpressionNode* source)
    : TWException({}, {}, 0, nullptr, TW::ErrRefused), source_(source) {}

TW::UniString ExpressionSemanticException::ToString() const { return GetResourceString(ErrorMessageList, GetResIdx()); }

}  // namespace QX
