#include "vips_import/driver/import_driver.h"

#include <cstdio>
#include <memory>

#include "design_model/design_model.h"
#include "parameters/factory_settings.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/model/model_scalars.h"
#include "road_model/surfaces/surf_gen.h"
#include "vips_import/readers/alignments.h"
#include "vips_import/readers/chainage_tables.h"
#include "vips_import/readers/closed_drainages.h"
#include "vips_import/readers/connected_models.h"
#include "vips_import/readers/elevation_differences.h"
#include "vips_import/readers/pavement.h"
#include "vips_import/readers/pavement_detailed.h"
#include "vips_import/readers/misc_layers.h"
#include "vips_import/readers/physical_profiles.h"
#include "vips_import/readers/side_tables.h"
#include "vips_import/readers/surface_descriptions.h"
#include "vips_import/readers/theoretical_profiles.h"
#include "vips_import/driver/external_converter.h"
#include "vips_import/driver/free_surfaces.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/driver/open_errors.h"
#include "vips_import/driver/section_finishing.h"
#include "vips_import/driver/version_labels.h"
#include "vips_import/readers/wide_text.h"

namespace {

using NpDesignModel::CDesignModel;
using NpDesignModel::CInData;
using NpDesignModel::CResultData;

// What the steps of one import share.
struct VipsImportRun {
  RmModel* model;
  std::FILE* log;            // null when no log file could be made
  uint32_t importFlags;
  const CDesignModel* design;  // null when the design gave no object
  const CInData* in;           // the design's input side, or null
  const CResultData* res;      // the design's result side, or null
  int modelType;               // the input side's model type; 0 without one
  int rehabUsed;               // the pavement uses rehabilitation data
};

// What a step needs of the design to run.
enum class VipsStepNeeds {
  kNothing,  // works on the model alone, also when the design gave no object
  kDesign,   // a design object
  kInput,    // the design's input side
  kResults,  // the design's result side
};

struct VipsImportStep {
  // The flag bit that asks for the step; 0: every flag value does;
  // kVipsImportFull: that value exactly, and no other.
  uint32_t flag;
  VipsStepNeeds needs;
  void (*run)(VipsImportRun& run);
};

bool boStepRuns(const VipsImportStep& step, const VipsImportRun& run) {
  if (step.flag == kVipsImportFull) {
    if (run.importFlags != kVipsImportFull) return false;
  } else if (step.flag != 0 && (run.importFlags & step.flag) == 0) {
    return false;
  }
  switch (step.needs) {
    case VipsStepNeeds::kNothing: return true;
    case VipsStepNeeds::kDesign: return run.design != nullptr;
    case VipsStepNeeds::kInput: return run.in != nullptr;
    case VipsStepNeeds::kResults: return run.res != nullptr;
  }
  return false;
}

// ---- The steps ----

// The version is taken once per import, for the rules that depend on it.
void vLogModelHeader(VipsImportRun& run) {
  VipsModelVersion = run.in->GetModelVersionNumber();
  run.modelType = run.in->GetModelType();
  vVipsLogModelHeader(run.log, VipsModelVersion, run.modelType);
}

// A full import fills a model that keeps only its file name and GUID, with
// the calculation settings of a new import. A WS design leaves the road type
// at its default.
void vResetModel(VipsImportRun& run) {
  vRmModelReset(run.model);
  vRmModelSetCalcTheo(run.model, 3);
  vRmModelSetCalcPhys(run.model, 4);
  vRmModelSetCalcStandard(run.model, iRmModelDefaultCalcStandard());
  if (run.modelType == 1 || run.modelType == 2) vRmModelSetRoadType(run.model, run.modelType);
}

// Whatever the flags ask for, the model's alignments go: those that the
// flags ask for are read anew, the others are gone.
void vEmptyPlanLines(VipsImportRun& run) { vRmLinesClear(RmModelGetOrCreateLines(run.model)); }

// The reference alignment's plan geometry.
void vReadMainHorizontal(VipsImportRun& run) {
  iVipsReadAlignments(run.in, run.log, run.model, 1, 1, 0);
}

// The reference alignment's profile, and the stretches where the sections
// override it; a blank line in the log when the design has none.
void vReadMainVertical(VipsImportRun& run) {
  iVipsReadAlignments(run.in, run.log, run.model, 1, 0, 1);
  if (!boVipsReadElevationDifferences(run.in, run.log, run.model)) vVipsLogPrint(run.log, "\n");
}

// Every other alignment, plan and profile together.
void vReadExtraAlignments(VipsImportRun& run) {
  iVipsReadAlignments(run.in, run.log, run.model, 0, 1, 1);
}

// Every import of the tables starts from a new, empty surface tables
// object: what the model held of them goes.
void vStartTables(VipsImportRun& run) {
  run.rehabUsed = 0;
  vRmModelSetSurfGen(run.model, RmSurfGenCreate());
  vRmModelSetCalcMode(run.model, 0);
}

RmSurfGen* SurfGen(const VipsImportRun& run) { return RmModelGetSurfGen(run.model); }

void vReadModelSettings(VipsImportRun& run) {
  vVipsReadModelSettings(run.in, run.log, SurfGen(run));
}

// The surface description, on which the side tables hang.
void vReadSurfaces(VipsImportRun& run) {
  iVipsReadSurfaces(run.in, run.log, run.model, SurfGen(run));
}

void vReadSurfaceBoundaries(VipsImportRun& run) {
  iVipsReadSurfaceBoundaries(run.in, run.log, run.model);
}

void vReadSurfaceEdgeAlignments(VipsImportRun& run) {
  vVipsReadSurfaceEdgeAlignments(run.in, run.log, SurfGen(run));
}

void vReadEmbankmentDitches(VipsImportRun& run) {
  iVipsReadEmbankmentDitches(run.in, run.log, SurfGen(run));
}

void vReadRockShelves(VipsImportRun& run) { iVipsReadRockShelves(run.in, run.log, SurfGen(run)); }

void vReadDitchDepths(VipsImportRun& run) { iVipsReadDitchDepths(run.in, run.log, SurfGen(run)); }

void vReadClosedDrainages(VipsImportRun& run) {
  iVipsReadClosedDrainages(run.in, run.log, run.model);
}

void vReadConnectedModels(VipsImportRun& run) { iVipsReadConnectedModels(run.in, run.log); }

// The pavement notes whether the design uses rehabilitation data, for the
// warning at the end of the import.
void vReadPavement(VipsImportRun& run) {
  iVipsReadPavement(run.in, run.log, run.model, SurfGen(run), &run.rehabUsed);
}

void vReadDetailedPavement(VipsImportRun& run) {
  vVipsReadDetailedPavement(run.in, run.log, run.model);
}

void vReadTopSoilRemovals(VipsImportRun& run) {
  iVipsReadTopSoilRemovals(run.in, run.log, SurfGen(run));
}

void vReadSoftSpotRemovals(VipsImportRun& run) {
  iVipsReadSoftSpotRemovals(run.in, run.log, SurfGen(run));
}

void vClearSections(VipsImportRun& run) { vVipsClearSections(run.model); }

// Sets the sections apart from the tables in the log.
void vLogSectionsStart(VipsImportRun& run) { vVipsLogPrint(run.log, "\n"); }

// The physical reader makes the cross sections that the later readers of
// sections fill.
void vReadPhysicalProfiles(VipsImportRun& run) {
  vVipsReadPhysicalProfiles(run.res, run.in, run.log, run.model);
}

void vReadMiscLayers(VipsImportRun& run) {
  vVipsReadMiscLayers(run.res, run.in, run.log, run.model);
}

// The theoretical reader fills the sections that the physical one made,
// and reconciles the surface description with the designed surface lines.
void vReadTheoreticalProfiles(VipsImportRun& run) {
  vVipsReadTheoreticalProfiles(run.res, run.in, run.log, run.model, SurfGen(run), run.modelType);
}

void vAddFreeSurfaces(VipsImportRun& run) { vVipsAddFreeSurfaces(SurfGen(run)); }

void vFitSectionsToMainLine(VipsImportRun& run) { vVipsFitSectionsToMainLine(run.model); }

// Rehabilitation data is not imported; the log says so, and the import
// goes on.
void vWarnOfRehabilitation(VipsImportRun& run) {
  if (!run.rehabUsed) return;
  vVipsLogPrint(run.log,
                "\n*****Advarsel*****\n"
                "Data for rehabilitering av vei er brukt i vips\n"
                "prosjektet. Tabeller for dette blir ikke importert!\n\n");
}

// The import, in the order in which its steps must run. This list is the
// one place where a reader of the design enters the import.
constexpr VipsImportStep kImportSteps[] = {
    {0, VipsStepNeeds::kInput, vLogModelHeader},
    {kVipsImportFull, VipsStepNeeds::kInput, vResetModel},
    {0, VipsStepNeeds::kInput, vEmptyPlanLines},
    // Alignments, each pass over the design's alignments on its own flag.
    // The main line is marked in the first pass, before the elevation
    // differences look for it.
    {kVipsImportHorizontal, VipsStepNeeds::kInput, vReadMainHorizontal},
    {kVipsImportVertical, VipsStepNeeds::kInput, vReadMainVertical},
    {kVipsImportExtraAlignments, VipsStepNeeds::kInput, vReadExtraAlignments},
    // The tables, also when the design gave no object.
    {kVipsImportTables, VipsStepNeeds::kNothing, vStartTables},
    // The tables of the design's input side. The side tables hang on the
    // surfaces, so that they come after them; the counts of rows are not
    // looked at.
    {kVipsImportTables, VipsStepNeeds::kInput, vReadModelSettings},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadSurfaces},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadSurfaceBoundaries},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadSurfaceEdgeAlignments},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadEmbankmentDitches},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadRockShelves},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadDitchDepths},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadClosedDrainages},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadConnectedModels},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadPavement},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadDetailedPavement},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadTopSoilRemovals},
    {kVipsImportTables, VipsStepNeeds::kInput, vReadSoftSpotRemovals},
    // Sections, always rebuilt from scratch by the readers of the result
    // side.
    {kVipsImportTables, VipsStepNeeds::kDesign, vClearSections},
    {kVipsImportTables, VipsStepNeeds::kDesign, vLogSectionsStart},
    {kVipsImportTables, VipsStepNeeds::kResults, vReadPhysicalProfiles},
    {kVipsImportTables, VipsStepNeeds::kResults, vReadMiscLayers},
    {kVipsImportTables, VipsStepNeeds::kResults, vReadTheoreticalProfiles},
    {kVipsImportTables, VipsStepNeeds::kDesign, vWarnOfRehabilitation},
    // Finishing, over all tables at once: the free surfaces of the border
    // lines, and the cross sections placed on the main line.
    {kVipsImportTables, VipsStepNeeds::kNothing, vAddFreeSurfaces},
    {kVipsImportTables, VipsStepNeeds::kNothing, vFitSectionsToMainLine},
};

}  // namespace

int iVipsImport(const char* genFile, RmModel* model, uint32_t importFlags, char** logFileOut,
                uint32_t describeOpenError, uint32_t convertFirst) {
  VipsLogFile logFile(logFileOut);
  if (!model) return -1;
  logFile.vOpen(genFile);
  std::FILE* log = logFile.Stream();

  if (convertFirst && !boVipsRunConverter(genFile, log)) {
    vVipsLogPrint(log, "\n");
    return -1;
  }

  int32_t err = 0;
  std::unique_ptr<CDesignModel> design(CDesignModel::Open(sVipsWiden(genFile), err));
  if (err != 0) {
    vVipsLogOpenError(log, err, describeOpenError != 0);
    return -1;
  }

  VipsImportRun run{};
  run.model = model;
  run.log = log;
  run.importFlags = importFlags;
  run.design = design.get();
  run.in = design ? design->GetI() : nullptr;
  run.res = design ? design->GetR() : nullptr;
  for (const VipsImportStep& step : kImportSteps) {
    if (boStepRuns(step, run)) step.run(run);
  }
  return 0;
}
