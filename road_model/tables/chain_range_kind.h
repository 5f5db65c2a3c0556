// What one member of the chain range family is: the tables of rows valid from
// one chainage to another (rock benches, minimum ditch depths, removal of
// topsoil, ...). They all share one table type; a kind describes a member as
// data: its sides, the fields of its rows with their types and the values
// that a new row holds, and the fields of the table itself.
#pragma once

#include <cstdint>
#include <span>

enum class RmChainFieldType : int32_t { kReal, kInteger };

// A field of a row: a member of the kind's values struct.
struct RmChainRangeField {
  const char* Name;
  RmChainFieldType Type;
  int32_t Offset;  // offset of the member in the values struct
  double Absent;   // what a new row holds; an integer field holds it as integer
};

// A field of the table as a whole (real), such as the rock benches'
// MinSlopeBuild.
struct RmChainRangeTableField {
  const char* Name;
  double Default;  // what a new table holds
};

// The most table fields a kind has.
inline constexpr int kRmChainRangeMaxTableFields = 2;

struct RmChainRangeKind {
  const char* Name;
  int32_t Sides;       // 1: one list of rows; 2: a left and a right list
  int32_t ValuesSize;  // size of the values struct, 0 for a kind without row fields
  std::span<const RmChainRangeField> Fields;
  std::span<const RmChainRangeTableField> TableFields;
};
