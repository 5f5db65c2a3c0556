// The two section sets of a model: cross sections (CROSSECTIONS) and long
// sections (LONGSECTIONS), each with a committed and a pending slot.
//
// The operations follow the sub-object slots of model.h. The setters stamp
// the set's kind: 0 for cross sections, 1 for long sections.
#pragma once

struct RmModel;
struct RmSectionSet;

RmSectionSet* RmModelGetCrossSections(const RmModel* model);
void vRmModelSetCrossSections(RmModel* model, RmSectionSet* set);
// The committed set, made empty first when the model has none.
RmSectionSet* RmModelGetOrCreateCrossSections(RmModel* model);
RmSectionSet* RmModelGetCrossSectionsPending(const RmModel* model);
RmSectionSet* RmModelGetCrossSectionsEffective(const RmModel* model);
RmSectionSet* RmModelPrepareCrossSections(RmModel* model);
void vRmModelCommitCrossSections(RmModel* model);
void vRmModelDiscardCrossSections(RmModel* model);

RmSectionSet* RmModelGetLongSections(const RmModel* model);
void vRmModelSetLongSections(RmModel* model, RmSectionSet* set);
RmSectionSet* RmModelGetOrCreateLongSections(RmModel* model);
RmSectionSet* RmModelGetLongSectionsPending(const RmModel* model);
RmSectionSet* RmModelGetLongSectionsEffective(const RmModel* model);
RmSectionSet* RmModelPrepareLongSections(RmModel* model);
void vRmModelCommitLongSections(RmModel* model);
void vRmModelDiscardLongSections(RmModel* model);
