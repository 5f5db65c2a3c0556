// What the tests of the export share: design documents, the shipped factory
// settings and a stay in another current directory.
#pragma once

#include <string>

#include "base/platform.h"
#include "tests/support/captured_messages.h"
#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"

// The factory settings file that ships with the product.
inline std::string sShippedSettings() {
  return std::string(KVRVIPS_SOURCE_DIR) + "/examples/factory_settings.ini";
}

// A design document with `input` as its input side ("null" for none) and
// no sections.
inline std::string sDesignDocument(const std::string& input) {
  return R"({"format":"design-model","formatVersion":1,"input":)" + input +
         R"(,"results":{"sections":[]}})";
}

// An input side of this model version and type.
inline std::string sInputOf(const std::string& version, int modelType,
                            const std::string& more = "") {
  return R"({"modelVersionNumber":)" + version + R"(,"modelType":)" +
         std::to_string(modelType) + more + "}";
}

// The head that the import log begins with, for these labels and number.
inline std::string sLogHead(const std::string& version, const std::string& type,
                            const std::string& number) {
  return "Import VIPS database (.gen fil)\nVersion: " + version + " Type: " + type +
         "\nVIPS model version " + number + "\n------------------------------------\n\n";
}

// Makes `folder` the current directory while it lives.
class CurrentDirectory {
 public:
  explicit CurrentDirectory(const std::string& folder) {
    char previous[4096];
    if (boPlatformCurrentDirectory(previous, sizeof previous)) previous_ = previous;
    boPlatformChangeDirectory(folder.c_str());
  }
  ~CurrentDirectory() {
    if (!previous_.empty()) boPlatformChangeDirectory(previous_.c_str());
  }
  CurrentDirectory(const CurrentDirectory&) = delete;
  CurrentDirectory& operator=(const CurrentDirectory&) = delete;

 private:
  std::string previous_;
};

// What the table readers of an import log, in their order: the headings
// from the build settings on, with the warnings of the ditches in fill and
// the lines of the connected models behind their own, and the heading of a
// detailed pavement behind that of the pavement.
inline std::string sTablesLog(const std::string& ditchWarnings = "",
                              const std::string& connectedModels = "",
                              const std::string& detailedPavement = "") {
  return "Leser: Bygg innstillinger\n"
         "Leser tabell: Overflate beskrivelser\n"
         "Leser tabell: Sideavgrensning\n"
         "Leser tabell: Flateavgrensningslinjer\n"
         "Leser tabell: Gr\xF8" "ft i fylling\n" + ditchWarnings +
         "Leser tabell: Fjellhylle\n"
         "Leser tabell: Min. gr\xF8" "fte dybde\n"
         "Leser tabell: Lukkede gr\xF8" "fter \n"
         "Leser tabell: Min. gr\xF8" "fte dybde\n" + connectedModels +
         "Leser tabell: Overbygning\n" + detailedPavement +
         "Leser tabell: Fjerning av matjord og vegetasjon\n"
         "Leser tabell: Masseutskiftning\n";
}

// What the readers of the sections log when the design has a result side,
// behind the blank line that sets them apart from the tables.
inline std::string sSectionsLog() {
  return "\nLeser fysiske profiler\n"
         "Leser \"Vips diverse\" lag, ikke brukt under bygging.\n"
         "Leser teoretiske profiler\n";
}
