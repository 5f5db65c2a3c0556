// The terrain of the design's computed sections: the cross sections with
// their terrain layers and "Vips diverse" lines, and the long section drawn
// from them, through the whole conversion and straight from the readers.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "design_model/design_model_builder.h"
#include "kvrvips/kvrvips.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/section_set.h"
#include "tests/vips_import/conversion_fixtures.h"
#include "vips_import/readers/misc_layers.h"
#include "vips_import/readers/physical_profiles.h"

namespace {

using NpDesignModel::DesignModelBuilder;
using NpDesignModel::DesignModelRecord;
using NpDesignModel::ResultSectionRecord;
using Material = NpDesignModel::CRTerrainSection::MaterialEnums;

struct Column {
  double distance;
  double surface;
  std::vector<double> subSurfaces;
};

struct Object {
  int32_t level;
  std::u16string code;
  std::vector<std::pair<double, double>> points;  // offset, height
};

// A computed section with this terrain.
void vAddTerrain(DesignModelBuilder& builder, double chain, double elevation,
                 std::vector<int> materials, const std::vector<Column>& columns,
                 const std::vector<Object>& objects = {}) {
  NpDesignModel::TerrainSectionRecord& terrain = builder.AddSection(chain).terrain;
  terrain.elevation = elevation;
  for (int material : materials) terrain.materials.push_back(Material{material});
  for (const Column& given : columns) {
    NpDesignModel::LayerElevationsRecord& column = terrain.layerElevations.emplace_back();
    column.distance = given.distance;
    column.surface = given.surface;
    column.subSurfaces = given.subSurfaces;
  }
  for (const Object& given : objects) {
    NpDesignModel::ObjectRecord& object = terrain.objects.emplace_back();
    object.level = given.level;
    object.code = given.code;
    for (auto [distance, elevation] : given.points) {
      object.points.push_back({});
      object.points.back().distance = distance;
      object.points.back().elevation = elevation;
    }
  }
}

// Three sections: materials named by the design, unnamed and beyond the
// design's list; columns that stop above the deeper materials; one line of
// two "T" objects among objects of other levels and codes; a material taken
// twice; a section whose only material has no columns.
std::unique_ptr<DesignModelRecord> TerrainDesign() {
  DesignModelBuilder builder;
  NpDesignModel::InDataRecord& input = builder.Input();
  input.modelVersionNumber = 10.0;
  input.modelType = NpDesignModel::CInData::ModelTypeEnums{1};
  input.subSurfaceMaterials = {u"Morene", u""};
  vAddTerrain(builder, 100.0, 50.0, {1, 2, 6},
              {{-10.0, 1.5, {-0.5, -3.25}}, {0.0, 2.0, {-1.0}}, {8.5, 0.25, {}}},
              {{999, u"T", {{-4.0, 51.5}, {4.0, 999999.0}}},
               {999, u"t", {{1.0, 1.0}}},
               {998, u"T", {{2.0, 2.0}}},
               {999, u"TT", {{3.0, 3.0}}},
               {999, u"T", {{6.0, 52.0}}}});
  vAddTerrain(builder, 120.0, 40.0, {1, 1}, {{-5.0, 1.0, {-2.0}}, {5.0, 3.0, {-1.0}}});
  vAddTerrain(builder, 140.25, 30.0, {2}, {}, {{999, u"T", {{0.5, 31.0}}}});
  return builder.Build();
}

// A section without a main line to stand on.
const std::string kNotPlaced = "CLRANG 0.00000 0.00000 0.000 0.000 0.000000 0";

struct Converted {
  int result = -1;
  std::string log;
  std::string file;
};

Converted Convert(const ScratchFolder& folder, DesignModelRecord& design) {
  design.documentPath = folder / "veg.json";
  EXPECT_TRUE(design.ToFile(true));
  std::string modelFile = folder / "veg.sfi";
  char* logFile = nullptr;
  Converted converted;
  converted.result = iKvrVipsConvertDatabase(design.documentPath.c_str(), modelFile.c_str(),
                                             KVRVIPS_IMPORT_TABLES, &logFile,
                                             sShippedSettings().c_str(), 0, 0);
  converted.log = sReadTextFile(folder / "veg.log");
  converted.file = sReadWholeFile(modelFile);
  return converted;
}

}  // namespace

TEST(TerrainSections, TheConversionWritesTheTerrainTheLinesAndTheLongSection) {
  ScratchFolder folder;
  std::unique_ptr<DesignModelRecord> design = TerrainDesign();
  Converted converted = Convert(folder, *design);
  ASSERT_EQ(converted.result, 0);
  EXPECT_EQ(converted.log, sLogHead("Np21", "Road", "10.0") + sTablesLog() + sSectionsLog());
  // Heights above the terrain's base; the columns stop above the deeper
  // materials. The lines of type 5 repeat for every material.
  EXPECT_EQ(sSectionBody(converted.file, "CROSSECTIONS"),
            sCrLf({
                ":CHAIN 100.0000", kNotPlaced,
                "LAYER 14", " -10 51.5 0", " 0 52 0", " 8.5 50.25 0",
                "LAYER 24", " -10 49.5 0", " 0 49 0", " 8.5 -99999 0",
                "LAYER 64", " -10 46.75 0", " 0 -99999 0", " 8.5 -99999 0",
                "LAYER 15", " -4 51.5 0", " 4 999999 0", " 6 52 0",
                "LAYER 25", " -4 51.5 0", " 4 999999 0", " 6 52 0",
                "LAYER 65", " -4 51.5 0", " 4 999999 0", " 6 52 0",
                ":CHAIN 120.0000", kNotPlaced,
                "LAYER 14", " -5 38 0", " 5 39 0",  // the material's second place
                ":CHAIN 140.2500", kNotPlaced,
                "LAYER 25", " 0.5 31 0",
            }));
  // The terrain at the centre line, by chainage from the first section.
  EXPECT_EQ(sSectionBody(converted.file, "LONGSECTIONS"),
            sCrLf({
                ":CHAIN 100.0000",
                "LAYER 14", " 0 52 0", " 20 38.5 0", " 40.25 -99999 0",
                "LAYER 24", " 0 49 0", " 20 -99999 0", " 40.25 -99999 0",
                "LAYER 64", " 0 -99999 0", " 20 -99999 0", " 40.25 -99999 0",
            }));

  ModelPtr model = ReadModel(converted.file);
  ASSERT_TRUE(model);
  const RmLayerNames* names = RmModelGetLayerNames(model.get());
  const struct {
    RmLayerId id;
    const char* name;
  } kNames[] = {
      {{4, 1}, "Morene"},
      {{4, 2}, "Terreng, innm\xE5lt"},
      {{4, 6}, "Fjell"},
      {{5, 1}, "Terreng"},
      {{5, 2}, "Terreng, innm\xE5lt"},
      {{5, 6}, "Fjell"},
  };
  for (const auto& c : kNames) {
    const char* name = sRmLayerNameGetName(names, c.id);
    EXPECT_STREQ(name ? name : "<none>", c.name) << c.id.Type << " " << c.id.Number;
  }
}

// The terrain, the "Vips diverse" lines and the designed lines of one
// design meet in the same cross sections: the terrain reader makes a section
// for every computed section, also one without terrain, and the theoretical
// reader fills them.
TEST(TerrainSections, TheTerrainAndTheDesignedLinesShareTheirSections) {
  DesignModelBuilder builder;
  builder.Input().modelVersionNumber = 10.0;
  builder.Input().modelType = NpDesignModel::CInData::ModelTypeEnums{1};
  vAddTerrain(builder, 100.0, 50.0, {1}, {{-2.0, 1.5, {}}, {2.0, 2.0, {}}},
              {{999, u"T", {{-1.0, 51.0}}}});
  builder.AddSection(110.0).model.roadBed = {NpDesignModel::PointRecord(1.0, 45.0)};
  vAddTerrain(builder, 120.0, 40.0, {1}, {{0.0, 1.0, {}}});
  builder.Results().sections[0].model.roadBed = {NpDesignModel::PointRecord(0.0, 0.5)};
  builder.Results().sections[0].model.refElevation = 50.0;
  std::unique_ptr<DesignModelRecord> design = builder.Build();

  ScratchFolder folder;
  Converted converted = Convert(folder, *design);
  ASSERT_EQ(converted.result, 0);
  EXPECT_EQ(sSectionBody(converted.file, "CROSSECTIONS"),
            sCrLf({
                ":CHAIN 100.0000", kNotPlaced,
                "LAYER 13", " 0 50.5 0",
                "LAYER 14", " -2 51.5 0", " 2 52 0",
                "LAYER 15", " -1 51 0",
                ":CHAIN 110.0000", kNotPlaced,
                "LAYER 13", " 1 45 0",
                ":CHAIN 120.0000", kNotPlaced,
                "LAYER 14", " 0 41 0",
            }));
}

namespace {

// A model whose cross section at 100 holds the lines of type 5 of materials
// 1 and 3, and which has a long section.
ModelPtr ModelWithMiscLayers() {
  ModelPtr model = NewModel();
  RmSection* section = RmSectionAdd(RmModelGetOrCreateCrossSections(model.get()), nullptr, 100.0);
  for (int number : {1, 3}) {
    RmPointAdd(RmLayerAdd(section, RmLayerIdMake(5, number)), nullptr, 1.0, 2.0, 0);
  }
  RmSectionAdd(RmModelGetOrCreateLongSections(model.get()), nullptr, 100.0);
  return model;
}

struct ReaderCase {
  const char* what;
  void (*read)(const NpDesignModel::CResultData*, const NpDesignModel::CInData*, std::FILE*,
               RmModel*);
  std::vector<int> materials;
  std::vector<Column> columns;
  std::vector<Object> objects;
  double chain;
  std::string crossSections;
  std::string longSections;
};

}  // namespace

TEST(TerrainSections, BadInputKeepsTheOtherSectionsAndThrowsNothing) {
  const std::string kSection = sCrLf({":CHAIN 100.0000", kNotPlaced});
  // Without terrain layers the long section is a bare section.
  const std::string kBareLong = sCrLf({":CHAIN 100.0000"});
  const std::string kOlderLines = sCrLf({"LAYER 15", " 1 2 0", "LAYER 35", " 1 2 0"});
  const ReaderCase kCases[] = {
      {"physical: no section at all", vVipsReadPhysicalProfiles, {}, {}, {}, -1.0, "<none>",
       "<none>"},
      {"physical: design heights of no value are added to the base", vVipsReadPhysicalProfiles,
       {1, 2}, {{2.0, 999999.0, {999999.0}}}, {}, 100.0,
       kSection + sCrLf({"LAYER 14", " 2 1000000 0", "LAYER 24", " 2 1000000 0"}),
       sCrLf({":CHAIN 100.0000", "LAYER 14", " 0 -99999 0", "LAYER 24", " 0 -99999 0"})},
      {"physical: materials without columns", vVipsReadPhysicalProfiles, {1, 5}, {}, {}, 100.0,
       kSection, kBareLong},
      {"misc: objects of other levels and codes", vVipsReadMiscLayers, {1, 2}, {},
       {{998, u"T", {{1.0, 1.0}}}, {999, u"t", {{1.0, 1.0}}}, {999, u"TT", {{1.0, 1.0}}},
        {999, u"", {{1.0, 1.0}}}},
       100.0, kSection + sCrLf({"LAYER 35", " 1 2 0"}), kBareLong},
      {"misc: no cross section at the chainage", vVipsReadMiscLayers, {1}, {},
       {{999, u"T", {{1.0, 1.0}}}}, 100.001, kSection + kOlderLines, kBareLong},
      {"misc: heights of no value stand as they are", vVipsReadMiscLayers, {3}, {},
       {{999, u"T", {{999999.0, 999999.0}}}}, 100.0,
       kSection + sCrLf({"LAYER 15", " 1 2 0", "LAYER 35", " 999999 999999 0"}), kBareLong},
  };
  for (const ReaderCase& c : kCases) {
    DesignModelBuilder builder;
    builder.Results();
    if (c.chain >= 0.0) vAddTerrain(builder, c.chain, 1.0, c.materials, c.columns, c.objects);
    std::unique_ptr<DesignModelRecord> design = builder.Build();
    ModelPtr model = ModelWithMiscLayers();
    c.read(design->GetR(), design->GetI(), nullptr, model.get());
    std::string written = sWrittenModel(model.get());
    EXPECT_EQ(sSectionBody(written, "CROSSECTIONS"), c.crossSections) << c.what;
    EXPECT_EQ(sSectionBody(written, "LONGSECTIONS"), c.longSections) << c.what;
  }
}
