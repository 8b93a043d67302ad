// A formula on its way into a file and back: as bytes, which keep the whole tree, and as text, which people can read.

#include "Quorix/Quorix.hpp"
#include "TW/MemoryChannel.hpp"

#include <cstdio>
#include <span>
#include <vector>

namespace {

const QX::EvaluationLocaleSettings english('.', ',', 0);
const QX::EvaluationLocaleSettings german(',', ';', 0);

// What is on the screen of a user whose decimal separator is a comma.
void Show(const char* what, const QX::Expression& formula) {
  std::printf("%-12s %s\n", what, formula.GetExpressionString(german).GetFullString().ToUtf8().c_str());
}

std::vector<std::byte> Store(const QX::Expression& formula) {
  TW::MemoryOChannel channel;
  formula.Write(channel);
  return channel.TakeBytes();
}

// Gives the error code, and leaves `formula` invalid where there is one.
TW::ErrCode Read(std::span<const std::byte> bytes, QX::Expression& formula) {
  TW::MemoryIChannel channel(bytes);
  const TW::ErrCode error = formula.Read(channel);
  if (error != TW::NoErr) formula = QX::Expression();
  return error;
}

}  // namespace

int main() {
  QX::SyntaxTreeBuilder builder;
  const QX::Expression typed(
      EP::BoostGenerateSyntaxTree<QX::SyntaxTreeBuilder>(u"max(1,50 m; 120 cm) * 2", german, builder));
  Show("typed:", typed);

  const std::vector<std::byte> bytes = Store(typed);
  QX::Expression read;
  const TW::ErrCode error = Read(bytes, read);
  std::printf("%zu bytes, error %d, %s\n", bytes.size(), error, read.IsEqual(typed) ? "the same" : "another");
  Show("from bytes:", read);

  const TW::UniString text = typed.GetExpressionString(english).GetFullString();
  std::printf("as text:     %s\n", text.ToUtf8().c_str());
  Show("from text:", QX::Expression::CreateFromIOString(text));

  const TW::ErrCode cut = Read(std::span(bytes).first(bytes.size() / 2), read);
  std::printf("half of it:  error %d, %s\n", cut, read.IsValid() ? "a formula" : "no formula");
  return 0;
}
