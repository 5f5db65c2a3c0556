// The alignments of a design as plan lines of the model: the horizontal
// elements become the points, arcs and clothoids of a line, the vertical
// angle points its vertical line.
#pragma once

#include <cstdio>

struct RmModel;

namespace NpDesignModel {
class CInData;
}

// Reads the design's alignments into the model's plan lines, by id: an
// alignment whose line is missing gets a new one, whose NAME field holds the
// alignment's GUID; one whose line exists adds to it.
//
// `mainOnly` nonzero reads the reference alignment alone, and logs a heading
// for each kind of geometry read; zero reads every other alignment, under
// one heading. `horizontal` appends the plan elements and marks the
// reference alignment's line as the centre line (the others as not);
// `vertical` gives the line a new vertical line, or none when the alignment
// has no angle points.
//
// Returns the number of alignments read; 0 when the model has no plan lines
// or there is no design.
int iVipsReadAlignments(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model,
                        int mainOnly, int horizontal, int vertical);
