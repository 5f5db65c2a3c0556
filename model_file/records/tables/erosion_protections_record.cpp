#include "model_file/records/tables/erosion_protections_record.h"

#include <cstring>

#include "base/fields.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/erosion_protections.h"

namespace {

constexpr const char* kLeftKeyword = ":EROSIONPROTECTLEFT";
constexpr const char* kRightKeyword = ":EROSIONPROTECTRIGHT";
constexpr const char* kPackageKeyword = ":EROSIONPROTECTPACKAGE";
constexpr const char* kRestrictionKeyword = "HEIGHTTABLERESTRICTION";
constexpr const char* kAKeyword = "A";
constexpr const char* kBKeyword = "B";
constexpr const char* kLowSoilCutKeyword = "LOWSOILCUT";
constexpr const char* kHeightsKeyword = ":EROSIONPROTECTIONHEIGHTENTRY";

const RmErosionProtections* Table(const RmModel* model) {
  return RmSurfGenGet<kRmErosionProtectionsSlot>(RmModelGetSurfGen(model));
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmErosionProtectionsHasRows(Table(model));
}

void vWriteRanges(AsfFile* file, AsfSection* section, const char* keyword,
                  const std::vector<RmErosionRange>& ranges) {
  for (const RmErosionRange& range : ranges) {
    boRecordWrite(file, section, "%s %.3f %.3f %d", keyword, range.FromChain, range.ToChain,
                  range.Package);
  }
}

void vWritePackage(AsfFile* file, AsfSection* section, const RmErosionPackage& package) {
  char quoted[kRecordQuoteSize];
  boRecordWrite(file, section, "%s %d %s", kPackageKeyword, package.Number,
                sQuote(quoted, sizeof quoted, package.Name.c_str()));
  boRecordWrite(file, section, "%s %d %.3f", kRestrictionKeyword,
                package.HeightTableRestriction ? 1 : 0, package.HeightTableRestrictionValue);
  boRecordWrite(file, section, "%s %.3f", kAKeyword, package.A);
  boRecordWrite(file, section, "%s %.3f", kBKeyword, package.B);
  boRecordWrite(file, section, "%s %.3f %.3f", kLowSoilCutKeyword, package.LowSoilCut[0],
                package.LowSoilCut[1]);
  boRecordWrite(file, section, "%s", kHeightsKeyword);
  for (const RmErosionHeightEntry& entry : package.HeightEntries) {
    boRecordWrite(file, section, " %.3f %.3f %.3f %.3f", entry.Values[0], entry.Values[1],
                  entry.Values[2], entry.Values[3]);
  }
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmErosionProtections* table = Table(model);
  if (!table) return;
  vWriteRanges(file, section, kLeftKeyword, table->Left);
  vWriteRanges(file, section, kRightKeyword, table->Right);
  for (const RmErosionPackage& package : table->Packages) vWritePackage(file, section, package);
}

void vReadRange(RecordLine* line, RmErosionProtections* table, int side) {
  double from = dRecordNumber(line);
  double to = dRecordNumber(line);
  RmErosionRangeAdd(table, side, from, to, iRecordInteger(line));
}

void vReadHeightEntry(RecordLine* line, RmErosionPackage* package) {
  vRecordLineStart(line, line->Text);
  double a = dRecordNumber(line);
  double b = dRecordNumber(line);
  double c = dRecordNumber(line);
  RmErosionHeightEntryAdd(package, a, b, c, dRecordNumber(line));
}

// A line of the open package; a keyword that is none of its is passed over.
void vReadPackageLine(RecordLine* line, RmErosionPackage* package) {
  if (std::strcmp(line->Token, kRestrictionKeyword) == 0) {
    package->HeightTableRestriction = iRecordInteger(line) != 0;
    package->HeightTableRestrictionValue = dRecordNumber(line);
  } else if (std::strcmp(line->Token, kAKeyword) == 0) {
    package->A = dRecordNumber(line);
  } else if (std::strcmp(line->Token, kBKeyword) == 0) {
    package->B = dRecordNumber(line);
  } else if (std::strcmp(line->Token, kLowSoilCutKeyword) == 0) {
    package->LowSoilCut[0] = dRecordNumber(line);
    package->LowSoilCut[1] = dRecordNumber(line);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  RmErosionProtections* table = gen ? RmErosionProtectionsCreate() : nullptr;
  if (!table) return;
  // The open package by index: a pointer would not outlive the next package.
  int package = -1;
  bool heights = false;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (heights) vReadHeightEntry(&line, &table->Packages[package]);
      continue;
    }
    heights = false;
    if (std::strcmp(line.Token, kLeftKeyword) == 0) {
      vReadRange(&line, table, kRmSideLeft);
      package = -1;
    } else if (std::strcmp(line.Token, kRightKeyword) == 0) {
      vReadRange(&line, table, kRmSideRight);
      package = -1;
    } else if (std::strcmp(line.Token, kPackageKeyword) == 0) {
      RmErosionPackage* added = RmErosionPackageAdd(table, iRecordInteger(&line));
      added->Name = sRecordToken(&line);
      package = static_cast<int>(table->Packages.size()) - 1;
    } else if (package >= 0 && std::strcmp(line.Token, kHeightsKeyword) == 0) {
      heights = true;
    } else if (package >= 0) {
      vReadPackageLine(&line, &table->Packages[package]);
    }
  }
  vRmSurfGenSet<kRmErosionProtectionsSlot>(gen, table);
}

}  // namespace

const RmRecordFamily kRmErosionProtectionsFamily = {
    .Keyword = "EROSIONPROTECTIONS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
