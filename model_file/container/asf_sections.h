// The sections of a container: the list, the letters of the types, and the
// search for a section's body in a file being read.
#pragma once

#include "model_file/container/asf_handle.h"

// The letter of a section type, or 0 for a type without one.
char cAsfTypeLetter(int type);
// The type of a letter of the directory (C, L, N, O, P, T, Y), or -1.
int iAsfTypeOfLetter(char letter);

// Takes the section out of the file's list and frees it with its keys,
// field names and bindings.
void vAsfSectionRemove(AsfFile* file, AsfSection* section);
// Frees every section of the file.
void vAsfSectionsClear(AsfFile* file);

// Reads the next line of the file into the line buffer, cut to 9,999
// characters. False at the end of the file.
bool boAsfReadLine(AsfFile* file);

// Puts the reader behind the head line "[+X_NAME]" of the section's body and
// stores its line number in the section. A non-O section with an empty
// extent has no body, and the search fails at once. Otherwise the line
// buffer is tried first, then the file from the line in front of it to its
// end, then once more from its top. On failure the line buffer is emptied.
bool boAsfSectionFindBody(AsfFile* file, AsfSection* section);
