#include "model_file/records/sections/section_sets_record.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/numbers.h"
#include "model_file/container/asf_file.h"
#include "model_file/records/frame/record_line.h"
#include "model_file/records/sections/section_point_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/section_masses.h"
#include "road_model/sections/section_placing.h"
#include "road_model/sections/section_set.h"

namespace {

// A tunnel rotation this close to 0 is none.
constexpr double kNoRotation = 0.00001;

// The keywords of a section group.
constexpr char kChain[] = ":CHAIN";
constexpr char kGroupEnd[] = ":GROUPEND";
constexpr char kLeftClip[] = "LCLIPDIST";
constexpr char kRightClip[] = "RCLIPDIST";
constexpr char kFlags[] = "FLAGS";
constexpr char kClipInCorner[] = "CLIPINCORNER";
constexpr char kAngles[] = "CLRANG";
constexpr char kPlanPoints[] = "CLRPOINTS";
constexpr char kTilt[] = "CLTILT";
constexpr char kTunnelRotation[] = "TUNNELROTATION";
constexpr char kLocked[] = "LOCKED";
constexpr char kMass[] = "MASS";
constexpr char kLayer[] = "LAYER";
constexpr char kBuildMethod[] = "BUILDMETHOD";
constexpr char kInterMethod[] = "INTERMETHOD";
constexpr char kBlockName[] = "BLOCKNAME";
constexpr char kOppositeDiagonal[] = "OPPOSITEDIAGONAL";

// ---- Writing ----

// "%.4f" (or another format of one number) with closing zeros and a bare
// point dropped.
const char* sTrimmed(char* buffer, size_t size, const char* format, double value) {
  std::snprintf(buffer, size, format, value);
  return sTrimZeros(buffer);
}

void vWritePlacement(AsfFile* file, AsfSection* out, const RmSection* section) {
  if (boRmSectionGetFlag(section, kRmSectionLeftClip)) {
    boRecordWrite(file, out, "%s %.3f", kLeftClip, double(section->LClipDist));
  }
  if (boRmSectionGetFlag(section, kRmSectionRightClip)) {
    boRecordWrite(file, out, "%s %.3f", kRightClip, double(section->RClipDist));
  }
  if (section->Flags != 0) boRecordWrite(file, out, "%s %u", kFlags, section->Flags);
  if (section->ClipInCorner != 0) {
    boRecordWrite(file, out, "%s %d", kClipInCorner, section->ClipInCorner);
  }
  char skew[20];
  boRecordWrite(file, out, "%s %.5f %.5f %.3f %.3f %.6lf %s", kAngles, section->ClX, section->ClY,
                double(section->LeftDist), double(section->RightDist), section->Direction,
                sTrimmed(skew, sizeof skew, "%.6lf", section->Skew));
  if (boRmSectionGetFlag(section, kRmSectionTilted)) {
    boRecordWrite(file, out, "%s %.8f %.5f", kTilt, section->TiltSlope, section->TiltHeight);
  }
  double rotation = section->TunnelRotation;
  if (!(std::fabs(rotation) < kNoRotation) && boIsPresent(rotation)) {
    boRecordWrite(file, out, "%s %.3f", kTunnelRotation, rotation);
  }
}

void vWriteMasses(AsfFile* file, AsfSection* out, const RmSection* section) {
  const RmMass* mass = RmSectionMassesGetFirst(section);
  if (!mass) return;
  boRecordWrite(file, out, "%s", kMass);
  for (; mass; mass = mass->Next) {
    char area[64];
    char offset[64];
    boRecordWrite(file, out, " %d %s %s", mass->MassId,
                  sTrimmed(area, sizeof area, "%.4f", mass->Area),
                  sTrimmed(offset, sizeof offset, "%.4f", mass->CentroidOffset));
  }
}

void vWriteBuildInfo(AsfFile* file, AsfSection* out, const RmLayer* layer) {
  const RmLayerBuildInfo* info = layer->BuildInfo;
  if (!info) return;
  if (info->BuildMethod >= 1) {
    boRecordWrite(file, out, "%s %d", kBuildMethod, info->BuildMethod);
  }
  if (info->InterMethod >= 1) {
    boRecordWrite(file, out, "%s %d", kInterMethod, info->InterMethod);
  }
  if (info->BuildMethod == 1 && info->BlockName && info->BlockName[0]) {
    boRecordWrite(file, out, "%s %s", kBlockName, info->BlockName);
  }
  if (info->OppositeDiagonal == 1) boRecordWrite(file, out, "%s %d", kOppositeDiagonal, 1);
}

// The point lines of a layer go out in blocks of lines with their CR LF.
constexpr size_t kPointBlockSize = 8192;

void vWriteLayer(AsfFile* file, AsfSection* out, const RmLayer* layer) {
  // "LAYER number", the number as "%u" prints it.
  char head[32];
  std::memcpy(head, kLayer, sizeof kLayer - 1);
  head[sizeof kLayer - 1] = ' ';
  char* end = pWriteDigits(head + sizeof kLayer,
                           static_cast<unsigned>(iRmLayerIdToFile(layer->Id)));
  boAsfSectionWriteLine(file, out, head, static_cast<size_t>(end - head));
  vWriteBuildInfo(file, out, layer);
  char block[kPointBlockSize];
  size_t used = 0;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (kPointBlockSize - used < kRmPointLineSize + 1) {
      boAsfSectionWriteText(file, out, block, used);
      used = 0;
    }
    used += uRmPointLineFormat(point, block + used);
    block[used++] = '\r';
    block[used++] = '\n';
  }
  if (used > 0) boAsfSectionWriteText(file, out, block, used);
}

void vWriteSection(AsfFile* file, AsfSection* out, const RmSection* section, bool crossSection) {
  boRecordWrite(file, out, "%s %.4lf", kChain, section->Chain);
  if (crossSection) vWritePlacement(file, out, section);
  vWriteMasses(file, out, section);
  for (const RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
    vWriteLayer(file, out, layer);
  }
}

// ---- Reading ----

// What the lines of a section group are read as.
enum class Reading {
  kSection,  // keywords of the section
  kLayer,    // build info and point lines of the layer read last
  kMass,     // rows of masses
};

struct SetReader {
  RmSectionSet* Set;
  RmSection* Section;  // null before the first ":CHAIN" and after a failed one
  RmLayer* Layer;
  Reading State;
};


// The three plan points of CLRPOINTS: origin, left end, right end.
void vReadPlanPoints(RecordLine* line, RmSection* section) {
  section->ClX = dRecordNumber(line);
  section->ClY = dRecordNumber(line);
  section->LeftEnd[0] = dRecordNumber(line);
  section->LeftEnd[1] = dRecordNumber(line);
  section->RightEnd[0] = dRecordNumber(line);
  section->RightEnd[1] = dRecordNumber(line);
  section->LeftDist = static_cast<float>(
      std::hypot(section->LeftEnd[0] - section->ClX, section->LeftEnd[1] - section->ClY));
  section->RightDist = static_cast<float>(
      std::hypot(section->RightEnd[0] - section->ClX, section->RightEnd[1] - section->ClY));
  section->Direction = std::atan2(section->RightEnd[1] - section->LeftEnd[1],
                                  section->RightEnd[0] - section->LeftEnd[0]);
}

void vReadAngles(RecordLine* line, RmSection* section) {
  section->ClX = dRecordNumber(line);
  section->ClY = dRecordNumber(line);
  section->LeftDist = static_cast<float>(dRecordNumber(line));
  section->RightDist = static_cast<float>(dRecordNumber(line));
  section->Direction = dRecordNumber(line);
  section->Skew = dRecordNumber(line);
  vRmSectionUpdateEnds(section);
}

// LAYER: the file's number, read as an unsigned decimal.
void vStartLayer(SetReader* reader, RecordLine* line) {
  boRecordAtEnd(line);
  unsigned long number = std::strtoul(line->Cursor, nullptr, 10);
  RmLayerId id = RmLayerIdFromFile(static_cast<int>(number));
  reader->Layer = RmLayerAdd(reader->Section, id);
  reader->State = reader->Layer ? Reading::kLayer : Reading::kSection;
}

// A keyword of the layer's build info; false for any other keyword.
bool boReadBuildInfo(RmLayer* layer, const char* keyword, RecordLine* line) {
  if (boRecordIs(keyword, kBuildMethod)) {
    vRmLayerSetBuildMethod(layer, iRecordInteger(line, 1));
  } else if (boRecordIs(keyword, kInterMethod)) {
    vRmLayerSetInterMethod(layer, iRecordInteger(line, 1));
  } else if (boRecordIs(keyword, kBlockName)) {
    vRmLayerSetBlockName(layer, sRecordToken(line));
  } else if (boRecordIs(keyword, kOppositeDiagonal)) {
    vRmLayerSetOppositeDiagonal(layer, iRecordInteger(line, 0) != 0);
  } else {
    return false;
  }
  return true;
}

void vReadSectionKeyword(SetReader* reader, const char* keyword, RecordLine* line) {
  RmSection* section = reader->Section;
  if (boRecordIs(keyword, kLayer)) {
    vStartLayer(reader, line);
  } else if (boRecordIs(keyword, kMass)) {
    reader->State = Reading::kMass;
  } else if (boRecordIs(keyword, kAngles)) {
    vReadAngles(line, section);
  } else if (boRecordIs(keyword, kFlags)) {
    section->Flags = static_cast<uint32_t>(iRecordInteger(line));
  } else if (boRecordIs(keyword, kLeftClip)) {
    section->LClipDist = static_cast<float>(dRecordNumber(line));
    vRmSectionSetFlag(section, kRmSectionLeftClip, true);
  } else if (boRecordIs(keyword, kRightClip)) {
    section->RClipDist = static_cast<float>(dRecordNumber(line));
    vRmSectionSetFlag(section, kRmSectionRightClip, true);
  } else if (boRecordIs(keyword, kClipInCorner)) {
    section->ClipInCorner = iRecordInteger(line);
  } else if (boRecordIs(keyword, kTilt)) {
    section->TiltSlope = dRecordNumber(line);
    section->TiltHeight = dRecordNumber(line);
  } else if (boRecordIs(keyword, kTunnelRotation)) {
    section->TunnelRotation = dRecordNumber(line);
  } else if (boRecordIs(keyword, kLocked)) {
    vRmSectionSetFlag(section, kRmSectionLocked, iRecordInteger(line) != 0);
  } else if (boRecordIs(keyword, kPlanPoints)) {
    vReadPlanPoints(line, section);
  }
}

void vReadPointLine(RmLayer* layer, const char* text) {
  RmPoint* point = RmPointAddBefore(layer, nullptr);
  if (point) vRmPointLineRead(text, point);
}

void vReadMassRow(RmSection* section, RecordLine* line) {
  RmMass* mass = RmMassAdd(section, iRecordInteger(line));
  if (!mass) return;
  mass->Area = dRecordNumber(line);
  mass->CentroidOffset = dRecordNumber(line);
}

}  // namespace

void vRmSectionSetWriteRecords(AsfFile* file, AsfSection* section, const RmSectionSet* set) {
  if (!set) return;
  bool crossSections = set->Kind == kRmCrossSections;
  for (const RmSection* walk = RmSectionsGetFirst(set); walk; walk = walk->Next) {
    vWriteSection(file, section, walk, crossSections);
  }
}

bool boRmSectionSetReadRecords(AsfFile* file, AsfSection* section, RmSectionSet* set) {
  if (!set) return false;
  SetReader reader{set, nullptr, nullptr, Reading::kSection};
  RecordLine line;
  const char* text = nullptr;
  size_t size = 0;
  while (boAsfSectionNextLine(file, section, &text, &size)) {
    if (boRecordIsRow(text)) {
      // Rows belong to the layer or the mass list read last.
      if (reader.State == Reading::kLayer) {
        vReadPointLine(reader.Layer, text);
      } else if (reader.State == Reading::kMass) {
        vRecordLineStart(&line, text);
        vReadMassRow(reader.Section, &line);
      }
      continue;
    }
    vRecordLineStart(&line, text);
    const char* keyword = sRecordToken(&line);
    if (reader.State == Reading::kLayer && boReadBuildInfo(reader.Layer, keyword, &line)) {
      continue;
    }
    reader.State = Reading::kSection;
    if (!keyword[0]) continue;
    if (boRecordIs(keyword, kGroupEnd)) break;
    if (boRecordIs(keyword, kChain)) {
      // A section that cannot be made takes the lines up to the next ":CHAIN".
      reader.Section = RmSectionAdd(set, nullptr, dRecordNumber(&line));
      reader.Layer = nullptr;
      continue;
    }
    if (reader.Section) vReadSectionKeyword(&reader, keyword, &line);
  }
  return true;
}

// ---- The families ----

namespace {

bool boPresent(const RmModel* model, const RmRecordFamily& family) {
  return RmSectionsGetFirst(RmModelGetSectionSet(model, family.SectionSet)) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily& family) {
  vRmSectionSetWriteRecords(file, section, RmModelGetSectionSet(model, family.SectionSet));
}

// A set that cannot be read whole is dropped; the model keeps no set then.
void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily& family) {
  RmSectionSet* set = RmSectionSetCreate();
  if (set) set->Kind = family.SectionSet;
  if (set && !boRmSectionSetReadRecords(file, section, set)) vRmSectionSetDelete(&set);
  vRmModelSetSectionSet(model, family.SectionSet, set);
}

}  // namespace

constexpr RmRecordFamily kRmCrossSectionsFamily = {
    .Keyword = "CROSSECTIONS",
    .Letter = 'O',
    .SectionSet = kRmCrossSections,
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};

const RmRecordFamily kRmLongSectionsFamily =
    RmRecordFamilyForSet(kRmCrossSectionsFamily, "LONGSECTIONS", kRmLongSections);
