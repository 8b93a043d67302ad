#include "Host/Csv/CsvFile.hpp"
#include "Host/Csv/CsvWriter.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using Host::CsvFile;
using Cells = std::vector<std::vector<TW::UniString>>;

std::string Write(const Cells& rows, char separator) {
  std::string text;
  Host::CsvWriter writer(text, separator);
  for (const auto& row : rows) {
    for (const TW::UniString& cell : row) writer.WriteCell(cell);
    writer.EndRow();
  }
  return text;
}

TEST(CsvWriter, WritesQuotesWhereTheyAreNeeded) {
  EXPECT_EQ(Write({{u"Name", u"Width, m"}, {u"5\"", u"=1+1"}, {u" a", u"ä;\n"}, {u"", u"-"}, {u"", u""}}, ','),
            "Name,\"Width, m\"\n\"5\"\"\",=1+1\n\" a\",\"ä;\n\"\n,-\n,\"\"\n");
}

RC_GTEST_PROP(CsvWriter, CsvFileReadsItBack, ()) {
  const auto columns = *rc::gen::inRange<std::size_t>(1, 5);
  const auto genCell =
      rc::gen::map(rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"ab,;\t\"\r\n '=ä\uFEFF名"))),
                   [](const std::u16string& text) { return TW::UniString(text); });
  Cells rows = *rc::gen::container<Cells>(rc::gen::container<std::vector<TW::UniString>>(columns, genCell));
  // The names are what they are but for blanks at their ends, and none is empty or comes twice.
  std::vector<TW::UniString> names;
  for (std::size_t i = 0; i < columns; ++i) {
    names.push_back((*genCell).Trim() + TW::UniString::FromInteger(static_cast<long long>(i)));
  }
  for (TW::UniString& name : names) name = u"x" + name;
  rows.insert(rows.begin(), names);

  const CsvFile file = CsvFile::FromText(Write(rows, *rc::gen::element(',', ';', '\t')));
  RC_ASSERT(file.GetProblems().GetCount() == 0U);
  RC_ASSERT(file.GetColumnCount() == columns);
  RC_ASSERT(file.GetRowCount() + std::size_t{1} == rows.size());
  for (CsvFile::Column column = 0; column < columns; ++column) {
    RC_ASSERT(file.FindColumn(names[column]) == column);
    for (CsvFile::Row row = 0; row < file.GetRowCount(); ++row) {
      RC_ASSERT(file.GetCell(row, column) == rows[row + 1][column]);
    }
  }
}

}  // namespace
