#include "Host/FormulaReader.hpp"

#include "EP/SyntaxErrorException.hpp"
#include "EP/SyntaxTree.hpp"
#include "Quorix/ExpressionSyntaxTreeBuilder.hpp"

namespace Host {

ReadFormula ReadFormulaWithNames(std::u16string_view typed, const EP::IParsingLocaleSettings& settings,
                                 const PropertyCatalog& catalog) {
  ReadFormula read;
  read.error = read.text.Resolve(typed, settings, catalog);
  if (read.error) return read;
  QX::SyntaxTreeBuilder builder;
  try {
    read.expression = QX::Expression(EP::BoostGenerateSyntaxTree(read.text.GetText(), settings, builder));
  } catch (const EP::SyntaxErrorException& error) {
    const unsigned int begin = error.GetPosition();
    read.error = FormulaError{FormulaErrorKind::Syntax,
                              read.text.ToTypedRange({begin, begin + error.GetLength()}),
                              error.ToString(),
                              error.GetReason(),
                              {}};
  }
  return read;
}

}  // namespace Host
