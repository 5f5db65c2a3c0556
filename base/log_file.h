// The append-only log file with a deferred error report.
//
// Every line opens the file, appends and closes it again, so nothing stays
// open between calls and several writers, also in other processes, can share
// one file. The log never stops its caller: a failure is either shown to the
// user at once or kept, the first one with its text, for a later question.
#pragma once

#include <cstddef>

#include "base/printf_format.h"

// Sets the path of the log file; at most 256 characters are kept.
void vLogSetFileName(const char* path);
// The path of the log file; empty until one is set.
const char* sLogGetFileName();

// true: failures are kept for boLogGetError; false: they are shown in a box.
void vLogDeferErrors(bool flag);
// With failures shown: whether a failure after the file was opened (move to
// the end, write, close) is shown too. A failed open is always shown.
void vLogReportWriteErrors(bool flag);
// true: lines begin with date and time; false: with the date. Returns the
// former setting.
int iLogSetLongStamp(bool flag);

// Appends one line, printf-style: the stamp, ": ", the text with every line
// end made a carriage return and line feed, cut to 4093 characters in all,
// and a closing carriage return and line feed. A null format writes the stamp
// alone.
void vLogWrite(const char* format, ...) KVRVIPS_PRINTF_FORMAT(1, 2);

// Deletes the log file; true on success.
bool boLogDelete();

// false when no failure is kept. Otherwise stores the kept failure's system
// code in *outCode and its text in outText (cut to size), for those given.
bool boLogGetError(int* outCode, char* outText, size_t size);
// The failures counted since the last reset.
long lLogGetErrorCount();
// Forgets the kept failure and the count; returns the former count.
long lLogResetErrors();
