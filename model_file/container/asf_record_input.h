// Reading the lines of geometry records: the line that waits in the line
// buffer, the start of a section's records, the state of the record being
// read, and counts announced by a record.
#pragma once

#include "model_file/container/asf_handle.h"

// No record is waiting to be read.
inline constexpr int32_t kAsfNoPendingType = -1;

// What the reading of a record's head comes to.
enum : int {
  kAsfHeadRead = 0,        // the record is read up to its body
  kAsfHeadSkipped = 1,     // the record is passed over; the search goes on
  kAsfHeadSectionEnd = 2,  // the section ends before the record is complete
};

// The next line of the records: the line that waits in the buffer if there
// is one, else a new line cut to 9,999 characters. Null at the end of the
// file.
char* sAsfRecordLine(AsfFile* file);

// Lets the line just read wait in the buffer for the next sAsfRecordLine: a
// ":" or "[" line that ends what was being read.
void vAsfRecordHold(AsfFile* file);

// Whether a line ends a record: the head of the next one (":") or the end of
// the section ("[").
inline bool boAsfEndsRecord(const char* line) { return line[0] == ':' || line[0] == '['; }

// Whether the first word of a line (up to a blank or the end) is `word`.
bool boAsfFirstWordIs(const char* line, const char* word);

// Whether the point of the record lies within the reading filter, bounds
// included; true when no filter is set.
bool boAsfPointInFilter(const AsfFile* file);

// Readies the reader for the section's records: a body that is not yet known
// is looked for. False when the section has no body.
bool boAsfRecordsBegin(AsfFile* file, AsfSection* section);

// Puts the reader back at the first record of the section.
bool boAsfRecordsRewind(AsfFile* file, AsfSection* section);

// Clears the state of the record before its head is read: field values,
// GUID, dimension, fixed height, polygon flags, rotation, alignment, label,
// point, counts and offsets.
void vAsfRecordReset(AsfFile* file, AsfSection* section);

// A count of lines announced by a record, held to what the bytes still ahead
// in the file could hold at `minLineBytes` bytes a line: an absurd count in
// a damaged file must not make room for more than can come.
int iAsfBoundedCount(const AsfFile* file, long count, int minLineBytes);
