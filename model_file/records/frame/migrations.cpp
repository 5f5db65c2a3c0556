#include "model_file/records/frame/migrations.h"

#include <climits>

#include "road_model/codes/pcode.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/annotation_types.h"
#include "road_model/params/nrm_conversion.h"
#include "road_model/sections/section_placing.h"
#include "road_model/sections/section_set.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/tables/pavement_packages.h"
#include "road_model/tables/side_boundaries.h"
#include "road_model/tables/special_gradings.h"
#include "road_model/tables/surface_border_lines.h"
#include "section_geometry/locked_masses.h"

namespace {

struct Migration {
  int FirstVersion;  // the DATAVERSIONs that the step runs for, both included
  int LastVersion;
  void (*Run)(RmModel* model);
};

void vRewriteOldCodes(RmSectionSet* set) {
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    for (RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
      for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
        vRmPointSetPcode(point, iRmPcodeFromOldForm(iRmPointGetPcode(point)));
      }
    }
  }
}

// Every PCODE that the model holds, from the older decimal form.
void vRewriteAllOldCodes(RmModel* model) {
  vRewriteOldCodes(RmModelGetCrossSections(model));
  vRewriteOldCodes(RmModelGetLongSections(model));
  const RmSurfGen* gen = RmModelGetSurfGen(model);
  vRmSurfaceGroupsMapCodes(RmSurfGenGet<kRmSurfaceGroupsSlot>(gen), iRmPcodeFromOldForm);
  vRmSpecialGradingsMapCodes(RmSurfGenGet<kRmSpecialGradingsSlot>(gen), iRmPcodeFromOldForm);
  vRmPavementMapCodes(RmSurfGenGet<kRmPavementSlot>(gen), iRmPcodeFromOldForm);
  vRmSideBoundariesMapCodes(RmModelGetSideBoundaries(model), iRmPcodeFromOldForm);
}

// Surface groups of such files could not start at an extra line; what they
// held in its place were offsets from the centre.
void vStartGroupsAtOffsets(RmModel* model) {
  vRmSurfaceGroupsStartAtOffsets(RmSurfGenGet<kRmSurfaceGroupsSlot>(RmModelGetSurfGen(model)));
}

// Pavement packages of such files knew fewer layer positions.
void vMoveOldPavementPositions(RmModel* model) {
  vRmPavementMoveOldPositions(RmSurfGenGet<kRmPavementSlot>(RmModelGetSurfGen(model)));
}

// Models of such files built without CALCMODE kept the border lines of the
// surfaces on the model, where the first surface group keeps them now.
void vMoveBorderLinesIntoFirstGroup(RmModel* model) {
  RmSurfaceBorderLines* lines = RmModelGetSurfaceBorderLines(model);
  RmSurfaceGroup* group =
      RmSurfaceGroupsGetFirst(RmSurfGenGet<kRmSurfaceGroupsSlot>(RmModelGetSurfGen(model)));
  if (model->CalcMode != 0 || !lines || !group) return;
  if (!group->BorderLines) group->BorderLines = RmSurfaceBorderLinesCreate();
  for (const RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(lines); row;
       row = row->Next) {
    RmSurfaceBorderLine* copy =
        RmSurfaceBorderLineAdd(group->BorderLines, row->Surface, row->Range.Low);
    if (!copy) continue;
    copy->Range = row->Range;
    copy->Method = row->Method;
    copy->LineId = row->LineId;
    copy->FreeSurface = row->FreeSurface;
  }
  vRmModelSetSurfaceBorderLines(model, nullptr);
}

// Locked sections of such files are rebuilt before they are locked again,
// as far as this library can rebuild a section: their masses, outlines and
// generated layers are made anew (section_geometry/locked_masses.h); their
// layers from the design stay, since building those is the section
// builder's. The model is marked dirty so that the next save writes the
// sections in the current form.
void vRebuildLockedSections(RmModel* model) { vRmModelRebuildLockedSections(model); }

bool boUnplaced(const RmSection* section) {
  return section->ClX == 0.0 && section->ClY == 0.0 && section->LeftDist == 0.0f &&
         section->RightDist == 0.0f && section->Direction == 0.0 && section->Skew == 0.0;
}

// A cross section of such a file could come without its plan position: one
// whose CLRANG values are all 0 is placed on the centre line.
void vPlaceUnplacedSections(RmModel* model) {
  const RmLine* centerLine = RmModelGetCenterLine(model);
  if (!centerLine) return;
  const RmSectParams* params = RmModelGetSectParams(model);
  RmSectionSet* set = RmModelGetCrossSections(model);
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (boUnplaced(section)) boRmSectionPlaceOnLine(section, centerLine, params);
  }
}

// Line annotations of such files named their line by the type's name.
void vNameAnnotatedLines(RmModel* model) {
  vRmAnnotationTypesNameLines(RmModelGetCSectAnnotationTypes(model));
  vRmAnnotationTypesNameLines(RmModelGetLSectAnnotationTypes(model));
}

// The parameters along the road of such files, each step for its
// versions (road_model/params/nrm_conversion.h).
void vConvertOldNrmCodes(RmModel* model) { vNrmParamsConvertOldCodes(RmModelGetNrmParams(model)); }
void vChangeOldNrmSigns(RmModel* model) { vNrmParamsChangeOldSigns(RmModelGetNrmParams(model)); }
void vSplitOldNrmParams(RmModel* model) { vNrmParamsSplitOldParams(RmModelGetNrmParams(model)); }

// Three steps that the history names for older files are not taken here,
// by choice:
// - Version 8 and older with CALCMODE 1: the vertical lines that the old
//   mass calculation completed for lines without one, and the side
//   boundaries it derived from the parameters along the road. The file
//   says neither from what heights nor from which parameter codes; a
//   vertical line or a boundary made up here would be geometry that no
//   design holds. A user of such a file keeps the lines, the parameters and
//   the side boundaries that the file holds, as the file holds them.
// - Version 9 and older: layer references of the tables. Every table reads
//   a reference in the file form of a layer id (type + 10 * number), the
//   form in which the sections of the same file name their own layers, so
//   a reference finds the layer that carries its number in that file; the
//   references are kept as read.

constexpr Migration kMigrations[] = {
    // Version 0 alone (a file without the key): a negative version is no
    // version 0. Needs every table that holds PCODEs: the section sets, the
    // surface groups, the pavement, the special gradings and the side
    // boundaries.
    {0, 0, vRewriteAllOldCodes},
    // Needs the cross sections and their mass types.
    {INT_MIN, 2, vRebuildLockedSections},
    // Needs the plan lines (the centre line), SECTPARAMS and the cross
    // sections.
    {INT_MIN, 3, vPlaceUnplacedSections},
    // The next three need the parameters along the road, and run in this
    // order: the old codes, then the signs of the new ones, then the split.
    {INT_MIN, 3, vConvertOldNrmCodes},
    {INT_MIN, 4, vChangeOldNrmSigns},
    {INT_MIN, 8, vSplitOldNrmParams},
    // Needs the surface groups.
    {INT_MIN, 8, vStartGroupsAtOffsets},
    // Needs the pavement.
    {INT_MIN, 10, vMoveOldPavementPositions},
    // Needs MASSCALC, the model's border lines and the surface groups.
    {INT_MIN, 11, vMoveBorderLinesIntoFirstGroup},
    // Needs both lists of annotation types.
    {INT_MIN, 12, vNameAnnotatedLines},
};

}  // namespace

void vRmModelMigrate(RmModel* model) {
  if (!model) return;
  for (const Migration& step : kMigrations) {
    if (model->DataVersion >= step.FirstVersion && model->DataVersion <= step.LastVersion) {
      step.Run(model);
    }
  }
}
