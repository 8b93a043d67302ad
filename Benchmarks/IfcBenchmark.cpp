#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/StepFile.hpp"
#include "PeakMemory.hpp"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

// Reads a model that is made up here: walls with placements, shapes, three property sets and quantities each. The
// argument is the size in MB.

namespace {

class ModelText {
 public:
  std::string Make(std::size_t size) {
    text_.reserve(size + size / 8);
    text_ = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n";
    Add("IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)");
    Add("IFCUNITASSIGNMENT((#1))");
    Add("IFCPROJECT('0000000000000000000000',$,'Model',$,$,$,$,$,#2)");
    while (text_.size() < size) AddWall();
    return std::move(text_ += "ENDSEC;\nEND-ISO-10303-21;\n");
  }

 private:
  std::string Ref(std::uint64_t back) const { return "#" + std::to_string(last_ + 1 - back); }
  void Add(const std::string& instance) { text_ += "#" + std::to_string(++last_) + "=" + instance + ";\n"; }

  void AddWall() {
    const std::string number = std::to_string(last_);
    for (int i = 0; i < 24; ++i) Add("IFCCARTESIANPOINT((" + number + ".25,-1200.5,3." + std::to_string(i) + "E2))");
    Add("IFCPOLYLINE((" + Ref(24) + "," + Ref(23) + "," + Ref(22) + "," + Ref(21) + "))");
    Add("IFCAXIS2PLACEMENT3D(" + Ref(2) + ",$,$)");
    Add("IFCLOCALPLACEMENT($," + Ref(1) + ")");
    Add("IFCWALL('1abcdefghijklm" + number + "',$,'Wall " + number + "',$,'Wall type'," + Ref(1) + ",$,'" + number +
        "',$)");
    AddSet(Ref(1), "Pset_WallCommon", "IFCLABEL('a label of usual length')");
    AddSet(Ref(12), "Dimensions", "IFCLENGTHMEASURE(2500.125)");
    Add("IFCQUANTITYLENGTH('Width',$,$,200.)");
    Add("IFCQUANTITYVOLUME('NetVolume',$,$,1.26926493526358)");
    Add("IFCELEMENTQUANTITY('2t6824I5jBS8Nb4bEPz4ly',$,'Qto_WallBaseQuantities',$,$,(" + Ref(2) + "," + Ref(1) + "))");
    Add("IFCRELDEFINESBYPROPERTIES('2t6824I5jBS8Nb4bEPz4ly',$,$,$,(" + Ref(26) + ")," + Ref(1) + ")");
  }

  void AddSet(const std::string& wall, const std::string& name, const std::string& value) {
    std::string list;
    for (int i = 0; i < 9; ++i) {
      Add("IFCPROPERTYSINGLEVALUE('Property " + std::to_string(i) + "',$," + value + ",$)");
      list += (i == 0 ? "#" : ",#") + std::to_string(last_);
    }
    Add("IFCPROPERTYSET('0z88Obo_5DahwfhHkbscpD',$,'" + name + "',$,(" + list + "))");
    Add("IFCRELDEFINESBYPROPERTIES('0z88Obo_5DahwfhHkbscpD',$,$,$,(" + wall + ")," + Ref(1) + ")");
  }

  std::string text_;
  std::uint64_t last_ = 0;
};

void Report(benchmark::State& state, std::size_t size, std::size_t before) {
  state.SetBytesProcessed(static_cast<std::int64_t>(size) * state.iterations());
  state.counters["peak bytes per byte"] = static_cast<double>(GetPeakMemory() - before) / static_cast<double>(size);
}

std::string MakeText(benchmark::State& state) {
  return ModelText().Make(static_cast<std::size_t>(state.range(0)) * 1'000'000);
}

// Copying the text takes the place of reading it from the system.
void ReadIndex(benchmark::State& state) {
  const std::string text = MakeText(state);
  const std::size_t before = ResetPeakMemory();
  for (auto _ : state) benchmark::DoNotOptimize(Host::StepFile::FromText(text));
  Report(state, text.size(), before);
}

void ReadModel(benchmark::State& state) {
  const std::string text = MakeText(state);
  const std::size_t before = ResetPeakMemory();
  for (auto _ : state) benchmark::DoNotOptimize(Host::IfcModel(Host::StepFile::FromText(text)));
  Report(state, text.size(), before);
}

void FindValues(benchmark::State& state) {
  const Host::IfcModel model(Host::StepFile::FromText(MakeText(state)));
  const auto key = model.FindKey(u"Dimensions.Property 8");
  double sum = 0;
  for (auto _ : state) {
    for (Host::IfcModel::Element i = 0; i < model.GetElementCount(); ++i)
      if (const auto value = model.FindValue(i, *key)) sum += value->value.GetIntOrNumVariantValue();
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(static_cast<std::int64_t>(model.GetElementCount()) * state.iterations());
}

BENCHMARK(ReadIndex)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadModel)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(FindValues)->Arg(20)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
