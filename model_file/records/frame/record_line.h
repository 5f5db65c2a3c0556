// The line conventions that every text section of the model file shares.
//
// Writing: a record is one line, put together printf-style in a buffer of
// 2,000 bytes (what is longer is cut) and written with CR LF. Texts that may
// hold blanks go through the quoting helper (sQuote) in a buffer of 1,000
// bytes.
//
// Reading: a line is read as its first token, the keyword, and then its
// arguments in order. A token ends at a blank; a token in double quotes runs
// to the next double quote and loses them. A number argument at the end of
// the line is 0, or the default that the record names, so that a record that
// ends early reads as zeros.
#pragma once

#include <cstddef>
#include <cstring>

#include "base/printf_format.h"

struct AsfFile;
struct AsfSection;

// The buffer of one record line, and the longest token: 1,999 bytes.
inline constexpr size_t kRecordLineSize = 2000;
// The buffer of the quoting helper.
inline constexpr size_t kRecordQuoteSize = 1000;

// ---- Writing ----

// Formats one line (cut to 1,999 bytes) and appends it to the section.
// False when the write failed.
bool boRecordWrite(AsfFile* file, AsfSection* section, const char* format, ...)
    KVRVIPS_PRINTF_FORMAT(3, 4);

// ---- Reading ----

// A cursor over one line of a section, with room for the token read last.
struct RecordLine {
  const char* Text;    // the whole line
  const char* Cursor;  // where the next token or number starts
  const char* End;     // the terminator of the line
  char Token[kRecordLineSize];
};

// Starts reading `text`; null reads as the empty line.
void vRecordLineStart(RecordLine* line, const char* text);

// The next token, in line->Token; the empty text at the end of the line.
// Leading blanks are skipped. A token in double quotes runs to the next
// double quote, and what stands behind it up to the next blank is dropped.
// Tabs at both ends are trimmed and surrounding double quotes removed.
const char* sRecordToken(RecordLine* line);

// True when nothing but blanks is left.
bool boRecordAtEnd(RecordLine* line);

// The next integer or real argument; `defaultValue` at the end of the line.
// Any other text is read by the model file's number readers.
int iRecordInteger(RecordLine* line, int defaultValue = 0);
double dRecordNumber(RecordLine* line, double defaultValue = 0.0);

// Whether a token is this keyword, byte for byte.
inline bool boRecordIs(const char* token, const char* keyword) {
  return std::strcmp(token, keyword) == 0;
}

// Whether a line is a row of numbers: its first token starts with a digit,
// "-" or ".".
bool boRecordIsRow(const char* text);

// Reads the lines of a text section one after the other:
//   for (RecordLine line; boRecordNextLine(file, section, &line);) ...
// The keyword of each line is in line.Token once the call returns.
bool boRecordNextLine(AsfFile* file, AsfSection* section, RecordLine* line);
