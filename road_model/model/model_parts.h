// The sub-objects of the model as rows of one table, so that the life cycle
// of the model (init, release, copy, commit, discard) treats them all alike.
// A sub-object type joins the model by adding its row in model_parts.cpp.
#pragma once

#include <span>

struct RmModel;

struct RmModelPart {
  // Creates the object that a new model has; null when a new model has none.
  void (*Init)(RmModel* model);
  // Deletes the committed object.
  void (*Release)(RmModel* model);
  // Deletes the pending object; null when the slot has no pending form.
  void (*DiscardPending)(RmModel* model);
  // Moves a pending object into the committed slot; null as above.
  void (*Commit)(RmModel* model);
  // Replaces the target's objects by deep copies of the source's, the
  // pending one only with `withPending`.
  void (*Copy)(RmModel* target, const RmModel* source, bool withPending);
  // Committed after the pending settings, not with the other objects.
  bool CommitsAfterSettings;
};

// The rows in the order in which a model releases its sub-objects; pending
// objects are discarded and committed in the same order.
std::span<const RmModelPart> RmModelParts();
