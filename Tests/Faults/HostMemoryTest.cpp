#include "Host/Ifc/IfcModel.hpp"
#include "Host/Ifc/IfcText.hpp"
#include "Host/Ifc/IfcWriter.hpp"
#include "Host/SmallModel.hpp"
#include "Resources/TemporaryFolder.hpp"
#include "Shortage.hpp"

#include <memory>

namespace {

using Host::CellStatus;
using Host::PropertyIndex;
using Host::PropertyKind;
using QX::ExpressionValue;

// Chains of numbers and texts over a dozen elements, with failures, and enough properties that tables have to grow.
struct Model : SmallModel {
  Model() {
    table.AddElements(8);
    width = Define("Sizes of walls/Width of the wall", PropertyKind::Number);
    name = Define("Names of walls/Name of the wall", PropertyKind::Text);
    free = Define("Free");
    area = DefineFormula("Area of the wall", "[Width of the wall] * 2 + 1");
    half = DefineFormula("Half of the wall", "100 / [Area of the wall]", PropertyKind::Number);
    label = DefineFormula("Label of the wall", "CONCAT([Name of the wall], \" with \", STR([Half of the wall]))");
    DefineFormula("Length of the label", "LEN([Label of the wall]) + [Width of the wall]");
    DefineFormula("Kind", "IF([Width of the wall] > 2, [Width of the wall], 2 m)");
    for (Host::ElementIndex element = 0; element < 8; ++element) {
      SetNumber(width, element - 0.5, element);
      table.SetInput(name, element, ExpressionValue::FromString(u"a name of some length"));
    }
    SetNumber(width, -0.5, 3);
    table.Recalculate();
  }

  // All that a reader sees.
  std::string ShowAll() const {
    std::string text = std::to_string(table.GetElementCount()) + "\n";
    for (PropertyIndex property = 0; property < table.GetCatalog().GetCount(); ++property) {
      const Host::PropertyDefinition& definition = table.GetCatalog().Get(property);
      text += definition.group.ToUtf8() + "/" + definition.name.ToUtf8() + " = " + GetFormula(property) + " <";
      for (const PropertyIndex from : table.GetGraph().GetPrecedents(property)) text += " " + std::to_string(from);
      text += " >";
      for (const PropertyIndex to : table.GetGraph().GetDependents(property)) text += " " + std::to_string(to);
      for (Host::ElementIndex element = 0; element < table.GetElementCount(); ++element) {
        text += "; " + std::to_string(static_cast<int>(table.GetStatus(property, element))) + " " +
                ShowValue(table.GetValue(property, element));
      }
      text += "\n";
    }
    return text;
  }

  PropertyIndex width = 0;
  PropertyIndex name = 0;
  PropertyIndex free = 0;
  PropertyIndex area = 0;
  PropertyIndex half = 0;
  PropertyIndex label = 0;
};

// A change of a model: once it succeeds, everything that depends on it is computed, and nothing before that.
OperationRow MakeChange(const std::string& name, const std::function<void(Model&)>& change) {
  return {name, [=] {
            const auto model = std::make_shared<Model>();
            return Operation{[=] {
                               change(*model);
                               FailingMemory::Allow();
                               model->table.Recalculate();
                               return model->ShowAll();
                             },
                             [=] { return model->ShowAll(); }};
          }};
}

TEST(HostMemory, ChangesHappenWhollyOrNotAtAll) {
  const auto formula = [](std::string_view text, PropertyIndex Model::* property) {
    return [=](Model& model) { model.SetFormula(model.*property, text); };
  };
  ExpectToSurviveShortage({
      MakeChange("a new formula", formula("[Width of the wall] + LEN([Label of the wall])", &Model::free)),
      MakeChange("another formula", formula("[Free] * [Width of the wall]", &Model::area)),
      MakeChange("a formula against the order", formula("[Length of the label] + [Kind]", &Model::free)),
      MakeChange("a cycle", formula("1 + [Length of the label]", &Model::area)),
      MakeChange("no formula", formula("1 + + [Width of the wall", &Model::area)),
      MakeChange("an unknown name", formula("1 + [Who would know this name]", &Model::area)),
      MakeChange("no longer a formula", [](Model& model) { model.table.RemoveFormula(model.area); }),
      MakeChange("a number", [](Model& model) { model.SetNumber(model.width, 7, 5); }),
      MakeChange("a text",
                 [](Model& model) {
                   model.table.SetInput(model.name, 2, ExpressionValue::FromString(u"a name of another length"));
                 }),
      MakeChange("a first value of no kind",
                 [](Model& model) {
                   model.table.SetInput(model.free, 1, ExpressionValue::FromString(u"a text in a free column"));
                 }),
      MakeChange("a failed input", [](Model& model) { model.table.SetInputFailed(model.width, 1); }),
      MakeChange("an absent cell", [](Model& model) { model.table.SetApplies(model.area, 4, false); }),
      MakeChange("settings",
                 [](Model& model) {
                   Host::EvaluationSettings settings;
                   settings.locale = QX::EvaluationLocaleSettings(u',', u';', u'.');
                   model.table.SetSettings(settings);
                 }),
      MakeChange("another name", [](Model& model) { model.table.Rename(model.width, u"Another name", u"In a group"); }),
      MakeChange("a name that another has in its group",
                 [](Model& model) { model.table.Rename(model.width, u"Name of the wall", u"A group of its own"); }),
  });
}

TEST(HostMemory, TablesGrowWhollyOrNotAtAll) {
  // Done again, these would grow once more: the model is made anew for the second time.
  const auto makeGrowth = [](const std::string& name, const std::function<void(Model&)>& grow) {
    return OperationRow{name, [=] {
                          const auto model = std::make_shared<Model>();
                          const auto grown = std::make_shared<bool>(false);
                          return Operation{[=] {
                                             if (!*grown) grow(*model);
                                             *grown = true;
                                             FailingMemory::Allow();
                                             model->table.Recalculate();
                                             return model->ShowAll();
                                           },
                                           [=] { return model->ShowAll(); }};
                        }};
  };
  const auto define = [](unsigned int count, TW::Optional<PropertyKind> kind) {
    return [=](Model& model) {
      for (unsigned int i = 0; i < count; ++i) {
        model.table.Define({SmallModel::MakeId(1000 + i),
                            TW::UniString::Printf(u"A new property %T", TW::UniString::FromInteger(i)),
                            u"A new group",
                            kind,
                            {}});
      }
    };
  };
  ExpectToSurviveShortage({
      makeGrowth("a property", define(1, PropertyKind::Text)),
      makeGrowth("an element", [](Model& model) { model.table.AddElements(1); }),
      makeGrowth("many elements", [](Model& model) { model.table.AddElements(100); }),
  });
}

TEST(HostMemory, WhatIsRefusedStaysRefused) {
  ExpectToSurviveShortage({MakeChange("a second property of the same name", [](Model& model) {
    if (model.table.Define({SmallModel::MakeId(77), u"Width of the wall", u"Sizes of walls", std::nullopt, {}})) {
      ADD_FAILURE() << "defined";
    }
  })});
}

TEST(HostMemory, CalculationsGoOnWhereTheyStopped) {
  ExpectToSurviveShortage({{"calculate",
                            [] {
                              const auto model = std::make_shared<Model>();
                              model->SetNumber(model->width, -1, 2);
                              model->SetNumber(model->width, 1e300, 4);
                              model->table.SetInput(model->name, 6, ExpressionValue::FromString(u"another name"));
                              model->SetFormula(model->free, "CONCAT([Label of the wall], \" and more\")");
                              const auto done = std::make_shared<unsigned int>(0);
                              return Operation{[=] {
                                model->table.Recalculate();
                                // A cell that found no memory has failed, and is computed the next time.
                                FailingMemory::Allow();
                                model->table.Recalculate();
                                return model->ShowAll();
                              }};
                            }},
                           {"calculate at first", [] {
                              const auto model = std::make_shared<Model>();
                              model->table.SetSettings({});
                              return Operation{[=] {
                                model->table.Recalculate();
                                FailingMemory::Allow();
                                model->table.Recalculate();
                                return model->ShowAll();
                              }};
                            }}});
}

TEST(HostMemory, TablesAreRead) {
  ExpectToSurviveShortage({{"read a table", [] {
                              const auto model = std::make_shared<Model>();
                              return Operation{[=] {
                                std::string text = model->ShowAll();
                                const auto report = model->table.GetFailureReport(model->half, 3, model->settings);
                                if (report) text += report->message.ToUtf8();
                                text += std::to_string(
                                    model->table.GetDirectReferences(SmallModel::MakeId(model->label + 1)).GetSize());
                                return text;
                              }};
                            }}});
}

std::string Show(const Host::IfcModel& model) {
  std::string text;
  for (Host::IfcModel::Element i = 0; i < model.GetElementCount(); ++i) {
    text += model.GetClass(i) + " " + model.GetName(i).ToUtf8() + " " + model.GetStorey(i).ToUtf8() + ":";
    model.ForEachProperty(i, [&](Host::IfcModel::Key key, Host::IfcModel::Place place) {
      text += " " + model.GetSetName(key).ToUtf8() + "." + model.GetPropertyName(key).ToUtf8() + "=" +
              ShowValue(model.ReadValue(place).value);
    });
    text += "\n";
  }
  for (const Host::StepMessage& message : model.GetMessages().GetList())
    text += std::to_string(static_cast<int>(message.problem)) + " " + std::to_string(message.line) + "\n";
  return text;
}

TEST(HostMemory, BuildingModelsAreReadWholeOrNotAtAll) {
  ExpectToSurviveShortage({{"read a building model", [] {
                              return Operation{[] {
                                return Show(Host::IfcModel(Host::StepFile::FromText(IfcText::Wrap(IfcText::House))));
                              }};
                            }}});
}

TEST(HostMemory, BuildingModelsAreWrittenWholeOrNotAtAll) {
  const TemporaryFolder folder;
  const std::string path = folder.GetFilePath("written.ifc");
  const Host::IfcModel model(Host::StepFile::FromText(IfcText::Wrap(IfcText::House)));
  const auto countFiles = [&] {
    return std::distance(std::filesystem::directory_iterator(folder.GetPath()), std::filesystem::directory_iterator());
  };
  ExpectToSurviveShortage({{"write a building model", [&] {
                              WriteFile(path, "what was there before");
                              return Operation{
                                  [&] {
                                    const TW::ErrCode error = WriteIfcModel(model, path, [](auto) {
                                      return std::vector<Host::IfcAddedProperty>{
                                          {u"A set of properties",
                                           u"A property",
                                           {Host::IfcKind::Text, ExpressionValue::FromString(u"some text")}}};
                                    });
                                    FailingMemory::Allow();
                                    return std::to_string(error) + " " + ReadFile(path);
                                  },
                                  [&] { return std::to_string(countFiles()) + ReadFile(path); }};
                            }}});
}

}  // namespace
