#include "road_model/lines/vertical_heights.h"

#include <cmath>

#include "base/log_file.h"
#include "base/numbers.h"
#include "base/session.h"
#include "geometry/line_measure.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/sections/section_heights.h"
#include "road_model/lines/vertical_line.h"

namespace {

// How far before the first point a height is still given.
constexpr double kBeforeFirst = 0.001;
// How far beyond the last curve end a height is still given from the last piece.
constexpr double kBeyondLast = 0.001;
// How near the last point a chainage gives that point's height.
constexpr double kAtLastPoint = 0.01;
// Curves shorter than this are left out.
constexpr double kShortestCurve = 0.001;
// A height this near the centre of a circle gives no slope.
constexpr double kNearCenter = 1e-5;
// A chainage this near a cross section takes the section's height.
constexpr double kAtSection = 0.0005;

// Where the conversion remembers that the missing slope has been told.
constexpr const char* kSaidFile = "conversion";
constexpr const char* kSaidSection = "said";
constexpr const char* kSaidSlopeOnDiffAltitudes = "VerLineSlopeOnDiffAltitudes";

// Heights taken from cross sections have no slope; the log says so once per
// conversion, and the caller's slope stays as it was.
void vTellNoSlope(double* slope, double chain) {
  if (!slope) return;
  if (sSessionGet(kSaidFile, kSaidSection, kSaidSlopeOnDiffAltitudes, nullptr)[0]) return;
  vLogWrite("Not able calc verline slope on diffaltitudes (chain %.3f)", chain);
  vSessionAdd(kSaidFile, kSaidSection, kSaidSlopeOnDiffAltitudes, "1", "");
}

// The height on the circle of the point `p` at `chain`: the lower crossing
// in a sag, the upper one on a crest.
double dCircleHeight(const RmVerPoint* p, const RmVerPoint* n, double chain, double* slope) {
  double radius = std::fabs(p->Radius);
  double along = chain - p->CenterChain;
  double rest = radius * radius - along * along;
  if (!(rest > 0.0)) return kNullNumber;
  double rise = std::sqrt(rest);
  double height = p->Slope <= n->Slope ? p->CenterHeight - rise : p->CenterHeight + rise;
  if (slope && std::fabs(height - p->CenterHeight) >= kNearCenter) {
    *slope = -along / (height - p->CenterHeight);
  }
  return height;
}

struct HeightExtremes {
  const RmChainRange* Range;
  bool Found = false;
  double Min = 0.0;
  double Max = 0.0;

  void vTake(double chain, double height) {
    if (!boIsPresent(height)) return;
    if (Range && !boRmChainRangeContainsClosed(*Range, chain)) return;
    if (!Found || height < Min) Min = height;
    if (!Found || height > Max) Max = height;
    Found = true;
  }
};

void vTakeLinePoints(const RmLine* line, HeightExtremes* extremes) {
  double chain = dRmLineGetStartChain(line);
  for (LiElm elm = LiElmGetFirst(line); elm != kLiNoElm; elm = LiElmGetNext(line, elm)) {
    ViPoint3d point;
    vLiElmGetP3d(line, elm, &point);
    extremes->vTake(chain, point.z);
    chain += dLiElmLength(line, elm);  // the piece from this point to the next
  }
}

}  // namespace

double dRmVerLineHeightAt(const RmVerLine* verLine, double chain, double* slope) {
  const RmVerPoint* first = RmVerLineGetFirst(verLine);
  if (!first || chain < first->Chain - kBeforeFirst) return kNullNumber;
  const RmVerPoint* p = first->Next;
  while (p && chain > p->EndChain) p = p->Next;
  if (!p) {
    const RmVerPoint* last = ListLast<RmVerPoint>(&verLine->Points);
    if (last != first && std::fabs(chain - last->EndChain) <= kBeyondLast) {
      p = last;
    } else if (std::fabs(last->Chain - chain) < kAtLastPoint) {
      return last->Height;
    } else {
      return kNullNumber;
    }
  }
  const RmVerPoint* q = p->Prev;
  double height = (chain - q->Chain) * p->Slope + q->Height;
  if (slope) *slope = p->Slope;
  const RmVerPoint* n = p->Next;
  if (!n || chain < p->StartChain || chain > p->EndChain || p->Length <= kShortestCurve) {
    return height;
  }
  if (p->CurveType == kRmCurveParabola) {
    // The slope stays that of the arriving piece.
    double d = chain - p->StartChain;
    return (n->Slope - p->Slope) * d * d / (2.0 * p->Length) + p->Slope * d + p->StartHeight;
  }
  return dCircleHeight(p, n, chain, slope);
}

double dRmVerLineHeightDiffAware(const RmVerLine* verLine, double chain, double* slope) {
  if (!verLine) return kNullNumber;
  const RmModel* model = verLine->Lines ? verLine->Lines->Model : nullptr;
  const RmDiffAltitude* range =
      model ? RmDiffAltitudeFind(verLine->DiffAltitudes, chain) : nullptr;
  RmSectionHeights sections;
  if (!range || !boRmGetSectionHeights(model, chain, &sections) || !sections.HasNext ||
      !boIsPresent(sections.NextHeight)) {
    return dRmVerLineHeightAt(verLine, chain, slope);
  }
  double nextHeight = sections.NextHeight + range->Height;
  if (std::fabs(sections.NextChain - chain) < kAtSection) {
    vTellNoSlope(slope, chain);
    return nextHeight;
  }
  if (!sections.HasPrevious) return dRmVerLineHeightAt(verLine, chain, slope);
  double previousHeight = sections.PreviousHeight + range->Height;
  if (!boIsPresent(previousHeight)) return dRmVerLineHeightAt(verLine, chain, slope);
  vTellNoSlope(slope, chain);
  double span = sections.NextChain - sections.PreviousChain;
  if (span == 0.0) return nextHeight;
  return (chain - sections.PreviousChain) / span * (nextHeight - previousHeight) + previousHeight;
}

double dRmLineHeightAt(const RmLine* line, double chain, double* slope) {
  if (const RmVerLine* verLine = RmLineGetVerLine(line)) {
    return dRmVerLineHeightDiffAware(verLine, chain, slope);
  }
  if (!boLiLineIs3d(line)) return kNullNumber;
  ViPoint3d point;
  if (!boLiLineGetPointAtLength(line, chain - dRmLineGetStartChain(line), &point, nullptr)) {
    return kNullNumber;
  }
  return point.z;
}

bool boRmLineHeightRange(const RmVerLine* verLine, const RmLine* line, const RmChainRange* range,
                         double* min, double* max) {
  HeightExtremes extremes{range};
  for (const RmVerPoint* p = RmVerLineGetFirst(verLine); p; p = p->Next) {
    extremes.vTake(p->Chain, p->Height);
    extremes.vTake(p->StartChain, p->StartHeight);
    extremes.vTake(p->EndChain, p->EndHeight);
  }
  if (verLine && range) {
    extremes.vTake(range->Low, dRmVerLineHeightDiffAware(verLine, range->Low, nullptr));
    extremes.vTake(range->High, dRmVerLineHeightDiffAware(verLine, range->High, nullptr));
  }
  if (!extremes.Found && boLiLineIs3d(line)) {
    vTakeLinePoints(line, &extremes);
    if (range) {
      extremes.vTake(range->Low, dRmLineHeightAt(line, range->Low, nullptr));
      extremes.vTake(range->High, dRmLineHeightAt(line, range->High, nullptr));
    }
  }
  if (!extremes.Found) return false;
  if (min) *min = extremes.Min;
  if (max) *max = extremes.Max;
  return true;
}
