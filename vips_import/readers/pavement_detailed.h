// The design's detailed pavement description as the VIPS special gradings
// (VIPSSPECIALGRADINGS) of the surface tables object.
#pragma once

#include <cstdio>

struct RmModel;

namespace NpDesignModel {
class CInData;
}

// Makes the table and puts it into the model's surface tables object (the
// table it replaces goes), and makes sure that the model has layer names.
// Every layer of the design but those of type 29 becomes an entry of the
// theoretical layer of its pavement number, with a name in the layer names
// and the surfaces of its left and then its right side; each surface keeps
// its rows, with the design's marks of no value as the model's, and an end
// surface is marked by the number 1. The heading goes to the log at the
// first layer that makes an entry. Without a surface tables object nothing
// is read.
void vVipsReadDetailedPavement(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model);
