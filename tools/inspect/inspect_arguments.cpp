#include "tools/inspect/inspect_arguments.h"

#include <cmath>
#include <cstdlib>
#include <string>

namespace {

// A chainage: a finite decimal number in metres.
CLI::Validator ChainValidator() {
  return CLI::Validator(
      [](std::string& text) -> std::string {
        char* end = nullptr;
        double value = std::strtod(text.c_str(), &end);
        if (!text.empty() && end && *end == '\0' && std::isfinite(value)) return {};
        return "'" + text + "' is not a chainage in metres";
      },
      "CHAIN");
}

}  // namespace

CLI::App* AddShowCommand(CLI::App& app, ShowRequest& request) {
  CLI::App* show = app.add_subcommand(
      "show", "Summarise the road model file MODEL, or show one of its cross sections");
  show->add_option("MODEL", request.sModel, "The road model file, read and left as it is")
      ->required();
  show->add_option("--section", request.dSection,
                   "Show the layers and points of the cross section at CHAIN")
      ->check(ChainValidator());
  show->add_flag("--json", request.boJson, "Write the same as a JSON document");
  return show;
}

CLI::App* AddPlotCommand(CLI::App& app, PlotRequest& request) {
  CLI::App* plot = app.add_subcommand(
      "plot", "Draw cross sections or the plan lines of the road model file MODEL as SVG");
  plot->add_option("MODEL", request.sModel, "The road model file, read and left as it is")
      ->required();
  CLI::Option* section =
      plot->add_option("--section", request.dSection, "Draw the cross section at CHAIN")
          ->check(ChainValidator());
  plot->add_option("--to", request.dTo, "Draw every cross section from --section to CHAIN")
      ->check(ChainValidator())
      ->needs(section);
  CLI::Option* plan = plot->add_flag("--plan", request.boPlan,
                                     "Draw the plan lines with the cross sections as ticks");
  CLI::Option* output = plot->add_option(
      "-o,--output", request.sOutput,
      "The SVG file to write (default: standard output); with --each the stem of the files");
  plot->add_flag("--each", request.boEach,
                 "One file per section, named FILE_CHAIN.svg from the stem of -o FILE.svg")
      ->needs(section)
      ->needs(output);
  plot->add_option("--exaggerate", request.dExaggeration,
                   "Draw heights N times as large as offsets")
      ->check(CLI::PositiveNumber)
      ->capture_default_str();
  section->excludes(plan);
  // One of the two drawings must be asked for.
  plot->callback([&request]() {
    if (!request.boPlan && request.dSection == kNoChain) {
      throw CLI::ValidationError("plot", "name the sections with --section CHAIN, or use --plan");
    }
  });
  return plot;
}
