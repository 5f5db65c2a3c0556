// The tables of a model and how many rows each holds: the tables of the
// surface tables object and the model's own tables, by the keyword of their
// section in the model file.
//
// A row is what the table's section holds one record per: a chainage range,
// a boundary, a group, a ditch, a string line layer. Tables kept per side
// count both sides; tables of several lists count the lists that carry
// chainages (tunnel sections and rotations, parameter ranges).
#pragma once

#include <string>
#include <vector>

struct RmModel;

struct TableRows {
  std::string Name;  // the keyword of the table's section
  long Rows;
};

// Every table that the model holds an object for, even an empty one, in the
// order of the surface tables' slots and then of the model's slots. The
// pavement slot has no row form here and is left out.
std::vector<TableRows> ModelTableRows(const RmModel* model);
