// Keys, field names, field values and field bindings of the container.
#pragma once

#include <cstddef>

#include "model_file/container/asf_handle.h"

void vAsfKeyListClear(AsfKeyList* list);
void vAsfFieldListClear(AsfFieldList* list);
void vAsfBindingsClear(AsfSection* section);

// Appends a field name of `length` bytes.
void vAsfFieldNameAppend(AsfSection* section, const char* name, size_t length);
// The field with exactly this name of `length` bytes, or null.
AsfField* AsfFieldFind(const AsfSection* section, const char* name, size_t length);

// Sets every field of the section to the empty value, empties the store and
// rewinds the field iterator. Runs before the values of a record are read.
void vAsfFieldValuesReset(AsfFile* file, AsfSection* section);

// Appends a piece of the joined field values (the text of a `_FIELDVALUES`
// or `_FIELDVALUES2` line behind its blank). False when the store cannot
// grow: the piece is then lost and the earlier ones stay.
bool boAsfFieldStoreAppend(AsfFile* file, const char* text, size_t length);

// Splits the joined values among the fields in order: each value runs to the
// next ";" that is not behind a backslash, and backslash ";" becomes ";".
// Backslash n stays as it is. Then copies the bound fields to their buffers.
void vAsfFieldValuesSplit(AsfFile* file, AsfSection* section);

// Copies each bound field's value to its buffer; a field that the section
// does not have gives "".
void vAsfFieldBindingsCopy(AsfSection* section);
