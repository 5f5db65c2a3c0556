#include "section_geometry/mass_compute.h"

#include <cmath>

#include "road_model/model/model.h"
#include "road_model/names/mass_type_rules.h"
#include "road_model/names/mass_types.h"
#include "road_model/sections/section_masses.h"
#include "section_geometry/generated_layer.h"
#include "section_geometry/line_measures.h"
#include "section_geometry/line_normalise.h"
#include "section_geometry/mass_chain_ranges.h"
#include "section_geometry/mass_combination.h"
#include "section_geometry/mass_line_shape.h"
#include "section_geometry/mass_polygon.h"

namespace {

constexpr int kCombined = 2;
constexpr int kCalcTypeAreaLayers = 8;
constexpr int kCalcTypePerPoint = 6;
constexpr int kCalcTypeThickLine = 12;

// The measure of a line mass by its CALCTYPE: 3 in space, 1 and 2 in the
// plane; 0 for types that are not line types.
int iLineDimension(int calcType) {
  switch (calcType) {
    case 1:
    case 3:
    case 4:
      return 1;
    case 2:
    case 5:
    case 12:
      return 2;
    case 7:
      return 3;
    default:
      return 0;
  }
}

bool boIsLocked(const RmSection* section) {
  return boRmSectionGetFlag(section, kRmSectionLocked);
}

void vRemoveMass(RmSection* section, RmMass* mass) {
  if (mass) vRmMassRemove(section, mass);
}

// Keeps or drops the outlines, as the caller asks.
void vStoreShapes(RmMass* mass, LiLine* exact, LiLine* approx, int keepShape, bool absolute) {
  vLiLineDelete(&mass->ExactLine);
  vLiLineDelete(&mass->ApproxLine);
  if (!keepShape) {
    vLiLineDelete(&exact);
    vLiLineDelete(&approx);
    return;
  }
  // Outlines of the same shape are stored in the same order, whatever order
  // the clipping left them in.
  if (boLiLineIsPolygon(exact)) vPolygonNormalise(exact);
  mass->ExactLine = exact;
  if (!approx) return;
  double exactArea = dYgPolygonArea(exact, nullptr);
  double approxArea = dYgPolygonArea(approx, nullptr);
  if (absolute) {
    exactArea = std::fabs(exactArea);
    approxArea = std::fabs(approxArea);
  }
  if (std::fabs(approxArea - exactArea) > kSgSameOutlineArea) {
    vPolygonNormalise(approx);
    mass->ApproxLine = approx;
  } else {
    vLiLineDelete(&approx);
  }
}

void vComputeArea(RmModel* model, int massId, RmSection* section, const RmMassTypes* massTypes,
                  const RmMassType* massType, RmMass* mass, int keepShape) {
  YgPolygon* exact = MassPolygon(model, section, massTypes, massType, 1);
  // Without a minimum thickness no thin part is removed, and the outline
  // without that removal is the exact one: it is not made twice.
  YgPolygon* approx = nullptr;
  if (exact && (massType->GenerateLayer != 0 || keepShape) && massType->MinThickness > 0.0) {
    approx = MassPolygon(model, section, massTypes, massType, 0);
  }
  if (!exact) {
    vYgPolygonDelete(&approx);
    vRemoveMass(section, mass);
    return;
  }
  if (!mass) mass = RmMassAdd(section, massId);
  if (!mass) {
    vYgPolygonDelete(&exact);
    vYgPolygonDelete(&approx);
    return;
  }
  double centroid = 0.0;
  double area = dYgPolygonArea(exact, &centroid);
  const bool absolute = massType->CalcType == kCalcTypeAreaLayers;
  if (absolute) area = std::fabs(area);
  if (massType->CalcType == kCalcTypePerPoint) {
    mass->Area = massType->PointInterval != 0.0 ? area / massType->PointInterval : 0.0;
    mass->CentroidOffset = 0.0;
  } else {
    mass->Area = area;
    mass->CentroidOffset = centroid;
  }
  if (massType->GenerateLayer != 0) {
    vGeneratedLayerBuild(section, massType->Number, approx ? approx : exact);
  }
  vStoreShapes(mass, exact, approx, keepShape, absolute);
}

void vComputeLine(RmModel* model, int massId, RmSection* section, const RmMassTypes* massTypes,
                  const RmMassType* massType, RmMass* mass, int keepShape) {
  LiLine* line = MassLineShape(model, section, massTypes, massType);
  if (!line) {
    vRemoveMass(section, mass);
    return;
  }
  if (!mass) mass = RmMassAdd(section, massId);
  if (!mass) {
    vLiLineDelete(&line);
    return;
  }
  mass->Area = dLineMeasure(line, iLineDimension(massType->CalcType));
  mass->CentroidOffset = dLineCentroidOffset(line);
  if (massType->CalcType == kCalcTypeThickLine) mass->Area *= std::fabs(massType->MinThickness);
  if (massType->GenerateLayer != 0) vGeneratedLayerBuild(section, massType->Number, line);
  vStoreShapes(mass, line, nullptr, keepShape, false);
}

}  // namespace

void vMassCompute(RmModel* model, int massId, RmSection* section, const RmMassTypes* massTypes,
                  const RmMassType* massType, RmMass* mass, int keepShape) {
  if (!section || !massType) return;
  if (massType->ComposedType == kCombined) {
    if (!mass) mass = RmMassAdd(section, massId);
    vMassCombine(section, massType, mass);
    return;
  }
  if (boIsLocked(section)) return;
  vGeneratedLayerRemove(section, massType->Number);
  if (!boChainInRanges(massType, section->Chain) &&
      iRmMassTypesGetKind(massTypes) != kRmMassTypesLong) {
    vRemoveMass(section, mass);
    return;
  }
  if (boRmMassTypeIsVolume(massTypes, massType)) {
    vComputeArea(model, massId, section, massTypes, massType, mass, keepShape);
  } else if (boRmMassTypeIsArea(massTypes, massType)) {
    vComputeLine(model, massId, section, massTypes, massType, mass, keepShape);
  }
}

void vSectionMassesRecalculate(RmModel* model, RmSection* section, const RmMassTypes* massTypes) {
  if (!section || !massTypes || boIsLocked(section)) return;
  bool computed = false;
  // Combined masses add up the others: they come second.
  for (const bool combined : {false, true}) {
    for (RmMass* mass = RmSectionMassesGetFirst(section); mass;) {
      RmMass* next = RmMassGetNext(mass);
      const RmMassType* type = RmMassTypeFind(massTypes, mass->MassId);
      if (type && (type->ComposedType == kCombined) == combined) {
        vMassCompute(model, mass->MassId, section, massTypes, type, mass, 1);
        computed = true;
      }
      mass = next;
    }
  }
  if (computed) vRmModelSetDirty(model, true);
}
