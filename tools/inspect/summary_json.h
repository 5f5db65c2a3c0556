// The summary of a model and one section of it as JSON documents for
// scripts: the same content as the text, numbers as numbers, a gap's
// height as null.
#pragma once

#include <string>

#include "tools/inspect/model_summary.h"
#include "tools/inspect/section_detail.h"

std::string sSummaryJson(const ModelSummary& summary);
std::string sSectionJson(const SectionDetail& section);
