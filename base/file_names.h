// Checks and repairs of file names.
#pragma once

// true when `name` can stand as a file name: it is not empty; it holds no
// byte below 32 and none of : \ / " < > | ? *; it does not end in a blank or
// a point; and the part in front of its first point is no device name (CON,
// PRN, AUX, NUL, COM0 to COM9, LPT0 to LPT9, in any case).
bool boFileNameValid(const char* name);

// true when every name along `path` is valid as above. Separators are \ and
// /; empty names between separators, "." and "..", and a leading drive such
// as "c:" are let through.
bool boPathNamesValid(const char* path);

// `name` made valid, as a temporary text: the refused bytes are taken out,
// then trailing blanks and points, and a device name gets a '_' behind its
// stem ("nul.txt" gives "nul_.txt"). What is left may be empty.
const char* sFileNameSanitise(const char* name);
