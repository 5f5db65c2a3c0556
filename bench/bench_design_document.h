// Large synthetic road designs for the conversion benchmark: a design
// document of a road with one cross section per metre, each with about 200
// points across the terrain and the design layers, and every table of the
// input side filled: surface descriptions, side tables, chainage tables,
// pavement templates with soil and rock stretches, detailed pavement,
// closed drainage and an extra alignment beside the main line.
#pragma once

struct BenchDesignShape {
  int Sections = 20000;
};

// Writes the design document of that shape to `path`; the same every time.
// False when the file could not be written.
bool boBenchDesignWrite(const char* path, const BenchDesignShape& shape);
