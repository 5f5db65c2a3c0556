// A conversion that reads no tables leaves the sections of the model file as
// they were.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "geometry/line.h"
#include "kvrvips/kvrvips.h"
#include "model_file/records/frame/model_save.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/sect_params.h"
#include "road_model/sections/section_masses.h"
#include "road_model/sections/section_set.h"
#include "tests/support/model_ptr.h"
#include "tests/vips_import/conversion_fixtures.h"
#include "vips_import/driver/section_finishing.h"

namespace {

// The bytes of a model file in `folder` before and after a conversion with
// `flags`: a locked cross section with a layer and a mass with its outline,
// and a long section beside it.
std::pair<std::string, std::string> SectionsBeforeAndAfter(const ScratchFolder& folder,
                                                           uint32_t flags) {
  std::string modelFile = folder / "veg.sfi";
  ModelPtr model(RmModelCreate());
  RmSection* section =
      RmSectionAdd(RmModelGetOrCreateCrossSections(model.get()), nullptr, 40.0);
  vRmSectionSetFlag(section, kRmSectionLocked, true);
  RmPointAdd(RmLayerAdd(section, RmLayerIdMake(1, 2)), nullptr, -3.0, 102.0, -10100);
  RmMass* mass = RmMassAdd(section, 3);
  mass->ExactLine = LiLineCreate(false);
  LiLineAddP2d(mass->ExactLine, -3, 0);
  LiLineAddP2d(mass->ExactLine, 4, 2);
  RmSectionSet* longSections = RmModelGetOrCreateLongSections(model.get());
  RmPointAdd(RmLayerAdd(RmSectionAdd(longSections, nullptr, 0.0), RmLayerIdMake(2, 1)), nullptr,
             250.5, 104.25, 0);
  EXPECT_TRUE(boRmModelSave(model.get(), modelFile.c_str()));
  std::string before = sReadWholeFile(modelFile);
  vWriteWholeFile(folder / "veg.json", sDesignDocument(sInputOf("10.0", 1)));
  char* logFile = nullptr;
  EXPECT_EQ(iKvrVipsConvertDatabase((folder / "veg.json").c_str(), modelFile.c_str(), flags,
                                    &logFile, sShippedSettings().c_str(), 0, 0),
            0);
  return {before, sReadWholeFile(modelFile)};
}

}  // namespace

TEST(ConvertDatabase, FlagsZeroKeepTheSectionsExactlyAndATablesImportMakesThemAnew) {
  ScratchFolder folder;
  auto [before, after] = SectionsBeforeAndAfter(folder, 0);
  for (const char* head : {"[+O_CROSSECTIONS]", "[+L_CSECTSMASSESLINES]", "[+O_LONGSECTIONS]"}) {
    EXPECT_NE(sBody(before, head), "<none>") << head;
    EXPECT_EQ(sBody(after, head), sBody(before, head)) << head;
  }
  after = SectionsBeforeAndAfter(folder, KVRVIPS_IMPORT_TABLES).second;
  EXPECT_EQ(after.find("CROSSECTIONS"), std::string::npos);
  EXPECT_EQ(after.find("LONGSECTIONS"), std::string::npos);
}

TEST(SectionFinishing, TheWidthComesFromTheOuterLayersAndTheSectionsGoOnTheMainLine) {
  RmModel* model = RmModelCreate();
  vRmModelSetLines(model, RmLinesCreateDefault());
  LiLineAddP2d(RmModelGetCenterLine(model), 0, 0);
  LiLineAddP2d(RmModelGetCenterLine(model), 0, 100);
  RmSectionSet* set = RmModelGetOrCreateCrossSections(model);
  RmSection* first = RmSectionAdd(set, nullptr, 10.0);
  RmLayer* outer = RmLayerAdd(first, RmLayerIdMake(4, 1));
  RmPointAdd(outer, nullptr, -12.25, 1.0, 0);
  RmPointAdd(outer, nullptr, 9.25, 1.0, 0);
  RmSection* second = RmSectionAdd(set, nullptr, 50.0);
  RmPointAdd(RmLayerAdd(second, RmLayerIdMake(3, 5)), nullptr, -15.5, 1.0, 0);
  // Layers of other types do not count.
  RmPointAdd(RmLayerAdd(second, RmLayerIdMake(2, 1)), nullptr, 40.0, 1.0, 0);

  vVipsFitSectionsToMainLine(model);
  const RmSectParams* params = RmModelGetSectParams(model);
  EXPECT_EQ(params->DistLeft, 17.0);
  EXPECT_EQ(params->DistRight, 11.0);
  EXPECT_EQ(second->LeftDist, 17.0f);
  EXPECT_NEAR(second->ClY, 50.0, 1e-9);
  EXPECT_NEAR(second->RightEnd[0], 11.0, 1e-9);

  vVipsClearSections(model);
  EXPECT_EQ(iRmSectionsGetCount(RmModelGetCrossSections(model)), 0);
  vRmModelDelete(model);
}
