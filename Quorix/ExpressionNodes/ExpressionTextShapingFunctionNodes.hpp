#pragma once

#include "Quorix/ExpressionNodes/ExpressionFunctionImpl.hpp"

/// The functions that reshape texts. All read every argument before they look whether any is undefined. Lengths and
/// positions count 16-bit units, positions from 1. A result of 2^32 units or more throws `std::bad_alloc`.

namespace QX {

/// The text without white space at its ends; of white space within, the first character of each run stays.
class QX_EXPORT ExpressionTrimFunctionNode final : public ExpressionCountedFunctionImpl<ExpressionTrimFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionTrimFunctionNode", "{62F83102-A5F9-4110-9A95-7E2E03F98919}",
                                             u"TRIM"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

class QX_EXPORT ExpressionLowerFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionLowerFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionLowerFunctionNode", "{EADBC079-AC15-4AB1-BB29-355E636581A7}",
                                             u"LOWER"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

class QX_EXPORT ExpressionUpperFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionUpperFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionUpperFunctionNode", "{98AFF6B3-420F-4416-8E72-4F283B66AB92}",
                                             u"UPPER"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// All texts in a row.
class QX_EXPORT ExpressionConcatenationFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionConcatenationFunctionNode, 1, AnyNumberOfArguments> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionConcatenationFunctionNode",
                                             "{399AB392-7D5C-47F0-9EDC-FBBED7BEF31D}", u"CONCAT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Delimiter, whether to leave out empty texts, and the texts to join.
class QX_EXPORT ExpressionTextJoinFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionTextJoinFunctionNode, 3, AnyNumberOfArguments> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionTextJoinFunctionNode", "{C2C05309-3649-43BE-A391-2CB01D06C0CA}",
                                             u"TEXTJOIN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text and the count of units from its start.
class QX_EXPORT ExpressionLeftFunctionNode final : public ExpressionCountedFunctionImpl<ExpressionLeftFunctionNode, 2> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionLeftFunctionNode", "{FBEFBD12-7457-49D7-85EC-50D4881B91DC}",
                                             u"LEFT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text, position of the first unit and count of units.
class QX_EXPORT ExpressionMidFunctionNode final : public ExpressionCountedFunctionImpl<ExpressionMidFunctionNode, 3> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionMidFunctionNode", "{E2D9B587-B7DE-4E74-851E-D918F14AFAE1}",
                                             u"MID"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text and the count of units up to its end.
class QX_EXPORT ExpressionRightFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionRightFunctionNode, 2> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionRightFunctionNode", "{4BD9754D-5262-4B1B-A1B6-29C08DDF7637}",
                                             u"RIGHT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// Text and how often it stands in a row.
class QX_EXPORT ExpressionRepeatFunctionNode final
    : public ExpressionCountedFunctionImpl<ExpressionRepeatFunctionNode, 2> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionRepeatFunctionNode", "{3C60EDA3-EDC2-41BF-B202-56944AEC3F8C}",
                                             u"REPT"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

/// The count of units.
class QX_EXPORT ExpressionLenFunctionNode final : public ExpressionCountedFunctionImpl<ExpressionLenFunctionNode, 1> {
 public:
  static constexpr FunctionIdentity Identity{"ExpressionLenFunctionNode", "{F18089D6-C948-432A-AB88-B9C74CB80105}",
                                             u"LEN"};
  static TW::ClassInfo classInfo;
  static const TW::UniString functionName;
  ExpressionValue EvaluateInternal(const IExpressionEvaluationEnv& env, const Arguments& arguments) const override;
};

}  // namespace QX
