#include "geometry/net.h"

#include <algorithm>

#include "geometry/cloud.h"

namespace {

bool boHasTriangle(const TrNet* net, int index) {
  return net != nullptr && index >= 0 && static_cast<size_t>(index) < net->triangles.size();
}

constexpr TrTriangle kEmptyTriangle = {{0, 0, 0}, {-1, -1, -1}};

}  // namespace

TrNet* TrNetCreate() { return new TrNet; }

void vTrNetDelete(TrNet** net) {
  if (net == nullptr) return;
  delete *net;
  *net = nullptr;
}

long lTrNetGetID(const TrNet* net) { return net != nullptr ? net->lId : 0; }

void vTrNetSetID(TrNet* net, long id) {
  if (net != nullptr) net->lId = id;
}

const char* sTrNetGetGuid(const TrNet* net) { return net != nullptr ? net->sGuid : ""; }

void vTrNetSetGuid(TrNet* net, const char* guid) {
  if (net != nullptr) vViCopyGuid(net->sGuid, guid);
}

int iTrNetGetPointCount(const TrNet* net) {
  return net != nullptr ? static_cast<int>(net->points.points.size()) : 0;
}

void vTrNetExpandPointArray(TrNet* net, int count) {
  if (net != nullptr) vViPointSetExpand(&net->points, count);
}

void vTrNetSetP(TrNet* net, int index, double x, double y, double z) {
  if (net != nullptr) vViPointSetSetP(&net->points, index, x, y, z);
}

bool boTrNetGetP(const TrNet* net, int index, ViPoint3d* point) {
  if (net == nullptr) {
    *point = {0.0, 0.0, 0.0};
    return false;
  }
  return boViPointSetGetP(net->points, index, point);
}

void vTrNetGetExtent(const TrNet* net, ViExtent* extent) {
  vViExtentClear(extent);
  if (net != nullptr) vViPointSetAddExtent(net->points, extent);
}

int iTrNetGetTriangleCount(const TrNet* net) {
  return net != nullptr ? static_cast<int>(net->triangles.size()) : 0;
}

void vTrNetExpandTringleArray(TrNet* net, int count) {
  if (net == nullptr || count <= 0 || static_cast<size_t>(count) <= net->triangles.size()) return;
  net->triangles.resize(static_cast<size_t>(count), kEmptyTriangle);
}

void vTrNetSetTriangle(TrNet* net, int index, int p0, int p1, int p2) {
  if (net == nullptr || index < 0) return;
  vTrNetExpandTringleArray(net, index + 1);
  net->triangles[static_cast<size_t>(index)] = {{p0, p1, p2}, {-1, -1, -1}};
}

bool boTrNetGetTriangle(const TrNet* net, int index, TrTriangle* triangle) {
  if (!boHasTriangle(net, index)) {
    *triangle = kEmptyTriangle;
    return false;
  }
  *triangle = net->triangles[static_cast<size_t>(index)];
  return true;
}

bool boTrNetSetTriangleNeighbours(TrNet* net, int index, int n0, int n1, int n2) {
  if (!boHasTriangle(net, index)) return false;
  TrTriangle& triangle = net->triangles[static_cast<size_t>(index)];
  triangle.iNeighbour[0] = n0;
  triangle.iNeighbour[1] = n1;
  triangle.iNeighbour[2] = n2;
  return true;
}

void vTrNetCalcNeighbours(TrNet* net) {
  if (net == nullptr) return;
  // Every edge once per triangle, keyed by its two points in rising order;
  // after sorting, the triangles that share an edge stand together.
  struct Edge {
    int64_t key;
    int32_t triangle;
    int32_t side;
  };
  std::vector<Edge> edges;
  edges.reserve(net->triangles.size() * 3);
  for (size_t t = 0; t < net->triangles.size(); ++t) {
    TrTriangle& triangle = net->triangles[t];
    for (int k = 0; k < 3; ++k) {
      triangle.iNeighbour[k] = -1;
      const uint32_t a = static_cast<uint32_t>(triangle.iPoint[k]);
      const uint32_t b = static_cast<uint32_t>(triangle.iPoint[(k + 1) % 3]);
      const int64_t key =
          static_cast<int64_t>((static_cast<uint64_t>(std::min(a, b)) << 32) | std::max(a, b));
      edges.push_back({key, static_cast<int32_t>(t), k});
    }
  }
  std::sort(edges.begin(), edges.end(), [](const Edge& l, const Edge& r) {
    return l.key < r.key || (l.key == r.key && l.triangle < r.triangle);
  });
  for (size_t i = 0; i + 1 < edges.size();) {
    size_t end = i + 1;
    while (end < edges.size() && edges[end].key == edges[i].key) ++end;
    if (end - i >= 2) {
      const Edge& first = edges[i];
      const Edge& second = edges[i + 1];
      net->triangles[static_cast<size_t>(first.triangle)].iNeighbour[first.side] = second.triangle;
      net->triangles[static_cast<size_t>(second.triangle)].iNeighbour[second.side] = first.triangle;
    }
    i = end;
  }
}

const char* sTrNetGetPointAttribNameFromType(int type) { return sViPointAttribName(type); }

int iTrNetGetPointAttribTypeFromName(const char* name) { return iViPointAttribType(name); }

bool boTrNetGetUsePointAttrib(const TrNet* net, int type) {
  return net != nullptr && boViPointSetUsesAttrib(net->points, type);
}

void vTrNetSetUsePointAttrib(TrNet* net, int type, bool use) {
  if (net != nullptr) vViPointSetUseAttrib(&net->points, type, use);
}

bool boTrNetSetPointAttribInt(TrNet* net, int type, int index, int32_t value) {
  return net != nullptr && boViPointSetSetAttrib(&net->points, type, index, value);
}

int32_t iTrNetGetPointAttribInt(const TrNet* net, int type, int index) {
  return net != nullptr ? iViPointSetGetAttrib(net->points, type, index) : 0;
}

void vTrNetSetCompressedSizeAndOffset(TrNet* net, int size, double offsetX, double offsetY) {
  if (net == nullptr) return;
  net->points.iCompressedSize = size;
  net->points.dOffsetX = offsetX;
  net->points.dOffsetY = offsetY;
}

bool boTrNetGetCompressedSizeAndOffset(const TrNet* net, int* size, double* offsetX,
                                       double* offsetY) {
  if (net == nullptr || net->points.iCompressedSize == 0) return false;
  *size = net->points.iCompressedSize;
  *offsetX = net->points.dOffsetX;
  *offsetY = net->points.dOffsetY;
  return true;
}

bool boTrNetGetBestCompressedSizeOffsetByExtent(const TrNet* net, int* size, double* offsetX,
                                                double* offsetY) {
  return net != nullptr && boViPointSetBestOffset(net->points, size, offsetX, offsetY);
}

void vTrNetConvertToPointCloud(TrNet* net, PtCloud* cloud) {
  if (net == nullptr || cloud == nullptr) return;
  cloud->points = std::move(net->points);
  net->points = ViPointSet{};
  net->triangles.clear();
  vViCopyGuid(cloud->sGuid, net->sGuid);
}
