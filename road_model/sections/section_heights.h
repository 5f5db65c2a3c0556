// The centre heights of a model's cross sections, as the vertical lines read
// them inside a range of differential altitudes.
//
// The cross sections live in the section set of the model. The vertical line
// code asks for them through one process-wide source function, which starts
// as the model's own cross sections (boRmCrossSectionHeights in
// section_center_height.h); tests may install another. With no source
// installed a model has no cross sections to offer, and the vertical lines
// give their own heights.
#pragma once

struct RmModel;

// What a source gives for a chainage: the first cross section at or beyond
// it, and the section before that one. A section's centre height is -99999.0
// when it has none.
struct RmSectionHeights {
  bool HasNext;
  double NextChain;
  double NextHeight;
  bool HasPrevious;
  double PreviousChain;
  double PreviousHeight;
};

// Fills `heights` for `chain`; false when the model has no cross section set.
using RmSectionHeightsSource = bool (*)(const RmModel* model, double chain,
                                        RmSectionHeights* heights);

// Installs the source (null removes it) and returns the one before.
RmSectionHeightsSource pfnRmSetSectionHeightsSource(RmSectionHeightsSource source);

// Asks the installed source; false without one or without a model.
bool boRmGetSectionHeights(const RmModel* model, double chain, RmSectionHeights* heights);
