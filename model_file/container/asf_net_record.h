// Triangle net and point cloud records (":N", ":C"): points relative to
// an offset, triangles and point attributes.
#pragma once

#include "geometry/cloud.h"
#include "geometry/net.h"
#include "model_file/container/asf_file.h"
#include "model_file/container/asf_object_callbacks.h"

// A triangle net record ":N" and a point cloud record ":C".
bool boAsfNetWrite(AsfFile* file, AsfSection* section, const TrNet* net,
                   AsfFieldCallback fieldCallback, void* datum);
bool boAsfCloudWrite(AsfFile* file, AsfSection* section, const PtCloud* cloud,
                     AsfFieldCallback fieldCallback, void* datum);

// Fill the object with the record that iAsfObjectNext has just found. False
// when that record is of another kind.
bool boAsfNetRead(AsfFile* file, AsfSection* section, TrNet* net);
bool boAsfCloudRead(AsfFile* file, AsfSection* section, PtCloud* cloud);
