// The closed drainages of a design: pipes and closed ditches along the
// road, given section by section as a row of points.
#pragma once

#include <cstdint>
#include <cstdio>

struct RmModel;

namespace NpDesignModel {
class CInData;
}

// Puts a new CLOSEDDITCHES table into the model's surface tables object (the
// one it had goes), logs its heading and makes one ditch per drainage of the
// design, of layer (1, 40 + n) with n counting the drainages from 1. A
// drainage without sections makes no ditch but is counted all the same; a
// ditch that is made gets the default name of its layer in the layer names.
// Each section keeps its chainage, its elevation mode (iVipsElevationMode)
// and its points. A section of a negative mode that another follows is
// followed by a gap: a section at -99999.0 of mode 0 without points. With
// no surface tables object the drainages are read and dropped. Returns the
// number of sections read.
int iVipsReadClosedDrainages(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model);

// The model's elevation mode of the design's mode `mode`: its magnitude,
// which from 100 on counts in hundreds.
int32_t iVipsElevationMode(int32_t mode);
