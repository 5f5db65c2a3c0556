#include "model_file/records/tables/pavement_record.h"

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <vector>

#include "base/fields.h"
#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/pavement.h"
#include "road_model/tables/pavement_packages.h"

namespace {

constexpr const char* kCutFillingKeyword = "CUTANTIFREEZEFILLING";
constexpr const char* kCutMinFillHeightKeyword = "CUTANTIFREEZEMINFILLHEIGHT";
constexpr const char* kCutDeepRockBlastKeyword = "CUTANTIFREEZEDEEPROCKBLAST";
constexpr const char* kSectionKeywords[] = {":PAVEMENTSECTIONSOIL", ":PAVEMENTSECTIONROCK"};
constexpr const char* kPackageKeyword = ":PAVEMENTPACKAGE";
constexpr const char* kUnderMedianKeyword = "UNDERMEDIAN";
constexpr const char* kOuterEdgeToTerrainKeyword = "OUTEREDGETOTERRAIN";
constexpr const char* kOuterEdgeToTerrainSlopeKeyword = "OUTEREDGETOTERRAINSLOPE";
constexpr const char* kUseSurfaceEdgeKeyword = "USESURFACEEDGE";
constexpr const char* kOuterEdgeToDeepRockBlastKeyword = "OUTEREDGETODEEPROCKBLAST";
constexpr const char* kExcavationSlopeKeyword = "EXCAVATIONSLOPE";
constexpr const char* kSurfaceKeyword = ":PAVEMENTSURFACE";
constexpr const char* kMinThicknessKeyword = "MINTHICKNESS";
constexpr const char* kThicknessKeyword = "THICKNESS";
constexpr const char* kMaxThicknessKeyword = "MAXTHICKNESS";
constexpr const char* kGradualKeyword = ":PAVEMENTGRADUALLYCHANGINGLAYER";
constexpr const char* kExtraWidthKeyword = "EXTRAWIDTH";
constexpr const char* kGradientKeyword = "GRADIENT";
constexpr const char* kTransitionGradientKeyword = "TRANSITIONGRADIENT";
constexpr const char* kThinnerExtensionKeyword = "THINNEREXTENSION";
constexpr const char* kEdgeKeyword = ":PAVEMENT_SURFACEEDGE";
constexpr const char* kCodeKeyword = "CODE";
constexpr const char* kWidthKeyword = "WIDTH";
constexpr const char* kSlopeKeyword = "SLOPE";
constexpr const char* kAppearingsKeyword = ":PAVEMENTAPPEARINGS";

// Files of this version and older left a THICKNESS out as the model's
// absent mark, which means the design's "no value".
constexpr int kLastVersionOfAbsentThickness = 6;
constexpr double kDesignNoValue = 999999.0;

RmPavement* StoredTable(const RmModel* model) {
  return RmSurfGenGet<kRmPavementSlot>(RmModelGetSurfGen(model));
}

bool boHasContent(const RmModel* model, const RmRecordFamily&) {
  return boRmPavementHasRows(StoredTable(model));
}

// ---- Writing ----

void vWriteTen(AsfFile* file, AsfSection* section, const char* keyword,
               const double (&v)[kRmPavementPositions]) {
  boRecordWrite(file, section, "%s %.3f %.3f %.3f %.3f %.3f %.3f %.3f %.3f %.3f %.3f", keyword,
                v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9]);
}

// The ranges of a kind by their start; ranges of an equal start keep their
// order.
void vWriteSections(AsfFile* file, AsfSection* section, const RmPavement* pavement, int kind) {
  std::vector<const RmPavementSection*> ranges;
  for (const RmPavementSection* range = RmPavementSectionsGetFirst(pavement, kind); range;
       range = range->Next) {
    ranges.push_back(range);
  }
  std::stable_sort(ranges.begin(), ranges.end(),
                   [](const RmPavementSection* a, const RmPavementSection* b) {
                     return a->Range.Low < b->Range.Low;
                   });
  for (const RmPavementSection* range : ranges) {
    boRecordWrite(file, section, "%s %.3f %.3f %d", kSectionKeywords[kind], range->Range.Low,
                  range->Range.High, range->Package);
  }
}

void vWritePackageValues(AsfFile* file, AsfSection* section, const RmPavementPackage* package) {
  const int32_t* m = package->UnderMedian;
  boRecordWrite(file, section, "%s %d %d %d %d %d %d %d %d %d %d", kUnderMedianKeyword, m[0], m[1],
                m[2], m[3], m[4], m[5], m[6], m[7], m[8], m[9]);
  boRecordWrite(file, section, "%s %d %d", kOuterEdgeToTerrainKeyword,
                package->OuterEdgeToTerrain[0], package->OuterEdgeToTerrain[1]);
  boRecordWrite(file, section, "%s %.3f %.3f", kOuterEdgeToTerrainSlopeKeyword,
                package->OuterEdgeToTerrainSlope[0], package->OuterEdgeToTerrainSlope[1]);
  boRecordWrite(file, section, "%s %d %d", kUseSurfaceEdgeKeyword, package->UseSurfaceEdge[0],
                package->UseSurfaceEdge[1]);
  boRecordWrite(file, section, "%s %d %d", kOuterEdgeToDeepRockBlastKeyword,
                package->OuterEdgeToDeepRockBlast[0], package->OuterEdgeToDeepRockBlast[1]);
  boRecordWrite(file, section, "%s %.3f %.3f", kExcavationSlopeKeyword, package->ExcavationSlope[0],
                package->ExcavationSlope[1]);
}

void vWritePackage(AsfFile* file, AsfSection* section, const RmPavementPackage* package) {
  char quoted[kRecordQuoteSize];
  boRecordWrite(file, section, "%s %d %s", kPackageKeyword, package->Number,
                sQuote(quoted, sizeof quoted, package->Name));
  vWritePackageValues(file, section, package);
  for (const RmPavementSurface* surface = RmPavementSurfacesGetFirst(package); surface;
       surface = surface->Next) {
    boRecordWrite(file, section, "%s %d", kSurfaceKeyword, surface->Number);
    boRecordWrite(file, section, "%s %.3f", kMinThicknessKeyword, surface->MinThickness);
    vWriteTen(file, section, kThicknessKeyword, surface->Thickness);
    vWriteTen(file, section, kMaxThicknessKeyword, surface->MaxThickness);
  }
  for (const RmPavementGradualLayer* layer = RmPavementGradualGetFirst(package); layer;
       layer = layer->Next) {
    boRecordWrite(file, section, "%s %d", kGradualKeyword, layer->LayerNumber);
    boRecordWrite(file, section, "%s %.3f", kExtraWidthKeyword, layer->ExtraWidth);
    boRecordWrite(file, section, "%s %.3f", kGradientKeyword, layer->Gradient);
    boRecordWrite(file, section, "%s %.3f", kTransitionGradientKeyword, layer->TransitionGradient);
    boRecordWrite(file, section, "%s %d", kThinnerExtensionKeyword, layer->ThinnerExtension);
  }
  for (const RmPavementSurfaceEdge* edge = RmPavementSurfaceEdgesGetFirst(package); edge;
       edge = edge->Next) {
    boRecordWrite(file, section, "%s %d", kEdgeKeyword, edge->Number);
    boRecordWrite(file, section, "%s %d", kCodeKeyword, edge->Code);
    vWriteTen(file, section, kWidthKeyword, edge->Width);
    vWriteTen(file, section, kSlopeKeyword, edge->Slope);
  }
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmPavement* pavement = StoredTable(model);
  if (!pavement) return;
  if (pavement->CutAntifreezeFilling != 0) {
    boRecordWrite(file, section, "%s %d", kCutFillingKeyword, pavement->CutAntifreezeFilling);
  }
  if (boIsPresent(pavement->CutAntifreezeMinFillHeight)) {
    boRecordWrite(file, section, "%s %.3f", kCutMinFillHeightKeyword,
                  pavement->CutAntifreezeMinFillHeight);
  }
  if (pavement->CutAntifreezeDeepRockBlast != 0) {
    boRecordWrite(file, section, "%s %d", kCutDeepRockBlastKeyword,
                  pavement->CutAntifreezeDeepRockBlast);
  }
  vWriteSections(file, section, pavement, kRmPavementSoil);
  vWriteSections(file, section, pavement, kRmPavementRock);
  for (const RmPavementPackage* package = RmPavementPackagesGetFirst(pavement); package;
       package = package->Next) {
    vWritePackage(file, section, package);
  }
  if (!pavement->Appearings) return;
  boRecordWrite(file, section, "%s", kAppearingsKeyword);
  for (const RmPavementAppearing* row = RmPavementAppearingsGetFirst(pavement->Appearings); row;
       row = row->Next) {
    boRecordWrite(file, section, " %.4f %.4f %d", row->Range.Low, row->Range.High, row->Number);
  }
}

// ---- Reading ----

// Where the lines that follow a group keyword go.
struct ReadState {
  RmPavement* Pavement;
  bool OldThickness;  // absent thicknesses of older files
  RmPavementPackage* Package = nullptr;
  RmPavementSurface* Surface = nullptr;
  RmPavementGradualLayer* Gradual = nullptr;
  RmPavementSurfaceEdge* Edge = nullptr;
  bool Appearings = false;  // the rows that follow are appearing rows
};

void vReadTen(RecordLine* line, double (&values)[kRmPavementPositions]) {
  for (double& value : values) value = dRecordNumber(line);
}

template <typename T>
void vReadSides(RecordLine* line, T (&values)[2]) {
  for (T& value : values) {
    if constexpr (std::is_floating_point_v<T>) {
      value = dRecordNumber(line);
    } else {
      value = iRecordInteger(line);
    }
  }
}

void vReadAppearingRow(RecordLine* line, RmPavement* pavement) {
  double from = dParseNumber(line->Token, nullptr);
  double to = dRecordNumber(line);
  RmPavementAppearingAdd(pavement->Appearings, from, to, iRecordInteger(line));
}

void vReadRange(RecordLine* line, RmPavement* pavement, int kind) {
  double from = dRecordNumber(line);
  RmPavementSection* range = RmPavementSectionAdd(pavement, from, kind);
  if (!range) return;
  range->Range.High = dRecordNumber(line);
  range->Package = iRecordInteger(line);
}

void vOpenPackage(RecordLine* line, ReadState* state) {
  state->Package = RmPavementPackageAdd(state->Pavement, iRecordInteger(line));
  state->Surface = nullptr;
  state->Gradual = nullptr;
  state->Edge = nullptr;
  if (state->Package) vRmPavementPackageSetName(state->Package, sRecordToken(line));
}

// A line of the package itself; false when the keyword is none of them.
bool boReadPackageLine(RecordLine* line, RmPavementPackage* package) {
  const char* key = line->Token;
  if (std::strcmp(key, kUnderMedianKeyword) == 0) {
    for (int32_t& value : package->UnderMedian) value = iRecordInteger(line);
  } else if (std::strcmp(key, kOuterEdgeToTerrainKeyword) == 0) {
    vReadSides(line, package->OuterEdgeToTerrain);
  } else if (std::strcmp(key, kOuterEdgeToTerrainSlopeKeyword) == 0) {
    vReadSides(line, package->OuterEdgeToTerrainSlope);
  } else if (std::strcmp(key, kUseSurfaceEdgeKeyword) == 0) {
    vReadSides(line, package->UseSurfaceEdge);
  } else if (std::strcmp(key, kOuterEdgeToDeepRockBlastKeyword) == 0) {
    vReadSides(line, package->OuterEdgeToDeepRockBlast);
  } else if (std::strcmp(key, kExcavationSlopeKeyword) == 0) {
    vReadSides(line, package->ExcavationSlope);
  } else {
    return false;
  }
  return true;
}

void vReadSurfaceLine(RecordLine* line, const ReadState& state) {
  RmPavementSurface* surface = state.Surface;
  const char* key = line->Token;
  if (std::strcmp(key, kMinThicknessKeyword) == 0) {
    surface->MinThickness = dRecordNumber(line);
  } else if (std::strcmp(key, kThicknessKeyword) == 0) {
    vReadTen(line, surface->Thickness);
    if (!state.OldThickness) return;
    for (double& value : surface->Thickness) {
      if (!boIsPresent(value)) value = kDesignNoValue;
    }
  } else if (std::strcmp(key, kMaxThicknessKeyword) == 0) {
    vReadTen(line, surface->MaxThickness);
  }
}

void vReadGradualLine(RecordLine* line, RmPavementGradualLayer* layer) {
  const char* key = line->Token;
  if (std::strcmp(key, kExtraWidthKeyword) == 0) {
    layer->ExtraWidth = dRecordNumber(line);
  } else if (std::strcmp(key, kGradientKeyword) == 0) {
    layer->Gradient = dRecordNumber(line);
  } else if (std::strcmp(key, kTransitionGradientKeyword) == 0) {
    layer->TransitionGradient = dRecordNumber(line);
  } else if (std::strcmp(key, kThinnerExtensionKeyword) == 0) {
    layer->ThinnerExtension = iRecordInteger(line) != 0;
  }
}

void vReadEdgeLine(RecordLine* line, RmPavementSurfaceEdge* edge) {
  const char* key = line->Token;
  if (std::strcmp(key, kCodeKeyword) == 0) {
    edge->Code = iRecordInteger(line);
  } else if (std::strcmp(key, kWidthKeyword) == 0) {
    vReadTen(line, edge->Width);
  } else if (std::strcmp(key, kSlopeKeyword) == 0) {
    vReadTen(line, edge->Slope);
  }
}

// A group keyword of a package's child; false for any other keyword.
bool boOpenChild(RecordLine* line, ReadState* state) {
  const char* key = line->Token;
  RmPavementPackage* package = state->Package;
  if (std::strcmp(key, kSurfaceKeyword) == 0) {
    state->Surface = package ? RmPavementSurfaceAdd(package, iRecordInteger(line)) : nullptr;
  } else if (std::strcmp(key, kGradualKeyword) == 0) {
    state->Gradual = package ? RmPavementGradualAdd(package, iRecordInteger(line)) : nullptr;
  } else if (std::strcmp(key, kEdgeKeyword) == 0) {
    state->Edge = package ? RmPavementSurfaceEdgeAdd(package, iRecordInteger(line)) : nullptr;
  } else {
    return false;
  }
  return true;
}

// A value line: of the table, of the package, or of the last child of the
// kind that knows its keyword.
void vReadValueLine(RecordLine* line, ReadState* state) {
  RmPavement* pavement = state->Pavement;
  const char* key = line->Token;
  if (std::strcmp(key, kCutFillingKeyword) == 0) {
    pavement->CutAntifreezeFilling = iRecordInteger(line) != 0;
    return;
  }
  if (std::strcmp(key, kCutMinFillHeightKeyword) == 0) {
    pavement->CutAntifreezeMinFillHeight = dRecordNumber(line);
    return;
  }
  if (std::strcmp(key, kCutDeepRockBlastKeyword) == 0) {
    pavement->CutAntifreezeDeepRockBlast = iRecordInteger(line);
    return;
  }
  if (!state->Package || boReadPackageLine(line, state->Package)) return;
  if (state->Surface) vReadSurfaceLine(line, *state);
  if (state->Gradual) vReadGradualLine(line, state->Gradual);
  if (state->Edge) vReadEdgeLine(line, state->Edge);
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  RmPavement* pavement = gen ? RmPavementCreate() : nullptr;
  if (!pavement) return;
  ReadState state{pavement, model->DataVersion <= kLastVersionOfAbsentThickness};
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (state.Appearings) vReadAppearingRow(&line, pavement);
      continue;
    }
    state.Appearings = false;
    if (std::strcmp(line.Token, kSectionKeywords[kRmPavementSoil]) == 0) {
      vReadRange(&line, pavement, kRmPavementSoil);
    } else if (std::strcmp(line.Token, kSectionKeywords[kRmPavementRock]) == 0) {
      vReadRange(&line, pavement, kRmPavementRock);
    } else if (std::strcmp(line.Token, kPackageKeyword) == 0) {
      vOpenPackage(&line, &state);
    } else if (std::strcmp(line.Token, kAppearingsKeyword) == 0) {
      state.Appearings = RmPavementGetOrCreateAppearings(pavement) != nullptr;
    } else if (!boOpenChild(&line, &state)) {
      vReadValueLine(&line, &state);
    }
  }
  vRmSurfGenSet<kRmPavementSlot>(gen, pavement);
}

}  // namespace

const RmRecordFamily kRmPavementFamily = {
    .Keyword = "PAVEMENT",
    .Letter = 'O',
    .HasContent = boHasContent,
    .Write = vWrite,
    .Read = vRead,
};
