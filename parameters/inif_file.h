// A reader of initialisation files: named sections of key=value entries.
//
//   ; a comment            # also a comment
//   [Section]
//   key = value
//
// Section names compare without regard to case; keys are delivered as they
// stand, in file order, cut to the caller's buffers (79 and 200 characters in
// the factory settings). Blanks around the "=" and at both ends of a line are
// not part of the key or the value. Lines may end in LF or CR LF; a line of any
// length is read whole and cut only when it is delivered.
#pragma once

#include <cstddef>

struct KvrInif;

// Opens and reads the file; null when it cannot be opened. `flags` is kept
// for callers that pass one and has no meaning here.
KvrInif* pKvrInifOpenPrivate(const char* path, int flags);

// Selects a section; false when the file has none of that name.
bool boKvrInifSetSection(KvrInif* inif, const char* section);

// The first and the next entry of the selected section, in file order; false
// at the end. Key and value are cut to their buffers and always terminated.
bool boKvrInifGetFirstEntry(KvrInif* inif, char* key, size_t keySize, char* value,
                            size_t valueSize);
bool boKvrInifGetNextEntry(KvrInif* inif, char* key, size_t keySize, char* value,
                           size_t valueSize);

// Closes the file; null is accepted.
void vKvrInifClose(KvrInif* inif);
