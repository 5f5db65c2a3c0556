#include "vips_import/readers/connected_models.h"

#include <string>
#include <vector>

#include "design_model/design_model.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/wide_text.h"

int iVipsReadConnectedModels(const NpDesignModel::CInData* in, std::FILE* log) {
  // The heading is the one of the ditch depths, word for word: readers of
  // the log know it so.
  vVipsLogPrint(log, "Leser tabell: Min. gr\xF8" "fte dybde\n");
  if (!in) return 0;
  std::vector<const NpDesignModel::CIConnectedWSModels*> rows = in->GetConnectedWSModels();
  for (const NpDesignModel::CIConnectedWSModels* row : rows) {
    double from = row->GetFromChainage();
    double to = row->GetToChainage();
    std::string name = sVipsNarrow(row->GetWSModel());
    vVipsLogPrint(log, "Gr\xF8" "ftemodel:\t%.3lf\t%.3lf\t%s\n", from, to, name);
  }
  return static_cast<int>(rows.size());
}
