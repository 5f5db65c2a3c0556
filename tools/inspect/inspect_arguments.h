// The command lines of `kvrvips show` and `kvrvips plot`: their subcommands
// on the tool's parser, filling the requests as they are parsed.
#pragma once

#include <CLI/CLI.hpp>

#include "tools/inspect/inspect_requests.h"

CLI::App* AddShowCommand(CLI::App& app, ShowRequest& request);
CLI::App* AddPlotCommand(CLI::App& app, PlotRequest& request);
