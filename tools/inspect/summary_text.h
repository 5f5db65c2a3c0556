// The summary of a model and one section of it as plain text for the
// terminal: aligned columns, chainages and lengths in metres with three
// decimals, names last on their line.
#pragma once

#include <string>

#include "tools/inspect/model_summary.h"
#include "tools/inspect/section_detail.h"

std::string sSummaryText(const ModelSummary& summary);
std::string sSectionText(const SectionDetail& section);
