#include "vips_import/readers/alignments.h"

#include <string>
#include <vector>

#include "design_model/design_model.h"
#include "road_model/lines/line_alignment.h"
#include "road_model/lines/line_fields.h"
#include "road_model/lines/vertical_curves.h"
#include "road_model/model/model_lines.h"
#include "road_model/lines/vertical_line.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/wide_text.h"

namespace {

using NpDesignModel::CIAlignment;
using NpDesignModel::CIHorizontalLineElement;
using NpDesignModel::CIVerticalLineAnglePoint;

// The line of the alignment: the one with its id, or a new one. A new line
// is named by the alignment's GUID, not by its name: the model knows its
// lines by GUID. A line that exists keeps its fields.
RmLine* AlignmentLine(RmLines* lines, const CIAlignment& alignment) {
  long id = alignment.GetId();
  RmLine* line = RmLinesFindById(lines, id);
  if (line) return line;
  line = RmLinesAddWithId(lines, id, false);
  if (line) vRmLineSetName(line, sVipsNarrow(alignment.GetGuid()).c_str());
  return line;
}

RmAlignmentElement PlanElement(const CIHorizontalLineElement& element) {
  RmAlignmentElement plan;
  plan.StartChain = element.GetStartChainage();
  plan.EndChain = element.GetEndChainage();
  plan.StartRadius = element.GetStartRadius();
  plan.EndRadius = element.GetEndRadius();
  plan.A = element.GetClothoidParameter();
  plan.StartX = element.GetStartEast();
  plan.StartY = element.GetStartNorth();
  plan.EndX = element.GetEndEast();
  plan.EndY = element.GetEndNorth();
  return plan;
}

// Appends the alignment's plan elements to the line. The first element
// brings its start point and sets the line's start chainage, also on a line
// that had points before.
void vReadHorizontal(RmLine* line, const CIAlignment& alignment, bool reference) {
  vRmLineSetCenterLine(line, reference);
  std::vector<const CIHorizontalLineElement*> elements = alignment.GetHorizontalLineElements();
  bool first = true;
  for (const CIHorizontalLineElement* element : elements) {
    if (!element) continue;
    RmLineAddAlignmentElement(line, PlanElement(*element), first);
    first = false;
  }
}

// Gives the line a new vertical line of the alignment's angle points, each
// a circular curve when it has a radius; an alignment without angle points
// leaves the line without one.
void vReadVertical(RmLines* lines, RmLine* line, const CIAlignment& alignment) {
  vRmLineDeleteVerLine(line);
  std::vector<const CIVerticalLineAnglePoint*> points = alignment.GetVerticalLineAnglePoints();
  if (points.empty()) return;
  RmVerLine* verLine = RmVerLineCreate();
  if (!verLine) return;
  vRmLineSetVerLine(lines, line, verLine);
  for (const CIVerticalLineAnglePoint* point : points) {
    if (!point) continue;
    RmVerPointAdd(verLine, point->GetChainage(), point->GetElevation(), point->GetRadius(), 0.0);
  }
  iRmVerLineCompute(verLine);
}

}  // namespace

int iVipsReadAlignments(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model,
                        int mainOnly, int horizontal, int vertical) {
  RmLines* lines = RmModelGetLines(model);
  if (!lines || !in) return 0;
  if (!mainOnly) vVipsLogPrint(log, "Leser ekstra linjer\n");
  long referenceId = in->GetReferenceAlignmentID();
  int count = 0;
  std::vector<const CIAlignment*> alignments = in->GetAlignments();
  for (const CIAlignment* alignment : alignments) {
    if (!alignment) continue;
    bool reference = alignment->GetId() == referenceId;
    if (reference != (mainOnly != 0)) continue;
    RmLine* line = AlignmentLine(lines, *alignment);
    if (!line) continue;
    if (mainOnly) {
      if (horizontal) vVipsLogPrint(log, "Leser horisontalkurvatur\n");
      if (vertical) vVipsLogPrint(log, "Leser vertikalkurvatur\n");
    }
    if (horizontal) vReadHorizontal(line, *alignment, reference);
    if (vertical) vReadVertical(lines, line, *alignment);
    ++count;
  }
  return count;
}
