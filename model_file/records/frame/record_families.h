// The record families of the model file in the two orders of the frame: the
// order in which a file holds the sections (its directory and its bodies),
// and the order in which a load reads them.
#pragma once

#include <span>

#include "model_file/records/frame/record_family.h"

std::span<const RmRecordFamily* const> RmRecordFamiliesInWriteOrder();
std::span<const RmRecordFamily* const> RmRecordFamiliesInReadOrder();
