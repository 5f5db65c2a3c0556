// Records of every kind read from a file on disk, each section in turn and
// each through the reader of its kind.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "geometry/lines.h"
#include "model_file/container/asf_objects.h"
#include "tests/model_file/container/record_test_util.h"

TEST(AsfObjectReader, AFileOnDiskGivesEveryKindThroughItsReader) {
  OwnedFile file(AsfFileOpen(FixturePath("geometry_records.sfi").c_str()));
  ASSERT_NE(file, nullptr);
  std::vector<std::string> seen;
  for (int index = 0; AsfSection* section = AsfSectionAt(file, index); ++index) {
    int type = iAsfSectionGetType(section);
    long id = 0;
    while (iAsfObjectNext(file, section, &id) == type) {
      std::string what = std::string(sAsfSectionGetName(section)) + " " + std::to_string(id);
      OwnedLine line(LiLineCreate(false));
      OwnedPoint point(PoPointCreate());
      OwnedText text(TeTextCreate());
      OwnedNet net(TrNetCreate());
      OwnedCloud cloud(PtCloudCreate());
      if (boAsfLineRead(file, section, line) || boAsfPolygonRead(file, section, line)) {
        what += " elements " + std::to_string(iLiLineGetElmCount(line));
      } else if (boAsfPointRead(file, section, point)) {
        what += " rotation " + std::to_string(dPoPointGetRotation(point));
      } else if (boAsfTextRead(file, section, text)) {
        what += std::string(" label ") + sTeTextGetLabel(text);
      } else if (boAsfNetRead(file, section, net)) {
        what += " triangles " + std::to_string(iTrNetGetTriangleCount(net));
      } else if (boAsfCloudRead(file, section, cloud)) {
        what += " intensity " + std::to_string(iPtCloudGetPointAttribInt(cloud, 0, 3));
      }
      seen.push_back(what);
    }
  }
  EXPECT_EQ(seen, (std::vector<std::string>{"LINES 1 elements 3", "LINES 2 elements 2",
                                            "AREAS 0 elements 6", "POINTS 5 rotation 0.785398",
                                            "TEXTS 6 label R\xF8sta bru", "NETS 8 triangles 2",
                                            "CLOUDS 9 intensity 103"}));
}
