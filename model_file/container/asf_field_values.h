// Writing the field values of a geometry record: the `_FIELDVALUES` line and
// as many `_FIELDVALUES2` lines as a long value needs.
//
// Each value is taken from the caller's callback and escaped: LF becomes
// backslash and n, CR is dropped, ";" becomes backslash and ";". Then a ";"
// ends it. A line holds 9,999 bytes; when fewer than 3 are left inside a
// value, the line is written as it stands and the value goes on in a line
// `_FIELDVALUES2`. The reader joins the lines again before it splits the
// values.
#pragma once

#include "model_file/container/asf_record_output.h"

// The most bytes of one `_FIELDVALUES` or `_FIELDVALUES2` line.
inline constexpr size_t kAsfFieldValuesLineSize = 9999;

// Writes the values of `object` for every field name of the section, after
// what the output has gathered. Nothing when the section has no field names.
void vAsfFieldValuesWrite(AsfRecordOutput* output, const AsfSection* section, const void* object,
                          AsfFieldCallback callback, void* datum);
