// The builder makes the same design that the document reader makes.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "design_model/design_model_builder.h"
#include "design_model/document.h"

namespace NpDesignModel {
namespace {

TEST(DesignModelBuilder, GivesTheSameDesignAsItsDocument) {
  const std::string document = R"({
    "format": "design-model", "formatVersion": 1,
    "input": {
      "modelVersionNumber": 10.0, "modelType": 1, "referenceAlignmentId": 1,
      "alignments": [{
        "id": 1, "name": "Main", "guid": "9f1c2a4e-0000-4000-8000-000000000001",
        "horizontalLineElements": [
          {"elementNo": 1, "startChainage": 0, "endChainage": 100, "startEast": 1000,
           "startNorth": 2000, "endEast": 1100, "endNorth": 2000}],
        "verticalLineAnglePoints": [
          {"chainage": 0, "elevation": 10}, {"chainage": 100, "elevation": 12, "radius": 2000}]
      }]
    },
    "results": {"sections": [{
      "chainage": 50,
      "model": {"refElevation": 11,
                "surfacesLeft": [{"point": {"distance": -3.5, "elevation": -0.1},
                                  "surfaceNumber": {"decimal": -1.01, "serialNumber": 2}}]},
      "terrain": {"elevation": 9.5, "materials": [1],
                  "layerElevations": [{"distance": -20, "surface": 0.5, "subSurfaces": [null]}]}
    }]}
  })";
  DocumentProblem problem;
  std::unique_ptr<DesignModelRecord> read = ReadDocumentText(document, &problem);
  ASSERT_TRUE(read) << problem.sPointer << ": " << problem.sExpected;

  DesignModelBuilder builder;
  InDataRecord& in = builder.Input();
  in.modelVersionNumber = 10.0;
  in.modelType = CInData::ModelTypeEnums{1};
  in.referenceAlignmentId = 1;
  AlignmentRecord& main = builder.AddAlignment(1, u"Main");
  main.guid = u"9f1c2a4e-0000-4000-8000-000000000001";
  HorizontalLineElementRecord& straight = main.horizontalLineElements.emplace_back();
  straight.elementNo = 1;
  straight.endChainage = 100.0;
  straight.startEast = 1000.0;
  straight.startNorth = 2000.0;
  straight.endEast = 1100.0;
  straight.endNorth = 2000.0;
  main.verticalLineAnglePoints.emplace_back().elevation = 10.0;
  VerticalLineAnglePointRecord& end = main.verticalLineAnglePoints.emplace_back();
  end.chainage = 100.0;
  end.elevation = 12.0;
  end.radius = 2000.0;
  ResultSectionRecord& section = builder.AddSection(50.0);
  section.model.refElevation = 11.0;
  SurfacePointRecord& left = section.model.surfacesLeft.emplace_back();
  left.point = PointRecord(-3.5, -0.1);
  left.surfaceNumber = CSurfaceNumber(-1.01, 2);
  section.terrain.elevation = 9.5;
  section.terrain.materials.push_back(CRTerrainSection::MaterialEnums{1});
  LayerElevationsRecord& column = section.terrain.layerElevations.emplace_back();
  column.distance = -20.0;
  column.surface = 0.5;
  column.subSurfaces.push_back(kNoValue);
  std::unique_ptr<DesignModelRecord> built = builder.Build();

  // The document of a design holds every member of every object.
  EXPECT_EQ(sDocumentText(*built, true), sDocumentText(*read, true));
}

TEST(DesignModelBuilder, MakesOnlyTheSidesThatAreAskedFor) {
  DesignModelBuilder builder;
  std::unique_ptr<DesignModelRecord> empty = builder.Build();
  EXPECT_EQ(empty->GetI(), nullptr);
  EXPECT_EQ(empty->GetR(), nullptr);
  builder.AddSurface(u"Kj\u00F8rebane", CSurfaceNumber(1.01));
  std::unique_ptr<DesignModelRecord> input = builder.Build();
  ASSERT_TRUE(input->GetI());
  EXPECT_EQ(input->GetI()->GetSurfaces().size(), 1u);
  EXPECT_EQ(input->GetR(), nullptr);
  // Build starts the builder afresh.
  EXPECT_EQ(builder.Build()->GetI(), nullptr);
}

}  // namespace
}  // namespace NpDesignModel
