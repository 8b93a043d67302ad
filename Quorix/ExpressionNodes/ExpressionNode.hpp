#pragma once

#include "EP/LocaleSettings.hpp"
#include "EP/SyntaxTreeNode.hpp"
#include "Localization/PoDictionary.hpp"
#include "Quorix/Export.hpp"
#include "Quorix/ExpressionEvaluationEnv.hpp"
#include "Quorix/ExpressionValue.hpp"
#include "Quorix/GuidMapper.hpp"
#include "Quorix/VersionNumber.hpp"
#include "TW/Frame.hpp"
#include "TW/Guid.hpp"
#include "TW/UniString.hpp"

#include <functional>

namespace QX {

class ExpressionNode;

/// Takes the pieces of a formula's text, in order, each with the node that it comes from. What it throws passes
/// through, as does what a collector of references or a visitor throws; the nodes stay as they were.
class QX_EXPORT IExpressionStringBuilder {
 public:
  virtual ~IExpressionStringBuilder() = default;
  virtual const EP::IParsingLocaleSettings& GetLocaleSettings() const = 0;
  virtual void AppendString(const TW::UniString& text, const ExpressionNode* node) = 0;
};

/// Is told of each property reference that a tree holds.
class QX_EXPORT IExpressionReferenceCollector {
 public:
  virtual ~IExpressionReferenceCollector() = default;
  virtual void PropertyReferenceFound(const TW::Guid& propertyId) = 0;
};

/// A node of a formula's tree: a literal, a name, an operator or a call. Its operands are its children, in the order in
/// which they are written. The constant operations only read the tree, so any number of threads may use them at once.
class QX_EXPORT ExpressionNode : public EP::SyntaxTreeNode {
 public:
  static TW::ClassInfo classInfo;

  /// What kind of node of a formula a node of a tree is. No other tree is likely to choose these numbers.
  enum Kind : Family { Ordinary = 0x51580001, ArithmeticOperator, OtherBinaryOperator };

  const TW::ClassInfo* GetClassInfo() const override;

  /// The child at `index`, or null when there is none or it is no expression node.
  ExpressionNode* GetChild(unsigned int index) { return AsExpressionNode(TreeNode::GetChild(index)); }
  const ExpressionNode* GetChild(unsigned int index) const {
    return const_cast<ExpressionNode*>(this)->GetChild(index);
  }

  /// The version of the formula language in which the node's class first became available.
  virtual VersionNumber GetIntroductionVersion() const;
  /// Computes the value, evaluating children as needed. Throws an `ExpressionSemanticException` that names the node at
  /// fault.
  virtual ExpressionValue Evaluate(const IExpressionEvaluationEnv& env) const = 0;
  /// Computes the value as a quantity: the way of arithmetic, which spares the detour over values of any kind. Throws
  /// what `Evaluate` throws, and for a value that is invalid or no quantity `ExpressionInternalErrorException` or
  /// `ExpressionInvalidQuantityType`, naming `source`.
  virtual Quantity EvaluateQuantity(const IExpressionEvaluationEnv& env, const ExpressionNode* source) const;
  /// Renders the node and, through it, its children.
  virtual void BuildExpressionString(IExpressionStringBuilder& builder) const = 0;
  /// Reports the references of the node itself, not those of its children.
  virtual void CollectReferences(IExpressionReferenceCollector& collector) const;
  /// Replaces the references of the node itself.
  virtual void RestorePropertyReferences(const IGuidMapper& mapper);
  /// Translates the texts of the node itself.
  virtual void Translate(Localization::PoDictionary& dictionary, const TW::UniString& context);
  Kind GetKind() const { return static_cast<Kind>(GetFamily()); }

  /// Visits this node, then everything below it, each node before its children and children in order, to any depth.
  /// What the visitor adds to the node that it visits is visited too. Throws `std::bad_function_call` for an empty
  /// function.
  void EnumerateRecursive(const std::function<void(ExpressionNode*)>& visit);
  void EnumerateRecursive(const std::function<void(const ExpressionNode*)>& visit) const;

 protected:
  explicit ExpressionNode(Kind kind = Ordinary) : SyntaxTreeNode(kind) {}

  /// Accepts nodes of formulas only: nothing here could deal with those of other kinds of trees.
  bool AcceptsStoredChild(const TreeNode& child) const final { return IsExpressionNode(child); }

  /// Writes the frame of the node's class; `writeFields` gives the first failure of the fields of version 1.
  template <class WriteFields>
  TW::ErrCode WriteFramed(TW::OChannel& channel, WriteFields&& writeFields) const;
  /// Reads the frame of the node's class; `readFields` gives the first failure of the fields of version 1. A frame of
  /// any other version is refused before anything is read.
  template <class ReadFields>
  TW::ErrCode ReadFramed(TW::IChannel& channel, ReadFields&& readFields);
  /// The same for nodes without fields, which take any version.
  TW::ErrCode WriteEmptyFrame(TW::OChannel& channel) const;
  TW::ErrCode ReadEmptyFrame(TW::IChannel& channel);

 private:
  static bool IsExpressionNode(const TreeNode& node) {
    return node.GetFamily() >= Ordinary && node.GetFamily() <= OtherBinaryOperator;
  }
  static ExpressionNode* AsExpressionNode(TreeNode* node) {
    return node != nullptr && IsExpressionNode(*node) ? static_cast<ExpressionNode*>(node) : nullptr;
  }
};

template <class WriteFields>
TW::ErrCode ExpressionNode::WriteFramed(TW::OChannel& channel, WriteFields&& writeFields) const {
  TW::OutputFrame frame(channel, *GetClassInfo());
  const TW::ErrCode error = frame.GetVersion() == 1 ? writeFields() : TW::ErrRefused;
  const TW::ErrCode closing = frame.Close();
  return error != TW::NoErr ? error : closing;
}

template <class ReadFields>
TW::ErrCode ExpressionNode::ReadFramed(TW::IChannel& channel, ReadFields&& readFields) {
  const TW::InputFrame frame(channel, *GetClassInfo());
  if (channel.GetInputStatus() != TW::NoErr) return channel.GetInputStatus();
  return frame.GetVersion() == 1 ? readFields() : TW::ErrRefused;
}

}  // namespace QX
