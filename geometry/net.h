// Triangle nets: points, triangles of three point indexes with their three
// neighbours, integer point attributes, an id and a GUID text.
//
// Neighbour k of a triangle lies across the edge from its point k to its
// point k + 1 (mod 3); -1 where there is none. Offsets of compressed points
// are those of x and y. Every function takes a null net quietly.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry/point_set.h"

struct PtCloud;

struct TrTriangle {
  int32_t iPoint[3];
  int32_t iNeighbour[3];
};

struct TrNet {
  long lId = 0;
  char sGuid[kViGuidLength + 1] = {};
  ViPointSet points;
  std::vector<TrTriangle> triangles;
};

TrNet* TrNetCreate();
void vTrNetDelete(TrNet** net);
long lTrNetGetID(const TrNet* net);
void vTrNetSetID(TrNet* net, long id);
const char* sTrNetGetGuid(const TrNet* net);
void vTrNetSetGuid(TrNet* net, const char* guid);

// Points.
int iTrNetGetPointCount(const TrNet* net);
// Grows the net to at least `count` points, new ones at 0.
void vTrNetExpandPointArray(TrNet* net, int count);
// Sets point `index`, growing the net when needed.
void vTrNetSetP(TrNet* net, int index, double x, double y, double z);
bool boTrNetGetP(const TrNet* net, int index, ViPoint3d* point);
// The extent of the points; empty without points.
void vTrNetGetExtent(const TrNet* net, ViExtent* extent);

// Triangles.
int iTrNetGetTriangleCount(const TrNet* net);
// Grows the net to at least `count` triangles, new ones of points 0 and
// without neighbours.
void vTrNetExpandTringleArray(TrNet* net, int count);
// Sets the points of triangle `index`, growing the net when needed; its
// neighbours become -1.
void vTrNetSetTriangle(TrNet* net, int index, int p0, int p1, int p2);
bool boTrNetGetTriangle(const TrNet* net, int index, TrTriangle* triangle);
// False for a triangle out of range.
bool boTrNetSetTriangleNeighbours(TrNet* net, int index, int n0, int n1, int n2);
// Finds the neighbours of every triangle from the shared edges; an edge with
// more than two triangles joins the first two.
void vTrNetCalcNeighbours(TrNet* net);

// Point attributes, by type (kViPointAttribIntensity, kViPointAttribClass).
const char* sTrNetGetPointAttribNameFromType(int type);
int iTrNetGetPointAttribTypeFromName(const char* name);
bool boTrNetGetUsePointAttrib(const TrNet* net, int type);
void vTrNetSetUsePointAttrib(TrNet* net, int type, bool use);
bool boTrNetSetPointAttribInt(TrNet* net, int type, int index, int32_t value);
int32_t iTrNetGetPointAttribInt(const TrNet* net, int type, int index);

// Compression: the size and offset the net was given, and the best ones for
// its extent (see boViPointSetBestOffset).
void vTrNetSetCompressedSizeAndOffset(TrNet* net, int size, double offsetX, double offsetY);
bool boTrNetGetCompressedSizeAndOffset(const TrNet* net, int* size, double* offsetX,
                                       double* offsetY);
bool boTrNetGetBestCompressedSizeOffsetByExtent(const TrNet* net, int* size, double* offsetX,
                                                double* offsetY);

// Moves the points, their attributes, the compression and the GUID into the
// cloud, whose own points go; the cloud keeps its id. The net is left empty.
void vTrNetConvertToPointCloud(TrNet* net, PtCloud* cloud);
