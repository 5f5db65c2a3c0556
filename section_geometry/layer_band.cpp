#include "section_geometry/layer_band.h"

#include <algorithm>
#include <vector>

#include "road_model/sections/layer.h"
#include "section_geometry/tolerances.h"

namespace {

// A place along the band: its offset, both heights, and which layer has a
// vertex there (crossings and ends belong to both).
struct Station {
  double X, Lower, Upper;
  bool LowerVertex, UpperVertex;
};

// Walks a single-run layer along rising offsets.
class RunCursor {
 public:
  RunCursor(const RmLayer* layer, double lift) : point_(RmPointsGetFirst(layer)), lift_(lift) {}
  // The height at `x`, which must not fall behind the last call.
  double dAt(double x) {
    while (point_->Next && point_->Next->X <= x) point_ = point_->Next;
    if (!point_->Next || point_->X >= x) return point_->Z + lift_;
    const RmPoint* next = point_->Next;
    return point_->Z + (next->Z - point_->Z) * (x - point_->X) / (next->X - point_->X) + lift_;
  }

 private:
  const RmPoint* point_;
  double lift_;
};

constexpr int kLowerVertex = 1;
constexpr int kUpperVertex = 2;

struct Offset {
  double X;
  int Owners;
};

void vAddOffsets(const RmLayer* layer, double from, double to, int owner,
                 std::vector<Offset>* offsets) {
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (point->X > from && point->X < to) offsets->push_back({point->X, owner});
  }
}

// The offsets of both layers and the ends, rising, each once with the
// layers that have a vertex there.
std::vector<Offset> MergedOffsets(const RmLayer* upper, const RmLayer* lower, double from,
                                  double to) {
  std::vector<Offset> offsets{{from, kLowerVertex | kUpperVertex},
                              {to, kLowerVertex | kUpperVertex}};
  vAddOffsets(upper, from, to, kUpperVertex, &offsets);
  vAddOffsets(lower, from, to, kLowerVertex, &offsets);
  std::sort(offsets.begin(), offsets.end(),
            [](const Offset& a, const Offset& b) { return a.X < b.X; });
  std::vector<Offset> merged;
  merged.reserve(offsets.size());
  for (const Offset& offset : offsets) {
    if (!merged.empty() && merged.back().X == offset.X) {
      merged.back().Owners |= offset.Owners;
    } else {
      merged.push_back(offset);
    }
  }
  return merged;
}

std::vector<Station> Stations(const RmLayer* upper, const RmLayer* lower, double from,
                              double to, double lift) {
  const std::vector<Offset> offsets = MergedOffsets(upper, lower, from, to);
  RunCursor upperAt(upper, lift);
  RunCursor lowerAt(lower, 0.0);
  std::vector<Station> stations;
  stations.reserve(offsets.size() * 2);
  for (const Offset& offset : offsets) {
    const double x = offset.X;
    Station station{x, lowerAt.dAt(x), upperAt.dAt(x), (offset.Owners & kLowerVertex) != 0,
                    (offset.Owners & kUpperVertex) != 0};
    if (!stations.empty()) {
      // Where the layers cross between two stations, a station of both.
      const Station& last = stations.back();
      const double d0 = last.Upper - last.Lower;
      const double d1 = station.Upper - station.Lower;
      if ((d0 > 0.0 && d1 < 0.0) || (d0 < 0.0 && d1 > 0.0)) {
        const double t = d0 / (d0 - d1);
        const double cx = last.X + t * (station.X - last.X);
        const double cz = last.Lower + t * (station.Lower - last.Lower);
        stations.push_back({cx, cz, cz, true, true});
      }
    }
    stations.push_back(station);
  }
  return stations;
}

void vAddRing(YgPolygon* polygon, const std::vector<Station>& stations, size_t a, size_t b) {
  bool first = true;
  const auto add = [&](double x, double z) {
    if (first && iYgElmGetCount(polygon) > 0) {
      LiLineAddPInvisible(polygon, x, z);
    } else {
      LiLineAddP2d(polygon, x, z);
    }
    first = false;
  };
  for (size_t k = a; k <= b; ++k) {
    if (k == a || k == b || stations[k].LowerVertex) add(stations[k].X, stations[k].Lower);
  }
  for (size_t k = b + 1; k-- > a;) {
    const Station& s = stations[k];
    const bool end = k == a || k == b;
    if (s.Upper > s.Lower && (end || s.UpperVertex)) add(s.X, s.Upper);
  }
}

}  // namespace

bool boLayerIsSingleRun(const RmLayer* layer) {
  const RmPoint* point = RmPointsGetFirst(layer);
  if (!point || !point->Next) return false;
  for (; point; point = point->Next) {
    if (!(point->Z > kSgHeightGiven)) return false;
    if (point->Next && !(point->Next->X > point->X)) return false;
  }
  return true;
}

YgPolygon* LayerBandPolygon(const RmLayer* upper, const RmLayer* lower, const ViExtent& box,
                            double lift) {
  const double from = std::max({static_cast<double>(RmPointsGetFirst(upper)->X),
                                static_cast<double>(RmPointsGetFirst(lower)->X), box.dMinX});
  const double to = std::min({static_cast<double>(RmPointsGetLast(upper)->X),
                              static_cast<double>(RmPointsGetLast(lower)->X), box.dMaxX});
  if (!(from < to)) return nullptr;
  const std::vector<Station> stations = Stations(upper, lower, from, to, lift);
  YgPolygon* polygon = YgPolygonCreate();
  // A ring runs over the stations between two where the layers meet (or the
  // ends), with the upper layer above the lower one in between.
  size_t start = 0;
  for (size_t k = 1; k < stations.size(); ++k) {
    const double d = stations[k].Upper - stations[k].Lower;
    const double before = stations[k - 1].Upper - stations[k - 1].Lower;
    if (before < 0.0 || (before == 0.0 && d <= 0.0)) start = k;
    if (k > start && (d <= 0.0 || k + 1 == stations.size())) {
      if (d >= 0.0) vAddRing(polygon, stations, start, k);
      start = k;
    }
  }
  if (iYgElmGetCount(polygon) < 3) vYgPolygonDelete(&polygon);
  return polygon;
}
