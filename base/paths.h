// Paths as text: drives, components, joining, directory and file name,
// extensions, relative paths, and the few questions that need the file
// system (full path, current directory, same place, existence).
//
// Both '\' and '/' separate components, and a drive is a letter and a colon:
// model files and settings hold Windows paths, and these helpers treat them
// as Windows does on every platform. Where a path is the platform's own, it
// keeps the platform's form: on a platform whose separator is '/', a path
// that starts with '/' is absolute, a directory without any '\' or drive is
// joined with '/', and the root '/' stays whole as a directory.
//
// A function with the ending To fills the caller's buffer, cutting silently
// at size - 1 bytes; its partner without that ending returns a temporary
// text (base/temp_text.h) of at most kPathSize - 1 bytes.
#pragma once

#include <cstddef>

// A path buffer, terminator included.
inline constexpr size_t kPathSize = 257;

// A letter and a colon in front.
bool boPathHasDrive(const char* path);
// Two backslashes in front.
bool boPathIsUnc(const char* path);
// A drive or a UNC name in front, or the platform's root; a single leading
// backslash is not absolute.
bool boPathIsAbsolute(const char* path);

// Copies the next component of `path` into `out` (a drive with its colon
// counts as one) and returns the place behind it and its separator; at the
// end of the path that is the terminator. A null path gives null.
const char* PathNextComponent(const char* path, char* out, size_t size);

// `directory` and `name` joined. A separator goes between unless the
// directory is empty or ends in '\' or ':'; it is '\' for a directory with a
// drive or a backslash (one that ends in '/' gets a '\' as well) and the
// platform's own otherwise, which a directory ending in it does not repeat.
char* sPathJoinTo(const char* directory, const char* name, char* out, size_t size);
const char* sPathJoin(const char* directory, const char* name);

// An absolute `path` as it is, else `path` joined to `directory`; then made
// full by sPathFullTo. `out` is empty on failure.
void vPathMakeAbsolute(const char* directory, const char* path, char* out, size_t size);

// The full path, with "." and ".." resolved against the current directory.
// A Windows path with a drive or UNC name, which this platform cannot
// resolve, is taken as it is. Null on failure, with `out` empty.
char* sPathFullTo(const char* path, char* out, size_t size);
const char* sPathFull(const char* path);

// The current directory; null with `out` empty when it has 261 bytes or more
// or does not fit.
char* sPathCurrentTo(char* out, size_t size);
const char* sPathCurrent();

// What stands behind the last '\', '/' or ':'; at most size - 1 bytes,
// counted from the end.
char* sPathFileNameTo(const char* path, char* out, size_t size);
const char* sPathFileName(const char* path);

// What stands in front of the file name, without its last separator; a
// separator behind a colon stays ("c:\x" gives "c:\", "c:x" gives "c:"), and
// so does the platform's root. "x" gives the empty text.
char* sPathDirectoryTo(const char* path, char* out, size_t size);
const char* sPathDirectory(const char* path);

// The file name without its extension.
char* sPathBaseNameTo(const char* path, char* out, size_t size);
const char* sPathBaseName(const char* path);

// The text behind the last point of the file name, without the point; empty
// when there is none.
char* sPathExtensionTo(const char* path, char* out, size_t size);
const char* sPathExtension(const char* path);

// The last point of the file name, or null.
const char* PathFindExtension(const char* path);

// Cuts the extension of `path` and appends a point and `extension`, when
// that is not empty, within `size` bytes.
void vPathSetExtension(char* path, const char* extension, size_t size);

// Whether two paths, made full and without a closing separator, are one,
// ignoring case.
bool boPathSame(const char* a, const char* b);

// `to` written relative to the directory `from`: the components that both
// begin with (ignoring case) are left out, and each component left in `from`
// becomes "..". `to` as it is when not even the first component is shared;
// empty when either path has kPathSize bytes or more.
char* sPathRelativeTo(const char* from, const char* to, char* out, size_t size);
const char* sPathRelative(const char* from, const char* to);

// `to`, taken against the directory `from`, written relative to `from` when
// it lies inside it, and as a full path when it does not.
char* sPathRelativeOrFullTo(const char* from, const char* to, char* out, size_t size);
const char* sPathRelativeOrFull(const char* from, const char* to);

// Whether two directories are one place, found by going into each (which
// sees through two spellings of one folder) and back: 0 for one place, 1 for
// two, -1 when a directory could not be entered.
int iPathComparePlaces(const char* a, const char* b);

// The file name alone when the directory of `path` is the place `directory`,
// else `path` whole; a temporary text.
const char* sPathInPlace(const char* directory, const char* path);

// Whether a file or directory exists; null gives false.
bool boFileExists(const char* path);

// The folder for temporary files, with a closing separator; empty when it
// does not fit.
char* sTempPathTo(char* out, size_t size);
const char* sTempPath();

// A file dialog filter "*.ext|*.ext|" for each extension of the null-ended
// list. A first text that holds '|' is a filter of its own and is taken
// whole; when it does not fit the result is null. Stops when fewer than 13
// bytes are left, or before an extension that does not fit.
char* sFilterFromExtensions(const char* const* extensions, char* out, size_t size);

// A filter "title (*.a;*.b)|*.a;*.b|" from a list of extensions separated by
// `separator`, at most 999 bytes, as a temporary text.
const char* sFilterFromList(const char* list, char separator, const char* title);
