// Walking the cross sections of a model inside its work area: with the
// model's WorkArea set, cross sections are walked only inside WorkAreaRange,
// both limits included; with it off, and for long sections, these are the
// plain operations.
#pragma once

#include "road_model/sections/section_set.h"

RmSection* RmSectionsWaGetFirst(const RmModel* model, const RmSectionSet* set);
RmSection* RmSectionsWaGetLast(const RmModel* model, const RmSectionSet* set);
RmSection* RmSectionsWaGetNext(const RmModel* model, const RmSectionSet* set,
                               const RmSection* section);
RmSection* RmSectionsWaGetPrev(const RmModel* model, const RmSectionSet* set,
                               const RmSection* section);
int iRmSectionsWaGetCount(const RmModel* model, const RmSectionSet* set);
// Whether the work area leaves cross sections out before its start, or
// after its end.
bool boRmModelHasSectionsBeforeWorkArea(const RmModel* model, const RmSectionSet* set);
bool boRmModelHasSectionsAfterWorkArea(const RmModel* model, const RmSectionSet* set);
