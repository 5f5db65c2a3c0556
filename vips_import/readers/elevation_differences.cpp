#include "vips_import/readers/elevation_differences.h"

#include <vector>

#include "design_model/design_model.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/model/model_lines.h"
#include "road_model/lines/vertical_line.h"
#include "vips_import/driver/import_log.h"

namespace {

// The vertical line of the model's centre line, made when the line has
// none; null without a centre line.
RmVerLine* CenterVerLine(RmModel* model) {
  RmLine* line = RmModelGetCenterLine(model);
  if (!line) return nullptr;
  RmVerLine* verLine = RmLineGetVerLine(line);
  if (!verLine) {
    verLine = RmVerLineCreate();
    vRmLineSetVerLine(RmModelGetLines(model), line, verLine);
  }
  return verLine;
}

}  // namespace

bool boVipsReadElevationDifferences(const NpDesignModel::CInData* in, std::FILE* log,
                                    RmModel* model) {
  RmDiffAltitudes* table = RmDiffAltitudesCreate();
  RmVerLine* verLine = CenterVerLine(model);
  if (verLine) vRmVerLineSetDiffAltitudes(verLine, table);
  vVipsLogPrint(log, "  Leser tabell: Overstyring av vertikalkurvatur\n\n");

  int count = 0;
  if (in && table) {
    std::vector<const NpDesignModel::CIElevationDifference*> rows = in->GetElevationDifferences();
    for (const NpDesignModel::CIElevationDifference* row : rows) {
      if (!row) continue;
      double from = row->GetFromChainage();
      RmDiffAltitude* entry = RmDiffAltitudeAdd(table, from);
      vRmDiffAltitudeSetRange(entry, from, row->GetToChainage());
      vRmDiffAltitudeSetHeight(entry, row->GetDifference());
      ++count;
    }
  }
  // Without a centre line nobody holds the table.
  if (!verLine) vRmDiffAltitudesDelete(&table);
  return count > 0;
}
