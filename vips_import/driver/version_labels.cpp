#include "vips_import/driver/version_labels.h"

#include "base/numbers.h"
#include "vips_import/driver/import_log.h"

double VipsModelVersion = 0.0;

namespace {

struct VersionLabel {
  double version;
  const char* label;
};

constexpr VersionLabel kVersionLabels[] = {
    {7.0, "Np18.10"}, {7.5, "Np18.30"}, {8.0, "Np19"},
    {8.1, "Np19.20"}, {8.2, "Np20"},    {10.0, "Np21"},
};

}  // namespace

const char* sVipsVersionLabel(double version) {
  for (const VersionLabel& known : kVersionLabels) {
    if (boEqual(version, known.version)) return known.label;
  }
  return "Unknown";
}

const char* sVipsModelTypeLabel(int modelType) {
  switch (modelType) {
    case 1: return "Road";
    case 2: return "Railway";
    case 3: return "WS";
    default: return "Unknown";
  }
}

void vVipsLogModelHeader(std::FILE* log, double version, int modelType) {
  vVipsLogPrint(log, "Import VIPS database (.gen fil)\n");
  vVipsLogPrint(log, "Version: %s Type: %s\n", sVipsVersionLabel(version),
                sVipsModelTypeLabel(modelType));
  vVipsLogPrint(log, "VIPS model version %.1lf\n", version);
  vVipsLogPrint(log, "------------------------------------\n\n");
}
