#include "tools/inspect/show_command.h"

#include <cstdio>
#include <string>
#include <vector>

#include "road_model/model/model_parts.h"
#include "tools/exit_codes.h"
#include "tools/inspect/model_reading.h"
#include "tools/inspect/model_summary.h"
#include "tools/inspect/section_detail.h"
#include "tools/inspect/section_pick.h"
#include "tools/inspect/summary_json.h"
#include "tools/inspect/summary_text.h"

namespace {

constexpr const char* kProgram = "kvrvips";

void vWrite(const std::string& text) { std::fwrite(text.data(), 1, text.size(), stdout); }

}  // namespace

int iRunShow(const ShowRequest& request) {
  ReadModelPtr model = ReadModelForLooking(request.sModel, kProgram);
  if (!model) return kExitFailed;

  if (request.dSection == kNoChain) {
    ModelSummary summary = GatherModelSummary(model.get(), request.sModel);
    vWrite(request.boJson ? sSummaryJson(summary) : sSummaryText(summary));
    return kExitDone;
  }

  std::string message;
  std::vector<const RmSection*> sections = PickSections(
      RmModelGetCrossSections(model.get()), request.dSection, kNoChain, &message);
  if (sections.empty()) {
    std::fprintf(stderr, "%s: %s: %s\n", kProgram, request.sModel.c_str(), message.c_str());
    return kExitFailed;
  }
  SectionDetail detail = GatherSectionDetail(sections.front(), RmModelGetLayerNames(model.get()));
  vWrite(request.boJson ? sSectionJson(detail) : sSectionText(detail));
  return kExitDone;
}
