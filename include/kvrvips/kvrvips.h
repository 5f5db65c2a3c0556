/* kvrvips: converts a VIPS road or railway design into a road model file of
 * file type "sfi".
 *
 * The library exports exactly one function. Everything the conversion does
 * happens inside one call of it, on the caller's thread; two conversions must
 * not run at the same time in one process. */
#ifndef KVRVIPS_KVRVIPS_H
#define KVRVIPS_KVRVIPS_H

#include <stdint.h>

#if defined(_WIN32)
#  if defined(KVRVIPS_BUILDING_LIBRARY)
#    define KVRVIPS_API __declspec(dllexport)
#  else
#    define KVRVIPS_API __declspec(dllimport)
#  endif
#else
#  define KVRVIPS_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Import flags: which parts of the design to read. */
#define KVRVIPS_IMPORT_HORIZONTAL 1u      /* plan geometry of the reference alignment */
#define KVRVIPS_IMPORT_VERTICAL 2u        /* its vertical geometry and elevation differences */
#define KVRVIPS_IMPORT_TABLES 4u          /* all tables and sections */
#define KVRVIPS_IMPORT_EXTRA_ALIGNMENTS 8u /* the other alignments, plan and vertical */
#define KVRVIPS_IMPORT_FULL 65535u        /* all of the above into a reset model */

/* Converts the design `genFile` into the road model file `modelFile`.
 *
 * genFile             path of the design (a .gen database or a design document)
 * modelFile           road model file: loaded if it exists, written on success
 * importFlags         KVRVIPS_IMPORT_* bits; 65535 is a full import
 * logFileOut          receives the path of the import log; must not be null.
 *                     The text lives in a short-lived ring buffer: copy it at once
 * factorySettingsFile path of the factory settings file
 * describeOpenError   nonzero: an open failure is logged with its English text
 * convertFirst        nonzero: run kvrvips_convert_gen on the design first
 *
 * Returns 0 on success and -1 on any failure. On failure the model file is
 * left exactly as it was. */
KVRVIPS_API int iKvrVipsConvertDatabase(const char* genFile, const char* modelFile,
                                        uint32_t importFlags, char** logFileOut,
                                        const char* factorySettingsFile,
                                        uint32_t describeOpenError, uint32_t convertFirst);

#ifdef __cplusplus
}
#endif

#endif
