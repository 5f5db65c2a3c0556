// The external converter kvrvips_convert_gen, which brings a design up to
// date in place before it is opened. It lies beside this library.
#pragma once

#include <cstdio>

// Runs the converter, found beside the module that holds this code, on
// `genFile` and waits for it. The command line is the converter's path, one
// blank and `genFile`, without quotes, so that a path with blanks reaches
// the converter as several arguments. True when the converter reported
// success (exit code 1001). Otherwise the failures that the converter names
// are logged ("Feil kode ..."), any other exit code (0, a program that
// cannot be started) logs nothing, and the result is false.
bool boVipsRunConverter(const char* genFile, std::FILE* log);
