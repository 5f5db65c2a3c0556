// The platform layer: the only place that calls the operating system.
//
// Everything else in the project reaches files, processes, clocks, the user's
// name and the message boxes through these functions. This file is the POSIX
// form; a Windows build is one more implementation of the same declarations.
#pragma once

#include <cstddef>
#include <cstdint>

// ---- Message boxes ---------------------------------------------------------

// Box type bits and results, with the values that Windows gives them.
enum : unsigned int {
  kMbOk = 0x0,
  kMbOkCancel = 0x1,
  kMbYesNoCancel = 0x3,
  kMbYesNo = 0x4,
  kMbIconError = 0x10,
  kMbIconExclamation = 0x30,
  kMbIconInformation = 0x40,
  kMbDefButton2 = 0x100,
  kMbDefButton3 = 0x200,
  kMbTaskModal = 0x2000,
  kMbTopmost = 0x10000,
};
enum : int { kIdOk = 1, kIdCancel = 2, kIdYes = 6, kIdNo = 7 };

// A process-wide message handler shows the text of a box and returns the
// button that was chosen. `type` carries the box type bits above.
using PlatformMessageHandler = int (*)(const char* text, const char* title, unsigned int type);

// Installs `handler`; null restores the default, which writes the text and a
// line feed to standard error and answers with the box's default button.
// Returns the handler that was installed before.
PlatformMessageHandler pfnPlatformSetMessageHandler(PlatformMessageHandler handler);

// Shows a box through the current handler and returns its answer.
int iPlatformMessageBox(const char* text, const char* title, unsigned int type);

// The answer a box gives when nobody is there to choose: its default button.
int iPlatformDefaultButton(unsigned int type);

// ---- Text: code page and case ----------------------------------------------

// Narrows UTF-16 text to Windows-1252; a character outside it becomes '?'.
// Writes at most size - 1 bytes and always terminates (size > 0). Returns the
// number of bytes written without the terminator.
size_t uPlatformWideToAnsi(const char16_t* wide, char* out, size_t size);

// Widens Windows-1252 text to UTF-16. Writes at most size - 1 units and always
// terminates (size > 0). Returns the number of units written.
size_t uPlatformAnsiToWide(const char* text, char16_t* out, size_t size);

// Compares two texts ignoring the case of ASCII and Windows-1252 letters, on
// at most `n` bytes (SIZE_MAX: whole texts). Below, equal or above zero.
int iPlatformCompareNoCase(const char* a, const char* b, size_t n);

// The user's decimal sign; '.' where the platform has no other.
char cPlatformDecimalSign();

// ---- Clocks -------------------------------------------------------------------

struct PlatformDateTime {
  int year, month, day, hour, minute, second;  // month from 1
};

// The local date and time; false when the clock cannot be read.
bool boPlatformLocalTime(PlatformDateTime* out);

// Seconds since 1970 of a local date and time, or -1 when it does not exist.
int64_t lPlatformMakeLocalTime(const PlatformDateTime& when);

// The current time as a file time: 100 ns ticks since 1601-01-01 UTC.
int64_t lPlatformFileTimeNow();

// Pauses the calling thread.
void vPlatformSleepMs(unsigned int milliseconds);

// ---- Errors ---------------------------------------------------------------------

// The last error of the calling thread (errno here).
int iPlatformLastError();

// The system's text for an error code, without trailing line ends or blanks.
// False, with an empty `out`, when the system has no text for it.
bool boPlatformErrorText(int code, char* out, size_t size);

// The error code that stands for a file held by someone else.
inline constexpr int kPlatformSharingViolation = 32;

// ---- Files --------------------------------------------------------------------

// An open file, or kPlatformNoFile.
using PlatformFile = intptr_t;
inline constexpr PlatformFile kPlatformNoFile = -1;

enum class PlatformOpenMode {
  kReadExisting,      // read; fails when the file does not exist
  kReadWriteAlways,   // read and write; creates the file when it is missing
  kReadWriteCreate,   // read and write; creates or empties the file
};

// Opens a file. `exclusive` asks that nobody else holds it open at the same
// time; when someone does, the open fails with kPlatformSharingViolation.
// On failure returns kPlatformNoFile and sets *outError when it is given.
PlatformFile hPlatformFileOpen(const char* path, PlatformOpenMode mode, bool exclusive,
                               int* outError);
bool boPlatformFileSeekEnd(PlatformFile file);
// Writes all bytes; false on any short or failed write.
bool boPlatformFileWrite(PlatformFile file, const void* data, size_t size);
// Reads up to `size` bytes; returns the count, -1 on failure.
int64_t lPlatformFileRead(PlatformFile file, void* data, size_t size);
// The size of an open file in bytes, -1 when it cannot be told.
int64_t lPlatformFileSize(PlatformFile file);
bool boPlatformFileClose(PlatformFile file);

// Last write time of an open file as a file time.
bool boPlatformFileWriteTime(PlatformFile file, int64_t* outWriteTime);

bool boPlatformFileExists(const char* path);
bool boPlatformIsDirectory(const char* path);
bool boPlatformDeleteFile(const char* path);
// Gives a file the hidden attribute, so that ordinary listings leave it out.
// True where the system has no such attribute: there the file's name must
// tell what it is.
bool boPlatformHideFile(const char* path);
// Moves a file, replacing the target; across file systems it copies.
bool boPlatformMoveFile(const char* from, const char* to);
// true when the two paths name one file: the same file of the system when
// both exist, else the same full path.
bool boPlatformSameFile(const char* a, const char* b);
// Makes written data last: returns once the bytes and size of the file at
// `path` are on the disk, so that a power cut after it loses none of them.
// False when the file cannot be opened or the system reports a failure; after
// a crash such a file may hold anything. Here fsync; on Windows
// FlushFileBuffers on a handle opened for writing.
bool boPlatformFlushFile(const char* path);
// The same for the names in a folder (the empty text: the current folder),
// so that a file moved into it is found under its new name after a crash.
// Here fsync on the folder opened for reading; on Windows a move that
// writes through (MOVEFILE_WRITE_THROUGH) needs no more.
bool boPlatformFlushDirectory(const char* directory);
// The two flushes above go through a process-wide flush handler, told by
// `directory` which of them asks. Installs `handler`; null restores the
// default, the system's flush. Returns the handler installed before. Tests
// install their own to watch the flushes or make them fail.
using PlatformFlushHandler = bool (*)(const char* path, bool directory);
PlatformFlushHandler pfnPlatformSetFlushHandler(PlatformFlushHandler handler);
// Creates the missing folders of `directory`, the last one included.
bool boPlatformCreateDirectories(const char* directory);
// Creates a new, empty file `<directory>/<prefix>XXXXXX` with a unique name
// and writes its full path to `out`. False, with `out` empty, on failure.
bool boPlatformCreateTempFile(const char* directory, const char* prefix, char* out,
                              size_t size);

// ---- Paths and folders -----------------------------------------------------------

// The separator of the platform's own paths; where it is '/', a path that
// starts with it is absolute.
char cPlatformPathSeparator();

// The current directory; false with `out` empty when it does not fit.
bool boPlatformCurrentDirectory(char* out, size_t size);
bool boPlatformChangeDirectory(const char* path);
// The system's folder for temporary files, with a closing separator.
bool boPlatformTempDirectory(char* out, size_t size);
// The absolute form of `path`, made against the current directory, with "."
// and ".." components resolved by text alone. The file need not exist.
bool boPlatformFullPath(const char* path, char* out, size_t size);
// The full path of the shared library or program that holds this code.
bool boPlatformModulePath(char* out, size_t size);
// Windows: the library's entry point hands over its module handle when the
// library is loaded, and the module path above names that module. Without
// it the module is found by the address of this code. Unused elsewhere.
void vPlatformSetModuleHandle(void* module);

// The search path of dynamic libraries. Here the libraries find each other
// through their run path, so these keep the seam and change nothing. On
// Windows they are the DLL directory of the process; null restores the
// system's own search order.
bool boPlatformGetLibrarySearchPath(char* out, size_t size);
void vPlatformSetLibrarySearchPath(const char* path);

// ---- User and processes -------------------------------------------------------------

// The name of the effective user; false with `out` empty when unknown.
bool boPlatformUserName(char* out, size_t size);

// The exit code of a program that could not be started.
inline constexpr int kPlatformProcessNotStarted = -9999;

// Runs a command line and waits for the program without a limit. The line is
// split at blanks into the program and its arguments; no shell and no quotes,
// so a path with blanks becomes several arguments. Returns the exit code, or
// kPlatformProcessNotStarted. A program ended by a signal gives 128 + signal.
int iPlatformRunProcess(const char* commandLine);

// What a program's exit(code) arrives as in the program that waits for it.
// A child's exit status has 8 bits here, so only the low byte arrives:
// exit(1001) is seen as 233, exit(-1) as 255. On Windows the whole code
// arrives. Judge an exit code by comparing it with this, never with the
// number that the program passed to exit.
int iPlatformExitCodeOf(int code);

// What the platform appends to a program's name to make its file name
// ("" here, ".exe" on Windows).
extern const char kPlatformProgramSuffix[];

// ---- Clipboard ----------------------------------------------------------------------

// A process-local block of bytes that stands for the clipboard.
void vPlatformClipboardSet(const void* data, size_t size);
// A copy of the clipboard's bytes in `out`, at most `capacity`; returns the
// whole size of the block, 0 when it is empty.
size_t uPlatformClipboardGet(void* out, size_t capacity);
void vPlatformClipboardClear();
