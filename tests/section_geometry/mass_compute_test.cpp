// Masses of hand-made sections against values computed independently: the
// shoelace formula on the polygon that the mass should cover.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "geometry/polygon.h"
#include "section_geometry/layer_band.h"
#include "section_geometry/layer_polygons.h"
#include "section_geometry/line_normalise.h"
#include "section_geometry/mass_compute.h"
#include "section_geometry/mass_polygon.h"
#include "tests/section_geometry/section_builder.h"
#include "tests/support/model_ptr.h"

namespace {

// Layers by their file numbers: 11 the design surface, 12 the terrain, 31
// a restriction, 51 a closed outline.
constexpr int kDesign = 11;
constexpr int kTerrain = 12;
constexpr int kLimit = 31;
constexpr int kOutline = 51;

const Points kFlatTerrain{{-10, 0}, {10, 0}};
const Points kTrough{{-10, 1}, {-4, -2}, {4, -2}, {10, 1}};

struct SectionDeleter {
  void operator()(RmSection* section) const { vRmSectionDeleteFree(section); }
};
using SectionPtr = std::unique_ptr<RmSection, SectionDeleter>;

struct TypesDeleter {
  void operator()(RmMassTypes* types) const {
    RmMassTypes* doomed = types;
    vRmMassTypesDelete(&doomed);
  }
};
using TypesPtr = std::unique_ptr<RmMassTypes, TypesDeleter>;

SectionPtr SectionOf(const Points& terrain, const Points& design) {
  SectionPtr section(RmSectionCreateFree());
  AddLayer(section.get(), kDesign, design);
  AddLayer(section.get(), kTerrain, terrain);
  return section;
}

// Computes mass 1 of the type into the section; null when it was removed.
const RmMass* Compute(RmModel* model, RmSection* section, const RmMassTypes* types) {
  if (!RmMassFind(section, 1)) RmMassAdd(section, 1);
  vSectionMassesRecalculate(model, section, types);
  return RmMassFind(section, 1);
}

struct AreaCase {
  const char* what;
  Points terrain, design;
  bool cut;  // the room below the terrain and above the design, else the fill
  std::vector<Points> expected;
  double limitLeft = 0, limitRight = 0;  // widening of a restriction at -3 to 3
  bool restricted = false;
};

TEST(MassArea, EqualsTheShoelaceOfTheExpectedPolygon) {
  const Points gapTerrain{{-10, 0}, {-2, 0}, {0, -99999}, {2, 0}, {10, 0}};
  const Points slope{{-10, 0}, {10, 2}};
  const Points level{{-10, 1}, {10, 1}};
  const Points walls{{-10, 0}, {-4, 0}, {-4, -2}, {4, -2}, {4, 0}, {10, 0}};
  const AreaCase cases[] = {
      {"cut", kFlatTerrain, kTrough, true, {{{-8, 0}, {-4, -2}, {4, -2}, {8, 0}}}},
      {"fill", kFlatTerrain, kTrough, false,
       {{{-10, 0}, {-8, 0}, {-10, 1}}, {{8, 0}, {10, 0}, {10, 1}}}},
      {"mixed, cut side", slope, level, true, {{{0, 1}, {10, 1}, {10, 2}}}},
      {"mixed, fill side", slope, level, false, {{{-10, 0}, {0, 1}, {-10, 1}}}},
      {"gap in the terrain", gapTerrain, kTrough, true,
       {{{-8, 0}, {-4, -2}, {-2, -2}, {-2, 0}}, {{2, 0}, {2, -2}, {4, -2}, {8, 0}}}},
      {"vertical walls", kFlatTerrain, walls, true, {{{-4, -2}, {4, -2}, {4, 0}, {-4, 0}}}},
      {"restricted", kFlatTerrain, kTrough, true, {{{-4, -2}, {4, -2}, {4, 0}, {-4, 0}}}, 1, 1,
       true},
      {"restricted, wider right", kFlatTerrain, kTrough, true,
       {{{-4, -2}, {4, -2}, {6, -1}, {6, 0}, {-4, 0}}}, 1, 3, true},
  };
  for (const AreaCase& c : cases) {
    ModelPtr model = NewModel();
    SectionPtr section = SectionOf(c.terrain, c.design);
    TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
    RmMassType* type = c.cut ? AddBetween(types.get(), 1, {kTerrain}, {kDesign})
                             : AddBetween(types.get(), 1, {kDesign}, {kTerrain});
    if (c.restricted) {
      AddLayer(section.get(), kLimit, {{-3, 5}, {3, 5}});
      type->RestrictionLayer = RmLayerIdFromFile(kLimit);
      type->ResLayerExt = c.limitLeft;
      type->ResLayerExtRight = c.limitRight;
    }
    const RmMass* mass = Compute(model.get(), section.get(), types.get());
    ASSERT_NE(mass, nullptr) << c.what;
    const Shoelace expected = ShoelaceOf(c.expected);
    EXPECT_NEAR(mass->Area, expected.Area, 1e-5) << c.what;
    EXPECT_NEAR(mass->CentroidOffset, expected.CentroidX, 1e-5) << c.what;
    EXPECT_NE(mass->ExactLine, nullptr) << c.what;
    EXPECT_EQ(mass->ApproxLine, nullptr) << c.what;
    EXPECT_TRUE(model->Dirty) << c.what;
  }
}

// Whatever the section holds, a mass with nothing to measure goes away.
TEST(MassArea, NothingToMeasureRemovesTheMass) {
  struct Case {
    const char* what;
    Points terrain, design;
    int lower;
  };
  const Points sliver{{-10, 2}, {-0.2, 0}, {0, -0.01}, {0.2, 0}, {10, 2}};  // area 0.002
  const Case cases[] = {
      {"a named layer missing", kFlatTerrain, kTrough, 41},
      {"sections of a single point", {{0, 0}}, {{0, -1}}, kDesign},
      {"no heights", {{-10, -99999}, {10, -99999}}, {{-10, -99999}, {10, -99999}}, kDesign},
      {"design above the terrain", kFlatTerrain, {{-10, 1}, {10, 1}}, kDesign},
      {"a sliver of the clipping", kFlatTerrain, sliver, kDesign},
  };
  for (const Case& c : cases) {
    ModelPtr model = NewModel();
    SectionPtr section = SectionOf(c.terrain, c.design);
    TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
    AddBetween(types.get(), 1, {kTerrain}, {c.lower});
    EXPECT_EQ(Compute(model.get(), section.get(), types.get()), nullptr) << c.what;
  }
}

TEST(MassArea, SelfCrossingLayersGiveAFiniteArea) {
  ModelPtr model = NewModel();
  SectionPtr section =
      SectionOf({{-10, 0}, {5, 0}, {-5, -1}, {10, -1}}, {{-10, -3}, {10, 2}, {-10, 2}});
  TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
  AddBetween(types.get(), 1, {kTerrain}, {kDesign});
  const RmMass* mass = Compute(model.get(), section.get(), types.get());
  EXPECT_TRUE(mass == nullptr || std::isfinite(mass->Area));
}

TEST(MassArea, ChainRangesDecideWhereTheMassApplies) {
  struct Case {
    double start, end;
    int excludeStart;
    bool applies;
  };
  const Case cases[] = {{0, 0, 0, true},  // no ranges: everywhere
                        {100, 200, 0, true},
                        {100, 200, 1, false},  // the start is excluded
                        {150, 200, 0, false}};
  for (const Case& c : cases) {
    ModelPtr model = NewModel();
    SectionPtr section = SectionOf(kFlatTerrain, kTrough);
    section->Chain = 100.0;
    TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
    RmMassType* type = AddBetween(types.get(), 1, {kTerrain}, {kDesign});
    if (c.end > 0) RmMassChainRangeAdd(type, c.start, c.end, c.excludeStart, 0);
    EXPECT_EQ(Compute(model.get(), section.get(), types.get()) != nullptr, c.applies)
        << c.start << " " << c.excludeStart;
  }
}

TEST(MassArea, CalculationTypesOfAreas) {
  struct Case {
    const char* what;
    int calcType;
    double pointInterval;
    double area, centroid;
  };
  const Case cases[] = {
      {"per point interval 0: no division", 6, 0.0, 0.0, 0.0},
      {"per point interval 4", 6, 4.0, 6.0, 0.0},
      {"area of an outline, sign dropped", 8, 0.0, 6.0, 2.0},
  };
  for (const Case& c : cases) {
    ModelPtr model = NewModel();
    SectionPtr section = SectionOf(kFlatTerrain, kTrough);
    // A clockwise outline of 3 by 2 around x = 2.
    AddLayer(section.get(), kOutline, {{0.5, 1}, {0.5, 3}, {3.5, 3}, {3.5, 1}});
    TypesPtr types(RmMassTypesCreate(c.calcType == 6 ? kRmMassTypesLong : kRmMassTypesCross));
    RmMassType* type = c.calcType == 8 ? RmMassTypeAdd(types.get(), 1)
                                       : AddBetween(types.get(), 1, {kTerrain}, {kDesign});
    type->CalcType = c.calcType;
    type->PointInterval = c.pointInterval;
    if (c.calcType == 8) AddLayers(&type->AreaLayers, {kOutline});
    const RmMass* mass = Compute(model.get(), section.get(), types.get());
    ASSERT_NE(mass, nullptr) << c.what;
    EXPECT_NEAR(mass->Area, c.area, 1e-6) << c.what;
    EXPECT_NEAR(mass->CentroidOffset, c.centroid, 1e-6) << c.what;
  }
}

TEST(MassLine, LengthsOfLayersAndOutlines) {
  const double side = std::hypot(6.0, 3.0);
  const double slant = std::hypot(4.0, 2.0);
  struct Case {
    const char* what;
    int calcType, composed;
    double minThickness;
    bool restricted;
    double expected;
  };
  const Case cases[] = {
      {"design surface", 1, 0, 0.0, false, 8 + 2 * side},
      {"within the restriction", 1, 0, 0.0, true, 8},
      {"times the thickness", 12, 0, -0.5, false, (8 + 2 * side) * 0.5},
      {"outline of the cut", 1, 1, 0.0, false, 16 + 8 + 2 * slant},
  };
  for (const Case& c : cases) {
    ModelPtr model = NewModel();
    SectionPtr section = SectionOf(kFlatTerrain, kTrough);
    TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
    RmMassType* type = AddBetween(types.get(), 1, {kTerrain}, {kDesign}, c.calcType);
    if (c.composed == 0) {
      vRmLayerListClear(&type->FromLayers);
      vRmLayerListClear(&type->ToLayers);
      AddLayers(&type->AreaLayers, {kDesign});
    }
    type->ComposedType = c.composed;
    type->MinThickness = c.minThickness;
    if (c.restricted) {
      AddLayer(section.get(), kLimit, {{-4, 5}, {4, 5}});
      type->RestrictionLayer = RmLayerIdFromFile(kLimit);
    }
    const RmMass* mass = Compute(model.get(), section.get(), types.get());
    ASSERT_NE(mass, nullptr) << c.what;
    EXPECT_NEAR(mass->Area, c.expected, 1e-5) << c.what;
    EXPECT_NEAR(mass->CentroidOffset, 0.0, 1e-5) << c.what;
  }
}

TEST(MassCombined, AddsUpTheMassesOfTheSection) {
  ModelPtr model = NewModel();
  SectionPtr section = SectionOf(kFlatTerrain, kTrough);
  TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
  AddBetween(types.get(), 1, {kTerrain}, {kDesign});
  AddBetween(types.get(), 2, {kDesign}, {kTerrain});
  RmMassType* combined = RmMassTypeAdd(types.get(), 3);
  combined->ComposedType = 2;
  vRmMassNumbersAdd(&combined->FromMasses, 1);
  vRmMassNumbersAdd(&combined->ToMasses, 2);
  // The combined mass stands first: it is still computed after the others.
  RmMassAdd(section.get(), 3);
  RmMassAdd(section.get(), 1);
  RmMassAdd(section.get(), 2);
  vSectionMassesRecalculate(model.get(), section.get(), types.get());
  ASSERT_NE(RmMassFind(section.get(), 3), nullptr);
  EXPECT_NEAR(RmMassFind(section.get(), 3)->Area, 24.0 - 2.0, 1e-6);
  EXPECT_EQ(RmMassFind(section.get(), 3)->ExactLine, nullptr);
}

TEST(MassThickness, ThinPartsLeaveTheExactOutlineOnly) {
  // A deep trough in the middle and a thin one of 0.1 on the left.
  const Points design{{-10, 0.5}, {-9, -0.1}, {-7, -0.1}, {-6, 0.5}, {-2, 0.5},
                      {-1, -2},   {1, -2},    {2, 0.5},   {10, 0.5}};
  struct Case {
    double minThickness;
    bool approx;
  };
  for (const Case c : {Case{0.5, true}, Case{0.05, false}}) {
    ModelPtr model = NewModel();
    SectionPtr section = SectionOf(kFlatTerrain, design);
    TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
    RmMassType* type = AddBetween(types.get(), 1, {kTerrain}, {kDesign});
    type->MinThickness = c.minThickness;
    type->GenerateLayer = 1;
    const RmMass* mass = Compute(model.get(), section.get(), types.get());
    ASSERT_NE(mass, nullptr);
    EXPECT_EQ(mass->ApproxLine != nullptr, c.approx) << c.minThickness;
    EXPECT_NEAR(mass->Area, dYgPolygonArea(mass->ExactLine, nullptr), 1e-9);
    if (mass->ApproxLine) {
      EXPECT_GT(dYgPolygonArea(mass->ApproxLine, nullptr), mass->Area + 0.1);
    }
    // The generated layer stands once, however often the mass is computed.
    vSectionMassesRecalculate(model.get(), section.get(), types.get());
    int generated = 0;
    for (const RmLayer* layer = RmSectionLayersGetFirst(section.get()); layer;
         layer = layer->Next) {
      generated += iRmLayerGetType(layer) == kRmLayerTheoreticalLike ? 1 : 0;
    }
    EXPECT_EQ(generated, 1);
  }
}

TEST(MassRecalculate, LockedSectionsAndMissingTypesAreLeftAlone) {
  ModelPtr model = NewModel();
  SectionPtr section = SectionOf(kFlatTerrain, kTrough);
  TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
  AddBetween(types.get(), 1, {kTerrain}, {kDesign});
  RmMassAdd(section.get(), 1)->Area = 7.0;
  vRmSectionSetFlag(section.get(), kRmSectionLocked, true);
  vSectionMassesRecalculate(model.get(), section.get(), types.get());
  vRmSectionSetFlag(section.get(), kRmSectionLocked, false);
  vSectionMassesRecalculate(model.get(), section.get(), nullptr);
  RmMassAdd(section.get(), 9)->Area = 3.0;  // no type of that number
  EXPECT_DOUBLE_EQ(RmMassFind(section.get(), 1)->Area, 7.0);
  EXPECT_FALSE(model->Dirty);
  vSectionMassesRecalculate(model.get(), section.get(), types.get());
  EXPECT_DOUBLE_EQ(RmMassFind(section.get(), 1)->Area, 24.0);
  EXPECT_DOUBLE_EQ(RmMassFind(section.get(), 9)->Area, 3.0);
}

// The room between groups of layers taken directly (the bottoms of the
// rooms above them, then the band between) against the clipping of those
// rooms, or the direct way stepping aside where it does not apply.
TEST(MassRoom, DirectWayGivesTheOutlineOfTheClipping) {
  struct Case {
    const char* what;
    std::vector<Points> upper, lower;  // layers 12, 22, ... and 11, 21, ...
    int upperJoin;
    bool direct;
    int lowerJoin = 0;
  };
  const Points valley{{-10, 2}, {0, -2}, {10, 2}};
  const Points ridge{{-10, -1}, {0, 2}, {10, -1}};
  const Points flat{{-10, 0}, {10, 0}};
  const Case cases[] = {
      {"groups crossing each other, lowest", {valley, ridge}, {flat, {{-9, -1}, {9, 1}}}, 1, true},
      {"groups crossing each other, highest", {valley, ridge}, {flat}, 0, true},
      {"an upper layer narrower, stepping down", {{{-10, 3}, {10, 3}}, {{-5, 1}, {5, 1}}},
       {flat}, 1, true},
      {"an upper layer beginning inside, below the lower",
       {{{-10, 3}, {10, 3}}, {{-5, -1}, {12, -1}}}, {flat}, 1, true},
      {"layers touching in a point", {{{-10, 1}, {0, 0}, {10, 1}}, {{-10, 2}, {0, 0}, {10, 2}}},
       {flat}, 1, true},
      {"upper layers meeting end to end", {{{-10, 1}, {0, 1}}, {{0, 2}, {10, 2}}}, {flat}, 1, true},
      {"upper layers with a hole between", {{{-10, 1}, {-1, 1}}, {{1, 2}, {10, 2}}}, {flat}, 1,
       false},
      {"a gap -99999 in one layer", {{{-10, 1}, {0, -99999}, {10, 1}}, ridge}, {flat}, 1, false},
      {"both groups stepping at one offset", {{{-10, 3}, {10, 3}}, {{-5, 1}, {5, 1}}},
       {flat, {{-5, -1}, {5, -1}}}, 1, false, 1},
  };
  for (const Case& c : cases) {
    SectionPtr section(RmSectionCreateFree());
    TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
    RmMassType* type = RmMassTypeAdd(types.get(), 1);
    type->FromLayers.Join = c.upperJoin;
    type->ToLayers.Join = c.lowerJoin;
    ViExtent box;
    vViExtentClear(&box);
    for (const bool upper : {true, false}) {
      const std::vector<Points>& layers = upper ? c.upper : c.lower;
      for (size_t k = 0; k < layers.size(); ++k) {
        const int id = (upper ? 12 : 11) + 10 * static_cast<int>(k);
        AddLayer(section.get(), id, layers[k]);
        RmLayerListAdd(upper ? &type->FromLayers : &type->ToLayers, RmLayerIdFromFile(id));
        for (const auto& [x, z] : layers[k]) vViExtentAddPoint(&box, x, z);
      }
    }
    box.dMinY -= 500.0;
    box.dMaxY += 500.0;
    SgHeightLine upper, lower;
    YgPolygon* direct = nullptr;
    const bool applies = boLayerListBottom(section.get(), &type->FromLayers, 0.0, &upper) &&
                         boLayerListBottom(section.get(), &type->ToLayers, 0.0, &lower) &&
                         boLayerBandPolygon(upper, lower, box, &direct);
    ASSERT_EQ(applies, c.direct) << c.what;
    if (!applies) continue;
    YgPolygon* upperRoom =
        LayerListPolygon(section.get(), &type->FromLayers, c.upperJoin, kSgCloseToTop, box, 0.0);
    YgPolygon* lowerRoom =
        LayerListPolygon(section.get(), &type->ToLayers, c.lowerJoin, kSgCloseToTop, box, 0.0);
    vAddGapRectangles(upperRoom, box);
    YgPolygon* clipped =
        pYgPolygonPolygonClipAndSortPartsForIslands(lowerRoom, upperRoom, kYgClipDifference, 1);
    ASSERT_NE(direct, nullptr) << c.what;
    ASSERT_NE(clipped, nullptr) << c.what;
    vPolygonNormalise(direct);
    vPolygonNormalise(clipped);
    ASSERT_EQ(iYgElmGetCount(direct), iYgElmGetCount(clipped)) << c.what;
    for (LiElm elm = 0; elm < iYgElmGetCount(direct); ++elm) {
      ViPoint2d a, b;
      vYgElmGetP2d(direct, elm, &a);
      vYgElmGetP2d(clipped, elm, &b);
      EXPECT_NEAR(a.x, b.x, 1e-5) << c.what << " " << elm;
      EXPECT_NEAR(a.y, b.y, 1e-5) << c.what << " " << elm;
      EXPECT_EQ(YgElmGetType(direct, elm), YgElmGetType(clipped, elm)) << c.what << " " << elm;
    }
    for (YgPolygon* polygon : {direct, clipped, upperRoom, lowerRoom}) vYgPolygonDelete(&polygon);
  }
}

}  // namespace
