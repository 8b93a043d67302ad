#include "Host/Ifc/IfcModel.hpp"
#include "IfcText.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using Host::IfcModel;

// Asks for everything that a model has.
std::size_t ReadAll(std::string text) {
  const IfcModel model(Host::StepFile::FromText(std::move(text)));
  std::size_t count = 0;
  for (IfcModel::Element i = 0; i < model.GetElementCount(); ++i) {
    count += model.GetName(i).GetLength() + model.GetTypeName(i).GetLength() + model.GetStorey(i).GetLength();
    count += model.GetTag(i).GetLength() + model.GetGlobalId(i).GetLength();
    model.ForEachProperty(i, [&](IfcModel::Key key, IfcModel::Place place) {
      count += model.GetPropertyName(key).GetLength() + (model.ReadValue(place).value.IsValid() ? 1 : 0);
    });
  }
  for (const Host::StepMessage& message : model.GetMessages().GetList()) count += message.GetMessage().GetLength();
  return count;
}

TEST(BrokenModel, EndsAnywhere) {
  const std::string text = IfcText::Wrap(IfcText::House);
  const std::size_t whole = ReadAll(text);
  for (std::size_t length = 0; length < text.size(); ++length) {
    const IfcModel model(Host::StepFile::FromText(text.substr(0, length)));
    // The last line break is all that may be missing without harm.
    EXPECT_EQ(model.GetMessages().GetCount() == 0, length == text.size() - 1) << length;
    ReadAll(text.substr(0, length));
  }
  EXPECT_GT(whole, 300U);
}

TEST(BrokenModel, HasAnyByteAnywhere) {
  const std::string text = IfcText::Wrap(IfcText::House);
  constexpr std::string_view Bytes = "'();,#$*./\\\"=0X \n\xFF";
  std::mt19937 random(1);
  for (std::size_t at = 0; at < text.size(); ++at) {
    std::string changed = text;
    changed[at] = Bytes[random() % Bytes.size()];
    ReadAll(changed);
    changed[at] = static_cast<char>(text[at] ^ (1 << random() % 8));
    ReadAll(changed);
    changed.erase(at, 1 + random() % 5);
    ReadAll(changed);
  }
}

TEST(BrokenModel, RefersToAnything) {
  std::mt19937 random(2);
  std::string text = IfcText::Wrap(IfcText::House);
  for (int round = 0; round < 500; ++round) {
    std::string changed = text;
    for (std::size_t at = changed.find('#'); at != std::string::npos; at = changed.find('#', at + 1))
      if (at > 0 && changed[at - 1] != '\n' && random() % 4 == 0)
        changed[at + 1] = static_cast<char>('1' + random() % 9);
    ReadAll(changed);
  }
}

TEST(BrokenModel, RelatesEverythingToEverything) {
  std::string objects;
  std::string instances = "#1=IFCWALL('w',$,$,$,$,$,$,$,$);\n#2=IFCPROPERTYSET('s',$,'S',$,());\n";
  for (int i = 0; i < 20'000; ++i) objects += i == 0 ? "#1" : ",#1";
  instances +=
      "#3=IFCRELDEFINESBYPROPERTIES('r',$,$,$,(" + objects + "),IFCPROPERTYSETDEFINITIONSET((" + objects + ")));\n";
  const IfcModel model(Host::StepFile::FromText(IfcText::Wrap(instances)));
  EXPECT_EQ(model.GetElementCount(), 0U);
}

}  // namespace
