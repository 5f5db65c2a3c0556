// The connected models of a design: other models that the design names
// along stretches of the road. Nothing of them reaches the model; the log
// lists them so that a reader of it sees that they were there.
#pragma once

#include <cstdio>

namespace NpDesignModel {
class CInData;
}

// Logs a heading and one line per connected model, in the design's order:
// from and to chainage with three decimals and the model's name. Returns
// the number of rows.
int iVipsReadConnectedModels(const NpDesignModel::CInData* in, std::FILE* log);
