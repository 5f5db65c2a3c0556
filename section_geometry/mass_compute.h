// The masses of a section: one value per mass type, measured on the
// section's layers, with the outline of the mass kept for the file.
#pragma once

struct RmMass;
struct RmModel;
struct RmMassType;
struct RmMassTypes;
struct RmSection;

// Two outlines whose areas differ by no more than this are the same.
inline constexpr double kSgSameOutlineArea = 0.001;

// Computes the mass `massId` of the type in the section into `mass`, made
// when it is missing. A mass that finds nothing to measure (outside the
// type's chain ranges on a cross section, a missing layer, no area left
// after the clean-up) is removed from the section. A locked section is left
// as it is, but for combined masses, which only add up the others. With
// `keepShape` the mass keeps its outline (ExactLine) and, when its area
// differs, the outline without the removal of thin parts (ApproxLine).
void vMassCompute(RmModel* model, int massId, RmSection* section, const RmMassTypes* massTypes,
                  const RmMassType* massType, RmMass* mass, int keepShape);

// Computes every mass of the section that has a type, keeping the shapes,
// and marks the model changed if one had. Masses measured on layers come
// first, then the masses combined from them. A locked section or null types
// are left out.
void vSectionMassesRecalculate(RmModel* model, RmSection* section, const RmMassTypes* massTypes);
