#include "Quorix/Expression.hpp"

#include "EP/NormalizedParsingLocaleSettings.hpp"
#include "EP/Parser.hpp"
#include "Quorix/EvaluationLocaleSettings.hpp"
#include "Quorix/ExpressionSemanticExceptions.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"
#include "Quorix/PropertyDirectReferenceCollector.hpp"
#include "Quorix/ReferenceGraph.hpp"
#include "TW/MemoryChannel.hpp"

namespace QX {
namespace {

constexpr unsigned short StoredVersion = 1;

class Renderer final : public IExpressionStringBuilder {
 public:
  explicit Renderer(const EP::IParsingLocaleSettings& settings) : settings_(settings) {}

  const EP::IParsingLocaleSettings& GetLocaleSettings() const override { return settings_; }
  void AppendString(const TW::UniString& text, const ExpressionNode* node) override { string_.Append(text, node); }
  ExpressionString TakeString() { return std::move(string_); }

 private:
  EP::NormalizedParsingLocaleSettings settings_;
  ExpressionString string_;
};

TW::ErrCode ReadVersion1(TW::IChannel& channel, TW::Ref<ExpressionNode>& root) {
  bool hasRoot = false;
  if (const TW::ErrCode error = channel.ReadBool(hasRoot); error != TW::NoErr) return error;
  TW::Ref<TW::TreeNode> tree;
  if (hasRoot) {
    const TW::ErrCode error = TW::TreeNode::ReadDynamic(channel, tree, EP::MaximumNestingDepth);
    if (error != TW::NoErr) return error;
  }
  root = tree.CheckedCast<ExpressionNode>();
  return TW::NoErr;
}

}  // namespace

TW::ClassInfo Expression::classInfo("Expression", "{8776168B-0953-4610-8348-E71D9822BC69}", StoredVersion,
                                    &TW::Object::classInfo, &Expression::ConstructorFunction);

TW::Ref<TW::Object> Expression::ConstructorFunction() { return TW::MakeRef<Expression>(); }

Expression::~Expression() = default;

Expression::Expression(const Expression& other) : Object(other) { CopyFrom(other); }

Expression& Expression::operator=(const Expression& other) {
  if (this != &other) CopyFrom(other);
  return *this;
}

void Expression::CopyFrom(const Expression& other) {
  TW::MemoryOChannel out;
  other.Write(out);
  TW::MemoryIChannel in(out.GetBytes());
  Expression::Read(in);
}

ExpressionValue Expression::Evaluate(const IExpressionEvaluationEnv& env) const {
  return root_ ? root_->Evaluate(env) : ExpressionValue::CreateInvalid();
}

EvaluableStatus Expression::GetEvaluableStatus(const IExpressionEvaluationEnv& env) const {
  if (!root_) return EvaluableStatus::Evaluable;
  PropertyDirectReferenceCollector collector;
  CollectReferencedProperties(collector);
  for (const TW::Guid& propertyId : collector.GetReferencedProperties()) {
    const EvaluableStatus status = env.GetPropertyEvaluableStatus(propertyId);
    if (status != EvaluableStatus::Evaluable) return status;
  }
  return EvaluableStatus::Evaluable;
}

bool Expression::IsEqual(const Expression& other) const {
  const SystemLocaleSettings settings;
  return GetExpressionString(settings).GetFullString() == other.GetExpressionString(settings).GetFullString();
}

bool Expression::IsValidInVersion(const VersionNumber& version) const {
  bool valid = true;
  if (root_) {
    static_cast<const ExpressionNode&>(*root_).EnumerateRecursive([&](const ExpressionNode* node) {
      if (node->GetIntroductionVersion() > version) valid = false;
    });
  }
  return valid;
}

ExpressionString Expression::GetExpressionString(const EP::IParsingLocaleSettings& settings) const {
  if (!root_) return {};
  Renderer renderer(settings);
  root_->BuildExpressionString(renderer);
  return renderer.TakeString();
}

void Expression::CollectReferencedProperties(IExpressionReferenceCollector& collector) const {
  const ExpressionNode& root = *root_;
  root.EnumerateRecursive([&collector](const ExpressionNode* node) { node->CollectReferences(collector); });
}

void Expression::RestorePropertyReferences(const IGuidMapper& mapper) {
  root_->EnumerateRecursive([&mapper](ExpressionNode* node) { node->RestorePropertyReferences(mapper); });
}

void Expression::Translate(Localization::PoDictionary& dictionary, const TW::UniString& context) {
  root_->EnumerateRecursive([&](ExpressionNode* node) { node->Translate(dictionary, context); });
}

bool Expression::ContainsCycle(const IExpressionReferenceResolver& resolver, TW::Array<TW::Guid>* cyclePath) const {
  if (!root_) return false;
  PropertyDirectReferenceCollector collector;
  CollectReferencedProperties(collector);
  return FindCycleInReferenceGraph(resolver, collector.GetReferencedProperties(), cyclePath);
}

TW::ErrCode Expression::Write(TW::OChannel& channel) const {
  TW::OutputFrame frame(channel, classInfo);
  if (channel.GetOutputStatus() != TW::NoErr) return channel.GetOutputStatus();
  const TW::ErrCode error = frame.GetVersion() == StoredVersion ? WriteVersion1(channel) : TW::NoErr;
  const TW::ErrCode closing = frame.Close();
  return error != TW::NoErr ? error : closing;
}

TW::ErrCode Expression::WriteVersion1(TW::OChannel& channel) const {
  const TW::ErrCode error = channel.WriteBool(IsValid());
  if (error != TW::NoErr || !root_) return error;
  return root_->Write(channel);
}

TW::ErrCode Expression::Read(TW::IChannel& channel) {
  TW::Ref<ExpressionNode> root = root_;
  TW::InputFrame frame(channel, classInfo);
  if (frame.GetVersion() == StoredVersion) {
    if (const TW::ErrCode error = ReadVersion1(channel, root); error != TW::NoErr) return error;
  }
  // The formula is only taken when the rest of its frame is there too.
  const TW::ErrCode error = frame.Close();
  if (error == TW::NoErr) root_ = std::move(root);
  return error;
}

Expression Expression::CreateFromIOString(const TW::UniString& text) {
  SyntaxTreeBuilder builder;
  try {
    return Expression(EP::BoostGenerateSyntaxTree<SyntaxTreeBuilder>(text, EP::IOLocaleSettings(), builder));
  } catch (const EP::SyntaxErrorException&) {
    return {};
  } catch (const ExpressionSemanticException&) {
    return {};
  }
}

}  // namespace QX
