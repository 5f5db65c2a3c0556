// The alignment import and the elevation differences, read straight from a
// design built in memory: the cases that the conversion of a whole design
// does not reach.
#include <gtest/gtest.h>

#include "geometry/line.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/lines/line_fields.h"
#include "road_model/model/model_lines.h"
#include "road_model/lines/vertical_line.h"
#include "tests/vips_import/alignment_reading.h"
#include "vips_import/readers/alignments.h"
#include "vips_import/readers/elevation_differences.h"

namespace {

using NpDesignModel::AlignmentRecord;
using NpDesignModel::DesignModelBuilder;
using NpDesignModel::DesignModelRecord;

ModelPtr ModelWithLines() {
  ModelPtr model(RmModelCreate());
  RmModelGetOrCreateLines(model.get());
  return model;
}

RmLines* Lines(const ModelPtr& model) { return RmModelGetLines(model.get()); }

}  // namespace

TEST(ReadAlignments, TheCountTellsTheAlignmentsReadAndTheHeadingsTheirGeometry) {
  DesignModelBuilder builder;
  builder.Input().referenceAlignmentId = 2;
  vAddElement(builder.AddAlignment(4, u"Kant"), 0.0, 10.0, 0.0, 5.0, 10.0, 5.0);
  vAddElement(builder.AddAlignment(2, u"Senter"), 0.0, 10.0, 0.0, 0.0, 10.0, 0.0);
  vAddElement(builder.AddAlignment(7, u"Kant"), 0.0, 10.0, 0.0, -5.0, 10.0, -5.0);
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model = ModelWithLines();
  LogStream log;

  EXPECT_EQ(iVipsReadAlignments(design->GetI(), log.get(), model.get(), 1, 1, 1), 1);
  EXPECT_EQ(iVipsReadAlignments(design->GetI(), log.get(), model.get(), 0, 0, 0), 2);
  EXPECT_EQ(log.Text(), "Leser horisontalkurvatur\nLeser vertikalkurvatur\nLeser ekstra linjer\n");

  // Without plan lines, or without a design, nothing is read or logged.
  ModelPtr bare(RmModelCreate());
  LogStream quiet;
  EXPECT_EQ(iVipsReadAlignments(design->GetI(), quiet.get(), bare.get(), 0, 1, 1), 0);
  EXPECT_EQ(iVipsReadAlignments(nullptr, quiet.get(), model.get(), 0, 1, 1), 0);
  EXPECT_EQ(iVipsReadAlignments(design->GetI(), quiet.get(), nullptr, 1, 1, 1), 0);
  EXPECT_EQ(RmModelGetLines(bare.get()), nullptr);
  EXPECT_EQ(quiet.Text(), "");
}

TEST(ReadAlignments, AlignmentsOfOneIdAreMergedAndTheLastProfileWins) {
  DesignModelBuilder builder;
  AlignmentRecord& first = builder.AddAlignment(6, u"F\u00f8rste");
  first.guid = u"guid-first";
  vAddElement(first, 100.0, 110.0, 0.0, 0.0, 10.0, 0.0);
  vAddAnglePoint(first, 100.0, 5.0);
  vAddAnglePoint(first, 110.0, 6.0);
  AlignmentRecord& second = builder.AddAlignment(6, u"Andre");
  second.guid = u"guid-second";
  vAddElement(second, 200.0, 210.0, 20.0, 0.0, 30.0, 0.0);
  vAddAnglePoint(second, 200.0, 7.0);
  vAddAnglePoint(second, 210.0, 8.0);
  vAddAnglePoint(second, 220.0, 9.0);
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model = ModelWithLines();

  EXPECT_EQ(iVipsReadAlignments(design->GetI(), nullptr, model.get(), 0, 1, 1), 2);
  ASSERT_EQ(iRmLinesGetCount(Lines(model)), 1);
  RmLine* line = RmLinesGetFirst(Lines(model));
  // The line keeps the name it was made with; the second alignment goes on
  // behind the first (the order of the points is the line's own test).
  EXPECT_STREQ(sRmLineGetName(line), "guid-first");
  EXPECT_EQ(dRmLineGetStartChain(line), 200.0);
  EXPECT_EQ(iLiLineGetElmCount(line), 4);
  const RmVerLine* verLine = RmLineGetVerLine(line);
  ASSERT_EQ(iRmVerLineGetCount(verLine), 3);
  EXPECT_EQ(RmVerLineGetFirst(verLine)->Height, 7.0);
}

TEST(ReadAlignments, AnAlignmentWithoutGeometryLeavesABareLine) {
  DesignModelBuilder builder;
  builder.Input().referenceAlignmentId = 3;
  AlignmentRecord& main = builder.AddAlignment(3, u"Tom");
  main.guid = u"guid-3";
  vAddAnglePoint(main, 0.0, 10.0);
  vAddAnglePoint(main, 100.0, 12.0, 500.0);
  vAddAnglePoint(main, 200.0, 11.0);
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model = ModelWithLines();

  EXPECT_EQ(iVipsReadAlignments(design->GetI(), nullptr, model.get(), 1, 1, 1), 1);
  RmLine* line = RmLinesFindById(Lines(model), 3);
  EXPECT_EQ(iLiLineGetElmCount(line), 0);
  EXPECT_STREQ(sRmLineGetName(line), "guid-3");
  EXPECT_TRUE(boRmLineIsCenterLine(line));
  ASSERT_NE(RmLineGetVerLine(line), nullptr);
  EXPECT_EQ(RmLineGetVerLine(line)->Lines, Lines(model));

  // A profile without angle points takes the line's vertical line away.
  design->input->alignments[0].verticalLineAnglePoints.clear();
  EXPECT_EQ(iVipsReadAlignments(design->GetI(), nullptr, model.get(), 1, 0, 1), 1);
  EXPECT_EQ(RmLineGetVerLine(line), nullptr);
}

TEST(ReadElevationDifferences, TheCentreLineGetsANewTableAndOtherwiseNobody) {
  DesignModelBuilder builder;
  builder.Input().referenceAlignmentId = 1;
  AlignmentRecord& main = builder.AddAlignment(1, u"Senter");
  vAddElement(main, 0.0, 10.0, 0.0, 0.0, 10.0, 0.0);
  vAddElevationDifference(builder.Input(), 10.0, 20.0, 1.0);
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  const char* heading = "  Leser tabell: Overstyring av vertikalkurvatur\n\n";

  // The plan alone marks the centre line, which has no vertical line yet.
  ModelPtr model = ModelWithLines();
  iVipsReadAlignments(design->GetI(), nullptr, model.get(), 1, 1, 0);
  LogStream log;
  EXPECT_TRUE(boVipsReadElevationDifferences(design->GetI(), log.get(), model.get()));
  EXPECT_EQ(log.Text(), heading);
  RmVerLine* verLine = RmLineGetVerLine(RmModelGetCenterLine(model.get()));
  ASSERT_NE(verLine, nullptr);
  EXPECT_EQ(verLine->Lines, Lines(model));
  EXPECT_EQ(iRmVerLineGetCount(verLine), 0);
  EXPECT_EQ(iRmDiffAltitudesGetCount(verLine->DiffAltitudes), 1);

  // A design without rows leaves an empty table in place of the old one.
  design->input->elevationDifferences.clear();
  EXPECT_FALSE(boVipsReadElevationDifferences(design->GetI(), log.get(), model.get()));
  EXPECT_EQ(log.Text(), std::string(heading) + heading);
  ASSERT_NE(verLine->DiffAltitudes, nullptr);
  EXPECT_EQ(iRmDiffAltitudesGetCount(verLine->DiffAltitudes), 0);

  // Without plan lines the rows are read and dropped.
  vAddElevationDifference(*design->input, 10.0, 20.0, 1.0);
  ModelPtr bare(RmModelCreate());
  EXPECT_TRUE(boVipsReadElevationDifferences(design->GetI(), nullptr, bare.get()));
  EXPECT_FALSE(boVipsReadElevationDifferences(nullptr, nullptr, nullptr));
}
