#include "road_model/model/model_lines.h"

#include "road_model/model/model.h"

namespace {

void vReplace(RmModel* model, RmLines** slot, RmLines* lines) {
  if (*slot != lines) vRmLinesDelete(slot);
  *slot = lines;
  if (lines) lines->Model = model;
}

RmLines* Duplicate(const RmLines* source, RmModel* model) {
  if (!source) return nullptr;
  RmLines* copy = RmLinesCreate();
  vRmLinesCopy(copy, source, model);
  return copy;
}

}  // namespace

RmLines* RmModelGetLines(const RmModel* model) { return model ? model->Lines : nullptr; }

void vRmModelSetLines(RmModel* model, RmLines* lines) {
  if (model) vReplace(model, &model->Lines, lines);
}

RmLines* RmModelGetOrCreateLines(RmModel* model) {
  if (model && !model->Lines) vRmModelSetLines(model, RmLinesCreate());
  return RmModelGetLines(model);
}

RmLines* RmModelGetLinesPending(const RmModel* model) {
  return model ? model->LinesPending : nullptr;
}

RmLines* RmModelGetLinesEffective(const RmModel* model) {
  if (!model) return nullptr;
  return model->LinesPending ? model->LinesPending : model->Lines;
}

RmLines* RmModelPrepareLines(RmModel* model) {
  if (!model) return nullptr;
  if (!model->LinesPending) {
    model->LinesPending = model->Lines ? Duplicate(model->Lines, model) : RmLinesCreate();
    if (model->LinesPending) model->LinesPending->Model = model;
  }
  return model->LinesPending;
}

void vRmModelCommitLines(RmModel* model) {
  if (!model || !model->LinesPending) return;
  vReplace(model, &model->Lines, model->LinesPending);
  model->LinesPending = nullptr;
  vRmModelSetDirty(model, true);
}

void vRmModelDiscardLines(RmModel* model) {
  if (model) vRmLinesDelete(&model->LinesPending);
}

RmLine* RmModelGetCenterLine(const RmModel* model) {
  return RmLinesGetCenterLine(RmModelGetLines(model));
}

void vRmModelReleaseLines(RmModel* model) {
  if (model) vRmLinesDelete(&model->Lines);
}

void vRmModelCopyLines(RmModel* target, const RmModel* source, bool withPending) {
  if (!target || !source || target == source) return;
  vReplace(target, &target->Lines, Duplicate(source->Lines, target));
  if (withPending) vReplace(target, &target->LinesPending, Duplicate(source->LinesPending, target));
}
