#include "model_file/records/frame/record_families.h"

#include "model_file/records/bim/bim_attributes_record.h"
#include "model_file/records/head/adm_data_record.h"
#include "model_file/records/head/chain_data_record.h"
#include "model_file/records/head/hyperlinks_record.h"
#include "model_file/records/head/mass_calc_record.h"
#include "model_file/records/head/nrm_params_record.h"
#include "model_file/records/head/road_dim_params_record.h"
#include "model_file/records/head/sect_params_record.h"
#include "model_file/records/head/sect_triangulation_params_record.h"
#include "model_file/records/lines/chain_equations_record.h"
#include "model_file/records/lines/diff_altitudes_record.h"
#include "model_file/records/lines/plan_lines_record.h"
#include "model_file/records/lines/ver_line_record.h"
#include "model_file/records/road_class/road_class_parameters_record.h"
#include "model_file/records/sections/section_mass_lines_record.h"
#include "model_file/records/sections/section_sets_record.h"
#include "model_file/records/surfaces/surf_gen_record.h"
#include "model_file/records/tables/chain_range_families.h"
#include "model_file/records/tables/closed_ditches_record.h"
#include "model_file/records/tables/erosion_protections_record.h"
#include "model_file/records/tables/landscapings_record.h"
#include "model_file/records/tables/pavement_record.h"
#include "model_file/records/tables/side_boundaries_record.h"
#include "model_file/records/tables/special_gradings_record.h"
#include "model_file/records/tables/string_lines_record.h"
#include "model_file/records/tables/superstruct_record.h"
#include "model_file/records/tables/surface_border_lines_record.h"
#include "model_file/records/tables/vips_special_gradings_record.h"
#include "model_file/records/tunnel/ditch_param_data_record.h"
#include "model_file/records/tunnel/tunnel_block_inserts_record.h"
#include "model_file/records/tunnel/tunnel_blocks_record.h"
#include "model_file/records/tunnel/tunnel_data_record.h"
#include "model_file/records/tunnel/tunnel_param_data_record.h"
#include "model_file/records/types/annotation_types_record.h"
#include "model_file/records/types/layer_names_record.h"
#include "model_file/records/types/mass_types_record.h"

namespace {

// A new family takes its place in both lists.
constexpr const RmRecordFamily* kWriteOrder[] = {
    &kRmAdmDataFamily,
    &kRmHyperlinksFamily,
    &kRmPlanLinesFamily,
    &kRmVerLinesFamily,
    &kRmDiffAltitudesFamily,
    &kRmChainEquationsFamily,
    &kRmSectParamsFamily,
    &kRmSectTriangulationParamsFamily,
    &kRmCrossSectionsFamily,
    &kRmCrossMassLinesFamily,
    &kRmLongSectionsFamily,
    &kRmLongMassLinesFamily,
    &kRmRoadDimParamsFamily,
    &kRmRoadClassParametersFamily,
    &kRmNrmParamsFamily,
    &kRmMassCalcFamily,
    &kRmChainDataFamily,
    &kRmLayerNamesFamily,
    &kRmBimAttributesDataFamily,
    &kRmCrossMassTypesFamily,
    &kRmLongMassTypesFamily,
    &kRmCrossAnnotationTypesFamily,
    &kRmLongAnnotationTypesFamily,
    &kRmBimAttributesSchemaFamily,
    &kRmTunnelDataFamily,
    &kRmTunnelBlocksFamily,
    &kRmTunnelBlockInsertsFamily,
    &kRmTunnelParamDataFamily,
    &kRmDitchParamDataFamily,
    &kRmBuildSettingsFamily,
    &kRmSurfGenFamily,
    &kRmRockBenchesFamily,
    &kRmMinDitchDepthsFamily,
    &kRmLandscapingsFamily,
    &kRmPavementFamily,
    &kRmStoneExcavationSlopesFamily,
    &kRmDeepRockBlastsFamily,
    &kRmSideBoundariesFamily,
    &kRmFillDitchesFamily,
    &kRmSurfaceBorderLinesFamily,
    &kRmRemovalTopsoilsFamily,
    &kRmUnsuitableSoilsFamily,
    &kRmSoilCutPlastersFamily,
    &kRmErosionProtectionsFamily,
    &kRmSpecialGradingsFamily,
    &kRmVipsSpecialGradingsFamily,
    &kRmClosedDitchesFamily,
    &kRmStringLinesFamily,
};

// The order of reading states what a reader needs of those before it.
constexpr const RmRecordFamily* kReadOrder[] = {
    &kRmAdmDataFamily,
    &kRmHyperlinksFamily,
    // Makes the plan lines; the next three add to them, adding a line that
    // the line section did not have.
    &kRmPlanLinesFamily,
    &kRmVerLinesFamily,
    &kRmDiffAltitudesFamily,
    &kRmChainEquationsFamily,
    &kRmSectParamsFamily,
    &kRmSectTriangulationParamsFamily,
    // The mass outlines hang on the masses of the set read just before.
    &kRmCrossSectionsFamily,
    &kRmCrossMassLinesFamily,
    &kRmLongSectionsFamily,
    &kRmLongMassLinesFamily,
    // ROADDIMPARAMS inherits the class version of the road class read
    // before it.
    &kRmRoadClassParametersFamily,
    &kRmRoadDimParamsFamily,
    &kRmNrmParamsFamily,
    &kRmMassCalcFamily,
    &kRmChainDataFamily,
    // The vocabulary needs nothing read before it; the annotation types of
    // older files are completed after all sections (migrations.cpp).
    &kRmLayerNamesFamily,
    // Hands the layers just read to the BIM store of the model, if it has
    // one.
    &kRmBimAttributesDataFamily,
    &kRmCrossMassTypesFamily,
    &kRmLongMassTypesFamily,
    &kRmCrossAnnotationTypesFamily,
    &kRmLongAnnotationTypesFamily,
    // The tables of the surface tables object, which the load has made;
    // the side boundaries and the surface border lines among them hang from
    // the model itself.
    &kRmBuildSettingsFamily,
    &kRmSurfGenFamily,
    &kRmRockBenchesFamily,
    &kRmMinDitchDepthsFamily,
    &kRmLandscapingsFamily,
    // The older pavement section is read only when PAVEMENT gave no table;
    // the stone excavation slopes that it makes give way to a section of
    // their own.
    &kRmPavementFamily,
    &kRmSuperstructFamily,
    &kRmStoneExcavationSlopesFamily,
    &kRmDeepRockBlastsFamily,
    &kRmSideBoundariesFamily,
    &kRmFillDitchesFamily,
    &kRmSurfaceBorderLinesFamily,
    &kRmRemovalTopsoilsFamily,
    &kRmUnsuitableSoilsFamily,
    &kRmSoilCutPlastersFamily,
    &kRmErosionProtectionsFamily,
    &kRmSpecialGradingsFamily,
    &kRmVipsSpecialGradingsFamily,
    // The blocks and their inserts go into the blocks object that every
    // model has; the schema of BIM attributes is not read.
    &kRmTunnelDataFamily,
    &kRmTunnelBlocksFamily,
    &kRmTunnelBlockInsertsFamily,
    &kRmTunnelParamDataFamily,
    &kRmDitchParamDataFamily,
    &kRmClosedDitchesFamily,
    // Looks up the line sections of its layers once its own is read.
    &kRmStringLinesFamily,
};

// That each section is read exactly once is checked by the tests of the
// frame: comparing addresses of descriptors of other units is no constant
// expression under every build (AddressSanitizer).

}  // namespace

std::span<const RmRecordFamily* const> RmRecordFamiliesInWriteOrder() { return kWriteOrder; }

std::span<const RmRecordFamily* const> RmRecordFamiliesInReadOrder() { return kReadOrder; }
