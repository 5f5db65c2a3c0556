#include "model_file/records/sections/section_mass_lines_record.h"

#include <cmath>
#include <cstdio>
#include <cstring>

#include "base/numbers.h"
#include "model_file/container/asf_file.h"
#include "model_file/container/asf_objects.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/section_masses.h"
#include "road_model/sections/section_set.h"

namespace {

constexpr const char* kChainField = "CHAIN";
constexpr const char* kMassIdField = "MASSID";
constexpr const char* kExactLineField = "EXACTLINE";
enum : int { kChainIndex, kMassIdIndex, kExactLineIndex };

// An outline belongs to the section within this of its CHAIN.
constexpr double kChainMatch = 0.001;

// The field values of the outline being written.
struct OutlineFields {
  char Chain[32];
  char MassId[16];
  bool Exact;
};

bool boOutlineField(void* datum, const void*, int index, const char** text) {
  auto* fields = static_cast<OutlineFields*>(datum);
  switch (index) {
    case kChainIndex: *text = fields->Chain; return true;
    case kMassIdIndex: *text = fields->MassId; return true;
    case kExactLineIndex: *text = fields->Exact ? "1" : "0"; return true;
    default: return false;
  }
}

// The section within kChainMatch of `chain`, looked for from `from` to the
// end and then from the start.
RmSection* SectionAt(RmSectionSet* set, RmSection* from, double chain) {
  for (RmSection* section = from; section; section = section->Next) {
    if (std::fabs(section->Chain - chain) < kChainMatch) return section;
  }
  for (RmSection* section = RmSectionsGetFirst(set); section && section != from;
       section = section->Next) {
    if (std::fabs(section->Chain - chain) < kChainMatch) return section;
  }
  return nullptr;
}

struct OutlineKey {
  double Chain = 0.0;
  int MassId = 0;
  bool Exact = false;
};

OutlineKey KeyOfRecord(AsfFile* file, AsfSection* section) {
  OutlineKey key;
  const char* name = "";
  const char* value = "";
  while (boAsfFieldNext(file, section, &name, &value)) {
    if (std::strcmp(name, kChainField) == 0) {
      key.Chain = dParseNumber(value, nullptr);
    } else if (std::strcmp(name, kMassIdField) == 0) {
      key.MassId = static_cast<int>(lParseInteger(value, nullptr));
    } else if (std::strcmp(name, kExactLineField) == 0) {
      key.Exact = lParseInteger(value, nullptr) != 0;
    }
  }
  return key;
}

// Whether some mass of the set has an outline.
bool boHasMassLines(const RmSectionSet* set) {
  for (const RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    for (const RmMass* mass = RmSectionMassesGetFirst(section); mass; mass = mass->Next) {
      if (mass->ExactLine || mass->ApproxLine) return true;
    }
  }
  return false;
}

void vSetFieldNames(AsfFile* file, AsfSection* section) {
  vAsfFieldNameSet(file, section, kChainIndex, kChainField);
  vAsfFieldNameSet(file, section, kMassIdIndex, kMassIdField);
  vAsfFieldNameSet(file, section, kExactLineIndex, kExactLineField);
}

// One ":L" record per outline: the exact one first, then the simplified.
void vWriteRecords(AsfFile* file, AsfSection* section, const RmSectionSet* set) {
  OutlineFields fields{};
  for (const RmSection* walk = RmSectionsGetFirst(set); walk; walk = walk->Next) {
    std::snprintf(fields.Chain, sizeof fields.Chain, "%.4lf", walk->Chain);
    for (const RmMass* mass = RmSectionMassesGetFirst(walk); mass; mass = mass->Next) {
      std::snprintf(fields.MassId, sizeof fields.MassId, "%d", mass->MassId);
      if (mass->ExactLine) {
        fields.Exact = true;
        boAsfLineWrite(file, section, mass->ExactLine, boOutlineField, &fields);
      }
      if (mass->ApproxLine) {
        fields.Exact = false;
        boAsfLineWrite(file, section, mass->ApproxLine, boOutlineField, &fields);
      }
    }
  }
}

// Hangs each outline on the mass of its id in the section of its chainage
// (within 0.001); an outline without a mass is dropped.
void vReadRecords(AsfFile* file, AsfSection* section, RmSectionSet* set) {
  if (!set) return;
  RmSection* lastFound = RmSectionsGetFirst(set);
  long id = 0;
  while (iAsfObjectNext(file, section, &id) != -1) {
    LiLine* line = LiLineCreate(false);
    if (!line) continue;
    boAsfLineRead(file, section, line);
    OutlineKey key = KeyOfRecord(file, section);
    RmSection* owner = SectionAt(set, lastFound, key.Chain);
    RmMass* mass = owner ? RmMassFind(owner, key.MassId) : nullptr;
    if (!mass) {
      vLiLineDelete(&line);
      continue;
    }
    lastFound = owner;
    // A later outline of the same kind takes the place of an earlier one.
    LiLine** slot = key.Exact ? &mass->ExactLine : &mass->ApproxLine;
    vLiLineDelete(slot);
    *slot = line;
  }
}

bool boPresent(const RmModel* model, const RmRecordFamily& family) {
  return boHasMassLines(RmModelGetSectionSet(model, family.SectionSet));
}

void vPrepare(AsfFile* file, AsfSection* section, const RmModel*, const RmRecordFamily&) {
  vSetFieldNames(file, section);
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily& family) {
  vWriteRecords(file, section, RmModelGetSectionSet(model, family.SectionSet));
}

// The outlines hang on the masses of the set read before.
void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily& family) {
  vReadRecords(file, section, RmModelGetSectionSet(model, family.SectionSet));
}

}  // namespace

constexpr RmRecordFamily kRmCrossMassLinesFamily = {
    .Keyword = "CSECTSMASSESLINES",
    .Letter = 'L',
    .SectionSet = kRmCrossSections,
    .HasContent = boPresent,
    .Prepare = vPrepare,
    .Write = vWrite,
    .Read = vRead,
};

const RmRecordFamily kRmLongMassLinesFamily =
    RmRecordFamilyForSet(kRmCrossMassLinesFamily, "LSECTSMASSESLINES", kRmLongSections);
