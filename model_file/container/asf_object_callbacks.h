// The callbacks through which the caller gives and takes the extra data of
// the geometry records: field values and the `elmdata` text of elements.
#pragma once

#include <cstdint>

struct LiLine;

// Gives the value of the field at `index` (its position in the section's
// field names) for `object`, the line, polygon, point, text, net or cloud
// being written: true and a text, or false (or a null text) for an empty
// value.
using AsfFieldCallback = bool (*)(void* datum, const void* object, int index, const char** text);

// Gives the extra data of one element of a line being written: true and a
// text, or false for none. `element` is the element's position (LiElm).
using AsfElmDataCallback = bool (*)(void* datum, const LiLine* line, int32_t element,
                                    const char** text);

// Takes the extra data of one element of a line being read. `text` is the
// rest of the record line behind the "(" of `elmdata`. The callback may set
// `end` to the place in `text` where its data ends; reading goes on from
// there, or else from the next blank.
using AsfElmReadCallback = void (*)(void* datum, LiLine* line, int32_t element, const char* text,
                                    const char** end);
