// The masses of locked sections when a model file is loaded. A locked
// section is kept as it is by every recalculation; the load lifts the lock
// for a moment so that the masses and outlines that the file carries are
// those of the section's layers as they stand now.
#pragma once

struct RmModel;

// For each locked section of both section sets: lifts LOCKED, computes the
// section's masses with the mass types of its set, and puts the flag back.
// Sets without mass types are left alone.
void vRmModelComputeLockedMasses(RmModel* model);

// Rebuilds the locked cross sections of a file older than the current
// form, as far as this library can rebuild a section: each is unlocked, the
// layers that its mass types generated are removed and its masses, their
// outlines and the generated layers are made anew, and it is locked again.
// The layers from the design cannot be rebuilt here (that is the section
// builder's) and stay as the file holds them. Marks the model dirty when a
// section was locked, so that the next save writes the current form.
void vRmModelRebuildLockedSections(RmModel* model);
