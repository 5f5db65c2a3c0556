// Reading and writing fields of a text: blank-separated tokens with groups,
// separated fields with or without quotes, the list text reader, the quoting
// of the model file and the `name:value` tag writer.
#pragma once

#include <cstddef>

// ---- Tokens ----------------------------------------------------------------

// The next blank-separated token of the text at *cursor, cut out in place.
// A token that starts with a double quote runs to the next one and loses its
// quotes; it may hold blanks and is never split. Elsewhere double quotes and
// parentheses group, nested parentheses included: `tag:(a:1 (b c))` is one
// token. An unquoted token is split at its first `separator` (outside
// quotes and parentheses): the token becomes the name and *value points
// behind the separator; without a separator (or with `separator` 0) *value
// is null. A value in double quotes loses them. Returns the token, or null
// when the text holds no more; *cursor then stands at the terminator.
char* sTokenNext(char** cursor, char** value, char separator);

// The content of "(...)" when `text` ends with the closing parenthesis,
// else null. On success the text is cut at the opening parenthesis, so that
// "tag:(a b)" leaves "tag:" and returns "a b".
char* sTokenParens(char* text);

// ---- Separated fields --------------------------------------------------------

// Copies the field up to `separator` or the end into `out`, without regard
// to quotes; an over-long field is cut and its rest skipped. The cursor then
// stands behind the separator, on the terminator when the field was the
// last, and becomes null once a call has read the empty field at the end.
// A null cursor gives the empty text. Returns `out`.
char* sFieldNext(char* out, size_t size, const char** cursor, char separator);

// As sFieldNext, but blanks in front are skipped and a field in double
// quotes may hold the separator; the quotes go. Leading tabs and trailing
// blanks and tabs are trimmed (a tab that is the separator excepted), and a
// field that still begins and ends with a double quote loses them.
char* sFieldNextQuoted(char* out, size_t size, const char** cursor, char separator);

// Field `index` (from 0) of `text`, read as sFieldNextQuoted reads. False,
// with `out` empty, when there is no such field; an empty field at the very
// end counts as none.
bool boFieldGet(const char* text, char separator, int index, char* out, size_t size);

// The same, up to 1999 bytes, as a temporary text; empty when missing.
const char* sFieldGet(const char* text, char separator, int index);

// The index of the first field equal to `value`, byte for byte. False with
// index 0 when there is none.
bool boFieldFind(const char* text, char separator, const char* value, int* outIndex);

// The list text reader: the next field of *cursor into `out`. Blanks in front
// are skipped; a field may stand in double quotes, inside which the separator
// is text. \" and "" give a double quote. Trailing blanks are cut. False when
// the cursor is null or at the end of the text, or `size` is 0.
bool boFieldNextList(const char** cursor, char separator, char* out, size_t size);

// The first word of `text`: bytes up to 32 in front are skipped; a word in
// double quotes runs to the next one, else to the next byte up to 32. At
// most size - 1 bytes are kept. *outCursor, when given, gets the place behind
// the word (behind a closing quote), null for a null text. Returns `out`.
char* sFirstWord(const char* text, const char** outCursor, char* out, size_t size);

// ---- Writing fields ------------------------------------------------------------

// The model file's form of a text: blanks and double quotes at both ends and
// double quotes inside are taken out, and the rest stands in double quotes
// only when it holds a blank. Null or empty gives `""`. The result lies in
// `buffer` (not always at its start; at most size - 3 bytes of the text are
// kept) or is the fixed `""`; use the returned pointer.
const char* sQuote(char* buffer, size_t size, const char* text);

// Tag writers: each appends `name` as it is, then a value, at *cursor, keeps
// the text terminated and lowers *room by the bytes written. The name
// carries its own colon and any blank in front ("Field:", " Width:").
// A value with a blank stands in double quotes; a line feed is written as
// \n, a double quote as \", a backslash as \\, and a carriage return is
// dropped. Nothing is written when name, value and 8 bytes do not fit.
void vTagAppendText(char** cursor, size_t* room, const char* name, const char* value);
void vTagAppendInt(char** cursor, size_t* room, const char* name, int value);
// Prints with `decimals` places and trims closing zeros.
void vTagAppendDouble(char** cursor, size_t* room, const char* name, double value,
                      int decimals);
