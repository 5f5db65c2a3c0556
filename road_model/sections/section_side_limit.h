// Where the side boundaries end the cross section of one section.
#pragma once

struct RmModel;
struct RmSection;

// The offset (negative to the left) at which the model's side boundaries
// end `section` on `side` (1 left, 2 right); -99999.0 when they give none.
//
// A boundary that follows an alignment ends at that alignment's crossing
// with the section. One without a surface code lies at its distance from
// the centre line. Otherwise it lies at its distance (none counts 0)
// beyond the point of that code in the theoretical layer 0 of the model's
// CALCTHEO type, outward on the code's side.
float fRmSectionSideLimit(const RmModel* model, const RmSection* section, int side);
