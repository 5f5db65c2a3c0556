// Large synthetic road models for the benchmarks: cross sections in
// chainage order, each with its plan position, two masses and layers of
// coded and uncoded points, with numbers of four decimals as real files
// hold them.
#pragma once

struct RmModel;

struct BenchModelShape {
  int Sections = 20000;
  int LayersPerSection = 10;
  int PointsPerLayer = 30;
  // Locked sections carry the five masses of the bench's mass types, which
  // a load computes when the file has the types (BenchMassTypesCreate).
  bool Locked = false;
  bool MassTypes = false;
};

// The number of mass types of a model with MassTypes.
inline constexpr int kBenchMassTypes = 5;

// A new model of that shape; the same every time. Null when memory ran out.
RmModel* RmBenchModelCreate(const BenchModelShape& shape);

// Writes the model of that shape to `path`; false when the write failed.
bool boRmBenchModelWrite(const char* path, const BenchModelShape& shape);
