// The DATAVERSION history of the model file: what a load does to a model
// read from a file of an older version, after every section has been read.
//
// The steps stand in one table in the order in which they run; each names
// the versions it runs for and, in its comment, what it needs of the model.
// Changes of a record's own form by version (an older row form, a keyword
// that an older file leaves out) stay with the reader of that record.
#pragma once

struct RmModel;

// Runs every step whose versions hold the model's DataVersion.
void vRmModelMigrate(RmModel* model);
