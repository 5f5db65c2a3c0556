// Writes one section of an initialisation file, in the form that
// inif_file.h reads: "[Section]" and "key=value" lines, 8-bit text ending
// in CR LF. The rest of the file (other sections, comments, their line ends)
// stays byte for byte.
#pragma once

#include <string>
#include <vector>

struct KvrInifEntry {
  std::string Key;
  std::string Value;
};

// Writes `entries` into `section` of the file at `path`, which is made when
// it does not exist. Unless `keep` is set the section's old entries and
// comments go; blank lines at its end stay, so that the sections keep their
// spacing. With `keep` an old entry of a key that is written again is
// replaced in place (later duplicates of the key go), other lines stay and
// new keys follow the section's last line. A missing section is added at
// the end of the file. False when the file cannot be written.
bool boKvrInifWriteSection(const char* path, const char* section,
                           const std::vector<KvrInifEntry>& entries, bool keep);
