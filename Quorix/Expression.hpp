#pragma once

#include "EP/LocaleSettings.hpp"
#include "Localization/PoDictionary.hpp"
#include "Quorix/Export.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "Quorix/ExpressionNodes/ExpressionNode.hpp"
#include "Quorix/ExpressionString.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "Quorix/GuidMapper.hpp"
#include "Quorix/VersionNumber.hpp"
#include "TW/Array.hpp"
#include "TW/Frame.hpp"
#include "TW/Guid.hpp"
#include "TW/Object.hpp"
#include "TW/Ref.hpp"

namespace QX {

/// A formula: the owner of its tree. An expression without a tree is invalid, as after a text that is no formula.
///
/// Any number of threads may use the constant operations of one expression at once.
class QX_EXPORT Expression : public TW::Object {
 public:
  static TW::ClassInfo classInfo;
  static TW::Ref<TW::Object> ConstructorFunction();

  Expression() = default;
  /// Shares the tree.
  explicit Expression(TW::Ref<ExpressionNode> root) : root_(std::move(root)) {}
  /// Makes a deep copy.
  Expression(const Expression& other);
  Expression(Expression&& other) noexcept = default;
  ~Expression() override;
  Expression& operator=(const Expression& other);
  Expression& operator=(Expression&& other) noexcept = default;

  const TW::ClassInfo* GetClassInfo() const override { return &classInfo; }

  /// Makes this a deep copy of `other`, by storing and reading it; should one of the two fail, this holds whatever was
  /// read.
  void CopyFrom(const Expression& other);

  /// Whether there is a tree.
  bool IsValid() const { return static_cast<bool>(root_); }
  /// The root of the tree, or null; it lives as long as the expression holds the tree.
  const ExpressionNode* GetRoot() const { return root_.Get(); }

  /// Computes the value; invalid when there is no tree. Throws an `ExpressionSemanticException` that names the node at
  /// fault.
  ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const;
  /// Whether all referenced properties can be evaluated, or else the host's reason against the first that cannot.
  EvaluableStatus GetEvaluableStatus(const IExpressionEvaluationEnv& env) const;
  /// Whether both expressions read the same in the system's locale.
  bool IsEqual(const Expression& other) const;
  /// Whether every node was available in that version of the language; true without a tree.
  bool IsValidInVersion(const VersionNumber& version) const;

  /// The text in the given separators, with the range of every node. Throws `ExpressionInvalidArgumentNumber` where an
  /// operator lacks operands, which only a stored formula can.
  ExpressionString GetExpressionString(const EP::IParsingLocaleSettings& settings) const;

  /// These three throw `TW::NullReferenceException` when there is no tree.
  void CollectReferencedProperties(IExpressionReferenceCollector& collector) const;
  void RestorePropertyReferences(const IGuidMapper& mapper);
  void Translate(Localization::PoDictionary& dictionary, const TW::UniString& context);

  /// Whether the properties that the formula refers to lead into a cycle; then `cyclePath`, unless it is null, receives
  /// the way into it, which ends with the property that closes it. Without a tree there is none.
  bool ContainsCycle(const IExpressionReferenceResolver& resolver, TW::Array<TW::Guid>* cyclePath) const;

  /// Reads a stored expression in place of this one. A frame of another version is passed over and changes nothing.
  /// Throws `TW::ClassCastException` when what is stored is no formula.
  TW::ErrCode Read(TW::IChannel& channel) override;
  TW::ErrCode Write(TW::OChannel& channel) const override;

  /// Reads a formula from the text in which formulas are stored, whatever the user's locale. A text that is no formula
  /// gives an invalid expression.
  static Expression CreateFromIOString(const TW::UniString& text);

 private:
  TW::ErrCode WriteVersion1(TW::OChannel& channel) const;

  TW::Ref<ExpressionNode> root_;
};

}  // namespace QX
