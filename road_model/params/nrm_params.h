// NRMPARAMS: design parameters that change along the road. Each parameter
// is a numeric code with values by chainage and side (0 both sides, 1 left,
// 2 right); the branch table holds, per branch chainage, rows of two
// coordinates and a letter code.
#pragma once

#include <cstdint>

#include "base/dlink.h"
#include "base/slink.h"

// A value below this does not count: -99999.0 is "no value".
inline constexpr double kNrmNoValue = -99999.0;

struct NrmValue {
  NrmValue* next;
  NrmValue* prev;
  double chain;
  int32_t side;
  double value;
};

struct NrmParam {
  NrmParam* next;
  int32_t CODE;
  ListHead values;  // NrmValue, DLink
};

// `code` indexes the letters " SEDMZwsedmzCc".
struct NrmBranchRow {
  NrmBranchRow* next;
  double x;
  double y;
  int32_t code;
};

struct NrmBranch {
  NrmBranch* next;
  double BRCHAIN;
  int32_t branchClass;
  ListHead rows;  // NrmBranchRow, SLink
};

struct RmNrmParams {
  ListHead codes;          // NrmParam in rising code order, SLink
  ListHead branches;       // NrmBranch, SLink
  NrmBranch interpolated;  // scratch: the result of a branch interpolation
};

// A new, empty record; null when memory ran out.
RmNrmParams* pNrmParamsCreate();
// Clears every list, frees the record and nulls the pointer.
void vNrmParamsDelete(RmNrmParams** params);
// Empties `target` and copies both lists into it, with their value and row
// lists.
void vNrmParamsCopy(RmNrmParams* target, const RmNrmParams* source);

// The first parameter of the code, or null.
NrmParam* pNrmParamsFind(const RmNrmParams* params, int32_t code);
// The same, made when missing: in front of the first parameter of a greater
// code, or at the end.
NrmParam* pNrmParamsGetOrAdd(RmNrmParams* params, int32_t code);
// Appends a value to the parameter's list.
void vNrmParamAppendValue(NrmParam* param, double chain, double value, int32_t side);
// Appends a value to the code's list, making the parameter if needed.
void vNrmParamsAddValue(RmNrmParams* params, int32_t code, double chain, double value,
                        int32_t side);
// Clears the parameter's values and deletes it.
void vNrmParamsRemove(RmNrmParams* params, NrmParam* param);
// Brings each value list to rising chainage; equal chainages in no fixed
// order.
void vNrmParamsSortValues(RmNrmParams* params);
// Brings the parameters back to rising code order after codes were changed
// in place; parameters of equal codes keep their order.
void vNrmParamsSortCodes(RmNrmParams* params);
// A new branch at the end of the table.
NrmBranch* pNrmParamsAddBranch(RmNrmParams* params, double chain, int32_t branchClass);
// A new row at the end of the branch.
void vNrmBranchAddRow(NrmBranch* branch, double x, double y, int32_t code);

// Parameter 411 on `side` at `chain`, into `outValue`, whose value on entry
// is the default. The value that stands at the chainage is taken, and
// interpolated towards the next given value behind it. False, with the
// default kept, when no value stands there or it is "no value".
bool boNrmParamsValueAt(const RmNrmParams* params, int32_t side, double chain, double* outValue);

// Whether any value of the parameter counts: not zero and not "no value".
bool boNrmParamHasValue(const NrmParam* param);
