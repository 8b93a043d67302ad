#include "Host/Ifc/IfcModel.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>

namespace {

using Host::IfcKind;
using Host::IfcModel;
using Host::IfcValue;

struct Sum {
  unsigned int count;
  double total;
};

struct Row {
  const char* file;
  unsigned int elements;
  unsigned int properties;
  unsigned int quantities;
  Sum sums[8];  ///< numbers, integers, lengths, areas, volumes, angles, lengths of texts, logical values that are true
};

double GetContent(const IfcValue& value) {
  if (value.kind == IfcKind::Text) return value.value.GetAsString().GetLength();
  if (value.kind == IfcKind::Logical) return value.value.GetAsBool() ? 1 : 0;
  return value.value.GetIntOrNumVariantValue();
}

Row Count(const char* file, const IfcModel& model) {
  Row counted{file, model.GetElementCount(), 0, 0, {}};
  for (IfcModel::Element i = 0; i < model.GetElementCount(); ++i) {
    model.ForEachProperty(i, [&](IfcModel::Key, IfcModel::Place place) {
      ++(model.IsQuantity(place) ? counted.quantities : counted.properties);
      const IfcValue value = model.ReadValue(place);
      if (value.kind == IfcKind::None) return;
      Sum& sum = counted.sums[static_cast<int>(value.kind) - 1];
      ++sum.count;
      sum.total += GetContent(value);
    });
  }
  return counted;
}

// The figures were made by `python3 count_model.py FOLDER/*.ifc`, which reads the files in another way.
TEST(RealModel, HoldsWhatAnotherReaderCounts) {
  // clang-format off
  const Row rows[] = {
      {"Duplex_A.ifc", 290, 13434, 21, {{14, 8.656404199475066}, {620, 168687.0}, {1508, 2491.8252582713762}, {154, 4221.233429520556}, {131, 1655.4441171822862}, {16, 0.0}, {10216, 131432.0}, {796, 247.0}}},
      {"LargeBuilding.ifc", 187, 6273, 537, {{437, 3018.663162987361}, {57, 83.0}, {1462, 2958.866614123998}, {354, 840868064.989261}, {135, 168173275277.9614}, {6, 3.141592653589794}, {4066, 80402.0}, {291, 107.0}}},
      {"SimpleWall.ifc", 6, 178, 12, {{6, 8.37431696064396}, {4, 4.0}, {32, 40.221399999999996}, {7, 16000038.463517005}, {3, 3200000002.9293337}, {0, 0.0}, {122, 1634.0}, {16, 4.0}}},
      {"building-architecture.ifc", 19, 38, 25, {{0, 0.0}, {0, 0.0}, {11, 17.274000000000722}, {11, 171.81424871196424}, {7, 29.971819033248515}, {1, 45.0}, {12, 76.0}, {21, 7.0}}},
      {"pgsuper_materialproperties.ifc", 21, 88, 40, {{50, 643460.622842769}, {12, 48.0}, {8, 195.31568779020284}, {20, 2851.593473254139}, {10, 220.3991367334587}, {10, 0.0}, {16, 159.0}, {2, 2.0}}},
  };
  // clang-format on
  const std::filesystem::path folder = QX_MODEL_FOLDER;
  if (!std::filesystem::is_directory(folder)) GTEST_SKIP() << "no models in " << folder;
  for (const Row& row : rows) {
    const IfcModel model = IfcModel::Read((folder / row.file).string());
    ASSERT_FALSE(model.GetMessages().HasFatal()) << row.file;
    const Row counted = Count(row.file, model);
    EXPECT_EQ(counted.elements, row.elements) << row.file;
    EXPECT_EQ(counted.properties, row.properties) << row.file;
    EXPECT_EQ(counted.quantities, row.quantities) << row.file;
    for (int i = 0; i < 8; ++i) {
      EXPECT_EQ(counted.sums[i].count, row.sums[i].count) << row.file << " " << i;
      EXPECT_NEAR(counted.sums[i].total, row.sums[i].total, 1e-9 * std::abs(row.sums[i].total)) << row.file << " " << i;
    }
  }
}

}  // namespace
