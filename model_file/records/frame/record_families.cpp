#include "model_file/records/frame/record_families.h"

#include <array>
#include <string_view>

#include "model_file/container/asf_file.h"
#include "model_file/records/head/head_records.h"
#include "model_file/records/lines/line_records.h"
#include "model_file/records/sections/section_records.h"

namespace {

// The sections of the model file in writing order: the order of the
// directory and of the bodies.
constexpr RmRecordFamily kFamilies[] = {
    {"ADMDATA", kAsfTypeOther, boRmAdmDataPresent, vRmAdmDataWrite, vRmAdmDataRead},
    {"HYPERLINKSDATA", kAsfTypeOther, boRmHyperlinksPresent, vRmHyperlinksWrite,
     vRmHyperlinksRead},
    // The plan lines: their section has the empty name.
    {"", kAsfTypeLine, boRmPlanLinesPresent, vRmPlanLinesWrite, vRmPlanLinesRead,
     vRmPlanLinesPrepare},
    {"VERLINE", kAsfTypeOther, boRmVerLinesPresent, vRmVerLinesWrite, vRmVerLinesRead},
    {"DIFFALTITUDES", kAsfTypeOther, boRmDiffAltitudesPresent, vRmDiffAltitudesWrite,
     vRmDiffAltitudesRead},
    {"CHAINEQUATIONS", kAsfTypeOther, boRmChainEquationsPresent, vRmChainEquationsWrite,
     vRmChainEquationsRead},
    {"SECTPARAMS", kAsfTypeOther, boRmSectParamsPresent, vRmSectParamsWrite,
     vRmSectParamsRead},
    {"SECTTRIANGULATIONPARAMS", kAsfTypeOther, boRmSectTriangulationParamsPresent,
     vRmSectTriangulationParamsWrite, vRmSectTriangulationParamsRead},
    {"CROSSECTIONS", kAsfTypeOther, boRmCrossSectionsPresent, vRmCrossSectionsWrite,
     vRmCrossSectionsRead},
    {"CSECTSMASSESLINES", kAsfTypeLine, boRmCrossMassLinesPresent, vRmCrossMassLinesWrite,
     vRmCrossMassLinesRead, vRmCrossMassLinesPrepare},
    {"LONGSECTIONS", kAsfTypeOther, boRmLongSectionsPresent, vRmLongSectionsWrite,
     vRmLongSectionsRead},
    {"LSECTSMASSESLINES", kAsfTypeLine, boRmLongMassLinesPresent, vRmLongMassLinesWrite,
     vRmLongMassLinesRead, vRmLongMassLinesPrepare},
    {"ROADDIMPARAMS", kAsfTypeOther, boRmRoadDimParamsPresent, vRmRoadDimParamsWrite,
     vRmRoadDimParamsRead},
    {"MASSCALC", kAsfTypeOther, nullptr, vRmMassCalcWrite, vRmMassCalcRead},
};

// The sections in the order in which a load reads them.
constexpr std::string_view kReadOrder[] = {
    "ADMDATA",       "HYPERLINKSDATA", "",
    "VERLINE",       "DIFFALTITUDES",  "CHAINEQUATIONS",
    "SECTPARAMS",    "SECTTRIANGULATIONPARAMS",
    "CROSSECTIONS",  "CSECTSMASSESLINES", "LONGSECTIONS", "LSECTSMASSESLINES",
    "ROADDIMPARAMS", "MASSCALC",
};

constexpr const RmRecordFamily* FamilyNamed(std::string_view name) {
  for (const RmRecordFamily& family : kFamilies) {
    if (name == family.SectionName) return &family;
  }
  return nullptr;
}

constexpr auto MakeReadOrder() {
  std::array<const RmRecordFamily*, std::size(kReadOrder)> order{};
  for (size_t i = 0; i < order.size(); ++i) order[i] = FamilyNamed(kReadOrder[i]);
  return order;
}

constexpr auto kFamiliesToRead = MakeReadOrder();

constexpr bool boEveryFamilyReadOnce() {
  for (const RmRecordFamily& family : kFamilies) {
    int count = 0;
    for (const RmRecordFamily* read : kFamiliesToRead) count += read == &family ? 1 : 0;
    if (count != 1) return false;
  }
  return std::size(kFamilies) == kFamiliesToRead.size();
}
static_assert(boEveryFamilyReadOnce(), "each section of the table is read exactly once");

}  // namespace

std::span<const RmRecordFamily> RmRecordFamiliesInWriteOrder() { return kFamilies; }

std::span<const RmRecordFamily* const> RmRecordFamiliesInReadOrder() { return kFamiliesToRead; }
