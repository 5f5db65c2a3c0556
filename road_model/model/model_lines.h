// The plan lines of a model: the Lines slot of the root and its pending
// form, and the centre line of the model.
//
// Whatever slot receives an RmLines points the object's back pointer at the
// model, so that the vertical lines can find the model's cross sections.
#pragma once

#include "road_model/lines/plan_lines.h"

RmLines* RmModelGetLines(const RmModel* model);
// Takes ownership; deletes the object that the slot held.
void vRmModelSetLines(RmModel* model, RmLines* lines);
// The committed lines, made empty when the model has none.
RmLines* RmModelGetOrCreateLines(RmModel* model);
RmLines* RmModelGetLinesPending(const RmModel* model);
RmLines* RmModelGetLinesEffective(const RmModel* model);
// A pending object, made as a copy of the committed one when there is none.
RmLines* RmModelPrepareLines(RmModel* model);
// Moves a pending object into the committed slot and marks the model dirty.
void vRmModelCommitLines(RmModel* model);
void vRmModelDiscardLines(RmModel* model);

// The centre line of the committed plan lines, or null.
RmLine* RmModelGetCenterLine(const RmModel* model);

// The slot operations of the model's life cycle (see model_parts.h).
void vRmModelReleaseLines(RmModel* model);
void vRmModelCopyLines(RmModel* target, const RmModel* source, bool withPending);
