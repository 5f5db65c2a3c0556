// The surface description reconciled with the designed surface lines: rows
// added where a line deviates from its description and where a surface
// ends, none within the tolerances, beyond the side boundary or for a
// surface without a description.
#include <gtest/gtest.h>

#include <string>

#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "tests/vips_import/alignment_reading.h"
#include "vips_import/driver/version_labels.h"
#include "vips_import/readers/side_tables.h"
#include "vips_import/readers/surface_descriptions.h"
#include "vips_import/readers/theoretical_profiles.h"

namespace {

using NpDesignModel::CSurfaceNumber;
using NpDesignModel::DesignModelBuilder;
using NpDesignModel::ModelSectionRecord;
using NpDesignModel::PointRecord;
using NpDesignModel::SurfacePointRecord;

struct Point {
  double x, z, surface;
};

std::vector<SurfacePointRecord> Line(std::initializer_list<Point> points) {
  std::vector<SurfacePointRecord> line;
  for (const Point& p : points) {
    SurfacePointRecord& point = line.emplace_back();
    point.point = PointRecord(p.x, p.z);
    point.surfaceNumber = CSurfaceNumber(p.surface);
  }
  return line;
}

void vDescribe(DesignModelBuilder& builder, const char16_t* name, double number, double width,
               double slope) {
  auto& surface = builder.AddSurface(name, CSurfaceNumber(number));
  for (double chain : {0.0, 100.0}) {
    auto& row = surface.descriptions.emplace_back();
    row.chainage = chain;
    row.width = width;
    row.slope = slope;
  }
}

void vBoundary(DesignModelBuilder& builder, double chain, double distance) {
  auto& row = builder.Input().surfaceBoundariesLeft.emplace_back();
  row.chainage = chain;
  row.distance = distance;
}

}  // namespace

TEST(SurfaceReconciliation, RowsGoWhereTheLinesDeviateAndWhereASurfaceEnds) {
  const double version = VipsModelVersion;
  VipsModelVersion = 10.0;
  DesignModelBuilder builder;
  vDescribe(builder, u"Felt venstre", -1.01, 3.0, -0.02);
  vDescribe(builder, u"Felt", 1.01, 3.0, -0.02);
  vDescribe(builder, u"Gr\u00f8ft", 4.01, 1.5, -0.25);
  // The left side ends 3 m from the centre between 15 and 25.
  vBoundary(builder, 15.0, 3.0);
  vBoundary(builder, 25.0, 3.0);

  // At 10 within the tolerances, the ditch as described, and a surface
  // without a description.
  ModelSectionRecord* ms = &builder.AddSection(10.0).model;
  ms->surfacesLeft = Line({{-3, -0.06, -1.01}});
  ms->surfacesRight = Line(
      {{0, 0, 1.01}, {3.0015, -0.0609, 4.01}, {4.5015, -0.4359, 2.01}, {5.5, -0.2, 2.01}});
  // At 20 a wider lane on each side; the left one lies beyond the boundary.
  ms = &builder.AddSection(20.0).model;
  ms->surfacesLeft = Line({{-3.5, -0.07, -1.01}});
  ms->surfacesRight = Line({{0, 0, 1.01}, {3.5, -0.07, 1.02}});
  // At 30 the same on the left, now within the boundary, and a steeper lane
  // on the right.
  ms = &builder.AddSection(30.0).model;
  ms->surfacesLeft = Line({{-3.5, -0.07, -1.01}});
  ms->surfacesRight = Line({{0, 0, 1.01}, {3.0, -0.0615, 1.02}});
  // At 40 the right lane has ended.
  ms = &builder.AddSection(40.0).model;
  ms->surfacesLeft = Line({{-3, -0.06, -1.01}});
  ms->surfacesRight = Line({{0, 0, 4.01}, {1.5, -0.375, 4.01}});
  auto design = builder.Build();

  ModelPtr model(RmModelCreate());
  vRmModelSetSurfGen(model.get(), RmSurfGenCreate());
  RmSurfGen* surfGen = RmModelGetSurfGen(model.get());
  iVipsReadSurfaces(design->GetI(), nullptr, model.get(), surfGen);
  iVipsReadSurfaceBoundaries(design->GetI(), nullptr, model.get());
  vVipsReadTheoreticalProfiles(design->GetR(), design->GetI(), nullptr, model.get(), surfGen, 1);
  VipsModelVersion = version;

  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "SURFGEN"),
            sCrLf({":SURFACES 1", "REFSURF 0", "REFHEIGHT -0.0000", "STARTTYPE 0",
                   ":SURFACE -10100", "DESCR \"Felt venstre\"", " 0 3 -0.02 0",
                   " 30 3.5 -0.02 1", " 100 3 -0.02 0",
                   ":SURFACE 10100", "DESCR Felt", " 0 3 -0.02 0", " 20 3.5 -0.02 1",
                   " 30 3 -0.0205 1", " 40 0 0 1", " 100 3 -0.02 0",
                   ":SURFACE 40100", "DESCR Gr\xF8" "ft", " 0 1.5 -0.25 0", " 100 1.5 -0.25 0"}));
}
