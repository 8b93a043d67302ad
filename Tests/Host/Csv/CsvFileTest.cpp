#include "Host/Csv/CsvFile.hpp"
#include "Host/Problems.hpp"

#include <gtest/gtest.h>

namespace {

using Host::CsvFile;

// The names and cells, each in brackets, a row a line.
std::string Show(const CsvFile& file) {
  std::string text;
  for (CsvFile::Column column = 0; column < file.GetColumnCount(); ++column) {
    text += "[" + file.GetName(column).ToUtf8() + "]";
  }
  for (CsvFile::Row row = 0; row < file.GetRowCount(); ++row) {
    text += "\n";
    for (CsvFile::Column column = 0; column < file.GetColumnCount(); ++column) {
      text += "[" + file.GetCell(row, column).ToUtf8() + "]";
    }
  }
  return text;
}

struct Row {
  std::string text;
  std::string cells;
  std::vector<std::string> problems;
};

void Check(const Row& row) {
  const CsvFile file = CsvFile::FromText(row.text);
  EXPECT_EQ(Show(file), row.cells) << row.text;
  ExpectProblems(file.GetProblems(), row.problems, row.text);
}

TEST(CsvFile, ReadsCells) {
  const Row rows[] = {
      {"a,b\n1,2\n", "[a][b]\n[1][2]", {}},
      {"\xEF\xBB\xBF"
       "a;b\r\n1;2",
       "[a][b]\n[1][2]",
       {}},
      {"a\tb\r1,5\t2\r", "[a][b]\n[1,5][2]", {}},
      {" a ,\" b \"\n x , y ", "[a][b]\n[ x ][ y ]", {}},
      {"a\n1\n\n  \n2\n\n", "[a]\n[1]\n[2]", {}},
      {"\n,,\n a,b,c\n,,\n,1,\n", "[a][b][c]\n[][1][]", {}},
      {"a,b\n\"1,\"\"2\"\"\",\"line\r\nbreak\"\n", "[a][b]\n[1,\"2\"][line\r\nbreak]", {}},
      {"a,b\n\"\",\"\"\n", "[a][b]\n[][]", {}},
      {"a,b\n\"\"\"\",x\n", "[a][b]\n[\"][x]", {}},
      {"a,b\n5 1/2\",6' 2\"\n", "[a][b]\n[5 1/2\"][6' 2\"]", {}},
      {"a,b\n1,2,,\n", "[a][b]\n[1][2]", {}},
      {"Größe,名\nä,\xF0\x9F\x98\x80\n", "[Größe][名]\n[ä][\xF0\x9F\x98\x80]", {}},
      // The separator is the most frequent one of the first row.
      {"\"a,b,c\";d\n1;2", "[a,b,c][d]\n[1][2]", {}},
      {"a;b,c\n1;2", "[a][b,c]\n[1][2]", {}},
      {"a,b,c;d\n1,2,3", "[a][b][c;d]\n[1][2][3]", {}},
      {"a b\n1", "[a b]\n[1]", {}},
      // UTF-16
      {std::string("\xFF\xFE"
                   "a\0;\0b\0\n\0\xE4\0;\0\x3D\xD8\x00\xDE",
                   18),
       "[a][b]\n[ä][\xF0\x9F\x98\x80]",
       {}},
      {std::string("\xFE\xFF\0a\0\n\0b", 8), "[a]\n[b]", {}},
  };
  for (const Row& row : rows) Check(row);
}

TEST(CsvFile, TellsWhatIsWrong) {
  Resources::SetLanguage("en");
  const Row rows[] = {
      {"", "", {"1:1 There is no line with the names of the columns."}},
      {"\n,,\n", "", {"1:1 There is no line with the names of the columns."}},
      {"a,b\n\"ä\",x\n1,\xE4\n", "", {"3:3 This is no text in UTF-8. Save the file"}},
      {std::string("a\n1\0\n", 5), "", {"2:2 A byte 0 stands here"}},
      {"\xFF\xFE"
       "a",
       "",
       {"1:1 This is no text in UTF-16. Save the file"}},
      {std::string("\xFF\xFE"
                   "a\0\n\0\0\xDC",
                   8),
       "",
       {"2:1 This is no text in UTF-16."}},
      {"a,\"b\"c\n1,2", "", {"1:6 The quotation marks in the line with the names"}},
      {"a,\"b\n1,2", "", {"1:3 The quotation marks in the line with the names"}},
      {"a,,b, ,a\n1,2,3,4,5",
       "[a][][b][][a]\n[1][2][3][4][5]",
       {"1:3 The column has no name", "1:8 There is a column \"a\" before, which is used."}},
      {"a,b,c\n1\n1,2,3\n\"4\n4\",5",
       "[a][b][c]\n[1][][]\n[1][2][3]\n[4\n4][5][]",
       {"2:1 The row has 1 of 3 cells.", "4:1 The row has 2 of 3 cells."}},
      {"a,b\n1,2,3\n4,5\n6,7,,8\n",
       "[a][b]\n[4][5]",
       {"2:5 The row has more cells than the 2 columns and is left out.", "4:6 The row has more"}},
      // Quotation marks that do not fit cost a row, and no more.
      {"a,b\n\"1\"x,\"2\n2\"\n3,4", "[a][b]\n[3][4]", {"2:4 Something follows the closing quotation mark"}},
      {"a,b\n1,\"2\n3,4\n5,6", "[a][b]\n[3][4]\n[5][6]", {"2:3 The quotation mark that opens here is not closed"}},
      {"a,b\n1,\"2\n3,\"\"\n\"5\",6", "[a][b]\n[3][]\n[5][6]", {"2:3 The quotation mark that opens here"}},
      {"a,b\n\"1,\"2\r\n\"3,4\r\n5,6\r\n",
       "[a][b]\n[5][6]",
       {"2:5 Something follows", "3:1 The quotation mark that opens"}},
      {"a\n\"", "[a]", {"2:1 The quotation mark that opens here"}},
  };
  for (const Row& row : rows) Check(row);
}

TEST(CsvFile, FindsColumnsAndPlaces) {
  const CsvFile file = CsvFile::FromText("Name, Width ,Name\n\"a\nb\",1 m,c\nä,ö\n");
  EXPECT_EQ(file.FindColumn(u"Name"), 0U);
  EXPECT_EQ(file.FindColumn(u"Width"), 1U);
  EXPECT_FALSE(file.FindColumn(u"width"));
  EXPECT_FALSE(file.FindColumn(u""));
  EXPECT_EQ(file.FindPlace(0, 1), (Host::TextPlace{3, 4}));
  EXPECT_EQ(file.FindPlace(1, 1), (Host::TextPlace{4, 3}));
  EXPECT_EQ(file.FindPlace(1, 2), (Host::TextPlace{4, 4})) << "a cell that is missing stands at the end";
}

// Each of these would take hours if something were scanned again and again.
TEST(CsvFile, TakesTimeByItsLength) {
  constexpr int Count = 100000;
  const char* const lines[] = {"\"a\n", "\"a,\"\"\n", "\"\"\"\n",      "a\"\n",
                               ",\n",   "\"a\"b\n",   "\"\"\"\"\"x\n", "a,\"b\n"};
  for (const char* line : lines) {
    std::string text = "a,b\n";
    for (int i = 0; i < Count; ++i) text += line;
    const CsvFile file = CsvFile::FromText(std::move(text));
    EXPECT_FALSE(file.GetProblems().HasFatal()) << line;
    EXPECT_LE(file.GetRowCount(), CsvFile::Row{Count}) << line;
  }
}

}  // namespace
