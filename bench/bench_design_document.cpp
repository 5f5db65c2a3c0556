#include "bench/bench_design_document.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace {

// ---- Writing JSON as it goes ----

// Compact JSON into a buffer that goes to the file every megabyte, so that
// a document of any size takes little memory.
class JsonStream {
 public:
  explicit JsonStream(std::FILE* file) : file_(file) { text_.reserve(kFlushAt + 4096); }

  void Begin(char bracket) {
    Separate();
    text_ += bracket;
    first_.push_back(true);
  }
  void End(char bracket) {
    text_ += bracket;
    first_.pop_back();
    if (text_.size() >= kFlushAt) Flush();
  }
  void Key(std::string_view name) {
    Separate();
    text_ += '"';
    text_ += name;
    text_ += "\":";
    afterKey_ = true;
  }
  void Number(double value, int decimals) {
    Separate();
    char digits[64];
    auto result = std::to_chars(digits, digits + sizeof digits, value,
                                std::chars_format::fixed, decimals);
    text_.append(digits, result.ptr);
  }
  void Integer(long value) {
    Separate();
    text_ += std::to_string(value);
  }
  void Boolean(bool value) {
    Separate();
    text_ += value ? "true" : "false";
  }
  void Text(std::string_view value) {
    Separate();
    text_ += '"';
    text_ += value;
    text_ += '"';
  }

  // Name and value in one step.
  void Member(std::string_view name, double value, int decimals = 3) {
    Key(name);
    Number(value, decimals);
  }
  void Member(std::string_view name, int value) {
    Key(name);
    Integer(value);
  }
  void Member(std::string_view name, bool value) {
    Key(name);
    Boolean(value);
  }
  void Member(std::string_view name, const char* value) {
    Key(name);
    Text(value);
  }

  // A surface number without serial number.
  void SurfaceNumber(std::string_view name, double decimal) {
    Key(name);
    Begin('{');
    Member("decimal", decimal, 2);
    End('}');
  }
  // `{"distance": x, "elevation": z}`
  void Point(double distance, double elevation) {
    Begin('{');
    Member("distance", distance);
    Member("elevation", elevation);
    End('}');
  }

  bool Flush() {
    bool written = std::fwrite(text_.data(), 1, text_.size(), file_) == text_.size();
    text_.clear();
    ok_ = ok_ && written;
    return ok_;
  }

 private:
  static constexpr size_t kFlushAt = size_t{1} << 20;

  // The comma before a value or key, except the first in its container and
  // a value right after its key.
  void Separate() {
    if (afterKey_) {
      afterKey_ = false;
      return;
    }
    if (first_.empty()) return;
    if (!first_.back()) text_ += ',';
    first_.back() = false;
  }

  std::FILE* file_;
  std::string text_;
  std::vector<bool> first_;
  bool afterKey_ = false;
  bool ok_ = true;
};

// ---- Plan geometry of the alignments ----

// A piece whose curvature (positive turning left) changes evenly from
// `StartCurvature` to `EndCurvature` over `Length`.
struct Piece {
  double Length;
  double StartCurvature;
  double EndCurvature;
};

struct PlanPoint {
  double X, Y, Direction;
};

// The point at `length` along a piece from `start`, by Simpson's rule over
// the direction, which changes by a square of the length.
PlanPoint PointAlong(const PlanPoint& start, const Piece& piece, double length) {
  const double change = (piece.EndCurvature - piece.StartCurvature) / piece.Length;
  auto direction = [&](double s) {
    return start.Direction + piece.StartCurvature * s + change * s * s / 2.0;
  };
  int steps = 2 * static_cast<int>(std::ceil(length / 0.5));
  if (steps < 2) steps = 2;
  const double h = length / steps;
  double x = 0.0;
  double y = 0.0;
  for (int i = 0; i <= steps; ++i) {
    const double weight = (i == 0 || i == steps) ? 1.0 : (i % 2 == 1 ? 4.0 : 2.0);
    const double angle = direction(i * h);
    x += weight * std::cos(angle);
    y += weight * std::sin(angle);
  }
  return {start.X + x * h / 3.0, start.Y + y * h / 3.0, direction(length)};
}

// The main line: per kilometre a straight, a clothoid into an arc of 800 m,
// the arc, a clothoid out of it and a short straight, turning left and
// right by turns; cut at `length`.
std::vector<Piece> MainLinePieces(double length) {
  constexpr double kCurvature = 1.0 / 800.0;
  std::vector<Piece> pieces;
  double at = 0.0;
  for (int kilometre = 0; at < length; ++kilometre) {
    const double k = kilometre % 2 == 0 ? kCurvature : -kCurvature;
    for (const Piece& piece : {Piece{300.0, 0.0, 0.0}, Piece{100.0, 0.0, k},
                               Piece{400.0, k, k}, Piece{100.0, k, 0.0}, Piece{100.0, 0.0, 0.0}}) {
      if (at >= length) break;
      Piece cut = piece;
      if (at + piece.Length > length) {
        cut.Length = length - at;
        cut.EndCurvature = piece.StartCurvature +
                           (piece.EndCurvature - piece.StartCurvature) * cut.Length / piece.Length;
      }
      pieces.push_back(cut);
      at += cut.Length;
    }
  }
  return pieces;
}

double dRadius(double curvature) { return curvature == 0.0 ? 0.0 : 1.0 / curvature; }

// One element of an alignment as the design document holds it.
void vWriteElement(JsonStream& json, int number, double startChainage, double endChainage,
                   const PlanPoint& start, const PlanPoint& end, double startCurvature,
                   double endCurvature, double clothoidParameter) {
  json.Begin('{');
  json.Member("elementNo", number);
  json.Member("startChainage", startChainage, 4);
  json.Member("endChainage", endChainage, 4);
  json.Member("startEast", start.X, 4);
  json.Member("startNorth", start.Y, 4);
  json.Member("endEast", end.X, 4);
  json.Member("endNorth", end.Y, 4);
  json.Member("startRadius", dRadius(startCurvature), 4);
  json.Member("endRadius", dRadius(endCurvature), 4);
  json.Member("clothoidParameter", clothoidParameter, 4);
  json.End('}');
}

constexpr PlanPoint kLineStart{596210.0, 6643180.0, 0.6};

void vWriteMainElements(JsonStream& json, const std::vector<Piece>& pieces) {
  PlanPoint start = kLineStart;
  double chainage = 0.0;
  int number = 1;
  for (const Piece& piece : pieces) {
    const PlanPoint end = PointAlong(start, piece, piece.Length);
    const double change = std::fabs(piece.EndCurvature - piece.StartCurvature);
    const double parameter = change > 0.0 ? std::sqrt(piece.Length / change) : 0.0;
    vWriteElement(json, number++, chainage, chainage + piece.Length, start, end,
                  piece.StartCurvature, piece.EndCurvature, parameter);
    chainage += piece.Length;
    start = end;
  }
}

// The point `offset` to the right of a point of the main line.
PlanPoint RightOf(const PlanPoint& point, double offset) {
  return {point.X + offset * std::sin(point.Direction),
          point.Y - offset * std::cos(point.Direction), point.Direction};
}

// A path beside the main line at `offset` to its right: the parallels of
// its straights and arcs, and chords of 10 m along its clothoids.
void vWriteSideElements(JsonStream& json, const std::vector<Piece>& pieces, double offset) {
  PlanPoint start = kLineStart;
  double chainage = 0.0;
  int number = 1;
  for (const Piece& piece : pieces) {
    if (piece.StartCurvature == piece.EndCurvature) {
      const PlanPoint end = PointAlong(start, piece, piece.Length);
      const double k = piece.StartCurvature;
      const double sideCurvature = k / (1.0 + k * offset);
      const double sideLength = piece.Length * (1.0 + k * offset);
      vWriteElement(json, number++, chainage, chainage + sideLength, RightOf(start, offset),
                    RightOf(end, offset), sideCurvature, sideCurvature, 0.0);
      chainage += sideLength;
      start = end;
      continue;
    }
    const int chords = std::max(1, static_cast<int>(std::ceil(piece.Length / 10.0)));
    PlanPoint from = start;
    for (int i = 1; i <= chords; ++i) {
      const PlanPoint to = PointAlong(start, piece, piece.Length * i / chords);
      const PlanPoint a = RightOf(from, offset);
      const PlanPoint b = RightOf(to, offset);
      const double chord = std::hypot(b.X - a.X, b.Y - a.Y);
      vWriteElement(json, number++, chainage, chainage + chord, a, b, 0.0, 0.0, 0.0);
      chainage += chord;
      from = to;
    }
    start = from;
  }
}

// ---- Heights ----

// The design line's elevation: angle points every 500 m, up and down by turns.
double dAnglePointElevation(int index) { return 100.0 + (index % 2 == 0 ? 0.0 : 6.0); }

double dDesignElevation(double chainage) {
  const int index = static_cast<int>(chainage / 500.0);
  const double t = (chainage - index * 500.0) / 500.0;
  return dAnglePointElevation(index) * (1.0 - t) + dAnglePointElevation(index + 1) * t;
}

// The terrain's elevation at an offset of a section, relative to the
// design line there.
double dTerrainAt(double chainage, double distance) {
  return 1.2 * std::sin(chainage / 300.0) + 0.8 * std::sin(chainage / 47.0 + distance / 9.0) +
         0.02 * distance;
}

void vWriteVerticalPoints(JsonStream& json, double length, double shift) {
  const int count = static_cast<int>(std::ceil(length / 500.0));
  for (int i = 0; i <= count; ++i) {
    json.Begin('{');
    json.Member("chainage", std::fmin(i * 500.0, length), 4);
    json.Member("elevation", dAnglePointElevation(i) + shift, 4);
    json.Member("radius", (i == 0 || i == count) ? 0.0 : 4000.0, 4);
    json.End('}');
  }
}

// ---- The input side ----

constexpr double kSideOffset = 14.0;  // of the path beside the road

struct SurfaceRow {
  const char* Name;
  double Number;
  double Width;
  double Slope;
};

constexpr SurfaceRow kSurfaces[] = {
    {"Kjørefelt venstre", -1.01, 3.25, -0.03}, {"Kjørefelt høyre", 1.01, 3.25, -0.03},
    {"Skulder venstre", -1.02, 0.75, -0.04},   {"Skulder høyre", 1.02, 0.75, -0.04},
    {"Grøft venstre", -4.01, 1.8, -0.3333},    {"Grøft høyre", 4.01, 1.8, -0.3333},
    {"Skråning venstre", -5.01, 10.0, 0.5},    {"Skråning høyre", 5.01, 10.0, 0.5},
};

// Rows of a chainage table: one stretch of `length` every `every` metres.
template <class WriteRow>
void vStretches(JsonStream& json, std::string_view name, double road, double every, double length,
                WriteRow writeRow) {
  json.Key(name);
  json.Begin('[');
  int index = 0;
  for (double from = 0.0; from < road; from += every, ++index) {
    json.Begin('{');
    json.Member("fromChainage", from, 1);
    json.Member("toChainage", std::fmin(from + length, road), 1);
    writeRow(index);
    json.End('}');
  }
  json.End(']');
}

void vWriteSurfaces(JsonStream& json, double road) {
  json.Key("surfaces");
  json.Begin('[');
  for (const SurfaceRow& surface : kSurfaces) {
    json.Begin('{');
    json.Member("name", surface.Name);
    json.SurfaceNumber("surfaceNumber", surface.Number);
    json.Key("descriptions");
    json.Begin('[');
    int index = 0;
    for (double chainage = 0.0; chainage <= road; chainage += 100.0, ++index) {
      json.Begin('{');
      json.Member("chainage", chainage, 1);
      // The lanes' rows in the middle of each kilometre are steeper than
      // the designed line, whose rows the conversion refines around them.
      const bool steeper = index % 10 == 5 && std::fabs(surface.Number) < 1.015;
      json.Member("width", surface.Width);
      json.Member("slope", surface.Slope * (steeper ? 1.5 : 1.0), 4);
      json.End('}');
    }
    json.End(']');
    json.End('}');
  }
  json.End(']');
}

void vWriteBoundaries(JsonStream& json, double road) {
  json.Key("surfaceBoundariesLeft");
  json.Begin('[');
  for (double chainage = 0.0; chainage < road; chainage += 500.0) {
    json.Begin('{');
    json.Member("chainage", chainage, 1);
    json.Member("distance", 2.0 + std::fmod(chainage, 1000.0) / 1000.0);
    json.SurfaceNumber("surfaceNumber", -5.01);
    json.End('}');
  }
  json.End(']');
  // The right side ends at the path beside the road.
  json.Key("surfaceBoundariesRight");
  json.Begin('[');
  json.Begin('{');
  json.Member("chainage", 0.0, 1);
  json.Member("distance", 0.0, 1);
  json.SurfaceNumber("surfaceNumber", 5.01);
  json.Member("alignmentId", 2);
  json.End('}');
  json.End(']');
  json.Key("surfaceEdgeAlignments");
  json.Begin('[');
  json.Begin('{');
  json.SurfaceNumber("surfaceNumber", 5.01);
  json.SurfaceNumber("freeSurfaceNumber", 6.01);
  json.Member("fromChainage", 0.0, 1);
  json.Member("toChainage", road, 1);
  json.Member("method", 1);
  json.Member("alignmentId", 2);
  json.End('}');
  json.End(']');
}

void vWriteSideTables(JsonStream& json, double road) {
  vStretches(json, "elevationDifferences", road, 2000.0, 50.0,
             [&](int) { json.Member("difference", 0.05); });
  vStretches(json, "embankmentDitchs", road, 1000.0, 200.0, [&](int index) {
    json.Member("position", 2 + index % 2);
    json.Member("type", index % 2 == 0);
  });
  for (const char* name : {"rockShelfsLeft", "rockShelfsRight"}) {
    vStretches(json, name, road, 1000.0, 100.0, [&](int) {
      json.Member("minWidth", 1.0);
      json.Member("additionalWidth", 0.5);
      json.Member("minHeigth", 2.0);
      json.Member("slope", 10.0);
    });
  }
  vStretches(json, "ditchDepths", road, 500.0, 400.0, [&](int index) {
    json.Member("minDepthLeft", 0.5 + 0.1 * (index % 3));
    json.Member("minDepthRight", 0.6);
  });
  // One closed drainage along the road's left side.
  json.Key("closedDrainages");
  json.Begin('[');
  json.Begin('{');
  json.Key("sections");
  json.Begin('[');
  for (double chainage = 0.0; chainage < road; chainage += 250.0) {
    json.Begin('{');
    json.Member("chainage", chainage, 1);
    json.Member("elevationMode", 1);
    json.Key("points");
    json.Begin('[');
    for (int i = 0; i < 4; ++i) json.Point(-6.0 + 0.3 * i, -1.8 - 0.05 * (i % 2));
    json.End(']');
    json.End('}');
  }
  json.End(']');
  json.End('}');
  json.End(']');
  vStretches(json, "connectedWSModels", road, 5000.0, 2500.0,
             [&](int) { json.Member("wsModel", "Kryss.json"); });
}

void vWriteTemplate(JsonStream& json, int id, const char* name, double baseThickness) {
  json.Begin('{');
  json.Member("id", id);
  json.Member("name", name);
  json.Key("areUnderMedian");
  json.Begin('[');
  for (int type : {1, 3}) {
    json.Begin('{');
    json.Member("layerType", type);
    json.Member("value", type == 1);
    json.End('}');
  }
  json.End(']');
  for (const char* side : {"innerSlopesLeft", "innerSlopesRight"}) {
    json.Key(side);
    json.Begin('{');
    json.Member("gradient", 3.0, 1);
    json.Member("extendToTerrain", true);
    json.Member("status", true);
    json.End('}');
  }
  json.Key("pvmtSurfaces");
  json.Begin('[');
  for (double surface : {-1.01, -1.02, 1.01, 1.02}) {
    json.Begin('{');
    json.SurfaceNumber("surfaceNumber", surface);
    json.Member("edgeCode", 0);
    json.Key("layers");
    json.Begin('[');
    const int types[] = {1, 2, 3, 11};
    const double thicknesses[] = {0.04, 0.06, 0.1, baseThickness};
    for (int i = 0; i < 4; ++i) {
      json.Begin('{');
      json.Member("layerType", types[i]);
      json.Member("thickness", thicknesses[i]);
      json.Member("width", 0.0, 1);
      json.Member("slope", 1.5, 1);
      json.End('}');
    }
    json.End(']');
    json.End('}');
  }
  json.End(']');
  json.Key("gradualLayerSurfaces");
  json.Begin('[');
  for (double surface : {-1.02, 1.02}) {
    json.Begin('{');
    json.SurfaceNumber("surfaceNumber", surface);
    json.Member("extraWidth", 0.25);
    json.Member("loadGradient", 2.0, 1);
    json.Member("transitionGradient", 4.0, 1);
    json.End('}');
  }
  json.End(']');
  json.End('}');
}

void vWriteDetailedSurface(JsonStream& json, double road, double surface, bool end) {
  json.Begin('{');
  json.Member("endSurface", end);
  json.Key("sections");
  json.Begin('[');
  for (double chainage = 0.0; chainage < road; chainage += 1000.0) {
    json.Begin('{');
    json.Member("chainage", chainage, 1);
    json.Member("elevation", -0.04);
    json.Member("width", surface < 0.0 ? -3.25 : 3.25);
    json.Member("widthMethod", 1);
    json.SurfaceNumber("widthSurfNo", surface);
    json.Member("widthAlignId", 1);
    json.Member("widthOffset", 0.0, 1);
    json.Member("slope", -0.03);
    json.Member("slopeMethod", 1);
    json.SurfaceNumber("slopeSurfNo", surface);
    json.Member("beamSlope", 0.0, 1);
    json.Member("endSurfaceAfterThis", false);
    json.End('}');
  }
  json.End(']');
  json.End('}');
}

void vWritePavement(JsonStream& json, double road) {
  for (const bool rock : {false, true}) {
    json.Key(rock ? "pvmtSectionsRock" : "pvmtSectionsSoil");
    json.Begin('[');
    for (double from = rock ? 500.0 : 0.0; from < road; from += 1000.0) {
      json.Begin('{');
      json.Member("fromChainage", from, 1);
      json.Member("toChainage", std::fmin(from + 500.0, road), 1);
      json.Member("pavementTemplateId", rock ? 2 : 1);
      json.End('}');
    }
    json.End(']');
  }
  json.Key("pvmtTmpls");
  json.Begin('[');
  vWriteTemplate(json, 1, "Ac 11 på knust fjell, jord", 0.45);
  vWriteTemplate(json, 2, "Ac 11 på sprengt fjell", 0.25);
  json.End(']');
  json.Key("subGrades");
  json.Begin('[');
  for (double chainage = 0.0; chainage < road; chainage += 50.0) {
    json.Begin('{');
    json.Member("chainage", chainage, 1);
    json.Member("givenType", 1 + static_cast<int>(chainage / 50.0) % 6);
    json.Member("calculatedType", 1 + static_cast<int>(chainage / 100.0) % 6);
    json.End('}');
  }
  json.End(']');
  json.Key("detailedPvmtLayers");
  json.Begin('[');
  json.Begin('{');
  json.Member("layerType", 1);
  json.Key("surfacesLeft");
  json.Begin('[');
  vWriteDetailedSurface(json, road, -1.01, false);
  vWriteDetailedSurface(json, road, -1.02, true);
  json.End(']');
  json.Key("surfacesRight");
  json.Begin('[');
  vWriteDetailedSurface(json, road, 1.01, false);
  vWriteDetailedSurface(json, road, 1.02, true);
  json.End(']');
  json.End('}');
  json.End(']');
}

void vWriteRemovals(JsonStream& json, double road) {
  vStretches(json, "topSoilRemovals", road, 2000.0, 1500.0, [&](int index) {
    json.Member("criteria", 1 + index % 2);
    json.Member("cutCode", 1);
    json.Member("cutSlope", 2.0, 1);
    json.Member("fillCode", 2);
    json.Member("fillSlope", 1.5, 1);
    json.Member("maxTerrainSlope", 0.3, 1);
    json.Member("minFillHeight", 0.5, 1);
    json.Member("removalOnRock", index % 2 == 1);
  });
  vStretches(json, "softSpotRemovals", road, 2500.0, 300.0, [&](int) {
    json.Member("designMode", 1);
    json.Member("depth", 1.5, 1);
    json.Member("boundaryRayCorrectionLeft", 0.5, 1);
    json.Member("boundaryRayCorrectionRight", 0.5, 1);
    json.SurfaceNumber("boundaryRayStartLeft", -1.02);
    json.SurfaceNumber("boundaryRayStartRight", 1.02);
    json.Member("slopeOfBoundaryRayLeft", 1.0, 1);
    json.Member("slopeOfBoundaryRayRight", 1.0, 1);
    json.Member("slopeOfCutLeft", 2.0, 1);
    json.Member("slopeOfCutRight", 2.0, 1);
  });
}

void vWriteInput(JsonStream& json, double road) {
  json.Key("input");
  json.Begin('{');
  json.Member("modelVersionNumber", 10.0, 1);
  json.Member("modelType", 1);
  json.Member("referenceAlignmentId", 1);
  json.SurfaceNumber("elevationReferenceSurface", 0.0001);
  json.Key("modelSettings");
  json.Begin('{');
  for (const char* name :
       {"closedDrainage1", "deepBlasting", "detailedPavementDescription", "gradualChangingLayers",
        "innerSlope", "landscapingLeft", "landscapingRight", "minDitchDepthControl",
        "minPavementThicknessControl", "rockShelf", "sodding", "softSpotRemoval",
        "topSoilAndVegetationRemoval"}) {
    json.Member(name, true);
  }
  json.End('}');
  json.Key("subSurfaceMaterials");
  json.Begin('[');
  for (const char* name : {"Jord", "Morene", "Fjell"}) json.Text(name);
  json.End(']');

  const std::vector<Piece> pieces = MainLinePieces(road);
  json.Key("alignments");
  json.Begin('[');
  json.Begin('{');
  json.Member("id", 1);
  json.Member("name", "Fv. 4512 Senterlinje");
  json.Member("guid", "5b7e2c1a-3f4d-4c2b-9e61-7a0d8c4f2e01");
  json.Key("horizontalLineElements");
  json.Begin('[');
  vWriteMainElements(json, pieces);
  json.End(']');
  json.Key("verticalLineAnglePoints");
  json.Begin('[');
  vWriteVerticalPoints(json, road, 0.0);
  json.End(']');
  json.End('}');
  json.Begin('{');
  json.Member("id", 2);
  json.Member("name", "Gang- og sykkelveg");
  json.Member("guid", "5b7e2c1a-3f4d-4c2b-9e61-7a0d8c4f2e02");
  json.Key("horizontalLineElements");
  json.Begin('[');
  vWriteSideElements(json, pieces, kSideOffset);
  json.End(']');
  json.Key("verticalLineAnglePoints");
  json.Begin('[');
  vWriteVerticalPoints(json, road, 0.3);
  json.End(']');
  json.End('}');
  json.End(']');

  vWriteSurfaces(json, road);
  vWriteBoundaries(json, road);
  vWriteSideTables(json, road);
  vWritePavement(json, road);
  vWriteRemovals(json, road);
  json.End('}');
}

// ---- The result side: one cross section ----

// Point lists of a section, `count` points evenly from `from` to `to`, at
// `below` under the finished surface.
struct SectionShape {
  double Chainage;
  double Elevation;  // of the design line

  // Height of the finished surface relative to the design line.
  double Surface(double distance) const {
    const double x = std::fabs(distance);
    if (x <= 3.25) return -0.03 * x;
    if (x <= 4.0) return -0.0975 - 0.04 * (x - 3.25);
    if (x <= 5.8) return -0.1275 - 0.3333 * (x - 4.0);
    return -0.7275 + 0.5 * (x - 5.8);
  }
};

void vPointList(JsonStream& json, std::string_view name, const SectionShape& shape, double from,
                double to, int count, double below) {
  json.Key(name);
  json.Begin('[');
  for (int i = 0; i < count; ++i) {
    const double x = from + (to - from) * i / (count - 1);
    json.Point(x, shape.Surface(x) - below);
  }
  json.End(']');
}

// The surface line's number at an offset.
double dSurfaceAt(double distance) {
  const double x = std::fabs(distance);
  const double number = x < 3.25 ? 1.01 : x < 4.0 ? 1.02 : x < 5.8 ? 4.01 : 5.01;
  return distance < 0.0 ? -number : number;
}

void vWriteSurfaceSide(JsonStream& json, const SectionShape& shape, const char* key,
                       std::initializer_list<double> offsets,
                       std::initializer_list<double> numbers) {
  json.Key(key);
  json.Begin('[');
  const double* number = numbers.begin();
  for (double offset : offsets) {
    json.Begin('{');
    json.Key("point");
    json.Point(offset, shape.Surface(offset));
    json.SurfaceNumber("surfaceNumber", *number++);
    json.End('}');
  }
  json.End(']');
}

void vWriteSurfacePoints(JsonStream& json, const SectionShape& shape) {
  // Left from the centre outward, each point with the surface that ends
  // there; right from the centre, each with the surface that starts there.
  vWriteSurfaceSide(json, shape, "surfacesLeft", {-3.25, -4.0, -5.8, -7.0, -9.0, -11.0},
                    {-1.01, -1.02, -4.01, -5.01, -5.01, -5.01});
  vWriteSurfaceSide(json, shape, "surfacesRight", {0.0, 3.25, 4.0, 5.8, 7.0, 9.0, 11.0},
                    {1.01, 1.02, 4.01, 5.01, 5.01, 5.01, 5.01});
}

void vWritePavementLayers(JsonStream& json, const SectionShape& shape) {
  json.Key("pavementLayers");
  json.Begin('[');
  const int types[] = {1, 2, 3, 11};
  const double depths[] = {0.04, 0.1, 0.2, 0.65};
  for (int layer = 0; layer < 4; ++layer) {
    json.Begin('{');
    json.Member("layerType", types[layer]);
    json.Key("layerPoints");
    json.Begin('[');
    const double half = 4.06 + 0.15 * layer;
    for (int i = 0; i < 15; ++i) {
      const double x = -half + 2.0 * half * i / 14;
      json.Begin('{');
      json.Key("point");
      json.Point(x, shape.Surface(std::fmin(std::fabs(x), 4.0)) - depths[layer]);
      json.SurfaceNumber("surfaceNumber", dSurfaceAt(x));
      json.End('}');
    }
    json.End(']');
    json.End('}');
  }
  json.End(']');
}

void vWriteModelSection(JsonStream& json, const SectionShape& shape) {
  json.Key("model");
  json.Begin('{');
  json.Member("refElevation", shape.Elevation);
  vWriteSurfacePoints(json, shape);
  vWritePavementLayers(json, shape);
  vPointList(json, "deepBlastings", shape, -6.0, 6.0, 9, 1.6);
  vPointList(json, "landscapingsLeft", shape, -11.0, -6.0, 5, 0.0);
  vPointList(json, "landscapingsRight", shape, 6.0, 11.0, 5, 0.0);
  vPointList(json, "soddingsLeft", shape, -11.0, -4.0, 5, 0.0);
  vPointList(json, "soddingsRight", shape, 4.0, 11.0, 5, 0.0);
  vPointList(json, "removalBed", shape, -12.0, 12.0, 11, 0.3);
  vPointList(json, "edgeReinforcesLeft", shape, -4.6, -4.0, 4, 0.2);
  vPointList(json, "edgeReinforcesRight", shape, 4.0, 4.6, 4, 0.2);
  vPointList(json, "roadBed", shape, -4.9, 4.9, 15, 0.72);
  json.Key("splitSoddings");
  json.Begin('[');
  for (int id : {1, 51}) {
    json.Begin('{');
    json.Member("id", id);
    json.Member("number", id == 1 ? 1.0 : 2.0, 1);
    vPointList(json, "points", shape, id == 1 ? -9.0 : 6.0, id == 1 ? -6.0 : 9.0, 4, 0.0);
    json.End('}');
  }
  json.End(']');
  json.Key("closedDrainages");
  json.Begin('[');
  json.Begin('{');
  vPointList(json, "points", shape, -6.0, -5.0, 6, 1.8);
  json.End('}');
  json.End(']');
  json.End('}');
}

void vWriteTerrainSection(JsonStream& json, const SectionShape& shape) {
  json.Key("terrain");
  json.Begin('{');
  json.Member("elevation", shape.Elevation + dTerrainAt(shape.Chainage, 0.0));
  json.Key("materials");
  json.Begin('[');
  for (int material : {1, 2, 3}) json.Integer(material);
  json.End(']');
  json.Key("layerElevations");
  json.Begin('[');
  for (int i = 0; i <= 40; ++i) {
    const double x = -30.0 + 1.5 * i;
    const double surface = dTerrainAt(shape.Chainage, x);
    json.Begin('{');
    json.Member("distance", x, 2);
    json.Member("surface", surface);
    json.Key("subSurfaces");
    json.Begin('[');
    json.Number(surface - 1.2 - 0.01 * x, 3);
    json.Number(surface - 3.5 + 0.02 * x, 3);
    json.End(']');
    json.End('}');
  }
  json.End(']');
  json.Key("objects");
  json.Begin('[');
  json.Begin('{');
  json.Member("level", 1);
  json.Member("code", "KUM");
  json.Key("points");
  json.Begin('[');
  for (int i = 0; i < 3; ++i) json.Point(8.0 + 0.5 * i, dTerrainAt(shape.Chainage, 8.0) - 0.1 * i);
  json.End(']');
  json.End('}');
  json.End(']');
  json.End('}');
}

void vWriteResults(JsonStream& json, int sections) {
  json.Key("results");
  json.Begin('{');
  json.Key("sections");
  json.Begin('[');
  for (int i = 0; i < sections; ++i) {
    const SectionShape shape{static_cast<double>(i), dDesignElevation(i)};
    json.Begin('{');
    json.Member("chainage", shape.Chainage, 1);
    vWriteModelSection(json, shape);
    vWriteTerrainSection(json, shape);
    json.End('}');
  }
  json.End(']');
  json.End('}');
}

}  // namespace

bool boBenchDesignWrite(const char* path, const BenchDesignShape& shape) {
  if (shape.Sections < 2) return false;
  std::FILE* file = std::fopen(path, "wb");
  if (!file) return false;
  // The main line runs from the first section to the last.
  const double road = shape.Sections - 1;
  JsonStream json(file);
  json.Begin('{');
  json.Member("format", "design-model");
  json.Member("formatVersion", 1);
  vWriteInput(json, road);
  vWriteResults(json, shape.Sections);
  json.End('}');
  bool written = json.Flush();
  written = std::fputc('\n', file) != EOF && written;
  return std::fclose(file) == 0 && written;
}
