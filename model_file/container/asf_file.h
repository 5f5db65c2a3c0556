// The ASCII section container: a text file (or a block of memory) with a head
// of key/value pairs, a directory of named, typed sections, and for each
// section a body of text lines or geometry records.
//
// Writing is one forward pass: set up the sections and keys, write the head
// once, then the bodies, section by section, then close. A few fixed-width
// `_EXTENT` lines are patched in place when the file is finished. Reading goes
// by lines; a section's body is found again by its cached line number.
//
// All operations are free functions on the handle. A `bo` result is true for
// success. Every operation accepts a null handle or section and then fails or
// does nothing.
#pragma once

#include <cstddef>
#include <cstdint>

struct AsfFile;
struct AsfSection;

// Four doubles: minimum x, minimum y, maximum x, maximum y.
struct AsfExtent {
  double dMinX;
  double dMinY;
  double dMaxX;
  double dMaxY;
};

// The minima and maxima of an empty extent.
inline constexpr double kAsfExtentEmptyMin = 99999999.9;
inline constexpr double kAsfExtentEmptyMax = -99999999.9;

// Section types and the letter that shows each in the file.
enum : int {
  kAsfTypeLine = 0,     // L
  kAsfTypePoint = 1,    // P
  kAsfTypeText = 2,     // T
  kAsfTypePolygon = 3,  // Y
  kAsfTypeNet = 4,      // N
  kAsfTypeCloud = 5,    // C
  kAsfTypeOther = 100,  // O: plain text lines
};

// Sizes of the fixed text fields.
inline constexpr size_t kAsfPathSize = 257;          // 256 characters and a terminator
inline constexpr size_t kAsfFileTypeSize = 64;       // 63 characters and a terminator
inline constexpr size_t kAsfSectionNameSize = 36;    // 35 characters and a terminator
inline constexpr size_t kAsfKeyNameMax = 255;        // characters of a key's name
inline constexpr size_t kAsfLineSize = 10000;        // the handle's line buffer
inline constexpr int kAsfMaxFieldBindings = 8;

// ---- Handles ---------------------------------------------------------------

// A write handle on `path` (mode "wb"); a null path makes a memory handle
// named "ClipBoard". On failure shows "Error creating:\n<path>" and returns
// null.
AsfFile* AsfFileCreate(const char* path);

// Opens `path` for reading (mode "rb"), detects the format and reads the head
// and directory. A file in the current format must end in "[END]". Null on
// any failure, without a message.
AsfFile* AsfFileOpen(const char* path);

// The same over `size` bytes at `data`, which must stay valid until the
// handle is closed. No tail check.
AsfFile* AsfFileOpenMem(const void* data, size_t size);

// Finishes a write handle if that has not been done, closes the streams and
// frees everything. Null is accepted.
void vAsfFileClose(AsfFile* file);

// Finishes a write handle: file extent, "[END]", patched placeholders. Runs
// once; later calls (and the close) do nothing more. False if any write of
// the handle has failed.
bool boAsfFileFinish(AsfFile* file);

// The file type, cut to 63 characters.
void vAsfFileSetType(AsfFile* file, const char* type);
const char* sAsfFileGetType(const AsfFile* file);

// The container version read from `_VERSION`; 1 for the older format.
int iAsfFileGetVersion(const AsfFile* file);

// True once any write of the handle has come up short. Never cleared.
bool boAsfFileWriteFailed(const AsfFile* file);

// The bytes written so far to a memory write handle; they stay valid until the
// next write or the close. False for any other handle.
bool boAsfMemGet(const AsfFile* file, const char** outData, size_t* outSize);

// Size and position of the handle's stream; -1 when there is none.
int64_t lAsfStreamLength(const AsfFile* file);
int64_t lAsfStreamPos(const AsfFile* file);

// ---- Keys --------------------------------------------------------------------

// Sets a key of the head (section null) or of a section. An existing name has
// its value replaced, a new one is appended. The name is cut to 255
// characters; an empty or null value is stored as no value.
void vAsfKeySet(AsfFile* file, AsfSection* section, const char* name, const char* value);

// The key at `index`. A key without value reads as "". Past the end both
// results are "" and the result is false.
bool boAsfKeyAt(const AsfFile* file, const AsfSection* section, int index, const char** outName,
                const char** outValue);

// The value of the key with exactly this name, "" when there is none.
const char* sAsfKeyGetValue(const AsfFile* file, const AsfSection* section, const char* name);

// ---- Sections ----------------------------------------------------------------

// Appends a section with an empty extent; the name is cut to 35 characters.
AsfSection* AsfSectionAdd(AsfFile* file, const char* name, int type);

// The first section with exactly this name and type. When its body's line is
// known, the reader is moved there. Null if absent or if the move fails.
AsfSection* AsfSectionFind(AsfFile* file, const char* name, int type);

// The same by position in the directory.
AsfSection* AsfSectionAt(AsfFile* file, int index);

int iAsfSectionGetType(const AsfSection* section);
const char* sAsfSectionGetName(const AsfSection* section);

// ---- Field names and values ----------------------------------------------------

// Replaces the name at `index`, or appends it when `index` equals the count.
// Any other index does nothing.
void vAsfFieldNameSet(AsfFile* file, AsfSection* section, int index, const char* name);

int iAsfFieldCount(const AsfFile* file, const AsfSection* section);
bool boAsfFieldNameAt(const AsfFile* file, const AsfSection* section, int index,
                      const char** outName);
// The value of the field at `index` in the object read last; "" if none.
bool boAsfFieldValueAt(const AsfFile* file, const AsfSection* section, int index,
                       const char** outValue);
// The next field of the object read last that has a value; false at the end.
bool boAsfFieldNext(AsfFile* file, const AsfSection* section, const char** outName,
                    const char** outValue);

// Binds a field to a caller's buffer of `size` bytes, which then receives the
// field's value with every object read. At most eight bindings per section;
// an existing name is rebound, a ninth name is ignored.
void vAsfFieldBind(AsfFile* file, AsfSection* section, const char* name, char* buffer,
                   size_t size);

// ---- Extents and the reading filter ----------------------------------------------

// The extent of a section, or of the file when the section is null. A null
// extent sets the empty one.
void vAsfExtentSet(AsfFile* file, AsfSection* section, const AsfExtent* extent);
const AsfExtent* AsfExtentGet(const AsfFile* file, const AsfSection* section);

// Sets the reading filter, or clears it with null.
void vAsfFilterSet(AsfFile* file, const AsfExtent* extent);

// ---- Writing and reading lines ---------------------------------------------------

// Writes the head and the directory. Sections and keys must be set up before.
// False when a section has a type without a letter: the head is then not
// finished.
bool boAsfFileWriteHead(AsfFile* file);

// Appends one text line to a section, starting the section's body first.
// `length` 0 writes the text up to its terminator, otherwise that many bytes.
bool boAsfSectionWriteLine(AsfFile* file, AsfSection* section, const char* text, size_t length);

// Appends `size` bytes of whole lines, each ended by CR LF, to a section as
// they stand: many lines in one write.
bool boAsfSectionWriteText(AsfFile* file, AsfSection* section, const char* text, size_t size);

// The next line of an O section. False at a line that starts with "[" or at
// the end of the file. The line lives in the handle until the next read;
// `outSize` is set to 0.
bool boAsfSectionNextLine(AsfFile* file, AsfSection* section, const char** outLine,
                          size_t* outSize);
