// What a load does to the sections of a file of an older DATAVERSION.
#include <cstdlib>

#include "model_file/records/sections/section_records.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/section_placing.h"

namespace {

// The code of the older form: the part behind the family was a group alone
// when it was below 10, and group and number from 10 on.
int iCodeOfOldForm(int code) {
  int magnitude = std::abs(code);
  int family = magnitude / 10000;
  int rest = magnitude % 10000;
  int group = rest >= 10 ? rest / 100 : rest;
  int number = rest >= 10 ? rest % 100 : 0;
  int converted = iRmPcodeBuild(family, group, number);
  return code < 0 ? -converted : converted;
}

bool boUnplaced(const RmSection* section) {
  return section->ClX == 0.0 && section->ClY == 0.0 && section->LeftDist == 0.0f &&
         section->RightDist == 0.0f && section->Direction == 0.0 && section->Skew == 0.0;
}

}  // namespace

void vRmSectionSetConvertOldCodes(RmSectionSet* set) {
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    for (RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
      for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
        vRmPointSetPcode(point, iCodeOfOldForm(iRmPointGetPcode(point)));
      }
    }
  }
}

void vRmSectionSetPlaceUnplaced(RmSectionSet* set, const RmModel* model) {
  const RmLine* centerLine = RmModelGetCenterLine(model);
  if (!centerLine) return;
  const RmSectParams* params = RmModelGetSectParams(model);
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (boUnplaced(section)) boRmSectionPlaceOnLine(section, centerLine, params);
  }
}
