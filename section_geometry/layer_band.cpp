#include "section_geometry/layer_band.h"

#include <algorithm>
#include <vector>

#include "road_model/sections/layer.h"
#include "section_geometry/tolerances.h"

namespace {

// A place along the band: its offset, both heights, and which line has a
// point there (crossings and ends belong to both).
struct Station {
  double X, Lower, Upper;
  bool LowerVertex, UpperVertex;
};

// Walks a height line along rising offsets.
class LineCursor {
 public:
  explicit LineCursor(const SgHeightLine& line) : line_(line) {}
  // The heights just left and just right of `x` (the same but at a step)
  // and whether the line has a point there. `x` lies within the line and
  // does not fall behind the last call.
  void vAt(double x, double* left, double* right, bool* vertex) {
    while (k_ + 1 < line_.size() && line_[k_].X < x) ++k_;
    const SgLinePoint& point = line_[k_];
    *vertex = point.X == x;
    if (*vertex || k_ == 0) {
      size_t last = k_;
      while (last + 1 < line_.size() && line_[last + 1].X == x) ++last;
      *left = point.Z;
      *right = line_[last].Z;
      return;
    }
    const SgLinePoint& prior = line_[k_ - 1];
    *left = prior.Z + (point.Z - prior.Z) * (x - prior.X) / (point.X - prior.X);
    *right = *left;
  }

 private:
  const SgHeightLine& line_;
  size_t k_ = 0;
};

// The offsets of both lines within the ends, and the ends, rising, each once.
std::vector<double> Offsets(const SgHeightLine& upper, const SgHeightLine& lower, double from,
                            double to) {
  // Both lines rise already: merged as they come.
  std::vector<double> offsets;
  offsets.reserve(upper.size() + lower.size() + 2);
  offsets.push_back(from);
  const auto add = [&](double x) {
    if (x > offsets.back() && x < to) offsets.push_back(x);
  };
  size_t u = 0;
  size_t l = 0;
  while (u < upper.size() || l < lower.size()) {
    if (l == lower.size() || (u < upper.size() && upper[u].X < lower[l].X)) {
      add(upper[u++].X);
    } else {
      add(lower[l++].X);
    }
  }
  offsets.push_back(to);
  return offsets;
}

// Appends a station, with one of both before it where the lines cross
// since the last one.
void vAddStation(std::vector<Station>* stations, const Station& station) {
  if (!stations->empty()) {
    const Station& last = stations->back();
    const double d0 = last.Upper - last.Lower;
    const double d1 = station.Upper - station.Lower;
    if ((d0 > 0.0 && d1 < 0.0) || (d0 < 0.0 && d1 > 0.0)) {
      const double t = d0 / (d0 - d1);
      const double cx = last.X + t * (station.X - last.X);
      const double cz = last.Lower + t * (station.Lower - last.Lower);
      stations->push_back({cx, cz, cz, true, true});
    }
  }
  stations->push_back(station);
}

// The stations from `from` to `to`; a step of one line makes two stations at
// its offset. False when both lines step at one offset.
bool boStations(const SgHeightLine& upper, const SgHeightLine& lower, double from, double to,
                std::vector<Station>* stations) {
  const std::vector<double> offsets = Offsets(upper, lower, from, to);
  LineCursor upperAt(upper);
  LineCursor lowerAt(lower);
  stations->reserve(offsets.size() * 2);
  for (const double x : offsets) {
    double lower0, lower1, upper0, upper1;
    bool lowerVertex, upperVertex;
    lowerAt.vAt(x, &lower0, &lower1, &lowerVertex);
    upperAt.vAt(x, &upper0, &upper1, &upperVertex);
    const bool end = x == from || x == to;
    // At the ends only the side within the band counts.
    if (x == from) {
      lower0 = lower1;
      upper0 = upper1;
    } else if (x == to) {
      lower1 = lower0;
      upper1 = upper0;
    }
    const bool lowerStep = lower0 != lower1;
    const bool upperStep = upper0 != upper1;
    if (lowerStep && upperStep) return false;
    vAddStation(stations, {x, lower0, upper0, lowerVertex || end, upperVertex || end});
    if (lowerStep || upperStep) vAddStation(stations, {x, lower1, upper1, lowerStep, upperStep});
  }
  return true;
}

// Adds the ring over the stations a..b: the lower line forwards, the upper one
// back. Its points are gathered in `ring` first and added to the polygon at
// once; a ring after the first starts behind an invisible move.
void vAddRing(YgPolygon* polygon, const std::vector<Station>& stations, size_t a, size_t b,
              std::vector<ViPoint2d>* ring) {
  ring->clear();
  const auto add = [ring](double x, double z) {
    if (!ring->empty() && x == ring->back().x && z == ring->back().y) return;
    ring->push_back({x, z});
  };
  for (size_t k = a; k <= b; ++k) {
    if (k == a || k == b || stations[k].LowerVertex) add(stations[k].X, stations[k].Lower);
  }
  for (size_t k = b + 1; k-- > a;) {
    const Station& s = stations[k];
    const bool end = k == a || k == b;
    // Within a ring the lines meet only where the upper one touches down.
    if (end ? s.Upper > s.Lower : s.UpperVertex) add(s.X, s.Upper);
  }
  size_t first = 0;
  if (iYgElmGetCount(polygon) > 0) {
    LiLineAddPInvisible(polygon, (*ring)[0].x, (*ring)[0].y);
    first = 1;
  }
  LiLineAddPoints2d(polygon, ring->data() + first, ring->size() - first);
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

bool boLayerBandPolygon(const SgHeightLine& upper, const SgHeightLine& lower, const ViExtent& box,
                        YgPolygon** band) {
  if (upper.empty() || lower.empty()) return false;
  const double from = std::max({upper.front().X, lower.front().X, box.dMinX});
  const double to = std::min({upper.back().X, lower.back().X, box.dMaxX});
  if (!(from < to)) {
    *band = nullptr;
    return true;
  }
  std::vector<Station> stations;
  if (!boStations(upper, lower, from, to, &stations)) return false;
  YgPolygon* polygon = YgPolygonCreate();
  // A ring runs over the stations between two where the lines meet (or the
  // ends), with the upper line above the lower one in between. Where the
  // upper line touches the lower one in a point and rises again, the ring
  // goes on through that point, pinched, as the clipping leaves it.
  const auto gap = [&](size_t k) { return stations[k].Upper - stations[k].Lower; };
  size_t start = 0;
  std::vector<ViPoint2d> ring;
  ring.reserve(2 * stations.size());
  for (size_t k = 1; k < stations.size(); ++k) {
    const double d = gap(k);
    const double before = gap(k - 1);
    const bool last = k + 1 == stations.size();
    const bool touch = d == 0.0 && before > 0.0 && !last && gap(k + 1) > 0.0;
    if (before < 0.0 || (before == 0.0 && d <= 0.0)) start = k;
    if (k > start && ((d <= 0.0 && !touch) || last)) {
      if (d >= 0.0) vAddRing(polygon, stations, start, k, &ring);
      start = k;
    }
  }
  if (iYgElmGetCount(polygon) < 3) vYgPolygonDelete(&polygon);
  *band = polygon;
  return true;
}
