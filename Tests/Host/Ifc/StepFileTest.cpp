#include "Host/Ifc/StepFile.hpp"
#include "Host/Ifc/StepStatements.hpp"
#include "IfcText.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace {

using Host::StepCursor;
using Host::StepFile;
using Host::StepKind;
using Host::StepValue;

// One letter for each argument; what is nested in brackets of its own.
std::string Show(StepCursor cursor) {
  std::string shown;
  for (StepValue value = cursor.Next(); value.kind != StepKind::End; value = cursor.Next()) {
    shown += "EB$*irtbe#LT"[static_cast<int>(value.kind)];
    if (value.kind == StepKind::Broken) break;
    if (value.kind == StepKind::List || value.kind == StepKind::Typed)
      shown += "(" + Show(StepCursor(value.inside)) + ")";
  }
  return shown;
}

TEST(StepCursor, ReadsArgumentsOfEveryKind) {
  const std::pair<const char*, const char*> rows[] = {
      {")", ""},
      {"$,*,1,-2.,+3.E-5,'a',\"0F\",.T.,#12)", "$*irrtbe#"},
      {" $ ,\n * /* , ) */ , 'a,)''b;' )", "$*t"},
      {"(),(1,(2.,'x')),IFCLABEL('a'))", "L()L(iL(rt))T(t)"},
      {"IFCLABEL ( '(' ) , 1)", "T(t)i"},
      {"(')','/*'),/*)*/1)", "L(tt)i"},
      {"", "B"},
      {"1", "iB"},
      {"1 2)", "iB"},
      {"1,)", "iB"},
      {",1)", "B"},
      {"'a", "B"},
      {"'a''", "B"},
      {".T", "B"},
      {"..)", "B"},
      {"#)", "B"},
      {"%)", "B"},
      {"ABC)", "B"},
      {"((1);", "L(L(i)B)B"},
      {"#99999999999999999999)", "#"},
  };
  for (const auto& [text, shown] : rows) EXPECT_EQ(Show(StepCursor(text)), shown) << text;
}

TEST(StepCursor, ReadsNumbersAsTheyAreWritten) {
  const std::pair<const char*, double> rows[] = {
      {"1.)", 1},   {"-1.E-009)", -1e-9}, {"+2.5E1)", 25}, {"1.E400)", NAN}, {"-1.E-400)", -0.0},
      {"007)", 7},  {"1.5e3)", 1500},     {"--1)", NAN},   {"1.2.3)", NAN},  {"-)", NAN},
      {"1E)", NAN}, {"'1')", NAN},        {"+-1)", NAN},   {"1-1)", NAN},
  };
  for (const auto& [text, number] : rows) {
    const TW::Optional<double> read = StepCursor(text).Next().GetNumber();
    EXPECT_EQ(read.has_value(), !std::isnan(number)) << text;
    EXPECT_EQ(read.value_or(0), std::isnan(number) ? 0 : number) << text;
  }
}

TEST(StepFile, IndexesInstancesHoweverTheyAreWritten) {
  const StepFile file = StepFile::FromText(
      IfcText::Wrap("#5=A(1);#3 = b\n(2) ; /* #4=C(9); */ "
                    "#18446744073709551615=C('x;\n''#7=A(8);',3);\n#9=(A(1)B(2));\n#8=A(/*;*/4)/*)*/;",
                    "ifc2x3"));
  EXPECT_EQ(file.GetMessages().GetCount(), 0U);
  EXPECT_EQ(file.GetSchema(), "IFC2X3");
  EXPECT_EQ(file.GetIndex().GetCount(), 5U);
  const std::pair<const char*, const char*> rows[] = {
      {"#5)", "A i"},
      {"#3)", "B i"},
      {"#18446744073709551615)", "C ti"},
      {"#9)", " B"},
      {"#8)", "A i"},
      {"#4)", ""},
      {"#7)", ""},
      {"#0)", ""},
      {"$)", ""},
      {"#18446744073709551617)", ""},
  };
  for (const auto& [reference, shown] : rows) {
    const auto place = file.Find(StepCursor(reference).Next());
    EXPECT_EQ(place ? file.GetClasses().GetName(file.GetClass(*place)) + " " + Show(file.GetArguments(*place)) : "",
              shown)
        << reference;
  }
}

TEST(StepFile, FindsInstancesOfSparseAndUnorderedNumbers) {
  std::string data;
  std::vector<std::uint64_t> ids;
  for (std::uint64_t i = 1; i < 3000; ++i) ids.push_back(i % 7 == 0 ? i << 50 : (i * 7919) % 100'003 + 1);
  for (const std::uint64_t id : ids) data += "#" + std::to_string(id) + "=A(" + std::to_string(id) + ");\n";
  const StepFile file = StepFile::FromText(IfcText::Wrap(data));
  EXPECT_EQ(file.GetMessages().GetCount(), 0U);
  for (const std::uint64_t id : ids) {
    const auto place = file.Find({StepKind::Reference, {}, id, {}});
    ASSERT_TRUE(place) << id;
    EXPECT_EQ(file.GetArguments(*place).Next().text, std::to_string(id));
  }
}

TEST(StepFile, TellsWhatIsWrongAndWhere) {
  const std::string start = "ISO-10303-21;\nHEADER;\nENDSEC;\n";
  const std::string end = "ENDSEC;\nEND-ISO-10303-21;";
  const std::pair<std::string, const char*> rows[] = {
      {"", "line 1: This is not a STEP file"},
      {std::string("\0\xFF\x7F", 3), "line 1: This is not a STEP file"},
      {"ISO-10303-21", "line 1: The file ends too early|line 1: There is no data section"},
      {"\xEF\xBB\xBF /* */ ISO-10303-21;DATA;ENDSEC;END-ISO-10303-21;", ""},
      {start + end, "line 5: There is no data section"},
      {start + "END-ISO-10303-21;", "line 4: There is no data section"},
      {start + "DATA;\n#1=A();\n", "line 6: The file ends too early"},
      {start + "DATA;\n#1=A();\n#2=A('", "line 6: The file ends too early"},
      {start + "DATA;\n#1=A();\n#2=A(/*", "line 6: The file ends too early"},
      {start + "DATA;\n#1=A();\nEND-ISO-10303-21;", "line 6: The file ends too early"},
      {start + "DATA;\n#1=A();\n1=A();\n#=A();\n#0=A();\n#7;\n#8=;\n#9=A;\n#10=A(1;\n" + end,
       "line 6: This is not an instance|line 7: This is not an instance|line 8: This is not an instance|"
       "line 9: #7: This is not an instance|line 10: #8: This is not an instance|line 11: #9: This is not an instance|"
       "line 12: #10: This is not an instance"},
      {start + "DATA;\n#1=A();\n#2=A();\n#1=B();\n" + end, "line 7: #1: There is an instance of this number before"},
      {start + "DATA;\n#99999999999999999999=A();\n" + end, "line 5: The number of the instance is too large"},
      {start + "DATA('x');#1=A();ENDSEC;DATA;#2=A();" + end, ""},
  };
  for (const auto& [text, messages] : rows) {
    EXPECT_EQ(IfcText::ShowMessages(StepFile::FromText(text).GetMessages()), messages) << text;
  }
}

TEST(StepFile, KeepsTheFirstMessagesOfMany) {
  std::string data;
  for (int i = 0; i < 1000; ++i) data += "?;\n";
  const StepFile file = StepFile::FromText(IfcText::Wrap(data));
  EXPECT_EQ(file.GetMessages().GetCount(), 1000U);
  EXPECT_EQ(file.GetMessages().GetList().size(), Host::StepMessages::MaximumCount);
  EXPECT_EQ(file.GetMessages().GetList().back().line, 106U);
}

TEST(StepFile, TellsOfAFileThatIsNotThere) {
  for (const char* path : {"/nowhere/at/all.ifc", "/"}) {
    const StepFile file = StepFile::Read(path);
    ASSERT_TRUE(file.GetMessages().HasFatal());
    EXPECT_EQ(IfcText::ShowMessages(file.GetMessages()), "The file cannot be read");
  }
}

// What is nested, repeated or long without end takes time by its length only.
TEST(StepFile, PassesOverHostileTexts) {
  constexpr std::size_t Length = 4'000'000;
  const auto repeat = [](std::string_view piece) {
    std::string text;
    while (text.size() < Length) text += piece;
    return text;
  };
  for (const std::string& data :
       {"#1=A(" + std::string(Length, '(') + ");\n", "#1=A(" + repeat("'',") + "1);\n",
        "#1=" + std::string(Length, 'A') + "(1);\n", "#" + std::string(Length, '1') + "=A();\n", repeat("#1=A((;\n"),
        repeat("/*'*/'/*';"), repeat("#1=A(1);"), repeat("/;'';"), "#1=A('" + repeat("\\X2\\00") + "');"}) {
    const StepFile file = StepFile::FromText(IfcText::Wrap(data));
    for (StepFile::Place place = 0; place < file.GetIndex().GetCount(); ++place) {
      StepCursor cursor = file.GetArguments(place);
      cursor.Next().GetText();
      cursor.NextAfter(UINT32_MAX);
    }
  }
}

}  // namespace
