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
    "input": {"modelType": 1, "alignments": [{
      "id": 1, "name": "Main",
      "horizontalLineElements": [{"elementNo": 1, "endChainage": 100}],
      "verticalLineAnglePoints": [{"chainage": 100, "radius": 2000}]}]},
    "results": {"sections": [{
      "chainage": 50,
      "model": {"surfacesLeft": [{"point": {"distance": -3.5, "elevation": -0.1},
                                  "surfaceNumber": {"decimal": -1.01, "serialNumber": 2}}]},
      "terrain": {"materials": [1], "layerElevations": [{"subSurfaces": [null]}]}
    }]}
  })";
  DocumentProblem problem;
  std::unique_ptr<DesignModelRecord> read = ReadDocumentText(document, &problem);
  ASSERT_TRUE(read) << problem.sPointer << ": " << problem.sExpected;

  DesignModelBuilder builder;
  builder.Input().modelType = CInData::ModelTypeEnums{1};
  AlignmentRecord& main = builder.AddAlignment(1, u"Main");
  HorizontalLineElementRecord& straight = main.horizontalLineElements.emplace_back();
  straight.elementNo = 1;
  straight.endChainage = 100.0;
  VerticalLineAnglePointRecord& end = main.verticalLineAnglePoints.emplace_back();
  end.chainage = 100.0;
  end.radius = 2000.0;
  ResultSectionRecord& section = builder.AddSection(50.0);
  SurfacePointRecord& left = section.model.surfacesLeft.emplace_back();
  left.point = PointRecord(-3.5, -0.1);
  left.surfaceNumber = CSurfaceNumber(-1.01, 2);
  section.terrain.materials.push_back(CRTerrainSection::MaterialEnums{1});
  section.terrain.layerElevations.emplace_back().subSurfaces.push_back(kNoValue);
  std::unique_ptr<DesignModelRecord> built = builder.Build();

  // The document of a design holds every member of every object, so the
  // members that neither gives stand at the same defaults in both.
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
