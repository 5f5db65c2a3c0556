#include "vips_import/readers/chainage_tables.h"

#include <vector>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/chain_range_members.h"
#include "road_model/tables/chain_range_table.h"
#include "vips_import/driver/import_log.h"

namespace {

using NpDesignModel::CInData;

// What the design means by a minimum fill height or a maximum terrain slope
// of 0.
constexpr double kDefaultMinFillHeight = 3.0;
constexpr double kDefaultMaxTerrainSlope = 0.16667;

// The design's positions of a ditch in fill.
constexpr int kDitchLeft = 1;
constexpr int kDitchRight = 2;
constexpr int kDitchBothSides = 3;

// A new table of `kind` in the slot, which holds it from now on; with no
// surface tables object the caller deletes it.
template <RmSurfGenSlot S>
RmChainRangeTable* NewTable(RmSurfGen* surfGen, const RmChainRangeKind& kind) {
  RmChainRangeTable* table = RmChainRangeTableCreate(&kind);
  if (surfGen) vRmSurfGenSet<S>(surfGen, table);
  return table;
}

// The table goes with the reader when no surface tables object holds it.
void vDropUnheld(const RmSurfGen* surfGen, RmChainRangeTable* table) {
  if (!surfGen) vRmChainRangeTableDelete(&table);
}

// A row at the end of `list` over from..to, its values as given; with no
// values type, the row's range alone.
RmChainRangeRow* AppendRow(RmChainRangeList* list, double from, double to) {
  RmChainRangeRow* row = RmChainRangeAddBefore(list, nullptr);
  if (row) vRmChainRangeSetRange(row, from, to);
  return row;
}

template <typename V>
void vAppendRow(RmChainRangeList* list, double from, double to, const V& values) {
  if (RmChainRangeRow* row = AppendRow(list, from, to)) vRmChainRangeSetRow(list, row, values);
}

// Design value 0 stands for the default.
double dOrDefault(double value, double fallback) {
  return boEqual(value, 0.0) ? fallback : value;
}

int iReadRockShelfSide(const std::vector<const NpDesignModel::CIRockShelf*>& shelves,
                       RmChainRangeList* list) {
  for (const NpDesignModel::CIRockShelf* shelf : shelves) {
    RmRockBench bench{shelf->GetMinWidth(), shelf->GetAdditionalWidth(), shelf->GetMinHeigth(),
                      shelf->GetSlope()};
    vAppendRow(list, shelf->GetFromChainage(), shelf->GetToChainage(), bench);
  }
  return static_cast<int>(shelves.size());
}

}  // namespace

int iVipsReadTopSoilRemovals(const CInData* in, std::FILE* log, RmSurfGen* surfGen) {
  RmChainRangeTable* table = NewTable<kRmRemovalTopsoilsSlot>(surfGen, kRmRemovalTopsoils);
  vVipsLogPrint(log, "Leser tabell: Fjerning av matjord og vegetasjon\n");
  int count = 0;
  if (in && table) {
    RmChainRangeList* list = RmChainRangeTableGetRows(table);
    std::vector<const NpDesignModel::CITopSoilRemoval*> rows = in->GetTopSoilRemovals();
    for (const NpDesignModel::CITopSoilRemoval* row : rows) {
      RmRemovalTopsoil values{row->GetCutCode(),
                              row->GetFillCode(),
                              row->GetCutSlope(),
                              row->GetFillSlope(),
                              row->GetCriteria(),
                              dOrDefault(row->GetMinFillHeight(), kDefaultMinFillHeight),
                              dOrDefault(row->GetMaxTerrainSlope(), kDefaultMaxTerrainSlope)};
      vAppendRow(list, row->GetFromChainage(), row->GetToChainage(), values);
    }
    count = static_cast<int>(rows.size());
  }
  vDropUnheld(surfGen, table);
  return count;
}

int iVipsReadSoftSpotRemovals(const CInData* in, std::FILE* log, RmSurfGen* surfGen) {
  RmChainRangeTable* table = NewTable<kRmUnsuitableSoilsSlot>(surfGen, kRmUnsuitableSoils);
  vVipsLogPrint(log, "Leser tabell: Masseutskiftning\n");
  int count = 0;
  if (in && table) {
    RmChainRangeList* list = RmChainRangeTableGetRows(table);
    std::vector<const NpDesignModel::CISoftSpotRemoval*> rows = in->GetSoftSpotRemovals();
    for (const NpDesignModel::CISoftSpotRemoval* row : rows) {
      RmUnsuitableSoil values{row->GetDesignMode()};
      vAppendRow(list, row->GetFromChainage(), row->GetToChainage(), values);
    }
    count = static_cast<int>(rows.size());
  }
  vDropUnheld(surfGen, table);
  return count;
}

int iVipsReadDitchDepths(const CInData* in, std::FILE* log, RmSurfGen* surfGen) {
  RmChainRangeTable* table = NewTable<kRmMinDitchDepthsSlot>(surfGen, kRmMinDitchDepths);
  vVipsLogPrint(log, "Leser tabell: Min. gr\xF8" "fte dybde\n");
  int count = 0;
  if (in && table) {
    RmChainRangeList* list = RmChainRangeTableGetRows(table);
    std::vector<const NpDesignModel::CIDitchDepth*> rows = in->GetDitchDepths();
    for (const NpDesignModel::CIDitchDepth* row : rows) {
      RmMinDitchDepth values{row->GetMinDepthLeft(), row->GetMinDepthRight()};
      vAppendRow(list, row->GetFromChainage(), row->GetToChainage(), values);
    }
    count = static_cast<int>(rows.size());
  }
  vDropUnheld(surfGen, table);
  return count;
}

int iVipsReadRockShelves(const CInData* in, std::FILE* log, RmSurfGen* surfGen) {
  RmChainRangeTable* table = NewTable<kRmRockBenchesSlot>(surfGen, kRmRockBenches);
  vVipsLogPrint(log, "Leser tabell: Fjellhylle\n");
  int count = 0;
  if (in && table) {
    count = iReadRockShelfSide(in->GetRockShelfsLeft(), RmChainRangeTableGetLeft(table));
    count += iReadRockShelfSide(in->GetRockShelfsRight(), RmChainRangeTableGetRight(table));
  }
  vDropUnheld(surfGen, table);
  return count;
}

int iVipsReadEmbankmentDitches(const CInData* in, std::FILE* log, RmSurfGen* surfGen) {
  RmChainRangeTable* table = NewTable<kRmFillDitchesSlot>(surfGen, kRmFillDitches);
  vVipsLogPrint(log, "Leser tabell: Gr\xF8" "ft i fylling\n");
  int count = 0;
  if (in && table) {
    std::vector<const NpDesignModel::CIEmbankmentDitch*> rows = in->GetEmbankmentDitchs();
    for (const NpDesignModel::CIEmbankmentDitch* row : rows) {
      int position = row->GetPosition();
      if (position == kDitchBothSides) {
        vVipsLogPrint(log, "***Warning in import of DitchInFilling: SIDE_BOTH not supported***\n");
      } else if (position == kDitchLeft || position == kDitchRight) {
        AppendRow(RmChainRangeTableGetSide(table, position), row->GetFromChainage(),
                  row->GetToChainage());
      }
    }
    count = static_cast<int>(rows.size());
  }
  vDropUnheld(surfGen, table);
  return count;
}
