#include "tools/inspect/plot_command.h"

#include <fmt/format.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "road_model/model/model_parts.h"
#include "tools/exit_codes.h"
#include "tools/inspect/model_reading.h"
#include "tools/inspect/plan_plot.h"
#include "tools/inspect/section_detail.h"
#include "tools/inspect/section_pick.h"
#include "tools/inspect/section_plot.h"

namespace {

constexpr const char* kProgram = "kvrvips";

// Writes to `path`, or to standard output when it is empty.
bool boWriteDrawing(const std::string& path, const std::string& svg) {
  if (path.empty()) return std::fwrite(svg.data(), 1, svg.size(), stdout) == svg.size();
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (!file) {
    std::fprintf(stderr, "%s: cannot write %s\n", kProgram, path.c_str());
    return false;
  }
  bool written = std::fwrite(svg.data(), 1, svg.size(), file) == svg.size();
  written = std::fclose(file) == 0 && written;
  if (!written) std::fprintf(stderr, "%s: cannot write %s\n", kProgram, path.c_str());
  return written;
}

}  // namespace

std::string sEachFileName(const std::string& output, double chain) {
  std::string stem = output;
  if (stem.size() > 4 && stem.compare(stem.size() - 4, 4, ".svg") == 0) {
    stem.resize(stem.size() - 4);
  }
  return fmt::format("{}_{:.3f}.svg", stem, chain);
}

int iRunPlot(const PlotRequest& request) {
  ReadModelPtr model = ReadModelForLooking(request.sModel, kProgram);
  if (!model) return kExitFailed;
  if (request.boPlan) {
    return boWriteDrawing(request.sOutput, sPlanSvg(model.get())) ? kExitDone : kExitFailed;
  }

  std::string message;
  // A range may be given from either end.
  double from = request.dSection;
  double to = request.dTo;
  if (to != kNoChain && to < from) std::swap(from, to);
  std::vector<const RmSection*> sections =
      PickSections(RmModelGetCrossSections(model.get()), from, to, &message);
  if (sections.empty()) {
    std::fprintf(stderr, "%s: %s: %s\n", kProgram, request.sModel.c_str(), message.c_str());
    return kExitFailed;
  }
  const RmLayerNames* names = RmModelGetLayerNames(model.get());
  std::vector<SectionDetail> details;
  details.reserve(sections.size());
  for (const RmSection* section : sections) details.push_back(GatherSectionDetail(section, names));

  if (!request.boEach) {
    bool written =
        boWriteDrawing(request.sOutput, sSectionsSvg(details, request.dExaggeration));
    return written ? kExitDone : kExitFailed;
  }
  for (const SectionDetail& detail : details) {
    std::string path = sEachFileName(request.sOutput, detail.Chain);
    if (!boWriteDrawing(path, sSectionsSvg({detail}, request.dExaggeration))) return kExitFailed;
    std::printf("%s\n", path.c_str());
  }
  return kExitDone;
}
