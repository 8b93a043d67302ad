#include "Quorix/ExpressionNodes/ExpressionNodeOperations.hpp"
#include "Quorix/Golden.hpp"

#include <cstdlib>
#include <set>
#include <sstream>

namespace {

using QX::Expression;

void AddMissingFiles() {
  for (const GoldenFormula& formula : ReadGoldenFormulas()) {
    if (std::filesystem::exists(formula.GetPath())) continue;
    const StoredBytes bytes = Store(ParseFormula(formula.text));
    std::ofstream file(formula.GetPath(), std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.flush()) << formula.name;
  }
}

TEST(Golden, StoredFormulasAreReadForEver) {
  if (std::getenv("QX_ADD_GOLDEN") != nullptr) AddMissingFiles();
  TestHost host;
  FormulaWords::AddPropertiesTo(host);
  for (const GoldenFormula& formula : ReadGoldenFormulas()) {
    Expression read;
    ASSERT_EQ(ReadStored(ReadGoldenBytes(formula), read), TW::NoErr) << formula.name;
    EXPECT_EQ(Render(read), formula.text) << formula.name;
    EXPECT_EQ(Evaluate(read, host), Evaluate(ParseFormula(formula.text), host)) << formula.name;
  }
}

TEST(Golden, EveryFileHasItsLine) {
  std::set<std::string> names;
  for (const GoldenFormula& formula : ReadGoldenFormulas()) {
    EXPECT_TRUE(names.insert(formula.name).second) << formula.name << " is there twice";
  }
  for (const auto& entry : std::filesystem::directory_iterator(QX_GOLDEN_FOLDER)) {
    EXPECT_TRUE(entry.path().extension() != ".bin" || names.contains(entry.path().stem())) << entry.path();
  }
}

TEST(Golden, EveryKindOfNodeIsThere) {
  std::set<TW::Guid> kinds;
  for (const GoldenFormula& formula : ReadGoldenFormulas()) {
    const Expression read = ParseFormula(formula.text);
    read.GetRoot()->EnumerateRecursive(
        [&kinds](const QX::ExpressionNode* node) { kinds.insert(node->GetClassInfo()->GetGuid()); });
  }
  QX::EnumerateExpressionNodeTypes([&kinds](const TW::Ref<QX::ExpressionNode>& node) {
    const TW::ClassInfo* info = node->GetClassInfo();
    EXPECT_TRUE(kinds.contains(info->GetGuid())) << info->GetName() << " is in no stored formula";
  });
}

// The bytes of the example in the page about the format: hexadecimal digits up to a bar, line by line.
StoredBytes ReadExampleOfThePage() {
  std::ifstream page(QX_PERSISTENCE_PAGE);
  StoredBytes bytes;
  bool inside = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("```")) inside = line == "```hex";
    std::istringstream digits(inside ? line.substr(0, line.find('|')) : "");
    unsigned int byte = 0;
    while (digits >> std::hex >> byte) bytes.push_back(static_cast<std::byte>(byte));
  }
  return bytes;
}

TEST(PersistencePage, ShowsWhatIsReallyStored) {
  const StoredBytes example = ReadExampleOfThePage();
  EXPECT_EQ(example, Store(ParseFormula(u"0.5 m + 3")));
  Expression read;
  ASSERT_EQ(ReadStored(example, read), TW::NoErr);
  EXPECT_EQ(Render(read), u"0.5 m + 3");
}

}  // namespace
