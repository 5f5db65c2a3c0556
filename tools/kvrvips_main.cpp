// kvrvips: the command-line tool around the library's export.
//
//   kvrvips convert DESIGN MODEL [--flags N] [--settings FILE]
//                                [--describe-open-error] [--convert-first]
//   kvrvips check DESIGN
//   kvrvips show MODEL [--section CHAIN] [--json]
//   kvrvips plot MODEL (--section CHAIN [--to CHAIN] [--each] | --plan) [-o FILE.svg]
//                      [--exaggerate N]
//   kvrvips --help | --version
#include <CLI/CLI.hpp>

#include <string>

#include "tools/check_command.h"
#include "tools/convert_command.h"
#include "tools/exit_codes.h"
#include "tools/import_flags.h"
#include "tools/inspect/inspect_arguments.h"
#include "tools/inspect/plot_command.h"
#include "tools/inspect/show_command.h"

namespace {

// Accepts what boParseImportFlags reads; CLI11 reports anything else as a
// usage error of --flags.
CLI::Validator ImportFlagsValidator() {
  return CLI::Validator(
      [](std::string& text) -> std::string {
        uint32_t flags = 0;
        if (boParseImportFlags(text.c_str(), &flags)) return {};
        return "'" + text + "' is not a flag word from 0 to 4294967295 (decimal, or hexadecimal "
                            "after 0x)";
      },
      "N");
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Converts a road or railway design document into a road model file, and shows "
               "and draws road model files.",
               "kvrvips");
  // Options start with '-' on Windows too: a path may start with '/'.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "kvrvips " KVRVIPS_VERSION);
  app.require_subcommand(1);
  app.footer(
      "Exit status: 0 done, 1 the conversion failed, the design document is not valid or the "
      "model file cannot be read or drawn, 2 the command line cannot be understood.");

  ConvertRequest request;
  std::string flagsText = "65535";
  CLI::App* convert =
      app.add_subcommand("convert", "Convert DESIGN into the road model file MODEL");
  convert->add_option("DESIGN", request.sDesign, "The design document")->required();
  convert->add_option("MODEL", request.sModel,
                      "The road model file: loaded if it exists, written when the conversion "
                      "succeeds")
      ->required();
  convert
      ->add_option("--flags", flagsText,
                   "What to import: 1 plan geometry, 2 vertical geometry, 4 tables and sections, "
                   "8 extra alignments; 65535 all of it into a reset model")
      ->check(ImportFlagsValidator())
      ->capture_default_str();
  convert->add_option("--settings", request.sSettings,
                      "The factory settings file (default: the one installed with kvrvips)");
  convert->add_flag("--describe-open-error", request.boDescribeOpenError,
                    "Log a design that cannot be opened with the English description");
  convert->add_flag("--convert-first", request.boConvertFirst,
                    "Run kvrvips_convert_gen over the design before it is opened");

  std::string checkDesign;
  CLI::App* check = app.add_subcommand("check", "Check that DESIGN is a valid design document");
  check->add_option("DESIGN", checkDesign, "The design document")->required();

  ShowRequest showRequest;
  CLI::App* show = AddShowCommand(app, showRequest);
  PlotRequest plotRequest;
  CLI::App* plot = AddPlotCommand(app, plotRequest);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    // Help and version end the parse as well; they are no errors.
    return app.exit(error) == 0 ? kExitDone : kExitUsage;
  }

  if (check->parsed()) return iRunCheck(checkDesign);
  if (show->parsed()) return iRunShow(showRequest);
  if (plot->parsed()) return iRunPlot(plotRequest);
  boParseImportFlags(flagsText.c_str(), &request.uFlags);
  return iRunConvert(request);
}
