// The pavement of a design through the whole conversion: stretches on soil
// and rock, templates with every layer type and with none, sub-grades, a
// detailed pavement on both sides and rehabilitation data, converted by the
// exported function. PAVEMENT and VIPSSPECIALGRADINGS are checked byte for
// byte, and the log for the headings and the warning at its end.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "design_model/design_model_builder.h"
#include "kvrvips/kvrvips.h"
#include "tests/vips_import/conversion_fixtures.h"

namespace {

using NpDesignModel::CSurfaceNumber;
using NpDesignModel::LayerTypeEnums;
using NpDesignModel::PavementTemplateRecord;
using NpDesignModel::PavementTemplateSurfaceRecord;

const int kEveryLayerType[] = {1, 2, 3, 11, 12, 13, 21, 22, 23, 29};

void vAddLayer(PavementTemplateSurfaceRecord& surface, int type, double thickness,
               double width = 0.0, double slope = 0.0) {
  NpDesignModel::PavementTemplateSurfaceLayerRecord& layer = surface.layers.emplace_back();
  layer.layerType = LayerTypeEnums{type};
  layer.thickness = thickness;
  layer.width = width;
  layer.slope = slope;
}

PavementTemplateSurfaceRecord& AddSurface(PavementTemplateRecord& tmpl, double decimal,
                                          int edgeCode = 0) {
  PavementTemplateSurfaceRecord& surface = tmpl.pvmtSurfaces.emplace_back();
  surface.surfaceNumber = CSurfaceNumber(decimal);
  surface.edgeCode = PavementTemplateSurfaceRecord::EdgeCodeEnums{edgeCode};
  return surface;
}

void vHeavyTemplate(PavementTemplateRecord& tmpl) {
  tmpl.id = 2;
  tmpl.name = u"Tung\tveg";
  for (auto [type, value] : {std::pair{1, true}, {23, true}, {30, true}, {2, false}}) {
    auto& under = tmpl.areUnderMedian.emplace_back();
    under.layerType = LayerTypeEnums{type};
    under.value = value;
  }
  tmpl.innerSlopesLeft.gradient = 0.5;
  tmpl.innerSlopesLeft.extendToTerrain = true;
  tmpl.innerSlopesRight.gradient = 0.25;
  tmpl.innerSlopesRight.status = true;
  // Every layer type, and 30, which has no column; with its edge.
  PavementTemplateSurfaceRecord& full = AddSurface(tmpl, 0.0101, 2);
  for (int type : kEveryLayerType) vAddLayer(full, type, type / 100.0, type / 10.0, -type / 4.0);
  vAddLayer(full, 30, 9.9, 9.9, 9.9);
  // Width and slope without an edge code are dropped.
  vAddLayer(AddSurface(tmpl, 1.0101), 1, 0.1, 3.0, 0.5);
  // The innermost surface on the left without any thickness goes (a zero
  // counts at positions 5 and 8); the next one stays.
  PavementTemplateSurfaceRecord& empty = AddSurface(tmpl, -0.0101);
  for (int type : kEveryLayerType) {
    if (type != 13 && type != 23) vAddLayer(empty, type, 999999.0);
  }
  vAddLayer(AddSurface(tmpl, -0.0102), 1, 0.05);
  auto& gradual = tmpl.gradualLayerSurfaces.emplace_back();
  gradual.surfaceNumber = CSurfaceNumber(1.0201);
  gradual.extraWidth = 0.5;
  gradual.loadGradient = 0.1;
  gradual.transitionGradient = 0.05;
  tmpl.rehab.existRoadEdgeRight.refId = 7;
}

NpDesignModel::DetailedPavementSurfaceSectionRecord Row(double chain, int widthMethod,
                                                        int slopeMethod) {
  NpDesignModel::DetailedPavementSurfaceSectionRecord row;
  row.chainage = chain;
  row.elevation = 999999.0;
  row.width = 3.5;
  row.widthMethod = decltype(row.widthMethod){widthMethod};
  row.widthSurfNo = CSurfaceNumber(1.0301);
  row.widthAlignId = 12;
  row.widthOffset = 0.1;
  row.slope = -0.03;
  row.slopeMethod = decltype(row.slopeMethod){slopeMethod};
  row.slopeSurfNo = CSurfaceNumber(2.02);
  row.beamSlope = 999999.0;
  return row;
}

void vDetailedPavement(NpDesignModel::InDataRecord& input) {
  input.detailedPvmtLayers.resize(3);
  // Type 29 has no entry here.
  input.detailedPvmtLayers[0].layerType = LayerTypeEnums{29};
  input.detailedPvmtLayers[0].surfacesLeft.emplace_back().sections.push_back(Row(0, 0, 0));
  // Number 2: a row at the model's none is shifted, one at no chainage
  // makes only the end row behind it; a row at the road's end has no value.
  auto& number2 = input.detailedPvmtLayers[1];
  number2.layerType = LayerTypeEnums{30};
  auto& left = number2.surfacesLeft.emplace_back();
  left.endSurface = true;
  left.sections = {Row(-99999.0, 0, 100), Row(999999.0, 0, 0)};
  left.sections[1].endSurfaceAfterThis = true;
  number2.surfacesRight.emplace_back().sections.push_back(Row(999998.0, 0, 0));
  // Number 10: its first surface counts the width method from 1.
  auto& number10 = input.detailedPvmtLayers[2];
  number10.layerType = LayerTypeEnums{50};
  number10.surfacesRight.emplace_back().sections.push_back(Row(100.0, 4, 1));
  number10.surfacesRight.emplace_back().sections.push_back(Row(150.0, 4, -200));
}

std::unique_ptr<NpDesignModel::DesignModelRecord> PavementDesign() {
  NpDesignModel::DesignModelBuilder builder;
  NpDesignModel::InDataRecord& input = builder.Input();
  input.modelVersionNumber = 10.0;
  input.modelType = NpDesignModel::CInData::ModelTypeEnums{1};
  // Template 3 of the rock stretch does not exist: the number stays.
  for (auto [from, to, id, rock] :
       {std::tuple{300.0, 500.0, 1, false}, {0.0, 300.0, 2, false}, {100.0, 200.0, 3, true}}) {
    auto& section = (rock ? input.pvmtSectionsRock : input.pvmtSectionsSoil).emplace_back();
    section.fromChainage = from;
    section.toChainage = to;
    section.pavementTemplateId = id;
  }
  vHeavyTemplate(input.pvmtTmpls.emplace_back());
  PavementTemplateRecord& light = input.pvmtTmpls.emplace_back();
  light.id = 1;
  light.name = u"Lett";
  for (auto [chain, type] : {std::pair{50.0, 1}, {80.0, 1}, {120.0, 0}, {200.0, 2}}) {
    auto& subGrade = input.subGrades.emplace_back();
    subGrade.chainage = chain;
    subGrade.givenType = decltype(subGrade.givenType){type};
    subGrade.calculatedType = decltype(subGrade.calculatedType){1};
  }
  vDetailedPavement(input);
  return builder.Build();
}

const std::string kZeros = " 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000";
const std::string kNoneRow =
    " -99999.000 -99999.000 -99999.000 -99999 -99999 -1 -99999.000 -99999.000 -1 -99999.000 "
    "-99999.000 -99999.000";

}  // namespace

TEST(PavementConversion, TemplatesStretchesAndDetailedPavementLandInTheirSections) {
  ScratchFolder folder;
  std::unique_ptr<NpDesignModel::DesignModelRecord> design = PavementDesign();
  design->documentPath = folder / "veg.json";
  ASSERT_TRUE(design->ToFile(true));
  std::string modelFile = folder / "veg.sfi";
  char* logFile = nullptr;
  ASSERT_EQ(
      iKvrVipsConvertDatabase(design->documentPath.c_str(), modelFile.c_str(),
                              KVRVIPS_IMPORT_TABLES, &logFile, sShippedSettings().c_str(), 0, 0),
      0);

  EXPECT_EQ(sReadTextFile(folder / "veg.log"),
            sLogHead("Np21", "Road", "10.0") +
                sTablesLog("", "", "Leser tabell: Avansert overbygning\n") + "\n" +
                "\n*****Advarsel*****\nData for rehabilitering av vei er brukt i vips\n"
                "prosjektet. Tabeller for dette blir ikke importert!\n\n");

  const std::string file = sReadWholeFile(modelFile);
  EXPECT_EQ(sSectionBody(file, "PAVEMENT"),
            sCrLf({
                ":PAVEMENTSECTIONSOIL 0.000 300.000 2",
                ":PAVEMENTSECTIONSOIL 300.000 500.000 1",
                ":PAVEMENTSECTIONROCK 100.000 200.000 3",
                ":PAVEMENTPACKAGE 1 Lett",
                "UNDERMEDIAN 0 0 0 0 0 0 0 0 0 0",
                "OUTEREDGETOTERRAIN 0 0",
                "OUTEREDGETOTERRAINSLOPE 0.000 0.000",
                "USESURFACEEDGE 0 0",
                "OUTEREDGETODEEPROCKBLAST 0 0",
                "EXCAVATIONSLOPE 0.000 0.000",
                ":PAVEMENTPACKAGE 2 \"Tung veg\"",
                "UNDERMEDIAN 1 0 0 0 0 0 0 0 1 0",
                "OUTEREDGETOTERRAIN 1 0",
                "OUTEREDGETOTERRAINSLOPE 0.500 0.250",
                "USESURFACEEDGE 0 1",
                "OUTEREDGETODEEPROCKBLAST 0 0",
                "EXCAVATIONSLOPE 0.000 0.000",
                ":PAVEMENTSURFACE -102",
                "MINTHICKNESS 0.000",
                "THICKNESS 0.050 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000",
                "MAXTHICKNESS" + kZeros,
                ":PAVEMENTSURFACE 101",
                "MINTHICKNESS 0.000",
                "THICKNESS 0.010 0.020 0.030 0.110 0.120 0.130 0.210 0.220 0.230 0.290",
                "MAXTHICKNESS" + kZeros,
                ":PAVEMENTSURFACE 10101",
                "MINTHICKNESS 0.000",
                "THICKNESS 0.100 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000",
                "MAXTHICKNESS" + kZeros,
                ":PAVEMENTGRADUALLYCHANGINGLAYER 10201",
                "EXTRAWIDTH 0.500",
                "GRADIENT 0.100",
                "TRANSITIONGRADIENT 0.050",
                "THINNEREXTENSION 0",
                ":PAVEMENT_SURFACEEDGE 101",
                "CODE 2",
                "WIDTH 0.100 0.200 0.300 1.100 1.200 1.300 2.100 2.200 2.300 2.900",
                "SLOPE -0.250 -0.500 -0.750 -2.750 -3.000 -3.250 -5.250 -5.500 -5.750 -7.250",
                ":PAVEMENTAPPEARINGS",
                " 0.0000 80.0000 1",
                " 80.0000 200.0000 0",
            }));
  EXPECT_EQ(sSectionBody(file, "VIPSSPECIALGRADINGS"),
            sCrLf({
                ":VIPSSPECIALGRADINGS 21",
                "MINTHICKLEFTPCODE -29999",
                "MINTHICKRIGHTPCODE 29999",
                ":LEFTSIDE",
                ":VIPSSPECIALGRADINGSURFACE 1",
                " -99997.000 -99999.000 3.500 -99999 -99999 0 0.100 -0.030 0 -99999.000 "
                "-99999.000 -99999.000",
                kNoneRow,
                ":RIGHTSIDE",
                ":VIPSSPECIALGRADINGSURFACE 0",
                kNoneRow,
                ":VIPSSPECIALGRADINGS 101",
                ":RIGHTSIDE",
                ":VIPSSPECIALGRADINGSURFACE 0",
                " 100.000 -99999.000 -99999.000 10301 -99999 3 0.100 2.020 1 -99999.000 "
                "-99999.000 -99999.000",
                ":VIPSSPECIALGRADINGSURFACE 0",
                " 150.000 -99999.000 -99999.000 -99999 12 4 0.100 -0.030 1 -99999.000 "
                "-99999.000 -99999.000",
            }));
  // The layers of the entries have names.
  EXPECT_NE(sSectionBody(file, "LAYERNAMES"), "<none>");
}
