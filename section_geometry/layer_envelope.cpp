#include "section_geometry/layer_envelope.h"

#include <algorithm>

#include "road_model/names/layer_list.h"
#include "road_model/sections/layer.h"
#include "section_geometry/layer_band.h"

namespace {

constexpr int kUnited = 1;

// A layer that runs once, walked along rising offsets.
struct Run {
  const RmPoint* At;  // the vertex at or left of the last offset asked for
  double From, To;
  double Height;  // at the last offset asked for
  bool Vertex;    // whether the layer has a vertex there
};

bool boCovers(const Run& run, double x) { return run.From <= x && x <= run.To; }

void vRunMoveTo(Run* run, double x) {
  const RmPoint* point = run->At;
  while (point->Next && point->Next->X <= x) point = point->Next;
  run->At = point;
  run->Vertex = point->X == x;
  const double z = point->Z;
  if (run->Vertex || !point->Next) {
    run->Height = z;
    return;
  }
  const RmPoint* next = point->Next;
  run->Height = z + (next->Z - z) * (x - point->X) / (next->X - point->X);
}

// The layers of the list as runs; false when one is missing, does not run
// once, or the entries are of different ranks.
bool boCollectRuns(const RmSection* section, const RmLayerList* list, std::vector<Run>* runs) {
  const RmLayerListEntry* first = RmLayerListGetFirst(list);
  if (!first) return false;
  const int rank = std::clamp(static_cast<int>(first->Kind), 1, 6);
  for (const RmLayerListEntry* entry = first; entry; entry = entry->Next) {
    if (std::clamp(static_cast<int>(entry->Kind), 1, 6) != rank) return false;
    const RmLayer* layer = RmLayerFind(section, entry->Id);
    if (!boLayerIsSingleRun(layer)) return false;
    const RmPoint* start = RmPointsGetFirst(layer);
    runs->push_back({start, start->X, RmPointsGetLast(layer)->X, 0.0, false});
  }
  return true;
}

// The offsets that the bottom spans; false when they are not one stretch.
bool boSpan(std::vector<Run>* runs, bool united, double* from, double* to) {
  if (!united) {
    *from = runs->front().From;
    *to = runs->front().To;
    for (const Run& run : *runs) {
      *from = std::max(*from, run.From);
      *to = std::min(*to, run.To);
    }
    return *from < *to;
  }
  std::sort(runs->begin(), runs->end(), [](const Run& a, const Run& b) { return a.From < b.From; });
  *from = runs->front().From;
  *to = runs->front().To;
  for (const Run& run : *runs) {
    if (run.From > *to) return false;
    *to = std::max(*to, run.To);
  }
  return true;
}

// Adds the points where the bottom passes from one layer to another between
// two neighbouring offsets, over which every layer is straight. `before`
// holds the heights at `x0`, the runs the heights at `x1`; `sign` is 1 for
// the lowest layer, -1 for the highest.
void vAddCrossings(const std::vector<Run>& runs, const std::vector<double>& before, double x0,
                   double x1, double sign, double lift, SgHeightLine* line) {
  const auto at = [&](size_t r, double t) {
    return sign * (before[r] + t * (runs[r].Height - before[r]));
  };
  size_t bottom = runs.size();
  for (size_t r = 0; r < runs.size(); ++r) {
    if (!(runs[r].From <= x0 && runs[r].To >= x1)) continue;
    if (bottom == runs.size() || at(r, 0) < at(bottom, 0) ||
        (at(r, 0) == at(bottom, 0) && at(r, 1) < at(bottom, 1))) {
      bottom = r;
    }
  }
  if (bottom == runs.size()) return;
  // The bottom of straight pieces bends one way only: each layer takes it
  // over at most once.
  double t = 0.0;
  for (size_t pass = 0; pass < runs.size(); ++pass) {
    size_t next = runs.size();
    double tNext = 1.0;
    double belowNext = 0.0;
    for (size_t r = 0; r < runs.size(); ++r) {
      if (r == bottom || !(runs[r].From <= x0 && runs[r].To >= x1)) continue;
      const double a = at(r, 0) - at(bottom, 0);
      const double b = at(r, 1) - at(bottom, 1);
      if (!(b < 0.0) || !(a > b)) continue;
      const double tr = a / (a - b);
      if (tr > t && (tr < tNext || (tr == tNext && b < belowNext))) {
        next = r;
        tNext = tr;
        belowNext = b;
      }
    }
    if (next == runs.size()) return;
    line->push_back({x0 + tNext * (x1 - x0), sign * at(bottom, tNext) + lift});
    bottom = next;
    t = tNext;
  }
}

}  // namespace

bool boLayerListBottom(const RmSection* section, const RmLayerList* list, double lift,
                       SgHeightLine* line) {
  line->clear();
  std::vector<Run> runs;
  if (!boCollectRuns(section, list, &runs)) return false;
  const bool united = list->Join == kUnited;
  if (runs.size() == 1) {
    // One layer is its own bottom.
    for (const RmPoint* point = runs.front().At; point; point = point->Next) {
      line->push_back({point->X, point->Z + lift});
    }
    return true;
  }
  double from = 0.0;
  double to = 0.0;
  if (!boSpan(&runs, united, &from, &to)) return false;

  std::vector<double> offsets;
  for (const Run& run : runs) {
    for (const RmPoint* point = run.At; point; point = point->Next) {
      if (point->X >= from && point->X <= to) offsets.push_back(point->X);
    }
  }
  std::sort(offsets.begin(), offsets.end());
  offsets.erase(std::unique(offsets.begin(), offsets.end()), offsets.end());

  const double sign = united ? 1.0 : -1.0;
  std::vector<double> before(runs.size(), 0.0);
  for (size_t k = 0; k < offsets.size(); ++k) {
    const double x = offsets[k];
    for (Run& run : runs) {
      if (boCovers(run, x)) vRunMoveTo(&run, x);
    }
    if (k > 0) vAddCrossings(runs, before, offsets[k - 1], x, sign, lift, line);
    // The bottom just left and just right of x: they differ where a layer
    // begins or ends below the others.
    const Run* left = nullptr;
    const Run* right = nullptr;
    for (const Run& run : runs) {
      if (run.From < x && x <= run.To && (!left || sign * run.Height < sign * left->Height)) {
        left = &run;
      }
      if (run.From <= x && x < run.To && (!right || sign * run.Height < sign * right->Height)) {
        right = &run;
      }
    }
    if (left && right && left->Height != right->Height) {
      line->push_back({x, left->Height + lift});
      line->push_back({x, right->Height + lift});
    } else {
      const double z = left ? left->Height : right->Height;
      // A point where a bottom layer has a vertex, or where layers meet.
      int meeting = 0;
      bool vertex = k == 0 || k + 1 == offsets.size();
      for (const Run& run : runs) {
        if (!boCovers(run, x) || run.Height != z) continue;
        ++meeting;
        vertex = vertex || run.Vertex;
      }
      if (vertex || meeting > 1) line->push_back({x, z + lift});
    }
    for (size_t r = 0; r < runs.size(); ++r) {
      if (boCovers(runs[r], x)) before[r] = runs[r].Height;
    }
  }
  return line->size() >= 2;
}
