// The design's model version, and the labels that the import log gives the
// version and the model type.
#pragma once

#include <cstdio>

// The model version of the design being imported, set once per import from
// the design's input side and read by the rules that depend on the version
// (surface codes, soddings). Process-wide; it keeps its last value between
// imports.
extern double VipsModelVersion;

// The release that a model version belongs to: "Np18.10" (7.0), "Np18.30"
// (7.5), "Np19" (8.0), "Np19.20" (8.1), "Np20" (8.2), "Np21" (10.0), each
// within 0.00001; "Unknown" for every other number. For the log only: no
// version is refused.
const char* sVipsVersionLabel(double version);

// "Road" (1), "Railway" (2), "WS" (3); "Unknown" for every other type.
const char* sVipsModelTypeLabel(int modelType);

// Writes the head of the import log: what is imported, the two labels, the
// version number with one decimal, and a rule followed by an empty line.
void vVipsLogModelHeader(std::FILE* log, double version, int modelType);
