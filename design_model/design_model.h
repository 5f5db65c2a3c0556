// The design model: a road or railway design as two trees of read-only
// objects, the input tables (CInData) and the computed cross sections
// (CResultData). Every object belongs to the CDesignModel that gave it and
// lives as long as it does; vector and text results are fresh values.
#pragma once

#include <cstdint>
#include <string>

#include "design_model/export.h"
#include "design_model/input_alignments.h"
#include "design_model/input_data.h"
#include "design_model/input_pavement.h"
#include "design_model/input_surfaces.h"
#include "design_model/input_tables.h"
#include "design_model/result_data.h"
#include "design_model/values.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API CDesignModel {
 public:
  virtual ~CDesignModel();

  // Opens the design document at `path` (text in the thread's ANSI code
  // page, widened). Gives a new design owned by the caller, or null. `err` is
  // 0 when the design was opened; otherwise -2 the file cannot be read, -3 it
  // is not a valid design document, -4 its format version is too new.
  static CDesignModel* Open(std::u16string path, int32_t& err);

  // The input side; null when the design has none.
  virtual const CInData* GetI() const = 0;
  // The result side; null when the design has none.
  virtual const CResultData* GetR() const = 0;
  // Writes the design back to the document it was opened from, in the
  // current format version; `indented` lays it out one member per line.
  // False when the design has no document or it cannot be written.
  virtual bool ToFile(bool indented) const = 0;
};

}  // namespace NpDesignModel
