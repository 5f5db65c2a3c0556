// Point and text records: ":P" and ":T" with their field values, GUID,
// rotation (in degrees in the file), the alignment and label of texts, and
// the position in a "/XYZ" line.
#include "model_file/container/asf_point_record.h"

#include <cmath>

#include "model_file/container/asf_field_values.h"
#include "model_file/container/asf_record_input.h"
#include "model_file/container/asf_record_numbers.h"
#include "model_file/container/asf_record_output.h"

namespace {

// A rotation closer to 0 than this is not written.
constexpr double kRotationMin = 0.00001;
constexpr double kDegreesPerRadian = 180.0 / 3.141592653589793;

ViExtent ExtentOfPosition(const ViPoint3d& position) {
  return ViExtent{position.x, position.y, position.x, position.y};
}

void vWriteRotation(AsfRecordOutput* output, double radians) {
  if (std::fabs(radians) > kRotationMin) {
    vAsfOutputFormat(output, "_rot %.2lf", radians * kDegreesPerRadian);
  }
}

void vWritePosition(AsfRecordOutput* output, const ViPoint3d& position) {
  vAsfOutputText(output, "/XYZ");
  char* line = pAsfOutputLineBegin(output);
  char* end = pAsfPrintNumber(line, position.x, 6);
  *end++ = ' ';
  end = pAsfPrintNumber(end, position.y, 6);
  *end++ = ' ';
  end = pAsfPrintNumber(end, position.z, 6);
  vAsfOutputLineEnd(output, end);
}

// Takes the pending record when it is of `type`.
bool boTakePending(AsfFile* file, const AsfSection* section, const void* object, int type) {
  if (!file || !section || !object || file->iPendingType != type) return false;
  file->iPendingType = kAsfNoPendingType;
  return true;
}

}  // namespace

bool boAsfPointWrite(AsfFile* file, AsfSection* section, const PoPoint* point,
                     AsfFieldCallback fieldCallback, void* datum) {
  if (!point) return false;
  ViPoint3d position;
  vPoPointGetP(point, &position);
  AsfRecordOutput output;
  if (!boAsfRecordBegin(&output, file, section, kAsfTypePoint, ExtentOfPosition(position))) {
    return false;
  }
  vAsfOutputFormat(&output, ":P %ld", lPoPointGetID(point));
  vAsfFieldValuesWrite(&output, section, point, fieldCallback, datum);
  vAsfOutputFormat(&output, "GUID %s", sPoPointGetGuid(point));
  vWriteRotation(&output, dPoPointGetRotation(point));
  vWritePosition(&output, position);
  return boAsfOutputFlush(&output);
}

bool boAsfTextWrite(AsfFile* file, AsfSection* section, const TeText* text,
                    AsfFieldCallback fieldCallback, void* datum) {
  if (!text || !section || section->iType != kAsfTypeText) return false;
  // A text without a label shows nothing and is not kept.
  if (sTeTextGetLabel(text)[0] == 0) return true;
  ViPoint3d position;
  vTeTextGetP(text, &position);
  AsfRecordOutput output;
  if (!boAsfRecordBegin(&output, file, section, kAsfTypeText, ExtentOfPosition(position))) {
    return false;
  }
  vAsfOutputFormat(&output, ":T %ld", lTeTextGetID(text));
  vAsfFieldValuesWrite(&output, section, text, fieldCallback, datum);
  vAsfOutputFormat(&output, "GUID %s", sTeTextGetGuid(text));
  vWriteRotation(&output, dTeTextGetRotation(text));
  if (iTeTextGetAlign(text) > 0) vAsfOutputFormat(&output, "_align %d", iTeTextGetAlign(text));
  vAsfOutputFormat(&output, "_label %s", sTeTextGetLabel(text));
  vWritePosition(&output, position);
  return boAsfOutputFlush(&output);
}

bool boAsfPointRead(AsfFile* file, AsfSection* section, PoPoint* point) {
  if (!boTakePending(file, section, point, kAsfTypePoint)) return false;
  vPoPointSetP(point, file->adPoint[0], file->adPoint[1], file->adPoint[2]);
  vPoPointSetRotation(point, file->dRotation);
  vPoPointSetGuid(point, file->acGuid);
  return true;
}

bool boAsfTextRead(AsfFile* file, AsfSection* section, TeText* text) {
  if (!boTakePending(file, section, text, kAsfTypeText)) return false;
  if (file->acLabel[0] == 0) return false;
  vTeTextSetP(text, file->adPoint[0], file->adPoint[1], file->adPoint[2]);
  vTeTextSetRotation(text, file->dRotation);
  vTeTextSetAlign(text, file->iAlign);
  vTeTextSetLabel(text, file->acLabel);
  vTeTextSetGuid(text, file->acGuid);
  return true;
}
